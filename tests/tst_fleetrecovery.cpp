// A fleet of NUT and SNMP devices whose servers freeze, go and come back, while the computer sleeps
// and its clock is set: no device is lost, and none is called live that is not.

#include "connectors/factory/connectorfactory.h"
#include "fleet/fleet.h"
#include "support/freeport.h"
#include "support/lineserver.h"
#include "support/nutanswers.h"
#include "support/snmpagent.h"

#include <QTest>

namespace {

constexpr int kPatience = 20000; // ms
constexpr int kEach = 3;         // devices of each kind

class SleepyClock : public FleetClock
{
public:
    qint64 bootMs() const override { return FleetClock::bootMs() + slept; }
    QDateTime now() const override { return FleetClock::now().addYears(years); }

    qint64 slept = 0; // ms
    int years = 0;    // by which somebody has set the clock
};

// One NUT server with one device and several SNMP agents, which keep their ports.
class Site
{
public:
    Site()
    {
        m_nutPort = freePort();
        for (quint16& port : m_snmpPorts)
            port = freePort();
        start();
    }

    void start()
    {
        m_frozen = false;
        m_server = std::make_unique<LineServer>([this](const QByteArray& line) {
            return m_frozen ? QByteArray() : orderlyNutAnswer(line);
        });
        m_server->close();
        QVERIFY(m_server->listen(QHostAddress::LocalHost, m_nutPort));
        for (const quint16 port : m_snmpPorts) {
            m_agents.push_back(std::make_unique<SnmpAgent>(nullptr, port));
            m_agents.back()->table.loadFile(QStringLiteral(TEST_DATA "/snmp/three-phase.txt"));
            QCOMPARE(m_agents.back()->port(), port);
        }
    }
    void freeze()
    {
        m_frozen = true;
        for (const auto& agent : m_agents)
            agent->frozen = true;
    }
    void stop()
    {
        if (m_server)
            m_server->closeConnections();
        m_server.reset();
        m_agents.clear();
    }

    QStringList addresses() const
    {
        QStringList list;
        for (const quint16 port : m_snmpPorts)
            list << QStringLiteral("snmp://public@127.0.0.1:%1").arg(port)
                 << QStringLiteral("nut://127.0.0.1:%1/unit").arg(m_nutPort);
        return list;
    }

private:
    bool m_frozen = false;
    quint16 m_nutPort = 0;
    std::array<quint16, kEach> m_snmpPorts{};
    std::unique_ptr<LineServer> m_server;
    std::vector<std::unique_ptr<SnmpAgent>> m_agents;
};

} // namespace

class TestFleetRecovery : public QObject
{
    Q_OBJECT

private slots:
    void noDeviceIsLost()
    {
        Site site;
        SleepyClock clock;
        Fleet fleet(makeConnector, clock);
        const QStringList addresses = site.addresses();
        for (const QString& address : addresses) {
            DeviceSettings settings;
            settings.address = *parseDeviceAddress(address).address;
            settings.pollInterval = 1;
            settings.timeout = 1;
            settings.retries = 0;
            fleet.add(settings);
        }
        const auto all = [&](LinkState state) {
            for (int i = 0; i < fleet.count(); ++i)
                if (fleet.at(i)->link() != state)
                    return false;
            return true;
        };
        QTRY_VERIFY_WITH_TIMEOUT(all(LinkState::Live), kPatience);

        const std::function<void()> disturbances[] = {[&] { site.freeze(); }, [&] { site.stop(); }};
        for (const auto& disturb : disturbances) {
            disturb();
            // The night passes asleep, and in the morning somebody sets the clock.
            clock.slept += 8 * 3600 * 1000;
            clock.years += 1;
            QVERIFY(!all(LinkState::Live) && fleet.at(0)->link() == LinkState::Stale);
            QTRY_VERIFY_WITH_TIMEOUT(all(LinkState::Lost), kPatience);
            for (int i = 0; i < fleet.count(); ++i)
                QVERIFY(fleet.at(i)->reading() && fleet.at(i)->ageMs() >= 8 * 3600 * 1000);
            site.stop();
            site.start();
            // Back by themselves, however long the pauses have grown.
            QTRY_VERIFY_WITH_TIMEOUT(all(LinkState::Live), kPatience);
        }
        QStringList kept;
        for (int i = 0; i < fleet.count(); ++i)
            kept << fleet.at(i)->settings().address.text;
        QCOMPARE(kept, addresses);
    }
};

QTEST_GUILESS_MAIN(TestFleetRecovery)
#include "tst_fleetrecovery.moc"
