#ifndef POLLPLAN_H
#define POLLPLAN_H

// When one device is polled next: evenly while it answers, with growing pauses while it does not,
// and never not at all.
// May touch: Qt Core. Pure arithmetic on milliseconds of a monotonic clock.

#include <QtGlobal>

#include <algorithm>

class PollPlan
{
public:
    static constexpr qint64 kLongestPauseMs = 60 * 1000;
    // After the first failure of a device that is polled less often than once a minute.
    static constexpr qint64 kQuickRetryMs = 5 * 1000;

    // intervalMs: between the starts of two polls, at least 1.
    PollPlan(qint64 intervalMs, qint64 firstDueMs);

    qint64 dueMs() const { return m_due; }
    int failures() const { return m_failures; } // in a row

    // A good answer: the next poll keeps the device's place in the interval. After a late answer
    // the missed places are skipped, not caught up.
    void succeeded(qint64 nowMs);
    // No good answer: the pause doubles up to a minute, from one interval or, where that is longer
    // than a minute, from a quick retry.
    void failed(qint64 nowMs);
    // False after a single failure that a quick retry will put right or confirm: one lost packet
    // must not count as an hour of silence.
    bool isSilenceConfirmed() const { return m_interval <= kLongestPauseMs || m_failures > 1; }
    // Try then, where that is sooner than planned (machine awake, operator asks). The place stays.
    void hurry(qint64 atMs) { m_due = std::min(m_due, atMs); }

    // The next due time of the even grid, whatever the device answers.
    qint64 placeAfter(qint64 nowMs) const;

private:
    qint64 m_interval;
    qint64 m_due;
    qint64 m_place; // any due time of the even grid
    int m_failures = 0;
};

#endif // POLLPLAN_H
