// How long the history page takes to show a stretch of one device, from the operator's choice to
// the painted charts:
//     bench_historypage [FILE]
// FILE: keeps the store that it fills, or uses the one that is there, of a device named "Bench".

#include "meteredapplication.h"

#include "connectors/factory/connectorfactory.h"
#include "fleet/fleet.h"
#include "history/historyreader.h"
#include "history/historywriter.h"
#include "window/chartfeed.h"
#include "window/historypage.h"
#include "window/theme.h"

#include "chartform.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include <cmath>
#include <cstdio>

namespace {

constexpr qint64 kYearMs = 365 * kMsPerDay;
constexpr qint64 kSampleMs = 5000;
constexpr qint64 kOutageEveryMs = 11 * kMsPerDay + 5 * kMsPerHour;
constexpr qint64 kOutageMs = 7 * kMsPerMinute;
constexpr int kRounds = 5;
constexpr int kPatienceMs = 2000; // for an answer
constexpr int kRestMs = 500;      // after which the charts are painted
constexpr QSize kPageSize(1240, 800);

// A day of a single-phase UPS, with an outage now and then.
Sample sampleAt(qint64 timeMs)
{
    const double day = static_cast<double>(timeMs % kMsPerDay) / kMsPerDay;
    const double noise = std::sin(static_cast<double>(timeMs % 7919));
    const qint64 inOutage = timeMs % kOutageEveryMs;
    const bool onBattery = inOutage < kOutageMs;
    const double drop = onBattery ? 30.0 * static_cast<double>(inOutage) / kOutageMs : 0;
    Sample sample{timeMs, LinkState::Live, {}};
    UpsReading& reading = sample.reading;
    reading.outputSource = onBattery ? OutputSource::Battery : OutputSource::Utility;
    reading.charge = 100 - drop;
    reading.runtime = 1800 - 40 * drop + 30 * noise;
    reading.batteryVoltage = 54.6 - drop / 8;
    reading.batteryTemperature = 24 + 3 * std::sin(6.28 * day) + 0.2 * noise;
    reading.input.voltage[0] = onBattery ? 0 : 231 + 4 * std::sin(12.6 * day) + noise;
    reading.input.frequency[0] = onBattery ? 0 : 50 + 0.02 * noise;
    reading.output.voltage[0] = 230 + 0.4 * noise;
    reading.output.frequency[0] = 50;
    reading.output.load[0] = 35 + 15 * std::sin(6.28 * day - 1.5) + noise;
    reading.output.current[0] = 5 + 2 * std::sin(6.28 * day - 1.5) + 0.2 * noise;
    return sample;
}

void fillTier(HistoryStore& store, int tier, qint64 now, qint64 lengthMs)
{
    const qint64 span = std::max<qint64>(kTiers[tier].spanMs, kSampleMs);
    QVariantList values;
    store.begin();
    for (qint64 t = spanStart(now - lengthMs, span); t + span <= now; t += span) {
        Bucket bucket;
        constexpr int perBucket = 12;
        for (int i = 0; i < perBucket; ++i)
            bucket.add(sampleAt(t + i * span / perBucket));
        values << 1 << t << (tier == 0 ? encodeSample(sampleAt(t)) : encodeBucket(bucket));
        if (values.size() < 300 && t + 2 * span <= now)
            continue;
        if (!store.insertRows(QStringLiteral("%1 (device, t, data)").arg(kTiers[tier].table),
                              QStringLiteral("ON CONFLICT DO NOTHING"), 3, values))
            qFatal("%s", qPrintable(store.errorText()));
        values.clear();
    }
    store.commit();
}

void fillJournal(const StoreAddress& address, qint64 now)
{
    HistoryWriterOptions options;
    options.store = address;
    options.spoolFolder = QFileInfo(address.path).absolutePath() + "/spool";
    HistoryWriter writer(options);
    writer.start();
    writer.addSample(QStringLiteral("Bench"), QStringLiteral("sim:"), sampleAt(now));
    for (qint64 t = spanStart(now - kYearMs, kOutageEveryMs); t < now; t += kOutageEveryMs) {
        JournalEntry outage;
        outage.key = newJournalKey();
        outage.device = QStringLiteral("Bench");
        outage.kind = JournalKind::Outage;
        outage.severity = Urgency::Alarm;
        outage.text = QStringLiteral("Mains lost, on battery");
        outage.onsetMs = t;
        outage.endMs = t + kOutageMs;
        outage.lowestCharge = 70;
        writer.begin(outage, QStringLiteral("sim:"));
        JournalEntry alarm = outage;
        alarm.key = newJournalKey();
        alarm.kind = JournalKind::Alarm;
        alarm.text = QStringLiteral("Battery powered");
        writer.begin(alarm, QStringLiteral("sim:"));
    }
    QThread::msleep(2000); // the writer takes half a second
}

void fill(const StoreAddress& address)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    fillJournal(address, now);
    const auto store = HistoryStore::make(address);
    if (!store->open(HistoryStore::Access::Write))
        qFatal("%s", qPrintable(store->errorText()));
    fillTier(*store, 3, now, kYearMs);
    fillTier(*store, 2, now, kYearMs);
    fillTier(*store, 1, now, 30 * kMsPerDay);
    fillTier(*store, 0, now, kMsPerDay);
}
void untilIdle(const std::function<bool()>& isDone)
{
    QElapsedTimer timer;
    timer.start();
    while (!isDone() && timer.elapsed() < kPatienceMs)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

void showSpans(MeteredApplication& app, HistoryReader& reader, const Device& device)
{
    for (const HistoryPage::Span& span : HistoryPage::spans()) {
        std::printf("%-8s", span.title);
        double busiest = 0;
        for (int round = 0; round < kRounds; ++round) {
            app.restart();
            QElapsedTimer timer;
            timer.start();
            HistoryPage page(device);
            page.resize(kPageSize);
            page.setReader(&reader);
            page.showSpan(span.lengthMs);
            bool isShown = false;
            QObject::connect(&page, &HistoryPage::shown, [&isShown] { isShown = true; });
            page.show();
            untilIdle([&isShown] { return isShown; });
            page.grab();
            std::printf(" %4lld ms", timer.elapsed());
            busiest = std::max(busiest, app.busiest().cpu);
        }
        std::printf("; GUI thread busy at a stretch: %.1f ms\n", busiest);
    }
}

// The charts of the present, with a whole width of stored samples.
void fillCharts(MeteredApplication& app, HistoryReader& reader, Fleet& fleet, Device& device)
{
    ChartForm charts;
    charts.resize(kPageSize);
    ChartFeed feed(device, charts);
    bool isTaken = false;
    QObject::connect(&feed, &ChartFeed::storedTaken, [&isTaken] { isTaken = true; });
    fleet.pollNow(&device);
    untilIdle([&device] { return device.reading(); });
    feed.refresh();
    charts.show();
    untilIdle([] { return false; });
    app.restart();
    QElapsedTimer timer;
    timer.start();
    feed.setReader(&reader);
    untilIdle([&isTaken] { return isTaken; });
    untilIdle([&timer] { return timer.elapsed() > kRestMs; });
    std::printf("Charts filled; GUI thread busy at a stretch: %.1f ms\n    %s\n", app.busiest().cpu,
                qPrintable(app.busiest().work));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    MeteredApplication app(argc, argv);
    applyTheme(Theme::Light);
    QTemporaryDir folder;
    StoreAddress address;
    address.path =
        MeteredApplication::arguments().value(1, folder.filePath(QStringLiteral("history.db")));
    if (!QFileInfo::exists(address.path))
        fill(address);

    HistoryReader reader(address);
    DeviceSettings settings;
    settings.name = QStringLiteral("Bench");
    settings.address = *parseDeviceAddress(QStringLiteral("sim:")).address;
    Fleet fleet(makeConnector);
    Device& device = *fleet.add(settings);
    fillCharts(app, reader, fleet, device);
    showSpans(app, reader, device);
    return 0;
}
