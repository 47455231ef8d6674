#include "window/eventlistmodel.h"

#include "window/urgencycolors.h"

namespace {

struct ColumnText {
    const char* caption;
    QString (*text)(const DeskEvent& event);
};

// In the order of EventListModel::Column.
const ColumnText kColumns[] = {
    {QT_TRANSLATE_NOOP("EventListModel", "Time"),
     [](const DeskEvent& e) { return e.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")); }},
    {QT_TRANSLATE_NOOP("EventListModel", "Operator"),
     [](const DeskEvent& e) {
         return e.operatorName.isEmpty() ? QStringLiteral("-") : e.operatorName;
     }},
    {QT_TRANSLATE_NOOP("EventListModel", "Device"), [](const DeskEvent& e) { return e.device; }},
    {QT_TRANSLATE_NOOP("EventListModel", "Command"), [](const DeskEvent& e) { return e.text; }},
    {QT_TRANSLATE_NOOP("EventListModel", "Code"),
     [](const DeskEvent& e) { return e.code ? QString::number(e.code) : QString(); }},
    {QT_TRANSLATE_NOOP("EventListModel", "Value"), [](const DeskEvent& e) { return e.value; }},
    {QT_TRANSLATE_NOOP("EventListModel", "Outcome"),
     [](const DeskEvent& e) { return e.outcome.isEmpty() ? QStringLiteral("\u2026") : e.outcome; }},
    {QT_TRANSLATE_NOOP("EventListModel", "Message"), [](const DeskEvent& e) { return e.message; }},
};
static_assert(std::size(kColumns) == EventListModel::ColumnCount);

} // namespace

EventListModel::EventListModel(EventLog& log, QObject* parent)
    : QAbstractTableModel(parent)
    , m_log(log)
{
    connect(&log, &EventLog::aboutToAppend, this, [this] { beginInsertRows({}, 0, 0); });
    connect(&log, &EventLog::appended, this, [this] { endInsertRows(); });
    connect(&log, &EventLog::aboutToDropOldest, this,
            [this] { beginRemoveRows({}, m_log.count() - 1, m_log.count() - 1); });
    connect(&log, &EventLog::droppedOldest, this, [this] { endRemoveRows(); });
    connect(&log, &EventLog::changed, this, [this](int row) {
        const int shown = m_log.count() - 1 - row;
        emit dataChanged(index(shown, 0), index(shown, ColumnCount - 1));
    });
}

int EventListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_log.count();
}

int EventListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EventListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_log.count())
        return {};
    const DeskEvent& event = m_log.at(logRow(index.row()));
    if (role == Qt::DisplayRole)
        return kColumns[index.column()].text(event);
    if (role == Qt::ToolTipRole && index.column() == Message)
        return QStringLiteral("<qt>%1</qt>").arg(event.message.toHtmlEscaped());
    if (role == Qt::ForegroundRole && event.isBad && index.column() == Outcome)
        return urgencyColor(Urgency::Critical);
    return {};
}

QVariant EventListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= ColumnCount)
        return {};
    return tr(kColumns[section].caption);
}
