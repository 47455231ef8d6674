// What the recorder makes of a fleet: samples, onsets and ends, also over a restart; and what the
// command line prints of it.

#include "history/historyqueries.h"
#include "history/historytext.h"
#include "history/recorder.h"
#include "support/scriptedconnector.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kLimitMs = 30000;
const QString kName = QStringLiteral("=Rack, \"3\"");

class TestClock : public FleetClock
{
public:
    qint64 monotonicMs() const override { return bootMs(); }
    qint64 bootMs() const override { return m_boot; }
    QDateTime now() const override { return QDateTime::fromMSecsSinceEpoch(m_wall); }
    void pass(qint64 ms)
    {
        m_boot += ms;
        m_wall += ms;
    }
    void set(qint64 ms) { m_wall += ms; }

private:
    qint64 m_boot = 1000000;
    qint64 m_wall = 1774746000000; // 2026-03-29T01:00Z: the hour in which summer time begins
};

UpsReading onMains()
{
    UpsReading reading;
    reading.outputSource = OutputSource::Utility;
    reading.batteryState = BatteryState::Normal;
    reading.charge = 100;
    reading.model = QStringLiteral("M");
    return reading;
}

UpsReading onBattery(double charge)
{
    UpsReading reading = onMains();
    reading.outputSource = OutputSource::Battery;
    reading.batteryState = BatteryState::Discharge;
    reading.charge = charge;
    reading.alarms = {Alarm::OnBattery};
    reading.alarmAges = {{Alarm::OnBattery, 12000}};
    reading.secondsOnBattery = 3;
    return reading;
}

// A desk from its start to its end.
struct Desk {
    Desk(const HistoryWriterOptions& options, TestClock& testClock)
        : clock(testClock)
        , fleet(
              [this](const DeviceSettings&) {
                  auto made = std::make_unique<ScriptedConnector>();
                  connector = made.get();
                  return made;
              },
              clock)
        , writer(options)
        , reader(options.store)
        , recorder(
              fleet, log, writer, reader, [](const Device&) { return true; }, clock)
    {
        DeviceSettings settings;
        settings.name = kName;
        settings.address = *parseDeviceAddress("snmp://secret@host").address;
        device = fleet.add(settings);
        writer.start();
        recorder.start();
    }
    void poll(LinkState link, const UpsReading& reading = {})
    {
        device->startPoll();
        connector->answer(link, reading, "why");
        clock.pass(5000);
    }

    TestClock& clock;
    ScriptedConnector* connector = nullptr;
    Fleet fleet;
    EventLog log;
    HistoryWriter writer;
    HistoryReader reader;
    Recorder recorder;
    Device* device = nullptr;
};

} // namespace

class TestRecorder : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    HistoryWriterOptions m_options;
    TestClock m_clock;

    QVector<JournalEntry> journal(JournalFilter filter = {})
    {
        const auto store = HistoryStore::make(m_options.store);
        if (!store->open(HistoryStore::Access::Read))
            return {};
        filter.oldestFirst = true;
        return HistoryQueries(*store).journal(filter);
    }
    QVector<JournalEntry> entries(JournalKind kind)
    {
        JournalFilter filter;
        filter.kinds = {kind};
        return journal(filter);
    }
    QByteArray upsdesk(const QStringList& arguments, int expected)
    {
        QProcess process;
        process.start(UPSDESK, arguments);
        process.waitForFinished();
        if (process.exitCode() != expected)
            qWarning() << process.exitCode() << process.readAllStandardError();
        return process.readAllStandardOutput();
    }

private slots:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", m_folder.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", m_folder.filePath("config").toUtf8());
        qputenv("TZ", "Europe/Berlin");
        m_options.store.path = defaultStorePath();
        m_options.spoolFolder = m_folder.filePath("spool");
        m_options.commitMs = 20;
    }

    // One story, as an operator would tell it; each step builds on the one before.
    void outageSurvivesRestart()
    {
        qint64 onset = 0;
        qint64 onMainsAt = 0;
        qint64 lastSeen = 0;
        {
            Desk desk(m_options, m_clock);
            QTRY_VERIFY_WITH_TIMEOUT(desk.recorder.isFollowing(), kLimitMs);
            onMainsAt = m_clock.now().toMSecsSinceEpoch();
            desk.poll(LinkState::Live, onMains());
            onset = m_clock.now().toMSecsSinceEpoch() - 3000;
            desk.poll(LinkState::Live, onBattery(80));
            desk.poll(LinkState::Live, onBattery(60));
            lastSeen = m_clock.now().toMSecsSinceEpoch() - 5000;
        }
        const auto open = entries(JournalKind::Outage);
        QCOMPARE(open.size(), 1);
        QCOMPARE(open.at(0).onsetMs, onset);
        QVERIFY(!open.at(0).endMs);
        QCOMPARE(entries(JournalKind::Alarm).at(0).onsetMs, onMainsAt); // its word cannot be true

        m_clock.pass(3600000); // nobody looks for an hour
        {
            Desk desk(m_options, m_clock);
            QTRY_VERIFY_WITH_TIMEOUT(desk.recorder.isFollowing(), kLimitMs);
            desk.poll(LinkState::Live, onBattery(70));
            const QDateTime since = desk.device->conditionSince();
            QCOMPARE(since.toMSecsSinceEpoch(), lastSeen - 5000);
            desk.poll(LinkState::Lost);
            desk.poll(LinkState::Live, onMains());
        }
        const auto ended = entries(JournalKind::Outage);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(ended.at(0).onsetMs, onset);
        QCOMPARE(*ended.at(0).endMs, m_clock.now().toMSecsSinceEpoch() - 5000);
        QCOMPARE(*ended.at(0).lowestCharge, 60.0);
        QVERIFY(ended.at(0).message.contains("could not be reached"));
        QCOMPARE(entries(JournalKind::Link).size(), 1);
        QCOMPARE(entries(JournalKind::Link).at(0).message, QString("why"));

        m_clock.pass(3600000);
        {
            Desk desk(m_options, m_clock); // what ended while the desk was away
            QTRY_VERIFY_WITH_TIMEOUT(desk.recorder.isFollowing(), kLimitMs);
            UpsReading bypass = onMains();
            bypass.outputSource = OutputSource::Bypass;
            desk.poll(LinkState::Live, bypass);
        }
        const auto conditions = entries(JournalKind::Condition);
        const JournalEntry& mains = conditions.at(conditions.size() - 2);
        QCOMPARE(mains.message, QString("Ended while nothing was recorded."));
        QVERIFY(*mains.endMs < m_clock.now().toMSecsSinceEpoch() - 3600000);
    }

    void deskEvents()
    {
        const int before = journal().size();
        {
            Desk desk(m_options, m_clock);
            QTRY_VERIFY_WITH_TIMEOUT(desk.recorder.isFollowing(), kLimitMs);
            DeskEvent event;
            event.time = m_clock.now();
            event.operatorName = "anna";
            event.device = kName;
            event.code = 1;
            event.text = "Battery self-test";
            const quint64 ticket = desk.log.append(event);
            desk.log.complete(ticket, "refused", "not now", true);
            m_clock.set(-7200000);
            emit desk.fleet.ticked();
            m_clock.set(7200000);
        }
        const auto command = entries(JournalKind::Command).constLast();
        QCOMPARE(command.operatorName, QString("anna"));
        QCOMPARE(command.device, kName);
        QCOMPARE(command.message, QString("refused: not now"));
        QCOMPARE(command.severity, Urgency::Warning);
        QVERIFY(command.isMoment && command.endMs);
        QVERIFY(entries(JournalKind::Clock).constLast().text.contains("back by 7200 s"));
        QCOMPARE(journal().size(), before + 4); // and the desk's begin and end
    }

    void exportPrintsAllSamples()
    {
        const QList<QByteArray> lines = upsdesk({"export", kName}, 0).split('\n');
        QVERIFY(
            lines.at(0).startsWith("time,span (s),link,source,battery,alarms,battery.charge (%)"));
        QVERIFY(lines.at(0).endsWith('\r'));
        QCOMPARE(lines.size(), 1 + 7 + 1);
        QVERIFY(
            lines.at(1).startsWith("2026-03-29T03:00:00.000+02:00,0,live,utility,normal,,100,"));
        QVERIFY(lines.at(5).contains(",lost,"));

        const auto json = upsdesk({"export", "snmp://other@host", "--json", "--from",
                                   "2026-03-29T01:00:05Z", "--to", "2026-03-29T01:00:10Z"},
                                  0);
        const QJsonObject row = QJsonDocument::fromJson(json).object();
        QCOMPARE(row.value("source").toString(), QString("battery"));
        QCOMPARE(row.value("battery.charge (%)").toDouble(), 80.0);
    }

    void journalPrintsObjects()
    {
        const auto lines =
            upsdesk({"journal", "--json", "--device", kName}, 0).trimmed().split('\n');
        bool found = false;
        for (const QByteArray& line : lines) {
            const QJsonObject entry = QJsonDocument::fromJson(line).object();
            for (const char* key :
                 {"device", "kind", "severity", "text", "onset", "end", "operator", "acknowledged"})
                QVERIFY2(entry.contains(QLatin1String(key)), key);
            found |= entry.value("kind") == "outage" && entry.value("lowestCharge") == 60;
            QCOMPARE(entry.value("device").toString(), kName);
        }
        QVERIFY(found);
        // What is still so lasted until any time.
        const QByteArray later = upsdesk({"journal", "--json", "--since", "2026-03-29T12:00"}, 0);
        QCOMPARE(later.count("\"end\":null"), later.count('\n'));
    }

    void exitCodes_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::newRow("no device") << QStringList{"export"} << 2;
        QTest::newRow("unknown device") << QStringList{"export", "nobody"} << 2;
        QTest::newRow("no time") << QStringList{"export", kName, "--from", "soon"} << 2;
        QTest::newRow("two formats") << QStringList{"export", kName, "--csv", "--json"} << 2;
        QTest::newRow("no store") << QStringList{"journal"} << 3;
    }
    void exitCodes()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        if (code == 3)
            qputenv("XDG_DATA_HOME", "/nowhere");
        QProcess process;
        process.start(UPSDESK, arguments);
        process.waitForFinished();
        QCOMPARE(process.exitCode(), code);
        QVERIFY(process.readAllStandardError().startsWith("upsdesk: "));
    }

    void timesAsPeopleGiveThem()
    {
        constexpr qint64 kNow = 1774792800000; // 2026-03-29T14:00 UTC
        constexpr qint64 kHour = 3600 * 1000;
        const std::pair<const char*, std::optional<qint64>> rows[] = {
            {"90m", kNow - 3 * kHour / 2},  {"36h", kNow - 36 * kHour},
            {"2d", kNow - 48 * kHour},      {"1w", kNow - 168 * kHour},
            {"2026-03-29T14:00:00Z", kNow}, {"5y", std::nullopt}};
        for (const auto& [text, time] : rows)
            QVERIFY2(timeOf(text, kNow) == time, text);
    }

    void csvIsSafe_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("cell");
        QTest::newRow("formula") << "=1+1"
                                 << "'=1+1";
        QTest::newRow("negative number") << "-3.5"
                                         << "-3.5";
        QTest::newRow("quotes, comma") << "a \"b\", c"
                                       << "\"a \"\"b\"\", c\"";
        QTest::newRow("formula with comma") << "@SUM(A1,A2)"
                                            << "\"'@SUM(A1,A2)\"";
    }
    void csvIsSafe()
    {
        QFETCH(QString, field);
        QFETCH(QString, cell);
        QCOMPARE(csvLine({field}), cell + "\r\n");
    }
};

QTEST_GUILESS_MAIN(TestRecorder)
#include "tst_recorder.moc"
