#ifndef THEME_H
#define THEME_H

// Look of the whole application: style sheet, palette, and fonts for the families that the views
// name and this machine may lack.
// May touch: Qt Widgets and the application's own resources.

#include <QString>

enum class Theme { Light, Dark };

void applyTheme(Theme theme);

class QWidget;

// Parts of the library's views that come with light grounds of their own get the theme's instead.
void giveThemeGrounds(const QWidget& view);

#endif // THEME_H
