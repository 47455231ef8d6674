#ifndef DEVICELISTMODEL_H
#define DEVICELISTMODEL_H

// The fleet as rows for the device list and the overview.
// May touch: the fleet; no connector.

#include "fleet/fleet.h"

#include <QAbstractListModel>
#include <QSet>
#include <QTimer>

class DeviceListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        DeviceRole = Qt::UserRole, // Device*, as void*
        UrgencyRole,               // int, higher is worse
        GroupRole,                 // site or room; may be empty
        FilterRole                 // text that the filter looks in
    };

    explicit DeviceListModel(Fleet& fleet, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // Number of devices of each urgency, and the same in words, worst first.
    QMap<Urgency, int> counts() const;
    QVector<QPair<Urgency, QString>> countWords() const; // "2 alarm"
    QString countsText() const;

    // Invalid for a device that is not (or no longer) in the fleet, and for null.
    QModelIndex indexOf(const Device* device) const;
    static Device* deviceAt(const QModelIndex& index);

signals:
    // After a batch of changes; the counts may have changed.
    void refreshed();

private:
    void addRow(int row);
    void reset();
    void flushLater();
    void flushDirty();

    Fleet& m_fleet;
    int m_rows; // as many as the views know of
    QSet<const Device*> m_dirty;
    QTimer m_flushTimer;
};

#endif // DEVICELISTMODEL_H
