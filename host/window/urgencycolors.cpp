#include "window/urgencycolors.h"

QColor urgencyColor(Urgency urgency)
{
    switch (urgency) {
    case Urgency::Normal:
        return {0x2e, 0x7d, 0x32};
    case Urgency::Notice:
        return {0x29, 0x47, 0xc6};
    case Urgency::Warning:
        return {0xb2, 0x6a, 0x00};
    case Urgency::Alarm:
        return {0xd0, 0x45, 0x0c};
    case Urgency::Critical:
        break;
    }
    return {0xb7, 0x1c, 0x1c};
}

QColor urgencyTextColor(Urgency urgency, const QPalette& palette)
{
    constexpr int halfLight = 128;
    constexpr int percent = 175;
    const QColor color = urgencyColor(urgency);
    return palette.color(QPalette::Window).lightness() < halfLight ? color.lighter(percent) : color;
}
