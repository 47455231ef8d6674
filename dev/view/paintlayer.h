#ifndef DEVVIEW_PAINTLAYER_H
#define DEVVIEW_PAINTLAYER_H

// A layer kept from paint to paint, which is laid over whatever lies below. Of what moves to the
// left only the new ends are painted.
// May touch: Qt Gui.

#include <QImage>
#include <QRect>
#include <QRegion>

#include <functional>

class QPainter;

class PaintLayer
{
public:
    // Pixels of the widget.
    struct Move {
        int distance = -1; // to the left since the last paint; 0: still the same; -1: another one
        QRect still;       // shows nothing but what stood `distance` further right
        int reach = 0;     // what is painted in one place may begin so far beside it
    };
    using Paint = std::function<void(QPainter* painter, const QRect& place)>;

    // What `paint` paints; it is called with the places that are not moved, and paints in `parts`
    // only, rows of `area`.
    void paint(QPainter* painter, const QRect& area, const QRegion& parts, const Move& move,
               const Paint& paint);
    void clear() { m_layer = QImage(); }

private:
    QRect onLayer(const QRect& place) const;
    void moveOn(QPainter* on, const Move& move, const Paint& paint);
    void moveLeft(const QRect& still, int distance);
    void paintEnd(QPainter* on, const QRect& end, const QRect& beside, const Paint& paint);
    void layOver(QPainter* painter, const QRegion& parts) const;

    QImage m_layer; // transparent beside what is painted
    int m_scale = 0;
    QRect m_area;
    QRegion m_parts; // of the last paint, and of the one in progress
};

#endif // DEVVIEW_PAINTLAYER_H
