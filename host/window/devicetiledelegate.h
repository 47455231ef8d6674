#ifndef DEVICETILEDELEGATE_H
#define DEVICETILEDELEGATE_H

// One device as a tile that can be read across a room.
// May touch: the device list model.

#include <QStyledItemDelegate>

class DeviceTileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Tiles of this width fill the view evenly; set by the page when it is resized.
    void setTileWidth(int width) { m_tileWidth = width; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    int m_tileWidth = 300;
};

#endif // DEVICETILEDELEGATE_H
