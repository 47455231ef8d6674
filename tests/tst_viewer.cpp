// A desk that polls nothing shows what the collectors of several sites tell, and how old that is.

#include "collector/livewriter.h"
#include "history/deskhistory.h"
#include "history/devicefacts.h"
#include "support/postgresfixture.h"
#include "support/scriptedconnector.h"
#include "viewer/relayconnector.h"
#include "viewer/viewer.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kLimitMs = 20000;
constexpr int kSilenceLimitMs = Viewer::kSilenceMs + 10000;

// A collector's devices, and what it tells of them.
class Site
{
public:
    Site(const QString& name, const StoreAddress& store)
        : m_name(name)
        , m_store(store)
    {
        // The test says when a poll begins and what it brings.
        fleet.setPermit([] { return false; });
        begin();
    }
    void begin()
    {
        m_writer = std::make_unique<LiveWriter>(fleet, m_store, m_name, [] { return true; });
    }
    void end() { m_writer.reset(); }

    ScriptedConnector& add(const QString& device)
    {
        DeviceSettings settings;
        settings.name = device;
        settings.group = "Hall";
        settings.address = *parseDeviceAddress("snmp://hidden@10.0.0.1").address;
        settings.pollInterval = 30;
        fleet.add(settings);
        return *m_made;
    }
    Fleet fleet{[this](const DeviceSettings&) {
        auto connector = std::make_unique<ScriptedConnector>();
        m_made = connector.get();
        return connector;
    }};

private:
    QString m_name;
    StoreAddress m_store;
    ScriptedConnector* m_made = nullptr;
    std::unique_ptr<LiveWriter> m_writer;
};

UpsReading onBattery(double charge)
{
    UpsReading reading;
    reading.outputSource = OutputSource::Battery;
    reading.batteryState = BatteryState::Discharge;
    reading.charge = charge;
    reading.alarms = {Alarm::OnBattery};
    reading.alarmTexts = QStringList{"1.3.6.1.4.1.99999.1.5"};
    reading.model = "Model 7";
    reading.ratedPower = 5000;
    return reading;
}

} // namespace

class TestViewer : public QObject
{
    Q_OBJECT

private:
    PostgresFixture m_postgres;
    std::unique_ptr<Fleet> m_fleet;
    std::unique_ptr<Viewer> m_viewer;
    std::unique_ptr<Site> m_north;
    std::unique_ptr<Site> m_south;
    ScriptedConnector* m_near = nullptr;
    ScriptedConnector* m_far = nullptr;

    Device* shown(const QString& name) const
    {
        for (int i = 0; i < m_fleet->count(); ++i)
            if (storedName(*m_fleet->at(i)) == name)
                return m_fleet->at(i);
        return nullptr;
    }
    LinkState link(const QString& name) const
    {
        return shown(name) ? shown(name)->link() : LinkState::Connecting;
    }

private slots:
    void initTestCase()
    {
        QCOMPARE(m_postgres.start(), QString());
        m_fleet = std::make_unique<Fleet>(RelayConnector::make);
        m_viewer = std::make_unique<Viewer>(*m_fleet);
        m_viewer->start(m_postgres.address());
        QTRY_VERIFY_WITH_TIMEOUT(m_viewer->fault().contains("no history"), kLimitMs);
    }

    void showsWhatCollectorsTell()
    {
        m_north = std::make_unique<Site>("north", m_postgres.address());
        m_south = std::make_unique<Site>("south", m_postgres.address());
        m_near = &m_north->add("Rack 1");
        m_north->add("Rack 2");
        m_far = &m_south->add("Rack 1");
        QDateTime firstSince;
        const auto heard = connect(m_fleet.get(), &Fleet::devicePolled, this, [&](Device* device) {
            if (!firstSince.isValid() && storedName(*device) == "north/Rack 1" && device->reading())
                firstSince = device->conditionSince();
        });
        const QDateTime hourAgo = QDateTime::currentDateTime().addSecs(-3600);
        m_north->fleet.at(0)->expectCondition(ConditionKind::Battery, hourAgo);
        m_near->answer(LinkState::Live, onBattery(71));
        m_far->answer(LinkState::Live, onBattery(72));
        QTRY_COMPARE_WITH_TIMEOUT(m_fleet->count(), 3, kLimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(link("north/Rack 1"), LinkState::Live, kLimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(link("south/Rack 1"), LinkState::Live, kLimitMs);
        QCOMPARE(link("north/Rack 2"), LinkState::Connecting);

        const Device* device = shown("north/Rack 1");
        const Device& told = *m_north->fleet.at(0);
        QCOMPARE(device->reading()->charge, Value(71));
        QCOMPARE(device->reading()->alarmTexts, told.reading()->alarmTexts);
        QCOMPARE(device->reading()->model, QString("Model 7"));
        QCOMPARE(device->reading()->ratedPower, Value(5000));
        QCOMPARE(device->settings().group, QString("north / Hall"));
        QCOMPARE(device->settings().pollInterval, 30);
        QVERIFY(!device->address().contains("hidden"));
        QCOMPARE(shown("south/Rack 1")->reading()->charge, Value(72));
        // Age and onset are those of the collector.
        QVERIFY(qAbs(device->ageMs() - told.ageMs()) < 1000);
        QVERIFY(qAbs(device->conditionSince().msecsTo(told.conditionSince())) < 1000);
        QVERIFY(qAbs(firstSince.msecsTo(hourAgo)) < 1000);
        disconnect(heard);
    }

    void followsWhatChanges()
    {
        const Device* device = shown("north/Rack 1");
        // Nothing is told twice: a chart would take it for another sample.
        const qint64 number = device->readingNumber();
        m_far->answer(LinkState::Live, onBattery(60));
        QTRY_COMPARE_WITH_TIMEOUT(shown("south/Rack 1")->reading()->charge, Value(60), kLimitMs);
        QCOMPARE(device->readingNumber(), number);

        m_near->answer(LinkState::Lost, {}, "no route to it");
        QTRY_COMPARE_WITH_TIMEOUT(link("north/Rack 1"), LinkState::Lost, kLimitMs);
        QCOMPARE(device->message(), QString("no route to it"));
        QCOMPARE(device->reading()->charge, Value(71));
        m_near->answer(LinkState::Live, onBattery(50));
        QTRY_COMPARE_WITH_TIMEOUT(link("north/Rack 1"), LinkState::Live, kLimitMs);

        m_north->fleet.remove(1);
        QTRY_COMPARE_WITH_TIMEOUT(m_fleet->count(), 2, kLimitMs);
        QVERIFY(!shown("north/Rack 2"));
    }

    void silenceOfACollectorIsAnAlarm()
    {
        // Of its devices, and of no others.
        m_south->end();
        QTRY_COMPARE_WITH_TIMEOUT(link("south/Rack 1"), LinkState::Stale, kSilenceLimitMs);
        QVERIFY(shown("south/Rack 1")->message().contains("collector of south has been silent"));
        QVERIFY(shown("south/Rack 1")->condition().urgency >= Urgency::Alarm);
        QCOMPARE(link("north/Rack 1"), LinkState::Live);
        m_south->begin();
        QTRY_COMPARE_WITH_TIMEOUT(link("south/Rack 1"), LinkState::Live, kLimitMs);
    }

    // Afterwards all goes on without a restart.
    void silenceOfTheStoreIsAnAlarm()
    {
        m_postgres.freezeServer(true);
        QTRY_COMPARE_WITH_TIMEOUT(link("north/Rack 1"), LinkState::Lost, kSilenceLimitMs);
        QVERIFY(!m_viewer->fault().isEmpty());
        m_postgres.freezeServer(false);
        QTRY_COMPARE_WITH_TIMEOUT(link("north/Rack 1"), LinkState::Live, kLimitMs);
        m_postgres.stopServer();
        QTRY_VERIFY_WITH_TIMEOUT(!m_viewer->fault().isEmpty(), kLimitMs);
        QCOMPARE(m_postgres.startServer(), QString());
        m_near->answer(LinkState::Live, onBattery(40));
        QTRY_COMPARE_WITH_TIMEOUT(shown("north/Rack 1")->reading()->charge, Value(40), kLimitMs);
    }

    void acknowledgesAndRecordsNothing()
    {
        Fleet fleet(RelayConnector::make);
        EventLog log;
        DeskHistory history(fleet, log, [](const Device&) { return true; });
        HistorySettings settings;
        settings.store = m_postgres.address().text();
        JournalEntry entry;
        entry.key = newJournalKey();
        entry.text = "to be seen";
        HistoryWriterOptions options;
        options.store = m_postgres.address();
        QTemporaryDir folder;
        options.spoolFolder = folder.path();
        HistoryWriter writer(options);
        writer.begin(entry);
        writer.start();
        QTRY_COMPARE_WITH_TIMEOUT(writer.written(), quint64(1), kLimitMs);

        history.startReading(settings, SecretsChoice::File);
        QTRY_VERIFY_WITH_TIMEOUT(history.writer(), kLimitMs);
        log.append({});
        history.writer()->acknowledge(entry.key, "ann", 1000, "seen");
        QTRY_COMPARE_WITH_TIMEOUT(history.writer()->written(), quint64(1), kLimitMs);
        QVector<JournalEntry> entries;
        history.reader()->ask<QVector<JournalEntry>>(
            this, [](HistoryQueries& store) { return store.journal({}); },
            [&entries](const QVector<JournalEntry>& found, const QString&) { entries = found; });
        QTRY_COMPARE_WITH_TIMEOUT(entries.size(), 1, kLimitMs);
        QCOMPARE(entries[0].acknowledgedBy, QString("ann"));
    }
};

QTEST_GUILESS_MAIN(TestViewer)
#include "tst_viewer.moc"
