#include "fleet/eventlog.h"

namespace {

struct ColumnText {
    const char* caption;
    QString (*text)(const DeskEvent& event);
};

// In the order of EventLog::Column.
const ColumnText kColumns[] = {
    {QT_TRANSLATE_NOOP("EventLog", "Time"),
     [](const DeskEvent& e) { return e.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")); }},
    {QT_TRANSLATE_NOOP("EventLog", "Operator"),
     [](const DeskEvent& e) {
         return e.operatorName.isEmpty() ? QStringLiteral("-") : e.operatorName;
     }},
    {QT_TRANSLATE_NOOP("EventLog", "Device"), [](const DeskEvent& e) { return e.device; }},
    {QT_TRANSLATE_NOOP("EventLog", "Event"), [](const DeskEvent& e) { return e.text; }},
    {QT_TRANSLATE_NOOP("EventLog", "Outcome"),
     [](const DeskEvent& e) { return e.outcome.isEmpty() ? QStringLiteral("\u2026") : e.outcome; }},
    {QT_TRANSLATE_NOOP("EventLog", "Message"), [](const DeskEvent& e) { return e.message; }},
};
static_assert(std::size(kColumns) == EventLog::ColumnCount);

} // namespace

quint64 EventLog::append(const DeskEvent& event)
{
    if (count() == kMostEvents) {
        beginRemoveRows({}, count() - 1, count() - 1);
        m_events.pop_front();
        ++m_dropped;
        endRemoveRows();
    }
    beginInsertRows({}, 0, 0);
    m_events.push_back(event);
    if (!event.time.isValid())
        m_events.back().time = QDateTime::currentDateTime();
    endInsertRows();
    const int number = count() - 1;
    emit appended(number);
    return m_dropped + static_cast<quint64>(number);
}

void EventLog::complete(quint64 ticket, const QString& outcome, const QString& message, bool isBad)
{
    if (ticket < m_dropped || ticket - m_dropped >= static_cast<quint64>(count()))
        return;
    const int number = static_cast<int>(ticket - m_dropped);
    DeskEvent& event = m_events[static_cast<std::size_t>(number)];
    event.outcome = outcome;
    event.message = message;
    event.isBad = isBad;
    emit dataChanged(index(rowOf(number), 0), index(rowOf(number), ColumnCount - 1));
    emit changed(number);
}

int EventLog::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

int EventLog::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EventLog::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= count())
        return {};
    const DeskEvent& event = at(rowOf(index.row()));
    if (role == Qt::DisplayRole)
        return kColumns[index.column()].text(event);
    return role == BadRole ? QVariant(event.isBad) : QVariant();
}

QVariant EventLog::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= ColumnCount)
        return {};
    return tr(kColumns[section].caption);
}
