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

void DeviceSortModel::setOrder(Order order)
{
    if (order == m_order)
        return;
    m_order = order;
    invalidate();
}

bool DeviceSortModel::startsSection(const QModelIndex& index) const
{
    if (m_order == Order::WorstFirst || !index.isValid())
        return false;
    const QString group = index.data(DeviceListModel::GroupRole).toString();
    if (index.row() == 0)
        return !group.isEmpty();
    return group != index.sibling(index.row() - 1, 0).data(DeviceListModel::GroupRole).toString();
}

QVector<DeviceSection> DeviceSortModel::sections() const
{
    QVector<DeviceSection> sections;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex at = index(row, 0);
        const bool starts = startsSection(at);
        if (starts || sections.isEmpty())
            sections << DeviceSection{
                starts ? at.data(DeviceListModel::GroupRole).toString() : QString(), row, 0};
        ++sections.last().count;
    }
    return sections;
}

// Devices without a group come first, as in a list without groups.
bool DeviceSortModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (m_order != Order::WorstFirst) {
        const int order =
            QString::localeAwareCompare(left.data(DeviceListModel::GroupRole).toString(),
                                        right.data(DeviceListModel::GroupRole).toString());
        if (order != 0)
            return order < 0;
    }
    if (m_order != Order::Groups) {
        const int a = left.data(DeviceListModel::UrgencyRole).toInt();
        const int b = right.data(DeviceListModel::UrgencyRole).toInt();
        if (a != b)
            return a > b;
    }
    return left.row() < right.row();
}
