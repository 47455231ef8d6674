#include "history/replayplayer.h"

#include <algorithm>

namespace {

constexpr int kTickMs = 50;
constexpr int kAhead = 500; // readings that one question brings
constexpr int kFewAhead = 100;
constexpr int kMostPerTick = 40;             // more would hold up the window
constexpr qint64 kLongestWaitMs = 70 * 1000; // real time; longer gaps are cut
constexpr qint64 kShownGapMs = 3 * 1000;

} // namespace

ReplayPlayer::ReplayPlayer(HistoryReader* reader, const QString& device, QObject* parent)
    : QObject(parent)
    , m_reader(reader)
    , m_name(device)
{
    m_timer.setInterval(kTickMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { advance(m_elapsed.restart()); });
}

void ReplayPlayer::open(qint64 timeMs)
{
    if (!m_reader)
        return emit failed(tr("This desk keeps no history."));
    m_reader->ask<Stored>(
        this,
        [name = m_name](HistoryQueries& store) {
            const StoredDevice device = store.device(name).value_or(StoredDevice());
            return Stored{device, store.extent(device.id).value_or(TimeRange())};
        },
        [this, timeMs](const Stored& stored, const QString& error) {
            if (!error.isEmpty())
                emit failed(error);
            else if (stored.range.toMs <= stored.range.fromMs)
                emit failed(tr("Nothing is stored of %1 yet.").arg(m_name));
            else
                takeStored(stored, timeMs);
        });
}

void ReplayPlayer::takeStored(const Stored& stored, qint64 timeMs)
{
    const bool isFirst = m_device.id == 0;
    m_device = stored.device;
    m_range = stored.range;
    if (isFirst)
        emit opened();
    seek(timeMs < 0 ? m_range.toMs + timeMs : timeMs);
}

// Jumping

void ReplayPlayer::seek(qint64 timeMs)
{
    m_wanted = qBound(m_range.fromMs, timeMs, m_range.toMs);
    if (!m_isJumping)
        askBefore();
}

void ReplayPlayer::askBefore()
{
    if (!m_reader || !m_wanted)
        return;
    const qint64 time = *m_wanted;
    m_wanted.reset();
    m_isJumping = true;
    m_reader->ask<Jump>(
        this,
        [device = m_device, time](HistoryQueries& store) { return readJump(store, device, time); },
        [this, time](const Jump& jump, const QString& error) {
            m_isJumping = false;
            if (m_wanted)
                askBefore(); // the slider has moved on
            else if (!error.isEmpty())
                emit failed(error);
            else
                takeJump(jump, time);
        });
}

ReplayPlayer::Jump ReplayPlayer::readJump(HistoryQueries& store, const StoredDevice& device,
                                          qint64 timeMs)
{
    JournalFilter filter;
    filter.device = device.name;
    filter.kinds = {JournalKind::Condition};
    filter.fromMs = timeMs;
    filter.toMs = timeMs + 1;
    filter.limit = 1;
    const QVector<JournalEntry> conditions = store.journal(filter);
    return {store.framesBefore(device.id, timeMs, kBefore),
            conditions.isEmpty() ? 0 : conditions.constFirst().onsetMs};
}

void ReplayPlayer::takeJump(const Jump& jump, qint64 timeMs)
{
    ++m_journey; // what was asked ahead is of another place
    m_timeMs = m_lastKnownMs = timeMs;
    m_ahead.clear();
    m_hasAll = m_isAsking = false;
    emit jumped(jump.before, jump.conditionSinceMs);
    emit changed();
    askAhead();
}

void ReplayPlayer::step(bool forward)
{
    pause();
    if (!forward) {
        if (!m_reader)
            return;
        m_reader->ask<Readings>(
            this,
            [device = m_device.id, time = m_timeMs](HistoryQueries& store) {
                return store.framesBefore(device, time - 1, 2);
            },
            [this](const Readings& before, const QString&) {
                if (!before.isEmpty())
                    seek(before.constLast().timeMs);
            });
        return;
    }
    if (m_ahead.empty())
        return;
    const StoredReading next = m_ahead.front();
    m_ahead.pop_front();
    m_timeMs = next.timeMs;
    emit played(next);
    emit changed();
    askAhead();
}

// Playing

void ReplayPlayer::play()
{
    m_elapsed.start();
    m_timer.start();
    emit changed();
}

void ReplayPlayer::pause()
{
    m_timer.stop();
    emit changed();
}

void ReplayPlayer::setSpeed(int times)
{
    m_speed = std::max(times, 1);
    emit changed();
}

void ReplayPlayer::advance(qint64 realMs)
{
    if (m_isJumping || m_wanted)
        return;
    const qint64 known =
        m_hasAll ? m_range.toMs : m_lastKnownMs; // what lies behind is not read yet
    m_timeMs = std::max(m_timeMs, std::min(m_timeMs + realMs * m_speed, known));
    skipGap();
    for (int i = 0; i < kMostPerTick && !m_ahead.empty() && m_ahead.front().timeMs <= m_timeMs;
         ++i) {
        const StoredReading reading = m_ahead.front();
        m_ahead.pop_front();
        emit played(reading);
    }
    if (!m_ahead.empty() && m_ahead.front().timeMs < m_timeMs)
        m_timeMs = m_ahead.front().timeMs; // slower than wanted, but nothing is left out
    if (m_hasAll && m_ahead.empty() && m_timeMs >= m_range.toMs)
        pause();
    emit changed();
    askAhead();
}

// Nobody watches a desk that was off for a night: just enough of it to see that it was.
void ReplayPlayer::skipGap()
{
    if (m_ahead.empty())
        return;
    const qint64 nextMs = m_ahead.front().timeMs;
    if ((nextMs - m_timeMs) / m_speed > kLongestWaitMs)
        m_timeMs = nextMs - kShownGapMs * m_speed;
}

void ReplayPlayer::askAhead()
{
    if (!m_reader || m_isAsking || m_hasAll || static_cast<int>(m_ahead.size()) >= kFewAhead)
        return;
    m_isAsking = true;
    const TimeRange range{m_lastKnownMs + 1, m_range.toMs + 1};
    m_reader->ask<Readings>(
        this,
        [device = m_device.id, range](HistoryQueries& store) {
            return store.frames(device, range, kAhead);
        },
        [this, journey = m_journey](const Readings& readings, const QString& error) {
            if (journey != m_journey)
                return;
            m_isAsking = false;
            m_hasAll = !error.isEmpty() || readings.size() < kAhead;
            m_ahead.insert(m_ahead.end(), readings.begin(), readings.end());
            if (!readings.isEmpty())
                m_lastKnownMs = readings.constLast().timeMs;
            if (!error.isEmpty())
                emit failed(error);
        });
}
