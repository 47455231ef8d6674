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

    // px at scale 1.
    static constexpr int kLeastWidth = 290;
    static constexpr int kHeight = 186;

    // width: tiles of this width fill the view evenly; px. scale: of height and texts.
    void setTile(int width, double scale);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    int px(int atScaleOne) const { return static_cast<int>(atScaleOne * m_scale); }
    QFont sized(QFont font, double points, bool bold) const;

    int m_tileWidth = kLeastWidth;
    double m_scale = 1;
};

#endif // DEVICETILEDELEGATE_H
