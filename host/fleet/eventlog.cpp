#include "fleet/eventlog.h"

quint64 EventLog::append(const DeskEvent& event)
{
    if (count() == kMostEvents) {
        emit aboutToDropOldest();
        m_events.pop_front();
        ++m_dropped;
        emit droppedOldest();
    }
    const int row = count();
    emit aboutToAppend(row);
    m_events.push_back(event);
    emit appended(row);
    return m_dropped + static_cast<quint64>(row);
}

void EventLog::complete(quint64 ticket, const QString& outcome, const QString& message, bool isBad)
{
    if (ticket < m_dropped || ticket - m_dropped >= static_cast<quint64>(count()))
        return;
    const auto row = static_cast<std::size_t>(ticket - m_dropped);
    m_events[row].outcome = outcome;
    m_events[row].message = message;
    m_events[row].isBad = isBad;
    emit changed(static_cast<int>(row));
}
