#include "window/timewindow.h"

#include <algorithm>

namespace {

qint64 possible(qint64 lengthMs)
{
    return std::clamp(lengthMs, TimeWindow::kShortestMs, TimeWindow::kLongestMs);
}

} // namespace

TimeWindow::TimeWindow(qint64 lengthMs, qint64 nowMs)
    : m_range{nowMs - possible(lengthMs), nowMs}
{}

void TimeWindow::advance(qint64 nowMs)
{
    if (m_followsNow)
        showNow(nowMs);
}

void TimeWindow::setLength(qint64 lengthMs, qint64 nowMs)
{
    advance(nowMs);
    m_range.fromMs = m_range.toMs - possible(lengthMs);
}

void TimeWindow::showNow(qint64 nowMs)
{
    m_range = {nowMs - lengthMs(), nowMs};
    m_followsNow = true;
}

void TimeWindow::show(TimeRange range, qint64 nowMs)
{
    const qint64 length = possible(range.toMs - range.fromMs);
    m_followsNow = range.fromMs + length >= nowMs;
    m_range = m_followsNow ? TimeRange{nowMs - length, nowMs}
                           : TimeRange{range.fromMs, range.fromMs + length};
}

void TimeWindow::zoom(double factor, qint64 aroundMs, qint64 nowMs)
{
    const qint64 length = possible(static_cast<qint64>(static_cast<double>(lengthMs()) * factor));
    const double share =
        static_cast<double>(aroundMs - m_range.fromMs) / static_cast<double>(lengthMs());
    const qint64 from = aroundMs - static_cast<qint64>(static_cast<double>(length) * share);
    show({from, from + length}, nowMs);
}

void TimeWindow::pan(qint64 byMs, qint64 nowMs)
{
    show({m_range.fromMs + byMs, m_range.toMs + byMs}, nowMs);
}
