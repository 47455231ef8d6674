// The lines of the NUT protocol, well-formed and not, and which command stands for which.

#include "connectors/nut/nutcommands.h"
#include "connectors/nut/nutprotocol.h"

#include <QtTest>

using Words = QList<QByteArray>;

class TestNutProtocol : public QObject
{
    Q_OBJECT

private slots:
    void words_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<Words>("words");
        QTest::addColumn<bool>("closed");
        const auto row = [](const char* name, const char* line, const Words& words,
                            bool closed = true) {
            QTest::newRow(name) << QByteArray(line) << words << closed;
        };
        row("plain", "VAR ups a.b \"1\"", {"VAR", "ups", "a.b", "1"});
        row("blanks in quotes", "  UPS  \"Rack 3\"\t", {"UPS", "Rack 3"});
        row("empty value", "VAR ups a \"\"", {"VAR", "ups", "a", ""});
        row("escapes", R"(a "b \"c\" \\" \"d)", {"a", "b \"c\" \\", "\"d"});
        row("other octets", "a \"\xc3\xa4=\xff#[x]\"", {"a", "\xc3\xa4=\xff#[x]"});
        row("open quote", "VAR ups a \"1", {}, false);
        row("open escape", "VAR ups a \\", {}, false);
        row("nothing", "", {});
    }
    void words()
    {
        QFETCH(QByteArray, line);
        QFETCH(bool, closed);
        const auto split = splitNutLine(line);
        QCOMPARE(split.has_value(), closed);
        if (split)
            QTEST(*split, "words");
    }

    void quotedWordsSurviveALine()
    {
        const QByteArray word = "a \"b\" \\ #=\xc3\xa4";
        QCOMPARE(*splitNutLine("X " + nutQuoted(word) + " Y"), (Words{"X", word, "Y"}));
        QVERIFY2(!nutQuoted("ups\nSET VAR x").contains('\n'), "one word never becomes two lines");
    }

    void refusals_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<int>("state");
        QTest::newRow("silent driver") << QByteArray("DATA-STALE") << int(LinkState::Stale);
        QTest::newRow("no driver") << QByteArray("DRIVER-NOT-CONNECTED") << int(LinkState::Stale);
        QTest::newRow("no such UPS") << QByteArray("UNKNOWN-UPS") << int(LinkState::Refused);
        QTest::newRow("never heard of") << QByteArray("%1 %n <b>") << int(LinkState::Refused);
        QTest::newRow("no word") << QByteArray() << int(LinkState::Refused);
    }
    void refusals()
    {
        QFETCH(QByteArray, word);
        const NutFailure failure = nutRefusal(word);
        QTEST(int(failure.state), "state");
        QVERIFY(failure.isAnswer() && !failure.message.isEmpty());
    }

    void plans_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<Words>("offered");
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<Words>("settings"); // variable=value
        const auto row = [](const char* name, CommandKind kind, const Words& offered,
                            const char* command, const Words& settings = {}) {
            QTest::newRow(name) << int(kind) << offered << QByteArray(command) << settings;
        };
        using K = CommandKind;
        row("first choice", K::SelfTest, {"test.battery.start", "test.battery.start.quick"},
            "test.battery.start.quick");
        row("second choice", K::SelfTest, {"test.battery.start"}, "test.battery.start");
        row("third choice", K::DischargeTest, {"calibrate.start"}, "calibrate.start");
        row("cancel", K::CancelTest, {"calibrate.stop"}, "calibrate.stop");
        row("shutdown tells the delay", K::Shutdown, {"shutdown.stayoff", "load.off"},
            "shutdown.stayoff", {"ups.delay.shutdown=45"});
        row("load off has no delay", K::Shutdown, {"load.off"}, "load.off");
        row("standby tells both delays", K::Standby, {"shutdown.return"}, "shutdown.return",
            {"ups.delay.shutdown=45", "ups.delay.start=600"});
        row("restart", K::Restart, {"shutdown.reboot", "shutdown.return"}, "shutdown.reboot");
        row("wake up", K::WakeUp, {"load.on"}, "load.on");
        row("none offered", K::WakeUp, {"load.off"}, "");
        row("only part of the name", K::WakeUp, {"outlet.1.load.on"}, "");
    }
    void plans()
    {
        QFETCH(int, kind);
        QFETCH(Words, offered);
        UpsCommand command;
        command.kind = static_cast<CommandKind>(kind);
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
