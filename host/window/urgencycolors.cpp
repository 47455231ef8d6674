#include "window/urgencycolors.h"

QColor urgencyColor(Urgency urgency)
{
    switch (urgency) {
    case Urgency::Normal:
        return {0x2e, 0x7d, 0x32};
    case Urgency::Notice:
        return {0x29, 0x47, 0xc6};
    case Urgency::Warning:
        return {0x96, 0x59, 0x00};
    case Urgency::Alarm:
        return {0xbf, 0x3b, 0x08};
    case Urgency::Critical:
        break;
    }
    return {0xa8, 0x14, 0x14};
}

QColor urgencyTextColor(Urgency urgency, const QPalette& palette)
{
    constexpr int kHalfLight = 128;
    if (palette.color(QPalette::Window).lightness() >= kHalfLight)
        return urgencyColor(urgency);
    switch (urgency) {
    case Urgency::Normal:
        return {0x6f, 0xd0, 0x74};
    case Urgency::Notice:
        return {0x9d, 0xac, 0xff};
    case Urgency::Warning:
        return {0xff, 0xb3, 0x47};
    case Urgency::Alarm:
        return {0xff, 0x9a, 0x6a};
    case Urgency::Critical:
        break;
    }
    return {0xff, 0x8a, 0x80};
}

QColor fadedColor(const QColor& text, const QColor& ground)
{
    constexpr double kShare = 0.72; // of the text; the rest is the ground
    const auto mixed = [](double a, double b) { return a * kShare + b * (1 - kShare); };
    return QColor::fromRgbF(mixed(text.redF(), ground.redF()),
                            mixed(text.greenF(), ground.greenF()),
                            mixed(text.blueF(), ground.blueF()));
}
