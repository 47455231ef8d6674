#ifndef TIMEWINDOW_H
#define TIMEWINDOW_H

// The stretch of time that charts show: zoomed, moved, or following the present.
// May touch: the history's ranges. Pure arithmetic on ms since 1970 (UTC).

#include "history/historyqueries.h"

class TimeWindow
{
public:
    static constexpr qint64 kShortestMs = 60 * 1000;
    static constexpr qint64 kLongestMs = 10LL * 365 * 24 * 3600 * 1000;

    TimeWindow(qint64 lengthMs, qint64 nowMs);

    TimeRange range() const { return m_range; }
    qint64 lengthMs() const { return m_range.toMs - m_range.fromMs; }
    // Ends at the present and moves with it.
    bool followsNow() const { return m_followsNow; }

    // Time has passed.
    void advance(qint64 nowMs);
    // The same end, another length.
    void setLength(qint64 lengthMs, qint64 nowMs);
    void showNow(qint64 nowMs);
    void show(TimeRange range, qint64 nowMs);
    // factor below 1: closer. What lies at aroundMs stays in its place, but nothing after the
    // present is shown.
    void zoom(double factor, qint64 aroundMs, qint64 nowMs);
    void pan(qint64 byMs, qint64 nowMs);

private:
    TimeRange m_range;
    bool m_followsNow = true;
};

#endif // TIMEWINDOW_H
