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

    // intervalMs: between the starts of two polls, at least 1.
    PollPlan(qint64 intervalMs, qint64 firstDueMs);

    qint64 dueMs() const { return m_due; }
    int failures() const { return m_failures; } // in a row

    // A good answer: the next poll keeps the device's place in the interval. After a late answer
    // the missed places are skipped, not caught up.
    void succeeded(qint64 nowMs);
    // No good answer: the pause doubles from one interval up to a minute.
    void failed(qint64 nowMs);
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
