#ifndef DEVICESORTMODEL_H
#define DEVICESORTMODEL_H

// Filter as you type; ordered by group, the worst first, or the worst of each group first.
// May touch: the device list model.

#include <QSortFilterProxyModel>

// Devices of one group that stand together.
struct DeviceSection {
    QString group; // may be empty
    int first;     // row
    int count;

    bool operator==(const DeviceSection& other) const
    {
        return group == other.group && first == other.first && count == other.count;
    }
};

class DeviceSortModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit DeviceSortModel(QObject* parent = nullptr);

    enum class Order {
        Groups,          // each in the order of the configuration
        WorstFirst,      // equals in the order of the configuration
        WorstOfEachGroup // first
    };
    void setOrder(Order order);
    // The first row of a group where the order is by group and there is more than none.
    bool startsSection(const QModelIndex& index) const;
    // All rows, group by group; in one section where the order is another.
    QVector<DeviceSection> sections() const;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    Order m_order = Order::Groups;
};

#endif // DEVICESORTMODEL_H
