#ifndef THEME_H
#define THEME_H

// Look of the whole application: style sheet, palette, and fonts for the families that the views
// name and this machine may lack.
// May touch: Qt Widgets and the application's own resources.

#include <QString>

enum class Theme { Light, Dark };

void applyTheme(Theme theme);

#endif // THEME_H
