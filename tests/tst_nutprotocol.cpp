// The lines of the NUT protocol, well-formed and not, and which command stands for which.

#include "connectors/nut/nutcommands.h"
#include "connectors/nut/nutprotocol.h"

#include <QtTest>

using Words = QList<QByteArray>;
using K = CommandKind;

class TestNutProtocol : public QObject
{
    Q_OBJECT

private slots:
    void words()
    {
        const struct {
            const char* line;
            std::optional<Words> words; // empty: not closed
        } rows[] = {
            {"  UPS  \"Rack 3\"\t", Words{"UPS", "Rack 3"}},
            {R"(a "b \"c\" \\" \"d)", Words{"a", "b \"c\" \\", "\"d"}},
            {"a \"\xc3\xa4=\xff#[x]\"", Words{"a", "\xc3\xa4=\xff#[x]"}},
            {"VAR ups a \"\"", Words{"VAR", "ups", "a", ""}},
            {"VAR ups a \"1", {}},
            {"VAR ups a \\", {}},
        };
        for (const auto& row : rows)
            QVERIFY2(splitNutLine(row.line) == row.words, row.line);

        const QByteArray word = "a \"b\" \\ #=\xc3\xa4";
        QCOMPARE(*splitNutLine("X " + nutQuoted(word) + " Y"), (Words{"X", word, "Y"}));
        QVERIFY2(!nutQuoted("ups\nSET VAR x").contains('\n'), "one word never becomes two lines");
    }

    void refusals()
    {
        for (const char* word : {"DATA-STALE", "DRIVER-NOT-CONNECTED"})
            QCOMPARE(nutRefusal(word).state, LinkState::Stale);
        for (const char* word : {"UNKNOWN-UPS", "%1 %n <b>", ""}) {
            const NutFailure failure = nutRefusal(word);
            QCOMPARE(failure.state, LinkState::Refused);
            QVERIFY(failure.isAnswer() && !failure.message.isEmpty());
        }
    }

    void plans()
    {
        const struct {
            CommandKind kind;
            Words offered;
            const char* command;
            Words settings; // variable=value
        } rows[] = {
            {K::SelfTest,
             {"test.battery.start", "test.battery.start.quick"},
             "test.battery.start.quick",
             {}},
            {K::DischargeTest, {"calibrate.start"}, "calibrate.start", {}},
            {K::Shutdown,
             {"shutdown.stayoff", "load.off"},
             "shutdown.stayoff",
             {"ups.delay.shutdown=45"}},
            {K::Shutdown, {"load.off"}, "load.off", {}}, // has no delay
            {K::Standby,
             {"shutdown.return"},
             "shutdown.return",
             {"ups.delay.shutdown=45", "ups.delay.start=600"}},
            {K::WakeUp, {"load.off", "outlet.1.load.on"}, "", {}}, // only part of the name
        };
        for (const auto& row : rows) {
            UpsCommand command;
            command.kind = row.kind;
            command.standbyMinutes = 10;
            command.shutdownDelay = 45;
            const NutVariables writable{{"ups.delay.start", "30"}, {"ups.delay.shutdown", "20"}};
            const NutCommandPlan plan = planNutCommand(command, row.offered, writable);
            QCOMPARE(plan.command, QByteArray(row.command));
            Words settings;
            for (const NutSetting& setting : plan.before)
                settings << setting.variable + '=' + setting.value;
            QCOMPARE(settings, row.settings);
            const NutVariables same{{"ups.delay.start", "0600"}, {"ups.delay.shutdown", "45"}};
            QVERIFY2(planNutCommand(command, row.offered, same).before.isEmpty(), "set already");
            const NutCommandPlan fixed = planNutCommand(command, row.offered, {});
            QCOMPARE(fixed.startDelayIsFixed, row.kind == K::Standby);
        }
    }
};

QTEST_GUILESS_MAIN(TestNutProtocol)
#include "tst_nutprotocol.moc"
