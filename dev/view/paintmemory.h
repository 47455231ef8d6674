#ifndef DEVVIEW_PAINTMEMORY_H
#define DEVVIEW_PAINTMEMORY_H

// Remembers the pixels that paints have made and puts them there again: for an opaque part of a
// widget that repeats a few pictures.
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
    // All that the pictures depend on, but the painter.
    using Key = QVector<int>;

    // Makes picture `number` of `key` within the painter's system clip: puts it back where it is
    // remembered, else calls `paint`, which must cover that clip. Remembers the pictures of one
    // key in one place; the caller bounds how many. On other devices than images, and by painters
    // that shrink or turn, it only paints.
    void paint(QPainter* painter, const Key& key, int number, const std::function<void()>& paint);

    void clear();

private:
    Key m_key;
    QTransform m_place;
    QImage::Format m_format = QImage::Format_Invalid;
    QRegion m_clip; // pixels of the device, as the pictures
    QHash<int, QByteArray> m_pictures;
};

#endif // DEVVIEW_PAINTMEMORY_H
