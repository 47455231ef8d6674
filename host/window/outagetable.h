#ifndef OUTAGETABLE_H
#define OUTAGETABLE_H

// When the device was on battery: onset, end, duration and how low the battery went.
// May touch: the history of a device, Qt Widgets.

#include "history/devicehistory.h"

#include <QTableWidget>

class OutageTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { Onset, End, Duration, LowestCharge };

    explicit OutageTable(QWidget* parent = nullptr);

    // The outages among the history's bands that touch the range, the newest first; a selected one
    // stays selected.
    void setHistory(const DeviceHistory& history, TimeRange range);

signals:
    // By double-click or Enter; ms.
    void outageChosen(qint64 onsetMs, qint64 endMs);

private:
    struct Row {
        qint64 onsetMs;
        qint64 endMs; // as far as is known
    };
    void setCell(int row, Column column, const QString& text);

    QVector<Row> m_rows;
};

#endif // OUTAGETABLE_H
