// The connector against a real server with simulated devices, and against servers that misbehave.

#include "connectors/nut/nutconnector.h"
#include "connectors/nut/nutserverlist.h"

#include "support/lineserver.h"
#include "support/nutanswers.h"
#include "support/nutserverfixture.h"

#include <QHostAddress>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <utility>

namespace {

constexpr int kPatience = 15000; // ms; far beyond any limit in here

DeviceSettings settingsFor(const QString& address, const QString& user = {},
                           const QString& secret = {})
{
    DeviceSettings settings;
    settings.address = parseDeviceAddress(address).address.value();
    settings.timeout = 1;
    settings.user = user;
    settings.secret = secret;
    settings.tls =
        user.isEmpty() ? TlsUse::Preferred : TlsUse::Off; // servers in here speak plain text
    return settings;
}

class ClockedConnector : public NutConnector
{
public:
    using NutConnector::NutConnector;
    using NutConnector::setClock;
};

PollResult pollOnce(Connector& connector)
{
    QSignalSpy polled(&connector, &Connector::polled);
    connector.poll();
    if (!polled.wait(kPatience))
        return {};
    return polled.at(0).at(0).value<PollResult>();
}

LinkState stateOf(Connector& connector)
{
    return pollOnce(connector).state;
}

CommandResult sendOnce(Connector& connector, CommandKind kind, int minutes = 0)
{
    UpsCommand command;
    command.id = 7;
    command.kind = kind;
    command.standbyMinutes = minutes;
    QSignalSpy finished(&connector, &Connector::commandFinished);
    connector.send(command);
    if (!finished.wait(kPatience))
        return {};
    return finished.at(0).at(0).value<CommandResult>();
}

QString addressOf(const LineServer& server, const QString& ups = "unit")
{
    return QStringLiteral("nut://127.0.0.1:%1/%2").arg(server.serverPort()).arg(ups);
}

} // namespace

class TestNutConnector : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_server = std::make_unique<NutServerFixture>(
            QStringList{TEST_DATA "/nut/single-phase.dev", TEST_DATA "/nut/three-phase.dev"});
        const QString error = m_server->start();
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }
    void cleanupTestCase() { m_server.reset(); }

    void aDriverGoesAndComes()
    {
        NutConnector connector(
            settingsFor(m_server->address("single-phase"), "operator", "secret"));
        NutConnector other(settingsFor(m_server->address("three-phase")));
        QTRY_VERIFY_WITH_TIMEOUT(stateOf(connector) == LinkState::Live, kPatience);
        m_server->stopDriver("single-phase");
        QTRY_VERIFY_WITH_TIMEOUT(stateOf(connector) == LinkState::Stale, kPatience);
        const CommandResult result = sendOnce(connector, CommandKind::Shutdown);
        QCOMPARE(result.outcome, CommandOutcome::Refused);
        QVERIFY2(result.message.contains("Nothing was sent"), qPrintable(result.message));
        QCOMPARE(stateOf(other), LinkState::Live);

        QVERIFY(m_server->startDriver("single-phase"));
        QTRY_VERIFY_WITH_TIMEOUT(pollOnce(connector).reading.charge == Value(100), kPatience);
        m_server->freezeDriver("single-phase", true);
        QTRY_VERIFY_WITH_TIMEOUT(stateOf(connector) == LinkState::Stale, kPatience);
        m_server->freezeDriver("single-phase", false);
        QTRY_VERIFY_WITH_TIMEOUT(stateOf(connector) == LinkState::Live, kPatience);
    }

    void readsADeviceWhileTheServerGoesAndComes()
    {
        NutConnector connector(settingsFor(m_server->address("three-phase")));
        PollResult result;
        QTRY_VERIFY_WITH_TIMEOUT((result = pollOnce(connector)).reading.input.lines == 3,
                                 kPatience);
        QCOMPARE(result.reading.input.voltage, (PhaseValues{231, 232, 233}));
        QCOMPARE(result.reading.name, QString("Test device three-phase"));
        m_server->stopServer();
        const PollResult gone = pollOnce(connector);
        QCOMPARE(gone.state, LinkState::Lost);
        QVERIFY2(gone.message.contains("refuses the connection"), qPrintable(gone.message));
        QVERIFY(m_server->startServer());
        QTRY_VERIFY_WITH_TIMEOUT(stateOf(connector) == LinkState::Live, kPatience);

        m_server->freezeServer(true);
        for (const char* connection : {"the old one", "a new one"}) {
            const PollResult silent = pollOnce(connector);
            QVERIFY2(silent.state == LinkState::Lost, connection);
            QVERIFY2(silent.message.contains("does not answer"), qPrintable(silent.message));
        }
        m_server->freezeServer(false);
        QTRY_VERIFY_WITH_TIMEOUT(stateOf(connector) == LinkState::Live, kPatience);
    }

    void namesOfDevices()
    {
        NutConnector unknown(settingsFor(m_server->address("nobody")));
        QCOMPARE(stateOf(unknown), LinkState::Refused);
        NutConnector unnamed(settingsFor(m_server->address("")));
        const PollResult several = pollOnce(unnamed);
        QCOMPARE(several.state, LinkState::Refused);
        QVERIFY2(several.message.contains("single-phase, three-phase"),
                 qPrintable(several.message));

        NutServerList list(settingsFor(m_server->address("")));
        QSignalSpy finished(&list, &NutServerList::finished);
        list.start();
        QVERIFY(finished.wait(kPatience));
        const auto devices = finished.at(0).at(0).value<QVector<NutUpsEntry>>();
        QCOMPARE(devices.size(), 2);
        QCOMPARE(devices.at(1).name, QString("three-phase"));
        QCOMPARE(devices.at(1).description, QString("Test device three-phase"));

        LineServer one([](const QByteArray& line) { return orderlyNutAnswer(line); });
        NutConnector only(settingsFor(addressOf(one, "")));
        QCOMPARE(stateOf(only), LinkState::Live);

        NutConnector nowhere(settingsFor("nut://no-such-host.invalid/ups"));
        const PollResult result = pollOnce(nowhere);
        QCOMPARE(result.state, LinkState::Lost);
        QVERIFY2(result.message.contains("no-such-host.invalid"), qPrintable(result.message));
    }

    void refusedCommands()
    {
        using O = CommandOutcome;
        using K = CommandKind;
        const struct {
            const char* user;
            const char* secret;
            K kind;
            O outcome;
            const char* word;
        } rows[] = {
            {"", "", K::Shutdown, O::Refused, "configuration"},
            {"operator", "hunter2", K::Shutdown, O::Refused, "wrong password"},
            {"guest", "guest", K::Shutdown, O::Refused, "too few rights"},
            {"operator", "secret", K::SelfTest, O::NotOffered, "test.battery.start.quick"},
            // The simulated device lists this one command and then does not know it.
            {"operator", "secret", K::Shutdown, O::Refused, "driver"},
        };
        for (const auto& row : rows) {
            NutConnector connector(
                settingsFor(m_server->address("three-phase"), row.user, row.secret));
            CommandResult result; // a server that has just started knows no commands yet
            QTRY_VERIFY_WITH_TIMEOUT(
                (result = sendOnce(connector, row.kind)).message.contains(row.word), kPatience);
            QCOMPARE(result.id, 7u);
            QCOMPARE(result.outcome, row.outcome);
            QVERIFY(row.user[0] != 'o' || !result.message.contains(row.secret));
        }
    }

    void aCommandIsFollowedToItsEnd()
    {
        int pending = 2;
        bool refusing = false;
        LineServer server([&](const QByteArray& line) {
            if (line.startsWith("GET TRACKING") && pending-- > 0)
                return QByteArray("PENDING\n");
            if (refusing && line.startsWith("SET VAR"))
                return QByteArray("ERR INVALID-VALUE\n");
            return orderlyNutAnswer(line);
        });
        NutConnector connector(settingsFor(addressOf(server), "operator", "secret"));
        CommandResult result = sendOnce(connector, CommandKind::Standby, 10);
        QVERIFY2(result.outcome == CommandOutcome::Done, qPrintable(result.message));
        const int set = server.lines.indexOf("SET VAR \"unit\" ups.delay.start \"600\"");
        const int told = server.lines.indexOf("INSTCMD \"unit\" shutdown.return");
        QVERIFY(set > 0 && set < told);
        QCOMPARE(server.count("GET TRACKING"), 4);

        refusing = true;
        result = sendOnce(connector, CommandKind::Standby, 10);
        QCOMPARE(result.outcome, CommandOutcome::Refused);
        QVERIFY2(result.message.contains("ups.delay.start"), qPrintable(result.message));
        QCOMPARE(server.count("INSTCMD"), 1); // the first one
    }

    void unclearEndings()
    {
        const std::pair<const char*, const char*> rows[] = {
            {"GET TRACKING", ""}, // the connection is closed at every question
            {"INSTCMD", "OK\n"},  // no tracking
            {"GET TRACKING", "PENDING\n"}};
        for (const auto& [question, answer] : rows) {
            LineServer* self = nullptr;
            LineServer server(
                [&, question = question, answer = QByteArray(answer)](const QByteArray& line) {
                    if (!line.startsWith(question))
                        return orderlyNutAnswer(line);
                    if (answer.isEmpty())
                        QTimer::singleShot(0, self, &LineServer::closeConnections);
                    return answer;
                });
            self = &server;
            NutConnector connector(settingsFor(addressOf(server), "operator", "secret"));
            const CommandResult result = sendOnce(connector, CommandKind::SelfTest);
            QCOMPARE(result.outcome, CommandOutcome::Unknown);
            QVERIFY(!result.message.isEmpty() && !result.message.contains("secret"));
            QCOMPARE(server.count("INSTCMD"), 1);
        }
    }

    void badAnswers()
    {
        const QByteArray begin = "BEGIN LIST VAR unit\n";
        const QByteArray row = "VAR unit ups.status \"OL\"\n";
        const QByteArray answers[] = {
            // to LIST VAR
            "",
            begin + row, // no end
            begin + row.repeated(5000),
            QByteArray(100000, 'x'),
            begin + "VAR unit ups.id \"" + QByteArray(65536, 'x') + "\"\n",
            begin + "VAR unit2 ups.status \"OL\"\n",
            begin + "VAR unit ups.status\n",
            QByteArray(500, '\0') + '\n'};
        for (const QByteArray& answer : answers) {
            bool bad = true;
            LineServer server([&](const QByteArray& line) {
                return bad && line.startsWith("LIST VAR") ? answer : orderlyNutAnswer(line);
            });
            NutConnector connector(settingsFor(addressOf(server)));
            const PollResult result = pollOnce(connector);
            QVERIFY2(result.state == LinkState::Lost, answer.left(80));
            QVERIFY(!result.message.isEmpty());
            bad = false;
            QCOMPARE(stateOf(connector), LinkState::Live);
        }
    }

    // A server that was restarted, or has closed an idle connection, costs no poll.
    void aDeadConnectionIsReplaced()
    {
        bool closing = false;
        LineServer* self = nullptr;
        LineServer server([&](const QByteArray& line) {
            if (!std::exchange(closing, false))
                return orderlyNutAnswer(line);
            QTimer::singleShot(0, self, &LineServer::closeConnections);
            return QByteArray();
        });
        self = &server;
        NutConnector connector(settingsFor(addressOf(server)));
        QCOMPARE(stateOf(connector), LinkState::Live);
        for (int connections : {2, 3}) {
            closing = true;
            const PollResult result = pollOnce(connector);
            QVERIFY2(result.state == LinkState::Live, qPrintable(result.message));
            QCOMPARE(server.connections, connections);
        }
    }

    // No way back to plain text, and no endless wait in the handshake.
    void encryptionThatFails()
    {
        const struct {
            QByteArray after, later; // what the server says beside its OK
            const char* message;
        } rows[] = {{"", "", ""}, // which of the limits ends it is a matter of chance
                    {"OK\n", "", "went on in plain text"},
                    {"", "HTTP/1.1 400 What?\r\n", "cannot agree"}};
        for (const auto& row : rows) {
            LineServer* self = nullptr;
            LineServer server([&](const QByteArray& line) {
                if (line != "STARTTLS")
                    return orderlyNutAnswer(line);
                QTimer::singleShot(50, self, [&] { self->write(row.later); });
                return "OK STARTTLS\n" + row.after;
            });
            self = &server;
            DeviceSettings settings = settingsFor(addressOf(server), "operator", "secret");
            settings.tls = TlsUse::Preferred;
            NutConnector connector(settings);
            const PollResult result = pollOnce(connector);
            QCOMPARE(result.state, LinkState::Lost);
            QVERIFY2(result.message.contains(row.message),
                     qPrintable(row.message + QStringLiteral(": ") + result.message));
            QCOMPARE(sendOnce(connector, CommandKind::SelfTest).outcome, CommandOutcome::NoAnswer);
            QCOMPARE(server.count("LIST") + server.count("PASSWORD"), 0);
        }
    }

    // Each piece comes well within the time-out, the whole never.
    void aDrippingAnswerIsLimited()
    {
        LineServer server([&](const QByteArray& line) {
            return line.startsWith("LIST VAR") ? QByteArray("BEGIN LIST") : orderlyNutAnswer(line);
        });
        QTimer drip;
        connect(&drip, &QTimer::timeout, &server, [&] { server.write("x"); });
        drip.start(50);
        NutConnector connector(settingsFor(addressOf(server)));
        QCOMPARE(stateOf(connector), LinkState::Lost);
    }

    // However many devices a dead server has, it costs them one time-out together.
    void devicesShareALostServer()
    {
        LineServer server([](const QByteArray&) { return QByteArray(); });
        std::vector<std::unique_ptr<NutConnector>> connectors;
        int lost = 0;
        for (int i = 0; i < 20; ++i) {
            connectors.push_back(std::make_unique<NutConnector>(settingsFor(addressOf(server))));
            connect(connectors.back().get(), &Connector::polled, this,
                    [&](const PollResult& result) { lost += result.state == LinkState::Lost; });
        }
        for (const auto& connector : connectors) {
            connector->poll();
            connector->poll(); // one is under way: nothing happens
        }
        QTRY_COMPARE_WITH_TIMEOUT(lost, 20, kPatience);
        QCOMPARE(server.connections, 1);
    }

    void timeOnBattery()
    {
        QByteArray status = "OL";
        LineServer server([&](const QByteArray& line) { return orderlyNutAnswer(line, status); });
        ClockedConnector connector(settingsFor(addressOf(server)));
        double now = 1000.5;
        connector.setClock([&] { return now; });
        struct Step {
            const char* status;
            double clock;
            Value seconds;
        };
        const Step steps[] = {
            {"OL", 1000.5, 0},   {"OB", 1010, 0}, {"OB", 1015.9, 5}, {"WAIT", 1020, {}},
            {"OB LB", 1030, 20}, {"OL", 1040, 0}, {"OB", 1050, 0},   {"OB CAL", 1051, 1},
        };
        for (const Step& step : steps) {
            status = step.status;
            now = step.clock;
            const PollResult result = pollOnce(connector);
            QCOMPARE(result.state, LinkState::Live);
            QCOMPARE(result.reading.secondsOnBattery, step.seconds);
        }
    }

    // Nobody waits for a server when its last device goes; the answer finds nobody.
    void destructionDoesNotWait()
    {
        LineServer server([](const QByteArray&) { return QByteArray(); });
        DeviceSettings patient = settingsFor(addressOf(server), "operator", "secret");
        patient.timeout = 60;
        auto connector = std::make_unique<NutConnector>(patient);
        connector->poll();
        QTRY_COMPARE_WITH_TIMEOUT(server.lines.size(), 1, kPatience);
        connector.reset();
        // Its thread closes the connection long before the time-out.
        QTRY_VERIFY_WITH_TIMEOUT(!server.hasConnections(), kPatience);
    }

private:
    std::unique_ptr<NutServerFixture> m_server;
};

QTEST_GUILESS_MAIN(TestNutConnector)
#include "tst_nutconnector.moc"
