#ifndef DEVVIEW_PAINTMEMORY_H
#define DEVVIEW_PAINTMEMORY_H

// Remembers the pixels that paints have made and puts them there again: for an opaque part of a
// widget that repeats a few pictures, or for marks that stay the same on a ground that does.
// May touch: Qt Gui.

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QRegion>
#include <QTransform>
#include <QVariantList>
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

    // Paints marks over what lies below. `paint` draws nothing outside of `parts`, pixels of the
    // widget; the pixels are put back as long as those below are the same, too. Remembers one
    // picture, from the second time on that it is asked for: until then it may be the last.
    void paintOver(QPainter* painter, const QVariantList& key,
                   const std::function<QRegion()>& parts, const std::function<void()>& paint);
    void clear();

private:
    Key m_key;
    QVariantList m_overKey;
    QTransform m_place;
    QImage::Format m_format = QImage::Format_Invalid;
    QRegion m_clip; // pixels of the device, as the pictures
    QHash<int, QByteArray> m_pictures;
    QByteArray m_below;
};

#endif // DEVVIEW_PAINTMEMORY_H
