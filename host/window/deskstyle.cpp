#include "window/deskstyle.h"

namespace {

bool s_moves = true;

} // namespace

DeskStyle::DeskStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{}

void DeskStyle::setMotion(bool moves)
{
    s_moves = moves;
}

int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const
{
    if (!s_moves && (hint == SH_Widget_Animate || hint == SH_Widget_Animation_Duration))
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}
