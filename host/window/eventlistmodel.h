#ifndef EVENTLISTMODEL_H
#define EVENTLISTMODEL_H

// The event list as a table, newest first.
// May touch: the event log.

#include "fleet/eventlog.h"

#include <QAbstractTableModel>

class EventListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        Time,
        Operator,
        DeviceName,
        Command,
        Code,
        ValueText,
        Outcome,
        Message,
        ColumnCount
    };

    explicit EventListModel(EventLog& log, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    // Newest first: the log's last event is row 0.
    int logRow(int row) const { return m_log.count() - 1 - row; }

    EventLog& m_log;
};

#endif // EVENTLISTMODEL_H
