#ifndef URGENCYCOLORS_H
#define URGENCYCOLORS_H

// Colours of urgency, the same in the list, the tiles and the headings of both themes.
// May touch: Qt Gui and the urgency itself.

#include "fleet/urgency.h"

#include <QColor>
#include <QPalette>

// Fill of a marker; white text on it is readable.
QColor urgencyColor(Urgency urgency);

// The same for text on the palette's ground, light or dark.
QColor urgencyTextColor(Urgency urgency, const QPalette& palette);

// Text that stands back, and every figure that is not live: the same everywhere, still readable.
QColor fadedColor(const QColor& text, const QColor& ground);

#endif // URGENCYCOLORS_H
