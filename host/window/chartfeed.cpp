#include "window/chartfeed.h"

#include "fleet/device.h"
#include "history/devicefacts.h"
#include "history/devicehistory.h"

#include "chartform.h"
#include "trendchart.h"

#include <QDateTime>
#include <QEvent>

#include <algorithm>

namespace {

enum ChartPage { SinglePhasePage, ThreePhasePage };

constexpr qint64 kMsPerSecond = 1000;
constexpr int kMostStored = 5000; // rows of one question: some may be closer than they are now
constexpr int kGrowingMs = 100;   // while a window is being made larger

bool isThreePhase(const UpsReading& reading)
{
    return shownLines(reading.input) == kPhases || shownLines(reading.output) == kPhases;
}

} // namespace

ChartFeed::ChartFeed(const Device& device, ChartForm& charts, QObject* parent)
    : QObject(parent)
    , m_device(device)
    , m_charts(charts)
{
    for (TrendChart* chart : charts.findChildren<TrendChart*>())
        chart->installEventFilter(this);
    m_filler.setSingleShot(true);
    connect(&m_filler, &QTimer::timeout, this, &ChartFeed::fill);
}

void ChartFeed::setReader(HistoryReader* reader)
{
    if (!reader || std::exchange(m_isAsked, true))
        return;
    const QString name = storedName(m_device);
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const TimeRange range{now - kMostSamples * m_device.settings().pollInterval * kMsPerSecond,
                          now};
    reader->ask<QVector<StoredReading>>(
        this,
        [name, range](HistoryQueries& store) {
            const auto device = store.device(name);
            return device ? store.readings(device->id, range, kMostStored)
                          : QVector<StoredReading>();
        },
        [this](const QVector<StoredReading>& stored, const QString&) { takeStored(stored); });
}

// The newest first, as long as they reach to the one after them: those before a gap stay away, and
// those that came closer than polls come now are passed over.
void ChartFeed::takeStored(const QVector<StoredReading>& stored)
{
    const qint64 interval = m_device.settings().pollInterval * kMsPerSecond;
    qint64 next = m_run.empty() ? QDateTime::currentMSecsSinceEpoch() : m_run.front().timeMs;
    for (auto older = stored.crbegin(); older != stored.crend(); ++older) {
        const qint64 step = next - older->timeMs;
        if (older->link != LinkState::Live || step < interval / 2)
            continue;
        if (step > longestStep(interval) || m_run.size() >= kMostSamples)
            break;
        m_run.push_front(*older);
        next = older->timeMs;
    }
    m_filler.start(0);
    emit storedTaken();
}

void ChartFeed::refresh()
{
    if (m_isReplay || !m_device.reading() || m_device.readingNumber() == m_shownReading)
        return;
    const bool isFirst = m_shownReading < 0;
    m_shownReading = m_device.readingNumber();
    const qint64 time = QDateTime::currentMSecsSinceEpoch() - m_device.ageMs();
    const bool isGap = append({time, LinkState::Live, *m_device.reading()});
    if (choosePage() || isFirst || isGap)
        fill();
    else
        m_charts.refreshFormInfo(m_device.snapshot(SnapshotPage::Chart));
}

void ChartFeed::restart(const QVector<StoredReading>& readings)
{
    m_isReplay = true;
    m_shownReading = 0;
    m_run.clear();
    for (const StoredReading& reading : readings)
        if (reading.link == LinkState::Live)
            append(reading);
    if (m_device.reading())
        choosePage();
    fill();
}

void ChartFeed::add(const StoredReading& reading)
{
    if (reading.link != LinkState::Live)
        return;
    const bool isGap = append(reading);
    if (choosePage() || isGap)
        fill();
    else
        m_charts.refreshFormInfo(deviceSnapshot(reading.reading, SnapshotPage::Chart));
}

bool ChartFeed::isGapBefore(const StoredReading& reading) const
{
    if (m_run.empty())
        return false;
    const StoredReading& last = m_run.back();
    const qint64 interval = std::max(m_device.settings().pollInterval * kMsPerSecond,
                                     std::max(last.spanMs, reading.spanMs));
    return reading.timeMs - last.timeMs > longestStep(interval);
}

// True: the run begins anew with this one.
bool ChartFeed::append(const StoredReading& reading)
{
    const bool isGap = isGapBefore(reading);
    if (isGap)
        m_run.clear();
    m_run.push_back(reading);
    if (m_run.size() > kMostSamples)
        m_run.pop_front();
    return isGap;
}

// True: another page than before.
bool ChartFeed::choosePage()
{
    const int page = isThreePhase(*m_device.reading()) ? ThreePhasePage : SinglePhasePage;
    if (m_charts.getCurrentIndex() == page)
        return false;
    m_charts.setCurrentIndex(page);
    return true;
}

// What is stored is shown together with the first live reading only: alone it would look live.
void ChartFeed::fill()
{
    if (m_shownReading < 0)
        return;
    m_charts.initFormInfo(false);
    for (const StoredReading& sample : m_run)
        m_charts.refreshFormInfo(deviceSnapshot(sample.reading, SnapshotPage::Chart));
}

bool ChartFeed::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        const int width = static_cast<QWidget*>(watched)->width();
        int& filled = m_widths[watched];
        if (width > filled)
            m_filler.start(filled == 0 ? 0 : kGrowingMs);
        filled = std::max(filled, width);
    }
    return QObject::eventFilter(watched, event);
}
