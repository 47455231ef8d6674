#include "window/devicesortmodel.h"

#include "window/devicelistmodel.h"

DeviceSortModel::DeviceSortModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setFilterRole(DeviceListModel::FilterRole);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setDynamicSortFilter(true);
}

void DeviceSortModel::setWorstFirst(bool on)
{
    sort(on ? 0 : -1);
}

bool DeviceSortModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int a = left.data(DeviceListModel::UrgencyRole).toInt();
    const int b = right.data(DeviceListModel::UrgencyRole).toInt();
    return a != b ? a > b : left.row() < right.row();
}
