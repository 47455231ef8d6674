#include "window/themechoice.h"

#include "window/theme.h"

#include <QApplication>
#include <QPalette>

namespace {

constexpr int kDarkBelow = 128; // of 255

} // namespace

void applyThemeChoice(ThemeChoice choice)
{
    // The desktop's palette is only to be seen before the first theme has replaced it.
    static const bool systemIsDark =
        QApplication::palette().color(QPalette::Window).lightness() < kDarkBelow;
    const bool dark =
        choice == ThemeChoice::Dark || (choice == ThemeChoice::System && systemIsDark);
    applyTheme(dark ? Theme::Dark : Theme::Light);
}
