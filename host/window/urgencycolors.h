#ifndef URGENCYCOLORS_H
#define URGENCYCOLORS_H

// Colours of urgency, the same in the list, the tiles and the headings of both themes.
// May touch: Qt Gui and the urgency itself.

#include "fleet/urgency.h"

#include <QColor>

// Fill of a marker; white text on it is readable.
QColor urgencyColor(Urgency urgency);

#endif // URGENCYCOLORS_H
