#include "paintmemory.h"

#include <QPaintEngine>
#include <QPainter>

#include <cstring>

namespace {

// At its own size or larger: what covers the clip there may leave edges when it shrinks or turns.
bool isUpright(const QTransform& place)
{
    return place.type() <= QTransform::TxScale && place.m11() >= 1.0 && place.m22() >= 1.0;
}

// The image that a painter in its first state paints on, else null.
QImage* target(QPainter* painter)
{
    const QPaintEngine* engine = painter->paintEngine();
    if (engine->type() != QPaintEngine::Raster || painter->hasClipping() ||
        painter->opacity() != 1.0 ||
        painter->compositionMode() != QPainter::CompositionMode_SourceOver)
        return nullptr;
    auto* image = dynamic_cast<QImage*>(engine->paintDevice());
    const bool inWholeBytes = image && image->depth() >= 8 && image->isDetached();
    return inWholeBytes && isUpright(painter->deviceTransform()) ? image : nullptr;
}

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

bool has(QImage& image, const QRegion& clip, const QByteArray& pixels)
{
    const char* expected = pixels.constData();
    bool isSame = !pixels.isEmpty();
    visitRows(image, clip, [&](const uchar* row, int bytes) {
        isSame = isSame && std::memcmp(row, expected, std::size_t(bytes)) == 0;
        expected += bytes;
    });
    return isSame;
}

void put(QImage& image, const QRegion& clip, const QByteArray& pixels)
{
    const char* from = pixels.constData();
    visitRows(image, clip, [&](uchar* row, int bytes) {
        std::memcpy(row, from, std::size_t(bytes));
        from += bytes;
    });
}

QRegion onDevice(const QTransform& place, const QRegion& parts)
{
    QRegion pixels;
    for (const QRect& part : parts)
        pixels += place.mapRect(QRectF(part)).toAlignedRect();
    return pixels;
}

bool reaches(const QRegion& clip, const QRegion& parts)
{
    return clip.isEmpty() || (parts - clip).isEmpty();
}

} // namespace

void PaintMemory::paint(QPainter* painter, const Key& key, int number,
                        const std::function<void()>& paint)
{
    QImage* image = target(painter);
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

void PaintMemory::paintOver(QPainter* painter, const QVariantList& key,
                            const std::function<QRegion()>& parts,
                            const std::function<void()>& paint)
{
    QImage* image = target(painter);
    const QTransform& place = painter->deviceTransform();
    if (!image || place.type() > QTransform::TxScale)
        return paint();
    if (m_overKey != key || m_place != place || m_format != image->format()) {
        clear();
        m_overKey = key;
        m_place = place;
        m_format = image->format();
        return paint();
    }
    if (m_clip.isEmpty())
        m_clip = onDevice(place, parts());
    if (!image->rect().contains(m_clip.boundingRect()) ||
        !reaches(painter->paintEngine()->systemClip(), m_clip))
        return paint();
    if (has(*image, m_clip, m_below))
        return put(*image, m_clip, m_pictures.value(0));
    m_below = pixelsOf(*image, m_clip);
    paint();
    m_pictures.insert(0, pixelsOf(*image, m_clip));
}

void PaintMemory::clear()
{
    *this = PaintMemory();
}
