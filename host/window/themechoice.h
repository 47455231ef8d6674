#ifndef THEMECHOICE_H
#define THEMECHOICE_H

// The theme that an operator has chosen, or the one that goes with the desktop.
// May touch: the theme, the desk's settings.

#include "config/desksettings.h"

// Dresses the application. The first call must come before anything else has changed its palette.
void applyThemeChoice(ThemeChoice choice);

#endif // THEMECHOICE_H
