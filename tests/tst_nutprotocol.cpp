// The lines of the NUT protocol, well-formed and not, and which command stands for which.

#include "connectors/nut/nutcommands.h"
#include "connectors/nut/nutprotocol.h"

#include <QtTest>

using Words = QList<QByteArray>;
using K = CommandKind;
Q_DECLARE_METATYPE(K)

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
            {"VAR ups a \"\"", Words{"VAR", "ups", "a", ""}},
            {R"(a "b \"c\" \\" \"d)", Words{"a", "b \"c\" \\", "\"d"}},
            {"a \"\xc3\xa4=\xff#[x]\"", Words{"a", "\xc3\xa4=\xff#[x]"}},
            {"VAR ups a \"1", {}},
            {"VAR ups a \\", {}},
            {"", Words{}},
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

    void plans_data()
    {
        QTest::addColumn<K>("kind");
        QTest::addColumn<Words>("offered");
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<Words>("settings"); // variable=value
        const auto row = [](const char* name, K kind, const Words& offered, const char* command,
                            const Words& settings = {}) {
            QTest::newRow(name) << kind << offered << QByteArray(command) << settings;
        };
        row("first choice", K::SelfTest, {"test.battery.start", "test.battery.start.quick"},
            "test.battery.start.quick");
        row("third choice", K::DischargeTest, {"calibrate.start"}, "calibrate.start");
        row("shutdown tells the delay", K::Shutdown, {"shutdown.stayoff", "load.off"},
            "shutdown.stayoff", {"ups.delay.shutdown=45"});
        row("load off has no delay", K::Shutdown, {"load.off"}, "load.off");
        row("standby tells both delays", K::Standby, {"shutdown.return"}, "shutdown.return",
            {"ups.delay.shutdown=45", "ups.delay.start=600"});
        row("restart", K::Restart, {"shutdown.reboot", "shutdown.return"}, "shutdown.reboot");
        row("only part of the name", K::WakeUp, {"load.off", "outlet.1.load.on"}, "");
    }
    void plans()
    {
        QFETCH(K, kind);
        QFETCH(Words, offered);
        UpsCommand command;
        command.kind = kind;
        command.standbyMinutes = 10;
        command.shutdownDelay = 45;
        const NutVariables writable{{"ups.delay.start", "30"}, {"ups.delay.shutdown", "20"}};
        const NutCommandPlan plan = planNutCommand(command, offered, writable);
        QTEST(plan.command, "command");
        Words settings;
        for (const NutSetting& setting : plan.before)
            settings << setting.variable + '=' + setting.value;
        QTEST(settings, "settings");
        QVERIFY(!plan.startDelayIsFixed);
        QVERIFY(!plan.lookedFor.isEmpty());

        const NutVariables same{{"ups.delay.start", "0600"}, {"ups.delay.shutdown", "45"}};
        QVERIFY2(planNutCommand(command, offered, same).before.isEmpty(), "set already");
        const NutCommandPlan fixed = planNutCommand(command, offered, {});
        QVERIFY(fixed.before.isEmpty());
        QCOMPARE(fixed.startDelayIsFixed, command.kind == CommandKind::Standby);
    }
};

QTEST_GUILESS_MAIN(TestNutProtocol)
#include "tst_nutprotocol.moc"
