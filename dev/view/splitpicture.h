#ifndef DEVVIEW_SPLITPICTURE_H
#define DEVVIEW_SPLITPICTURE_H

// Two pictures of one thing, of which a shape shows the one within and the other around it: only
// the edge is painted when the shape changes, all else is put back. May touch: Qt Gui.

#include <QHash>
#include <QImage>
#include <QPolygonF>
#include <QTransform>

#include <functional>

class QPainter;
class QRegion;

class SplitPicture
{
public:
    // Two pictures, painted over what lies below, and the part of the widget that they cover.
    struct Look {
        int number; // of the two pictures; the caller bounds how many there are
        QRect place;
        std::function<void()> around;
        std::function<void()> within;
        std::function<void()> whole; // both at once, by painters that cannot put pixels back
    };

    // Remembers the pictures once all of them has been asked for, by numbers, as long as the
    // pixels below are the same.
    void paint(QPainter* painter, const Look& look, const QPolygonF& shape);
    // Another shape needs to repaint its own pixels only.
    bool isKept(int number) const { return m_kept.contains(number); }
    // For pictures that look otherwise now.
    void clear() { m_kept.clear(); }

private:
    struct Pictures {
        QTransform painter;
        QPoint corner; // on the device, in its pixels
        QImage below;
        QImage around;
        QImage within;
    };

    static Pictures make(const Look& look, const QTransform& place, QImage& image,
                         const QRegion& clip);

    QHash<int, Pictures> m_kept;
};

#endif // DEVVIEW_SPLITPICTURE_H
