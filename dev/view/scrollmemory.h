#ifndef DEVVIEW_SCROLLMEMORY_H
#define DEVVIEW_SCROLLMEMORY_H

// Remembers the pixels of something that moves to the left between two paints, and paints only its
// new ends, and rows whose ground is not of one colour.
// May touch: Qt Gui.

#include <QByteArray>
#include <QImage>
#include <QMap>
#include <QRect>
#include <QRegion>
#include <QTransform>

#include <functional>

class QPainter;

class ScrollMemory
{
public:
    // Pixels of the widget.
    struct Move {
        int distance = -1; // to the left since the last paint; -1: something else is painted
        QRect still;       // shows nothing but what stood `distance` further right
        int reach = 0;     // what is painted in one place may begin so far beside it
    };
    using Paint = std::function<void(QPainter* painter, const QRect& place)>;

    // Paints over what lies below by `paint`, which is called with the places that are not put
    // back. Nothing is painted outside of `parts`, rows of one width, and nothing in two of them.
    void paint(QPainter* painter, const QRegion& parts, const Move& move, const Paint& paint);
    void clear();

private:
    // A row of pixels of the widget.
    struct Row {
        bool isPlain = false; // its ground is of one colour, as far as it can be put back
        quint32 below = 0;    // which
        QByteArray pixels;
    };
    using Rows = QMap<int, Row>;

    Rows paintPart(QPainter* painter, QImage& image, const QRect& part, const Move& move,
                   const Paint& paint) const;
    Rows groundOf(QImage& image, const QRect& part) const;
    QRegion otherGround(const Rows& rows, const QRect& part) const;
    void putBack(QImage& image, const QRect& part, const Move& move) const;
    void paintBeside(QPainter* painter, QImage& image, const QRect& place, const QRect& part,
                     const Move& move, const Paint& paint) const;
    QByteArray pixelsOf(QImage& image, int y) const;

    QTransform m_place;
    QImage::Format m_format = QImage::Format_Invalid;
    QRect m_bounds; // of the rows
    Rows m_rows;
};

#endif // DEVVIEW_SCROLLMEMORY_H
