#ifndef EVENTLISTMODEL_H
#define EVENTLISTMODEL_H

// The event log as the window shows it: what went wrong in red, long messages as tool tips.
// May touch: the event log.

#include "fleet/eventlog.h"

#include <QIdentityProxyModel>

class EventListModel : public QIdentityProxyModel
{
    Q_OBJECT

public:
    explicit EventListModel(EventLog& log, QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role) const override;
};

#endif // EVENTLISTMODEL_H
