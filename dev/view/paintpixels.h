#ifndef DEVVIEW_PAINTPIXELS_H
#define DEVVIEW_PAINTPIXELS_H

// The pixels below a painter, for those who put back what was painted earlier.
// May touch: Qt Gui.

#include <QImage>
#include <QRegion>

class QPainter;

namespace paintpixels {

// The image that a painter in its first state paints on, at its own size or larger, else null.
QImage* target(QPainter* painter);
// Where such a painter may paint, in pixels of the image.
QRegion exposed(const QPainter* painter);

} // namespace paintpixels

#endif // DEVVIEW_PAINTPIXELS_H
