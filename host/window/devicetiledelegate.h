#ifndef DEVICETILEDELEGATE_H
#define DEVICETILEDELEGATE_H

// One device as a tile that can be read across a room, or as a small one of many.
// May touch: the device list model, the library's painter.

#include <QStyledItemDelegate>

class DeviceTileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    enum class Form {
        Full,   // state, figures, alarms, age
        Brief,  // the same in little room: the cause in place of the age
        Compact // name and state on the colour of the urgency
    };

    // px at scale 1: the least width and the height.
    static QSize leastSize(Form form);

    // size: px, such that tiles fill the view evenly. scale: of texts and margins.
    void setTile(Form form, const QSize& size, double scale);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    struct Tile;
    struct Metrics;
    static const Metrics kMetrics[];

    const Metrics& metrics() const;
    int px(int atScaleOne) const { return static_cast<int>(atScaleOne * m_scale); }
    QFont sized(const Tile& tile, double points, bool bold) const;
    void drawCompact(const Tile& tile) const;
    void drawFrame(const Tile& tile) const;
    void drawBand(const Tile& tile) const;
    void drawFigures(const Tile& tile, QRect& room) const;
    void drawData(const Tile& tile, QRect& room) const;
    void drawAlarms(const Tile& tile, const QRect& room) const;
    void drawReason(const Tile& tile, const QRect& room) const;
    void drawWhole(const Tile& tile, const QRect& room, const QString& text) const;

    Form m_form = Form::Full;
    QSize m_tile;
    double m_scale = 1;
};

#endif // DEVICETILEDELEGATE_H
