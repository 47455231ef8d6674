#ifndef DEVICEROWDELEGATE_H
#define DEVICEROWDELEGATE_H

// One device in the list: marker, name, state and age, address; above the first of a group, its
// name. May touch: the device list model, the library's painter.

#include <QStyledItemDelegate>

class DeviceRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

#endif // DEVICEROWDELEGATE_H
