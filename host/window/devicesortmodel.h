#ifndef DEVICESORTMODEL_H
#define DEVICESORTMODEL_H

// Filter as you type; ordered by group, or the worst first on demand.
// May touch: the device list model.

#include <QSortFilterProxyModel>

class DeviceSortModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit DeviceSortModel(QObject* parent = nullptr);

    // Worst first, equals in the order of the configuration; or group by group in that order.
    void setWorstFirst(bool on);
    // The first row of a group where the order is by group and there is more than none.
    bool startsSection(const QModelIndex& index) const;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    bool m_worstFirst = false;
};

#endif // DEVICESORTMODEL_H
