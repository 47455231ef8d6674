#include "paintlayer.h"

#include "paintersaver.h"
#include "paintpixels.h"

#include <QPainter>

#include <cstring>

namespace {

constexpr int kPixelBytes = 4;
constexpr qint64 kMostPixels = 1 << 24; // of a layer
constexpr QImage::Format kFormat = QImage::Format_ARGB32_Premultiplied;

bool isWhole(double v)
{
    return v == static_cast<int>(v);
}

// Whole pixels of the widget on whole ones of the image.
bool isEven(const QTransform& place)
{
    return place.type() <= QTransform::TxScale && place.m11() == place.m22() &&
           isWhole(place.m11()) && isWhole(place.dx()) && isWhole(place.dy());
}

// The first pixel of each of the rows.
template <typename Visit>
void visitRows(QImage& image, const QRect& part, Visit visit)
{
    for (int y = part.top(); y <= part.bottom(); ++y)
        visit(image.scanLine(y) + part.left() * kPixelBytes);
}

void wipe(QImage& image, const QRect& part)
{
    const std::size_t bytes = std::size_t(part.width()) * kPixelBytes;
    visitRows(image, part, [=](uchar* first) { std::memset(first, 0, bytes); });
}

} // namespace

void PaintLayer::paint(QPainter* painter, const QRect& area, const QRegion& parts, const Move& move,
                       const Paint& paint)
{
    const QTransform place = painter->deviceTransform();
    const int scale = static_cast<int>(place.m11());
    const qint64 pixels = qint64(area.width()) * scale * area.height() * scale;
    if (!paintpixels::target(painter) || !isEven(place) || pixels > kMostPixels) {
        clear();
        return paint(painter, area);
    }
    const bool isOther = m_layer.isNull() || area != m_area || scale != m_scale;
    if (isOther) {
        m_layer = QImage(area.size() * scale, kFormat);
        m_layer.fill(Qt::transparent);
        m_area = area;
        m_scale = scale;
    }
    m_parts += parts;
    QPainter on(&m_layer);
    on.setRenderHints(painter->renderHints());
    on.scale(scale, scale);
    on.translate(-area.topLeft());
    if (isOther || move.distance < 0 || (move.distance > 0 && move.still.isEmpty()))
        paintEnd(&on, area, {}, paint);
    else if (move.distance > 0)
        moveOn(&on, move, paint);
    on.end();
    m_parts = parts;
    layOver(painter, parts);
}

QRect PaintLayer::onLayer(const QRect& place) const
{
    const QRect part = (place & m_area).translated(-m_area.topLeft());
    return {part.topLeft() * m_scale, part.size() * m_scale};
}

void PaintLayer::moveOn(QPainter* on, const Move& move, const Paint& paint)
{
    const int left = move.still.left();
    const int right = move.still.left() + move.still.width();
    moveLeft(move.still, move.distance);
    paintEnd(on, QRect(m_area.topLeft(), QPoint(left - 1, m_area.bottom())),
             QRect(left, m_area.top(), move.reach, m_area.height()), paint);
    paintEnd(on, QRect(QPoint(right, m_area.top()), m_area.bottomRight()),
             QRect(right - move.reach, m_area.top(), move.reach, m_area.height()), paint);
}

void PaintLayer::moveLeft(const QRect& still, int distance)
{
    const int bytes = distance * m_scale * kPixelBytes;
    for (const QRect& part : m_parts) {
        const QRect to = onLayer(QRect(still.left(), part.top(), still.width(), part.height()));
        visitRows(m_layer, to, [&](uchar* first) {
            std::memmove(first, first + bytes, std::size_t(to.width()) * kPixelBytes);
        });
    }
}

// The paint engine cuts lines at the edge of a clip, and thick ones look it; so all that reaches
// `end` is painted, and what is too much of it `beside` is taken back.
void PaintLayer::paintEnd(QPainter* on, const QRect& end, const QRect& beside, const Paint& paint)
{
    const QRect rows = m_parts.boundingRect();
    const QRect kept = onLayer(beside & rows);
    const QImage picture = m_layer.copy(kept);
    wipe(m_layer, onLayer((end | beside) & rows));
    paint(on, end);
    int y = 0;
    visitRows(m_layer, kept, [&](uchar* first) {
        std::memcpy(first, picture.constScanLine(y++), std::size_t(kept.width()) * kPixelBytes);
    });
}

void PaintLayer::layOver(QPainter* painter, const QRegion& parts) const
{
    const PainterSaver saver(painter);
    const QTransform place = painter->deviceTransform();
    const QPoint corner = place.map(m_area.topLeft());
    QRegion pixels;
    for (const QRect& part : parts)
        pixels += onLayer(part).translated(corner);
    painter->setTransform(place.inverted(), true); // to pixels of the device
    for (const QRect& rect : paintpixels::exposed(painter) & pixels) {
        painter->setClipRect(rect);
        painter->drawImage(rect.topLeft(), m_layer, rect.translated(-corner));
    }
}
