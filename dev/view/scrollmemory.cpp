#include "scrollmemory.h"

#include "paintpixels.h"

#include <QPainter>

#include <cstring>

namespace {

constexpr int kPixelBytes = 4;

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

QRect rowOf(const QRect& part, int y)
{
    return {part.left(), y, part.width(), 1};
}

// The first pixel of each of the rows.
template <typename Visit>
void visitRows(QImage& image, const QRect& part, Visit visit)
{
    for (int y = part.top(); y <= part.bottom(); ++y)
        visit(image.scanLine(y) + part.left() * kPixelBytes);
}

} // namespace

void ScrollMemory::paint(QPainter* painter, const QRegion& parts, const Move& move,
                         const Paint& paint)
{
    QImage* image = paintpixels::target(painter);
    const QTransform place = painter->deviceTransform();
    if (!image || image->depth() != 8 * kPixelBytes || !isEven(place) ||
        !paintpixels::canPaint(painter, *image, paintpixels::onDevice(place, parts))) {
        clear();
        return paint(painter, parts.boundingRect());
    }
    if (place != m_place || image->format() != m_format)
        clear();
    m_place = place;
    m_format = image->format();

    Rows rows;
    for (const QRect& part : parts)
        rows.insert(paintPart(painter, *image, part, move, paint));
    m_bounds = parts.boundingRect();
    for (auto row = rows.begin(); row != rows.end(); ++row)
        row->pixels = pixelsOf(*image, row.key());
    m_rows = rows;
}

// The paint engine cuts lines at the edge of a clip, and thick ones look it.
ScrollMemory::Rows ScrollMemory::paintPart(QPainter* painter, QImage& image, const QRect& part,
                                           const Move& move, const Paint& paint) const
{
    const bool isThin = m_place.m11() == 1.0;
    const QRect still = part & move.still;
    const Rows ground =
        groundOf(image, still.isEmpty() ? part : still.adjusted(0, 0, move.distance, 0) & part);
    QRegion same = m_rows.isEmpty() ? QRegion() : QRegion(still) - otherGround(ground, still);
    if (!isThin && same != QRegion(still))
        same = {};
    for (const QRect& place : same)
        putBack(image, place, move);
    for (const QRect& place : QRegion(part) - same) {
        if (isThin || same.isEmpty()) {
            painter->setClipRect(place);
            paint(painter, place);
            painter->setClipping(false);
        } else {
            paintBeside(painter, image, place, part, move, paint);
        }
    }
    return ground;
}

void ScrollMemory::clear()
{
    *this = ScrollMemory();
}

ScrollMemory::Rows ScrollMemory::groundOf(QImage& image, const QRect& part) const
{
    Rows rows;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const QRect place = m_place.mapRect(rowOf(part, y));
        const std::size_t others = std::size_t(place.width() - 1) * kPixelBytes;
        Row& row = rows[y];
        std::memcpy(&row.below, image.constScanLine(place.top()) + place.left() * kPixelBytes,
                    kPixelBytes);
        row.isPlain = true;
        visitRows(image, place, [&](const uchar* first) {
            row.isPlain = row.isPlain && std::memcmp(first, &row.below, kPixelBytes) == 0 &&
                          std::memcmp(first, first + kPixelBytes, others) == 0;
        });
    }
    return rows;
}

// The rows of `part` that have another one than at the last paint, or none that is plain. On a row
// that is not remembered nothing was painted.
QRegion ScrollMemory::otherGround(const Rows& rows, const QRect& part) const
{
    QRegion others;
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        const auto old = m_rows.constFind(row.key());
        const bool isSame = old == m_rows.constEnd() || (old->isPlain && old->below == row->below);
        if (!row->isPlain || !isSame)
            others += rowOf(part, row.key());
    }
    return others;
}

void ScrollMemory::putBack(QImage& image, const QRect& part, const Move& move) const
{
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto old = m_rows.constFind(y);
        if (old == m_rows.constEnd())
            continue;
        const QRect from = m_place.mapRect(rowOf(m_bounds, y));
        const QRect to = m_place.mapRect(rowOf(part, y));
        const int distance = move.distance * static_cast<int>(m_place.m11());
        const char* pixels =
            old->pixels.constData() + (to.left() + distance - from.left()) * kPixelBytes;
        visitRows(image, to, [&](uchar* first) {
            std::memcpy(first, pixels, std::size_t(to.width()) * kPixelBytes);
            pixels += from.width() * kPixelBytes;
        });
    }
}

// The paint engine cuts lines at the edge of a clip, and thick ones look it; so `place` is cut out
// of a picture of what is around it.
void ScrollMemory::paintBeside(QPainter* painter, QImage& image, const QRect& place,
                               const QRect& part, const Move& move, const Paint& paint) const
{
    const QRect around = m_place.mapRect(place.adjusted(-move.reach, 0, move.reach, 0) & part);
    QImage picture = image.copy(around);
    picture.setDevicePixelRatio(1);
    QPainter beside(&picture);
    beside.setRenderHints(painter->renderHints());
    beside.setTransform(m_place * QTransform::fromTranslate(-around.left(), -around.top()));
    paint(&beside, place);
    beside.end();
    const QRect pixels = m_place.mapRect(place);
    int y = pixels.top() - around.top();
    visitRows(image, pixels, [&](uchar* first) {
        std::memcpy(first,
                    picture.constScanLine(y++) + (pixels.left() - around.left()) * kPixelBytes,
                    std::size_t(pixels.width()) * kPixelBytes);
    });
}

QByteArray ScrollMemory::pixelsOf(QImage& image, int y) const
{
    QByteArray pixels;
    const QRect place = m_place.mapRect(rowOf(m_bounds, y));
    pixels.reserve(place.width() * place.height() * kPixelBytes);
    visitRows(image, place, [&](const uchar* first) {
        pixels.append(reinterpret_cast<const char*>(first), place.width() * kPixelBytes);
    });
    return pixels;
}
