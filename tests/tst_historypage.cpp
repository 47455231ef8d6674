// What the history page makes of stored rows: bands, gaps, local times, files, and samples for the
// charts that show the present.

#include "fleet/fleet.h"
#include "history/devicehistory.h"
#include "history/historyreader.h"
#include "history/historywriter.h"
#include "support/quietplatform.h"
#include "support/recordingdevice.h"
#include "support/scriptedconnector.h"
#include "window/chartfeed.h"
#include "window/historybands.h"
#include "window/historypage.h"
#include "window/historyplot.h"
#include "window/outagetable.h"
#include "window/timetext.h"

#include "chartform.h"
#include "dynamicchart.h"

#include <QDateTime>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>
#include <qwt_plot.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>

#include <ctime>

namespace {

const QString kName = QStringLiteral("Rack 3");
constexpr qint64 kPollMs = 5000;
constexpr qint64 kHour = 3600 * 1000;
// 00:30 of the night in which Berlin has the hour from 2 to 3 twice.
const qint64 kLongNight = QDateTime({2026, 10, 24}, {22, 30}, Qt::UTC).toMSecsSinceEpoch();

Sample onMains(qint64 timeMs)
{
    Sample sample{timeMs, LinkState::Live, {}};
    sample.reading.outputSource = OutputSource::Utility;
    sample.reading.charge = 100;
    sample.reading.input.lines = sample.reading.output.lines = 1;
    sample.reading.input.voltage[0] = 231;
    return sample;
}

JournalEntry entryOf(JournalKind kind, qint64 onsetMs, std::optional<qint64> endMs)
{
    JournalEntry entry;
    entry.key = newJournalKey();
    entry.device = kName;
    entry.kind = kind;
    entry.text = QStringLiteral("<b>lasting</b>");
    entry.onsetMs = onsetMs;
    entry.endMs = endMs;
    return entry;
}

// A store of one device, its page, and the device itself.
struct Desk {
    QTemporaryDir folder;
    HistoryWriterOptions options;
    ScriptedConnector* connector = nullptr;
    Fleet fleet{[this](const DeviceSettings&) {
        auto made = std::make_unique<ScriptedConnector>();
        connector = made.get();
        return made;
    }};
    Device* device = nullptr;

    Desk()
    {
        options.store.path = folder.filePath(QStringLiteral("history.db"));
        options.spoolFolder = folder.filePath(QStringLiteral("spool"));
        DeviceSettings settings;
        settings.name = kName;
        settings.address = *parseDeviceAddress(QStringLiteral("nut://h/u")).address;
        device = fleet.add(settings);
    }

    void store(const QVector<Sample>& samples, const QVector<JournalEntry>& entries = {})
    {
        HistoryWriter writer(options);
        writer.start();
        for (const Sample& sample : samples)
            writer.addSample(kName, QStringLiteral("nut://h/u"), sample);
        for (const JournalEntry& entry : entries) {
            writer.begin(entry, QStringLiteral("nut://h/u"));
            if (entry.endMs)
                writer.end(entry.key, *entry.endMs, {}, 63);
        }
    }
};

QVector<Sample> minutesOnMains(qint64 fromMs, qint64 toMs)
{
    QVector<Sample> samples;
    for (qint64 t = fromMs; t < toMs; t += 60000)
        samples += onMains(t);
    return samples;
}

void show(HistoryPage& page, HistoryReader& reader, TimeRange range)
{
    QSignalSpy shown(&page, &HistoryPage::shown);
    page.resize(1000, 700);
    page.setReader(&reader);
    page.showRange(range);
    page.show();
    QTRY_VERIFY(!shown.isEmpty() && !page.isLoading());
}

using Runs = QVector<QPair<int, int>>; // first and last rows
using Act = std::function<void(TimeWindow&)>;

} // namespace

Q_DECLARE_METATYPE(Act)

class TestHistoryPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Berlin");
        tzset();
        dropRemarksOfThePlatform();
    }
    void gapsAreGaps_data();
    void gapsAreGaps();
    void windowNeverPassesThePresent_data();
    void windowNeverPassesThePresent();
    void failuresAreBands();
    void hourThatIsThereTwice();
    void filesSayHowTheyEnded();
    void withoutHistoryItIsSaid();
    void chartsStartWithStoredSamples_data();
    void chartsStartWithStoredSamples();
};

void TestHistoryPage::gapsAreGaps_data()
{
    QTest::addColumn<QVector<int>>("times"); // s
    QTest::addColumn<QVector<int>>("spans"); // s
    QTest::addColumn<int>("unknown");        // row without a value; -1: none
    QTest::addColumn<Runs>("runs");

    const QVector<int> full(5, 0);
    QTest::newRow("one poll missing")
        << QVector<int>{0, 5, 15, 20, 25} << full << -1 << Runs{{0, 4}};
    QTest::newRow("a silence") << QVector<int>{0, 5, 10, 60, 65} << full << -1
                               << Runs{{0, 2}, {3, 4}};
    QTest::newRow("no value") << QVector<int>{0, 5, 10, 15, 20} << full << 2
                              << Runs{{0, 1}, {3, 4}};
    QTest::newRow("polled once a minute then")
        << QVector<int>{0, 60, 120, 180, 600} << full << -1 << Runs{{0, 3}, {4, 4}};
    QTest::newRow("means touch, then a silence")
        << QVector<int>{0, 60, 120, 900, 960} << QVector<int>(5, 60) << -1 << Runs{{0, 2}, {3, 4}};
}

void TestHistoryPage::gapsAreGaps()
{
    QFETCH(const QVector<int>, times);
    QFETCH(const QVector<int>, spans);
    QFETCH(const int, unknown);
    HistorySeries series;
    series.values.resize(1);
    for (int row = 0; row < times.size(); ++row) {
        series.timeMs += times.at(row) * 1000LL;
        series.spanMs += spans.at(row) * 1000LL;
        series.values[0] += row == unknown ? ValueRange() : ValueRange{230, 229, 231};
    }
    const qint64 longest = longestStep(series, kPollMs);
    QTEST(unbrokenRuns(series, 0, longest), "runs");
    // The last row speaks for its own span and a little longer, not for the rest of time.
    const qint64 end = series.timeMs.last() + series.spanMs.last();
    QVERIFY(rowAt(series, end + longest, longest));
    QVERIFY(!rowAt(series, end + longest + 1, longest));
    QVERIFY(!rowAt(series, -1, longest));
}

void TestHistoryPage::windowNeverPassesThePresent_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("from"); // min before the present
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("follows");

    const qint64 minute = 60000;
    QTest::newRow("opened") << Act([](TimeWindow&) {}) << 60 << 0 << true;
    QTest::newRow("back") << Act([=](TimeWindow& w) { w.pan(-30 * minute, 0); }) << 90 << 30
                          << false;
    QTest::newRow("forth") << Act([=](TimeWindow& w) { w.pan(30 * minute, 0); }) << 60 << 0 << true;
    QTest::newRow("closer around the middle")
        << Act([=](TimeWindow& w) { w.zoom(0.5, -30 * minute, 0); }) << 45 << 15 << false;
    QTest::newRow("further") << Act([=](TimeWindow& w) { w.zoom(2, -30 * minute, 0); }) << 120 << 0
                             << true;
    QTest::newRow("too close") << Act([=](TimeWindow& w) { w.zoom(0, -60 * minute, 0); }) << 60
                               << 59 << false;
    QTest::newRow("longer, of an earlier time") << Act([=](TimeWindow& w) {
        w.pan(-30 * minute, 0);
        w.setLength(360 * minute, 0);
    }) << 390 << 30 << false;
}

void TestHistoryPage::windowNeverPassesThePresent()
{
    QFETCH(const Act, act);
    QFETCH(const int, from);
    QFETCH(const int, to);
    TimeWindow window(kHour, 0);
    act(window);
    QCOMPARE(window.range().fromMs, -from * 60000LL);
    QCOMPARE(window.range().toMs, -to * 60000LL);
    QTEST(window.followsNow(), "follows");
}

// Each kind of failure has its colour in every chart, from onset to end; what is still so lasts as
// long as there are samples, and no longer.
void TestHistoryPage::failuresAreBands()
{
    Desk desk;
    const qint64 start = kLongNight;
    const auto at = [start](int minute) { return start + minute * 60000LL; };
    desk.store(minutesOnMains(start, at(50)), {entryOf(JournalKind::Outage, at(10), at(14)),
                                               entryOf(JournalKind::Bypass, at(20), at(24)),
                                               entryOf(JournalKind::Link, at(30), at(34)),
                                               entryOf(JournalKind::Outage, at(45), {})});
    HistoryReader reader(desk.options.store);
    HistoryPage page(*desk.device);
    show(page, reader, {start, start + kHour});

    auto* plot = page.findChild<QwtPlot*>();
    const QImage picture = plot->canvas()->grab().toImage();
    const auto topAt = [&](double minute) {
        const double x =
            plot->transform(QwtPlot::xBottom, static_cast<double>(start) + minute * 60000);
        return picture.pixelColor(qRound(x), 1);
    };
    const auto color = [&](JournalKind kind) { return HistoryBands::color(kind, page.palette()); };
    const QColor ground = page.palette().color(QPalette::Base);
    QCOMPARE(topAt(12), color(JournalKind::Outage));
    QCOMPARE(topAt(22), color(JournalKind::Bypass));
    QCOMPARE(topAt(32), color(JournalKind::Link));
    QCOMPARE(topAt(47), color(JournalKind::Outage));
    QCOMPARE(topAt(17), ground);
    QCOMPARE(topAt(52), ground);

    const auto* table = page.findChild<OutageTable*>();
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->item(0, OutageTable::Duration)->text(), QStringLiteral("4 min 0 s"));
    QCOMPARE(table->item(0, OutageTable::LowestCharge)->text(), QStringLiteral("100 %"));
    QCOMPARE(table->item(1, OutageTable::Onset)->text(),
             QStringLiteral("2026-10-25 00:40:00 CEST"));
    QCOMPARE(table->item(1, OutageTable::LowestCharge)->text(), QStringLiteral("63 %"));
    emit page.findChild<OutageTable*>()->itemActivated(table->item(1, 0));
    QCOMPARE(page.range().fromMs, at(9));
    QCOMPARE(page.range().toMs, at(15));
}

void TestHistoryPage::hourThatIsThereTwice()
{
    Desk desk;
    desk.store(minutesOnMains(kLongNight, kLongNight + 5 * kHour));
    HistoryReader reader(desk.options.store);
    HistoryPage page(*desk.device);
    show(page, reader, {kLongNight, kLongNight + 5 * kHour});

    auto* plot = page.findChild<QwtPlot*>();
    const QList<double> ticks = plot->axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick);
    QStringList labels;
    for (double tick : ticks)
        labels += plot->axisScaleDraw(QwtPlot::xBottom)->label(tick).text().left(5);
    QCOMPARE(labels.count(QStringLiteral("02:00")), 2);
    for (int i = 1; i < ticks.size(); ++i)
        QCOMPARE(ticks.at(i) - ticks.at(i - 1), ticks.at(1) - ticks.at(0));

    QCOMPARE(localTimeText(kLongNight + 2 * kHour), QStringLiteral("2026-10-25 02:30:00 CEST"));
    QCOMPARE(localTimeText(kLongNight + 3 * kHour), QStringLiteral("2026-10-25 02:30:00 CET"));
    const QString path = desk.folder.filePath(QStringLiteral("night.csv"));
    page.saveCsv(path);
    QTRY_VERIFY(QFile::exists(path));
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray csv = file.readAll();
    QCOMPARE(csv.count('\n'), 1 + 5 * 60);
    QCOMPARE(csv.count("2026-10-25T02:30:00.000+02:00"), 1);
    QCOMPARE(csv.count("2026-10-25T02:30:00.000+01:00"), 1);
}

void TestHistoryPage::filesSayHowTheyEnded()
{
    Desk desk;
    desk.store({onMains(kLongNight)});
    HistoryReader reader(desk.options.store);
    HistoryPage page(*desk.device);
    show(page, reader, {kLongNight - kHour, kLongNight + kHour});
    const auto* info = page.findChild<QLabel*>(QStringLiteral("HistoryInfo"));
    const QString nowhere = desk.folder.filePath(QStringLiteral("none/file"));
    page.saveCsv(nowhere);
    QTRY_VERIFY(info->text().contains(QStringLiteral("Not saved")));
    page.showRange({kLongNight, kLongNight + kHour});
    QVERIFY(!info->text().contains(QStringLiteral("Not saved")));
    page.savePicture(nowhere);
    QVERIFY(info->text().contains(QStringLiteral("Not saved")));
    const QString path = desk.folder.filePath(QStringLiteral("charts.png"));
    page.savePicture(path);
    QVERIFY(info->text().contains(path));
    QVERIFY(QImage(path).width() >= page.findChild<QwtPlot*>()->width());
}

// Answers that come when the store is gone, or to a page that asks no more, change nothing.
void TestHistoryPage::withoutHistoryItIsSaid()
{
    Desk desk;
    desk.store({onMains(kLongNight)});
    HistoryReader reader(desk.options.store);
    HistoryPage page(*desk.device);
    page.show();
    QVERIFY(page.message().contains(QStringLiteral("no history")));
    page.setReader(&reader);
    page.setReader(nullptr);
    QTest::qWait(100);
    QVERIFY(page.message().contains(QStringLiteral("no history")));
    reader.ask<int>(
        &page,
        [](HistoryQueries&) {
            QThread::msleep(300); // a store that takes its time
            return 0;
        },
        [](const int&, const QString&) {});
    page.setReader(&reader);
    QVERIFY(page.message().contains(QStringLiteral("Loading")));
    QTRY_VERIFY(page.message().isEmpty());

    DeviceSettings other = desk.device->settings();
    other.name = QStringLiteral("Rack 4");
    other.address = *parseDeviceAddress(QStringLiteral("nut://h/v")).address;
    HistoryPage unknown(*desk.fleet.add(other));
    unknown.show();
    unknown.setReader(&reader);
    QTRY_VERIFY(unknown.message().contains(QStringLiteral("Nothing is stored")));

    StoreAddress broken;
    broken.path = desk.folder.path();
    HistoryReader faulty(broken);
    unknown.setReader(&faulty);
    QTRY_VERIFY(unknown.message().contains(QStringLiteral("cannot be read")));
}

void TestHistoryPage::chartsStartWithStoredSamples_data()
{
    QTest::addColumn<QVector<int>>("ages"); // s before the first live reading
    QTest::addColumn<int>("samples");       // in the chart, with the live one

    QTest::newRow("nothing stored") << QVector<int>{} << 1;
    QTest::newRow("up to the present") << QVector<int>{25, 20, 15, 10, 5} << 6;
    QTest::newRow("one poll missing") << QVector<int>{25, 20, 10, 5} << 5;
    QTest::newRow("before a silence: not joined") << QVector<int>{65, 60, 55, 10, 5} << 3;
    QTest::newRow("all before a silence") << QVector<int>{65, 60, 55} << 1;
    QTest::newRow("polled more often then") << QVector<int>{21, 20, 16, 15, 11, 10, 6, 5} << 5;
}

void TestHistoryPage::chartsStartWithStoredSamples()
{
    QFETCH(const QVector<int>, ages);
    Desk desk;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    QVector<Sample> stored;
    for (int age : ages)
        stored += onMains(now - age * 1000);
    desk.store(stored);
    HistoryReader reader(desk.options.store);
    ChartForm charts;
    charts.resize(900, 700);
    ChartFeed feed(*desk.device, charts);
    QSignalSpy taken(&feed, &ChartFeed::storedTaken);
    feed.setReader(&reader);
    QTRY_COMPARE(taken.size(), 1);
    feed.refresh(); // no reading yet: what is stored alone would look live
    charts.show();
    desk.fleet.pollNow(desk.device);
    desk.connector->answer(LinkState::Live, onMains(now).reading);
    feed.refresh();
    // The first sample counts twice, so that a lone one is seen: there are as many segments as
    // samples in each of the four curves.
    const auto segments = [&charts] {
        auto* chart = charts.findChild<DynamicChart*>();
        RecordingDevice recorder(chart->size());
        chart->render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
        const auto steps = recorder.stepsOf(PaintStep::Line);
        return std::count_if(steps.begin(), steps.end(), [](const PaintStep& step) {
            return step.pen.color() == QColor(255, 0, 255);
        });
    };
    QFETCH(const int, samples);
    QTRY_COMPARE(static_cast<int>(segments()), samples);
}

QTEST_MAIN(TestHistoryPage)
#include "tst_historypage.moc"
