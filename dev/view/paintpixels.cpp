#include "paintpixels.h"

#include <QPaintEngine>
#include <QPainter>

namespace {

// At its own size or larger: what covers the clip there may leave edges when it shrinks or turns.
bool isUpright(const QTransform& place)
{
    return place.type() <= QTransform::TxScale && place.m11() >= 1.0 && place.m22() >= 1.0;
}

} // namespace

QImage* paintpixels::target(QPainter* painter)
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

QRegion paintpixels::exposed(const QPainter* painter)
{
    const QPaintEngine* engine = painter->paintEngine();
    const QPaintDevice* device = engine->paintDevice();
    const QRect all(0, 0, device->width(), device->height());
    const QRegion clip = engine->systemClip();
    return clip.isEmpty() ? QRegion(all) : clip & all;
}
