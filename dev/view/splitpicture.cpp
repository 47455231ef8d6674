#include "splitpicture.h"

#include "paintersaver.h"
#include "paintpixels.h"

#include <QPainter>

#include <cstring>
#include <utility>

namespace {

// Calls `visit` with the bytes of each row of the clip, on the image and in a picture of it that
// stands at `corner`.
template <typename Visit>
void visitRows(QImage& image, const QImage& picture, const QPoint& corner, const QRegion& clip,
               Visit visit)
{
    const int pixel = image.depth() / 8;
    for (const QRect& rect : clip) {
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            visit(image.scanLine(y) + rect.left() * pixel,
                  picture.constScanLine(y - corner.y()) + (rect.left() - corner.x()) * pixel,
                  std::size_t(rect.width()) * pixel);
    }
}

bool isOn(QImage& image, const QImage& picture, const QPoint& corner, const QRegion& clip)
{
    bool isSame = true;
    visitRows(image, picture, corner, clip, [&](const uchar* row, const uchar* same, auto bytes) {
        isSame = isSame && std::memcmp(row, same, bytes) == 0;
    });
    return isSame;
}

void put(QImage& image, const QImage& picture, const QPoint& corner, const QRegion& clip)
{
    visitRows(image, picture, corner, clip,
              [](uchar* row, const uchar* from, auto bytes) { std::memcpy(row, from, bytes); });
}

} // namespace

void SplitPicture::paint(QPainter* painter, const Look& look, const QPolygonF& shape)
{
    QImage* image = paintpixels::target(painter);
    if (!image)
        return look.whole();
    const QTransform place = painter->deviceTransform();
    const QRect all = place.mapRect(QRectF(look.place)).toAlignedRect();
    const QRegion clip = paintpixels::exposed(painter) & all;
    if (clip.isEmpty())
        return;

    Pictures pictures = m_kept.take(look.number);
    const bool isKept = pictures.painter == place && pictures.below.format() == image->format() &&
                        pictures.below.rect().translated(pictures.corner) == all &&
                        isOn(*image, pictures.below, pictures.corner, clip);
    if (!isKept)
        pictures = make(look, place, *image, clip);
    put(*image, pictures.around, pictures.corner, clip);
    {
        const PainterSaver saver(painter);
        painter->setTransform(place.inverted(), true); // to pixels of the device
        QBrush within(pictures.within);
        within.setTransform(QTransform::fromTranslate(pictures.corner.x(), pictures.corner.y()));
        painter->setPen(Qt::NoPen);
        painter->setBrush(within);
        painter->setCompositionMode(QPainter::CompositionMode_Source);
        painter->drawPolygon(place.map(shape));
    }
    if (isKept || clip == QRegion(all))
        m_kept.insert(look.number, pictures);
}

SplitPicture::Pictures SplitPicture::make(const Look& look, const QTransform& place, QImage& image,
                                          const QRegion& clip)
{
    const QRect bounds = clip.boundingRect();
    const auto copy = [&] {
        QImage picture = image.copy(bounds);
        picture.setDevicePixelRatio(1);
        return picture;
    };
    Pictures made{place, bounds.topLeft(), copy(), {}, {}};
    look.around();
    made.around = copy();
    put(image, made.below, made.corner, clip);
    look.within();
    made.within = copy();
    return made;
}
