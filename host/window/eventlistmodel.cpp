#include "window/eventlistmodel.h"

#include "window/urgencycolors.h"

#include <QApplication>

EventListModel::EventListModel(EventLog& log, QObject* parent)
    : QIdentityProxyModel(parent)
{
    setSourceModel(&log);
}

QVariant EventListModel::data(const QModelIndex& index, int role) const
{
    const bool isMessage = index.column() == EventLog::Message;
    if (role == Qt::ToolTipRole && isMessage)
        return QStringLiteral("<qt>%1</qt>")
            .arg(index.data(Qt::DisplayRole).toString().toHtmlEscaped());
    if (role == Qt::ForegroundRole && index.column() == EventLog::Outcome &&
        index.data(EventLog::BadRole).toBool())
        return urgencyTextColor(Urgency::Critical, QApplication::palette());
    return QIdentityProxyModel::data(index, role);
}
