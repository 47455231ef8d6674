#include "fleet/pollplan.h"

PollPlan::PollPlan(qint64 intervalMs, qint64 firstDueMs)
    : m_interval(std::max<qint64>(intervalMs, 1))
    , m_due(firstDueMs)
    , m_place(firstDueMs)
{}

void PollPlan::succeeded(qint64 nowMs)
{
    m_failures = 0;
    m_due = m_place = placeAfter(nowMs);
}

void PollPlan::failed(qint64 nowMs)
{
    constexpr int kDoublingsToLongest = 16; // 1 ms doubled so often is over a minute
    const int doublings = std::min(m_failures, kDoublingsToLongest);
    ++m_failures;
    const qint64 first = m_interval <= kLongestPauseMs ? m_interval : kQuickRetryMs;
    m_due = nowMs + std::min(first << doublings, kLongestPauseMs);
}

qint64 PollPlan::placeAfter(qint64 nowMs) const
{
    const qint64 ahead = (m_place - nowMs) % m_interval;
    return nowMs + (ahead > 0 ? ahead : ahead + m_interval);
}
