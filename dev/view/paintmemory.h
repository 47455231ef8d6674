#ifndef DEVVIEW_PAINTMEMORY_H
#define DEVVIEW_PAINTMEMORY_H

// Remembers what paints made of the pixels that they found, and puts it there again: for a part of
// a widget that repeats a few pictures. What it finds counts, not what that came from: a palette, a
// style sheet or a parent that changes the ground needs no word here.
// May touch: Qt Gui.

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QRegion>
#include <QTransform>
#include <QVector>

#include <functional>

class QPainter;

class PaintMemory
{
public:
    // Everything but the ground that the pictures depend on.
    using Key = QVector<int>;

    // Makes picture `number` of `key` within the painter's system clip: puts it back where it is
    // remembered, else calls `paint`, which must paint nothing else. Remembers the pictures of one
    // key on one ground; the caller bounds how many. On other devices than images it only paints.
    void paint(QPainter* painter, const Key& key, int number, const std::function<void()>& paint);
    void clear();

private:
    Key m_key;
    QTransform m_place;
    QImage::Format m_format = QImage::Format_Invalid;
    QRegion m_clip; // pixels of the device, as all below
    QByteArray m_ground;
    QHash<int, QByteArray> m_pictures;
};

#endif // DEVVIEW_PAINTMEMORY_H
