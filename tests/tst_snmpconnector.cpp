// The SNMP connector against agents on loopback: our own for versions 1 and 2c, snmpd for
// version 3.

#include "connectors/snmp/snmpconnector.h"
#include "connectors/snmp/snmpport.h"
#include "openfilelimit.h"
#include "support/snmpagent.h"
#include "support/snmpd.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <set>

namespace {

constexpr char kThreePhase[] = TEST_DATA "/snmp/three-phase.txt";
constexpr int kPatience = 20000; // ms, for the slowest machine
constexpr char kFewObjects[] = R"(override .1.3.6.1.2.1.33.1.2.1.0 integer 2
override .1.3.6.1.2.1.33.1.2.4.0 integer 88
override .1.3.6.1.2.1.33.1.4.1.0 integer 3
override -rw .1.3.6.1.2.1.33.1.8.1.0 integer 1
override -rw .1.3.6.1.2.1.33.1.8.2.0 integer -1
)";
constexpr char kSecured[] =
    "snmp://operator@127.0.0.1:%1?version=3&level=authPriv&auth=SHA&priv=AES";

DeviceSettings settingsFor(const QString& address)
{
    DeviceSettings settings;
    settings.address = *parseDeviceAddress(address).address;
    settings.authSecret = "auth-secret";
    settings.privSecret = "priv-secret";
    settings.timeout = 1;
    settings.retries = 1;
    return settings;
}

PollResult pollOnce(SnmpConnector& connector)
{
    QSignalSpy polled(&connector, &Connector::polled);
    connector.poll();
    if (!polled.wait(kPatience))
        return {};
    return polled.first().first().value<PollResult>();
}

PollResult pollOnce(const DeviceSettings& settings)
{
    SnmpConnector connector(settings);
    return pollOnce(connector);
}

CommandResult sendOnce(const DeviceSettings& settings, CommandKind kind)
{
    SnmpConnector connector(settings);
    QSignalSpy finished(&connector, &Connector::commandFinished);
    UpsCommand command;
    command.id = 7;
    command.kind = kind;
    connector.send(command);
    finished.wait(kPatience);
    return finished.value(0).value(0).value<CommandResult>();
}

} // namespace

class tst_SnmpConnector : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(m_snmpd.start(kFewObjects, true), "snmpd is not installed"); }

    void init()
    {
        m_agent = std::make_unique<SnmpAgent>();
        m_agent->table.loadFile(QString(kThreePhase));
    }

    void cleanup() { m_agent.reset(); }
    void polls()
    {
        for (const QString& query : {QString("?version=1"), QString()}) {
            SnmpConnector connector(settingsFor(address(query)));
            const PollResult result = pollOnce(connector);
            QVERIFY2(result.state == LinkState::Live, qPrintable(result.message));
            QCOMPARE(result.reading.output.power[2], Value(1728.0));
            QCOMPARE(result.reading.location, QString("Hall 2"));
        }
    }

    void isLostWithoutAnAnswer()
    {
        const std::pair<QString, QString> rows[] = {
            {"snmp://wrong@127.0.0.1:%1", "wrong community"},
            {kSecured, "without SNMPv3"},
            {"snmp://public@127.0.0.1:9", "nothing at 127.0.0.1:9"},
            {"snmp://public@ups.invalid", "no host named ups..invalid"},
        };
        for (const auto& row : rows) {
            const QString port = QString::number(m_agent->port());
            DeviceSettings settings = settingsFor(QString(row.first).replace("%1", port));
            // A name that cannot be: no name server is asked for it, which may be a slow one.
            settings.address.host.replace("ups.invalid", "ups..invalid");
            const PollResult result = pollOnce(settings);
            QCOMPARE(result.state, LinkState::Lost);
            QVERIFY2(result.message.contains(row.second), qPrintable(result.message));
        }
    }

    void ignoresLateAnswers()
    {
        SnmpConnector connector(settingsFor(address()));
        QCOMPARE(pollOnce(connector).state, LinkState::Live);
        QSignalSpy polled(&connector, &Connector::polled);
        m_agent->frozen = true;
        connector.poll(); // the next one is ignored, too
        QCOMPARE(pollOnce(connector).state, LinkState::Lost);
        m_agent->thaw();
        m_agent->table.load("4.1.0 i 5");
        QCOMPARE(pollOnce(connector).reading.outputSource, OutputSource::Battery);
        QCOMPARE(polled.count(), 2);
    }

    // Each answer in time, but too many of them: the next poll must get its turn.
    void endsAPollThatTakesTooLong()
    {
        m_agent->table.answersFirst = 1;
        m_agent->answerAfter = 400;
        const PollResult result = pollOnce(settingsFor(address()));
        QCOMPARE(result.state, LinkState::Lost);
        QVERIFY2(result.message.contains("too slowly"), qPrintable(result.message));
    }

    void oneSilentAgentDelaysNoOther()
    {
        SnmpAgent silent;
        silent.frozen = true;
        SnmpConnector slow(settingsFor(QString(kSecured).arg(silent.port())));
        SnmpConnector fast(settingsFor(address()));
        QSignalSpy polled(&slow, &Connector::polled);
        slow.poll();
        for (int i = 0; i < 5; ++i)
            QCOMPARE(pollOnce(fast).state, LinkState::Live);
        QCOMPARE(polled.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(polled.count(), 1, kPatience);
    }

    // What other parts of a desk with thousands of devices may have open.
    void worksAboveADescriptorOf1024()
    {
        raiseOpenFileLimit();
        std::vector<std::unique_ptr<QFile>> files;
        while (files.size() < 1100) {
            files.push_back(std::make_unique<QFile>("/dev/null"));
            if (!files.back()->open(QIODevice::ReadOnly))
                QSKIP("this computer allows no 1,100 open files");
        }
        for (const QString& place : {address(), m_snmpd.address()})
            QCOMPARE(pollOnce(settingsFor(place)).state, LinkState::Live);
    }

    void sessionsShareSockets()
    {
        SnmpPorts ports;
        std::vector<std::shared_ptr<SnmpPort>> taken;
        taken.reserve(3 * SnmpPorts::kSessionsPerPort);
        QString reason;
        for (int i = 0; i < 3 * SnmpPorts::kSessionsPerPort; ++i)
            taken.push_back(ports.take(QAbstractSocket::IPv4Protocol, &reason));
        QCOMPARE(std::set(taken.begin(), taken.end()).size(), std::size_t(3));
        QCOMPARE(reason, QString());
    }

    void sendsCommands()
    {
        CommandResult result = sendOnce(settingsFor(address()), CommandKind::Shutdown);
        QCOMPARE(result.outcome, CommandOutcome::Done);
        QCOMPARE(result.id, quint64(7));
        QCOMPARE(m_agent->table.objects[SnmpTable::oid("8.2.0")].integer, qint64(20));

        m_agent->table.setError = SnmpNoAccess;
        result = sendOnce(settingsFor(address()), CommandKind::SelfTest);
        QCOMPARE(result.outcome, CommandOutcome::Refused);

        // The second of two settings is the one that is not accepted.
        m_agent->table.setError = SnmpBadValue;
        m_agent->table.setErrorIndex = 2;
        result = sendOnce(settingsFor(address()), CommandKind::SelfTest);
        QVERIFY2(result.message.contains("33.1.7.1.0"), qPrintable(result.message));

        m_agent->table.setError = SnmpNoError;
        m_agent->table.onSet = [this](const SnmpVariable&) { m_agent->table.load("7.3.0 i 5"); };
        m_agent->table.sets = 0;
        m_agent->table.setSilent = true;
        result = sendOnce(settingsFor(address()), CommandKind::SelfTest);
        QCOMPARE(result.outcome, CommandOutcome::Done); // seen to have begun
        QCOMPARE(m_agent->table.sets, 1);
    }

    // Connectors go at any moment, whatever they were doing.
    void dropsWhatIsUnderWay()
    {
        m_agent->frozen = true;
        for (const char* query : {"", "?version=1"}) {
            DeviceSettings settings = settingsFor(address(query));
            settings.timeout = 3600; // longer than any test: nothing here waits for it
            SnmpConnector connector(settings);
            connector.poll();
            connector.send({});
            QTest::qWait(10);
        }
        m_agent->thaw();
        QCOMPARE(pollOnce(settingsFor(address())).state, LinkState::Live);
    }

    void version3()
    {
        using L = LinkState;
        const struct {
            const char* user;
            const char* protocols;
            const char* authSecret;
            const char* privSecret;
            LinkState state;
            const char* message;
        } rows[] = {
            {"watcher", "SHA-256&priv=AES-256", "auth-secret", "priv-secret", L::Live, ""},
            {"operator", "SHA&priv=AES", "wrong-secret", "priv-secret", L::Refused,
             "Wrong authentication"},
            // The users of one engine are kept by name: the right secret works after a wrong one.
            {"operator", "SHA&priv=AES", "auth-secret", "priv-secret", L::Live, ""},
            {"operator", "SHA&priv=AES", "auth-secret", "wrong-secret", L::Lost,
             "wrong privacy secret"},
            {"nobody", "SHA&priv=AES", "auth-secret", "priv-secret", L::Refused,
             "Unknown user \"nobody\""},
            {"operator", "SHA&priv=AES", "short", "priv-secret", L::Refused,
             "at least 8 characters"},
        };
        QVERIFY(waitForSnmpd());
        const QString place = m_snmpd.address().section('@', 1).section("&auth", 0, 0);
        for (const auto& row : rows) {
            DeviceSettings settings =
                settingsFor(QString("snmp://%1@%2&auth=%3").arg(row.user, place, row.protocols));
            settings.authSecret = row.authSecret;
            settings.privSecret = row.privSecret;
            const PollResult result = pollOnce(settings);
            QVERIFY2(result.message.contains(row.message), qPrintable(result.message));
            QCOMPARE(result.state, row.state);
            QVERIFY(!result.message.contains("-secret"));
            QVERIFY(row.state != L::Live || result.reading.charge == Value(88.0));
        }
        const CommandResult command =
            sendOnce(settingsFor(m_snmpd.address()), CommandKind::Shutdown);
        QVERIFY2(command.outcome == CommandOutcome::Done, qPrintable(command.message));
    }

    void version3SurvivesRestarts()
    {
        QVERIFY(waitForSnmpd());
        SnmpConnector connector(settingsFor(m_snmpd.address()));
        QCOMPARE(pollOnce(connector).state, LinkState::Live);

        m_snmpd.freeze(true);
        QCOMPARE(pollOnce(connector).state, LinkState::Lost);
        m_snmpd.freeze(false);
        QCOMPARE(pollOnce(connector).state, LinkState::Live);

        for (const bool freshEngine : {false, true}) {
            m_snmpd.stop();
            QVERIFY(m_snmpd.start(kFewObjects, freshEngine));
            QVERIFY(waitForSnmpd()); // on other sessions
            QCOMPARE(pollOnce(connector).state, LinkState::Live);
        }
    }

private:
    QString address(const QString& query = {}) const
    {
        return QStringLiteral("snmp://public@127.0.0.1:%1%2").arg(m_agent->port()).arg(query);
    }
    bool waitForSnmpd()
    {
        return QTest::qWaitFor(
            [this] { return pollOnce(settingsFor(m_snmpd.address())).state == LinkState::Live; },
            kPatience);
    }

    std::unique_ptr<SnmpAgent> m_agent;
    Snmpd m_snmpd;
};

QTEST_GUILESS_MAIN(tst_SnmpConnector)
#include "tst_snmpconnector.moc"
