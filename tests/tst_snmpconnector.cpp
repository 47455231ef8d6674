// The SNMP connector against agents on loopback: our own for versions 1 and 2c, snmpd for
// version 3.

#include "connectors/snmp/snmpconnector.h"
#include "support/snmpagent.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

Q_DECLARE_METATYPE(LinkState)

namespace
{

constexpr char kThreePhase[] = TEST_DATA "/snmp/three-phase.txt";
constexpr int kPatience = 20000; // ms, for the slowest machine
constexpr char kSecured[] =
    "snmp://operator@127.0.0.1:%1?version=3&level=authPriv&auth=SHA&priv=AES";

DeviceSettings settingsFor(const QString& address)
{
    DeviceSettings settings;
    settings.address = *parseDeviceAddress(address).address;
    settings.authSecret = QStringLiteral("auth-secret");
    settings.privSecret = QStringLiteral("priv-secret");
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

// snmpd with a few objects of the UPS-MIB and users of version 3, all its files in one folder.
class Snmpd
{
public:
    ~Snmpd() { stop(); }

    bool start(bool freshEngine)
    {
        if (!m_folder)
            m_folder = std::make_unique<QTemporaryDir>();
        if (m_port == 0) {
            QUdpSocket probe;
            probe.bind(QHostAddress(QHostAddress::LocalHost));
            m_port = probe.localPort();
        }
        const QString state = m_folder->filePath(QStringLiteral("state"));
        if (freshEngine)
            QDir(state).removeRecursively();
        QDir().mkpath(state);
        QFile conf(m_folder->filePath(QStringLiteral("agent.conf")));
        if (!conf.open(QIODevice::WriteOnly))
            return false;
        conf.write("agentaddress udp:127.0.0.1:" + QByteArray::number(m_port) + '\n');
        conf.write(R"(createUser operator SHA "auth-secret" AES "priv-secret"
createUser watcher SHA-256 "auth-secret" AES-256 "priv-secret"
rwuser operator priv
rouser watcher priv
override .1.3.6.1.2.1.33.1.2.1.0 integer 2
override .1.3.6.1.2.1.33.1.2.4.0 integer 88
override .1.3.6.1.2.1.33.1.4.1.0 integer 3
override -rw .1.3.6.1.2.1.33.1.8.1.0 integer 1
override -rw .1.3.6.1.2.1.33.1.8.2.0 integer -1
)");
        conf.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("SNMP_PERSISTENT_DIR"), state);
        m_process.setProcessEnvironment(environment);
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(QStringLiteral("/usr/sbin/snmpd"),
                        {QStringLiteral("-f"), QStringLiteral("-Ln"), QStringLiteral("-C"),
                         QStringLiteral("-c"), conf.fileName(), QStringLiteral("-I"),
                         QStringLiteral("override,usmUser,usmConf,vacm_conf,vacm_vars,snmpEngine,"
                                        "setSerialNo")});
        return m_process.waitForStarted();
    }

    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        freeze(false);
        m_process.kill(); // no last words: a crash
        m_process.waitForFinished();
    }

    void freeze(bool on)
    {
        ::kill(static_cast<pid_t>(m_process.processId()), on ? SIGSTOP : SIGCONT);
    }
    QString address() const { return QString::fromLatin1(kSecured).arg(m_port); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QProcess m_process;
    quint16 m_port = 0;
};

} // namespace

class tst_SnmpConnector : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_agent.reset(); }
    void polls_data();
    void polls();
    void isLostWithoutAnAnswer_data();
    void isLostWithoutAnAnswer();
    void ignoresLateAnswers();
    void oneSilentAgentDelaysNoOther();
    void ignoresASecondPoll();
    void sendsCommands();
    void dropsWhatIsUnderWay();
    void version3();
    void version3Refusals_data();
    void version3Refusals();
    void version3SurvivesRestarts();

private:
    QString address(const QString& query = {}) const
    {
        return QStringLiteral("snmp://public@127.0.0.1:%1%2").arg(m_agent->port()).arg(query);
    }
    bool waitForSnmpd();

    std::unique_ptr<SnmpAgent> m_agent;
    Snmpd m_snmpd;
};

void tst_SnmpConnector::initTestCase()
{
    if (!QFile::exists(QStringLiteral("/usr/sbin/snmpd")))
        QFAIL("snmpd is not installed");
    QVERIFY(m_snmpd.start(true));
}

void tst_SnmpConnector::init()
{
    m_agent = std::make_unique<SnmpAgent>();
    m_agent->table.loadFile(QString::fromLatin1(kThreePhase));
}

void tst_SnmpConnector::polls_data()
{
    QTest::addColumn<QString>("query");
    QTest::newRow("version 1") << "?version=1";
    QTest::newRow("version 2c") << "";
}

void tst_SnmpConnector::polls()
{
    QFETCH(QString, query);
    SnmpConnector connector(settingsFor(address(query)));
    for (int i = 0; i < 2; ++i) {
        const PollResult result = pollOnce(connector);
        QVERIFY2(result.state == LinkState::Live, qPrintable(result.message));
        QCOMPARE(result.reading.output.power[2], Value(1728.0));
        QCOMPARE(result.reading.batteryCurrent, Value(-1.5));
        QCOMPARE(result.reading.alarms, QSet<Alarm>{Alarm::FanFailure});
        QCOMPARE(result.reading.location, QStringLiteral("Hall 2"));
    }
}

void tst_SnmpConnector::isLostWithoutAnAnswer_data()
{
    QTest::addColumn<QString>("address"); // %1: the port of the agent
    QTest::addColumn<QString>("message");
    QTest::newRow("wrong community") << "snmp://wrong@127.0.0.1:%1"
                                     << "wrong community";
    QTest::newRow("version 3 where there is none")
        << QString::fromLatin1(kSecured) << "without SNMPv3";
    QTest::newRow("nothing there") << "snmp://public@127.0.0.1:9"
                                   << "nothing at 127.0.0.1:9";
    QTest::newRow("no such name") << "snmp://public@ups.invalid"
                                  << "Name not found: ups.invalid";
}

void tst_SnmpConnector::isLostWithoutAnAnswer()
{
    QFETCH(QString, address);
    QFETCH(QString, message);
    address.replace(QLatin1String("%1"), QString::number(m_agent->port()));
    const PollResult result = pollOnce(settingsFor(address));
    QCOMPARE(result.state, LinkState::Lost);
    QVERIFY2(result.message.contains(message), qPrintable(result.message));
}

void tst_SnmpConnector::ignoresLateAnswers()
{
    SnmpConnector connector(settingsFor(address()));
    QCOMPARE(pollOnce(connector).state, LinkState::Live);
    m_agent->frozen = true;
    QCOMPARE(pollOnce(connector).state, LinkState::Lost);
    m_agent->thaw();
    m_agent->table.load("4.1.0 i 5");
    QSignalSpy polled(&connector, &Connector::polled);
    QCOMPARE(pollOnce(connector).reading.outputSource, OutputSource::Battery);
    QCOMPARE(polled.count(), 1);
}

void tst_SnmpConnector::oneSilentAgentDelaysNoOther()
{
    SnmpAgent silent;
    silent.frozen = true;
    SnmpConnector slow(
        settingsFor(QStringLiteral("snmp://public@127.0.0.1:%1").arg(silent.port())));
    SnmpConnector silent3(settingsFor(QString::fromLatin1(kSecured).arg(silent.port())));
    SnmpConnector fast(settingsFor(address()));
    QSignalSpy slowPolled(&slow, &Connector::polled);
    QSignalSpy silent3Polled(&silent3, &Connector::polled);
    slow.poll();
    silent3.poll();
    for (int i = 0; i < 5; ++i)
        QCOMPARE(pollOnce(fast).state, LinkState::Live);
    QCOMPARE(slowPolled.count() + silent3Polled.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(slowPolled.count() + silent3Polled.count(), 2, kPatience);
}

void tst_SnmpConnector::ignoresASecondPoll()
{
    SnmpConnector connector(settingsFor(address()));
    QSignalSpy polled(&connector, &Connector::polled);
    m_agent->frozen = true;
    connector.poll();
    connector.poll();
    QVERIFY(polled.wait(kPatience));
    m_agent->thaw();
    QCOMPARE(pollOnce(connector).state, LinkState::Live);
    QCOMPARE(polled.count(), 2);
}

void tst_SnmpConnector::sendsCommands()
{
    CommandResult result = sendOnce(settingsFor(address()), CommandKind::Shutdown);
    QCOMPARE(result.outcome, CommandOutcome::Done);
    QCOMPARE(result.id, quint64(7));
    QCOMPARE(m_agent->table.objects[SnmpTable::oid("8.2.0")].integer, qint64(20));

    m_agent->table.setError = SnmpNoAccess;
    result = sendOnce(settingsFor(address()), CommandKind::SelfTest);
    QCOMPARE(result.outcome, CommandOutcome::Refused);
    QVERIFY2(result.message.contains(QLatin1String("write access")), qPrintable(result.message));

    m_agent->table.setError = SnmpNoError;
    m_agent->table.onSet = [this](const SnmpVariable&) { m_agent->table.load("7.3.0 i 5"); };
    result = sendOnce(settingsFor(address(QStringLiteral("?version=1"))), CommandKind::SelfTest);
    QVERIFY2(result.outcome == CommandOutcome::Done, qPrintable(result.message));

    m_agent->table.sets = 0;
    m_agent->table.load("7.3.0 i 1");
    m_agent->table.setSilent = true;
    result = sendOnce(settingsFor(address()), CommandKind::SelfTest);
    QCOMPARE(result.outcome, CommandOutcome::Done); // seen to have begun
    QCOMPARE(m_agent->table.sets, 1);
}

// Connectors go at any moment, and the window does not wait for what they were doing.
void tst_SnmpConnector::dropsWhatIsUnderWay()
{
    m_agent->frozen = true;
    for (int i = 0; i < 20; ++i) {
        SnmpConnector connector(
            settingsFor(address(i % 2 ? QStringLiteral("?version=1") : QString())));
        SnmpConnector named(settingsFor(QStringLiteral("snmp://public@ups.invalid")));
        connector.poll();
        named.poll();
        connector.send({});
        if (i % 3 == 0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    m_agent->thaw();
    QCOMPARE(pollOnce(settingsFor(address())).state, LinkState::Live);
}

bool tst_SnmpConnector::waitForSnmpd()
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < kPatience)
        if (pollOnce(settingsFor(m_snmpd.address())).state == LinkState::Live)
            return true;
    return false;
}

void tst_SnmpConnector::version3()
{
    QVERIFY(waitForSnmpd());
    const PollResult result = pollOnce(settingsFor(m_snmpd.address()));
    QCOMPARE(result.reading.charge, Value(88.0));
    QCOMPARE(result.reading.outputSource, OutputSource::Utility);

    const CommandResult command = sendOnce(settingsFor(m_snmpd.address()), CommandKind::Shutdown);
    QVERIFY2(command.outcome == CommandOutcome::Done, qPrintable(command.message));
}

void tst_SnmpConnector::version3Refusals_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("protocols");
    QTest::addColumn<QString>("authSecret");
    QTest::addColumn<QString>("privSecret");
    QTest::addColumn<LinkState>("state");
    QTest::addColumn<QString>("message");
    const QString usual = QStringLiteral("level=authPriv&auth=SHA&priv=AES");
    const QString strong = QStringLiteral("level=authPriv&auth=SHA-256&priv=AES-256");
    QTest::newRow("strong protocols") << "watcher" << strong << "auth-secret"
                                      << "priv-secret" << LinkState::Live << "";
    QTest::newRow("wrong authentication secret")
        << "operator" << usual << "wrong-secret"
        << "priv-secret" << LinkState::Refused << "Wrong authentication secret";
    // The users of one engine are kept by name: the right secret works after a wrong one.
    QTest::newRow("right again") << "operator" << usual << "auth-secret"
                                 << "priv-secret" << LinkState::Live << "";
    QTest::newRow("wrong authentication protocol")
        << "watcher" << usual << "auth-secret"
        << "priv-secret" << LinkState::Refused << "Wrong authentication secret or protocol";
    QTest::newRow("wrong privacy secret")
        << "operator" << usual << "auth-secret"
        << "wrong-secret" << LinkState::Lost << "wrong privacy secret";
    QTest::newRow("unknown user") << "nobody" << usual << "auth-secret"
                                  << "priv-secret" << LinkState::Refused
                                  << "Unknown user \"nobody\"";
    QTest::newRow("short secret") << "operator" << usual << "short"
                                  << "priv-secret" << LinkState::Refused << "at least 8 characters";
}

void tst_SnmpConnector::version3Refusals()
{
    QFETCH(QString, user);
    QFETCH(QString, protocols);
    QFETCH(QString, authSecret);
    QFETCH(QString, privSecret);
    QFETCH(LinkState, state);
    QFETCH(QString, message);
    QVERIFY(waitForSnmpd());
    QString address = m_snmpd.address();
    address.replace(QLatin1String("operator@"), user + QLatin1Char('@'));
    address = address.section(QLatin1Char('?'), 0, 0) + QLatin1String("?version=3&") + protocols;
    DeviceSettings settings = settingsFor(address);
    settings.authSecret = authSecret;
    settings.privSecret = privSecret;
    const PollResult result = pollOnce(settings);
    QVERIFY2(result.message.contains(message), qPrintable(result.message));
    QCOMPARE(result.state, state);
    QVERIFY(!result.message.contains(QLatin1String("-secret")));
}

void tst_SnmpConnector::version3SurvivesRestarts()
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
        QVERIFY(m_snmpd.start(freshEngine));
        QVERIFY(waitForSnmpd()); // on other sessions
        QCOMPARE(pollOnce(connector).state, LinkState::Live);
    }
}

QTEST_GUILESS_MAIN(tst_SnmpConnector)
#include "tst_snmpconnector.moc"
