#include "window/devicesortmodel.h"

#include "window/devicelistmodel.h"

DeviceSortModel::DeviceSortModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setFilterRole(DeviceListModel::FilterRole);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setDynamicSortFilter(true);
    sort(0);
}

void DeviceSortModel::setWorstFirst(bool on)
{
    m_worstFirst = on;
    invalidate();
}

bool DeviceSortModel::startsSection(const QModelIndex& index) const
{
    if (m_worstFirst || !index.isValid())
        return false;
    const QString group = index.data(DeviceListModel::GroupRole).toString();
    if (index.row() == 0)
        return !group.isEmpty();
    return group != index.sibling(index.row() - 1, 0).data(DeviceListModel::GroupRole).toString();
}

// Devices without a group come first, as in a list without groups.
bool DeviceSortModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (m_worstFirst) {
        const int a = left.data(DeviceListModel::UrgencyRole).toInt();
        const int b = right.data(DeviceListModel::UrgencyRole).toInt();
        return a != b ? a > b : left.row() < right.row();
    }
    const int order =
        QString::localeAwareCompare(left.data(DeviceListModel::GroupRole).toString(),
                                    right.data(DeviceListModel::GroupRole).toString());
    return order != 0 ? order < 0 : left.row() < right.row();
}
