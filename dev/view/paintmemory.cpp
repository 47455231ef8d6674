#include "paintmemory.h"

#include "paintpixels.h"

#include <QPaintEngine>
#include <QPainter>

#include <cstring>

namespace {

// Calls `visit` with each row of each rectangle of the clip.
template <typename Visit>
void visitRows(QImage& image, const QRegion& clip, Visit visit)
{
    const int pixel = image.depth() / 8;
    for (const QRect& rect : clip) {
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            visit(image.scanLine(y) + rect.left() * pixel, rect.width() * pixel);
    }
}

QByteArray pixelsOf(QImage& image, const QRegion& clip)
{
    QByteArray pixels;
    visitRows(image, clip, [&](const uchar* row, int bytes) {
        pixels.append(reinterpret_cast<const char*>(row), bytes);
    });
    return pixels;
}

void put(QImage& image, const QRegion& clip, const QByteArray& pixels)
{
    const char* from = pixels.constData();
    visitRows(image, clip, [&](uchar* row, int bytes) {
        std::memcpy(row, from, std::size_t(bytes));
        from += bytes;
    });
}

} // namespace

void PaintMemory::paint(QPainter* painter, const Key& key, int number,
                        const std::function<void()>& paint)
{
    QImage* image = paintpixels::target(painter);
    const QRegion clip = image ? painter->paintEngine()->systemClip() & image->rect() : QRegion();
    if (clip.isEmpty())
        return paint();

    const QTransform& place = painter->deviceTransform();
    if (m_key != key || m_place != place || m_format != image->format() || m_clip != clip) {
        m_key = key;
        m_place = place;
        m_format = image->format();
        m_clip = clip;
        m_pictures.clear();
    }
    const auto picture = m_pictures.constFind(number);
    if (picture != m_pictures.constEnd())
        return put(*image, clip, *picture);
    paint();
    m_pictures.insert(number, pixelsOf(*image, clip));
}

void PaintMemory::clear()
{
    *this = PaintMemory();
}
