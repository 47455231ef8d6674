#ifndef DEVICESORTMODEL_H
#define DEVICESORTMODEL_H

// Filter as you type, and the worst first on demand.
// May touch: the device list model.

#include <QSortFilterProxyModel>

class DeviceSortModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit DeviceSortModel(QObject* parent = nullptr);

    // Worst first, equals in the order of the configuration; or that order alone.
    void setWorstFirst(bool on);

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

#endif // DEVICESORTMODEL_H
