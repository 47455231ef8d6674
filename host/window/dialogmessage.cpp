#include "window/dialogmessage.h"

#include <QLayout>
#include <QStyle>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int kRoomForLines = 2; // kept free, so that most texts move nothing
constexpr int kFrame = 12;       // px, padding and border of the style sheet, both sides

const char* toneName(DialogMessage::Tone tone)
{
    constexpr const char* names[] = {"hint", "good", "bad"};
    return names[static_cast<int>(tone)];
}

} // namespace

DialogMessage::DialogMessage(QWidget* parent)
    : PlainLabel({}, parent)
{
    setObjectName(QStringLiteral("DialogMessage"));
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setMinimumHeight(kRoomForLines * fontMetrics().lineSpacing() + kFrame);
}

void DialogMessage::say(const QString& text, Tone tone)
{
    setText(text);
    setAccessibleName(text);
    setProperty("tone", QLatin1String(toneName(tone)));
    style()->unpolish(this); // the style sheet looks at the property
    style()->polish(this);
    const QLayout* layout = window()->layout();
    if (layout && window()->isVisible()) // forms that scroll need not grow with it
        window()->resize(
            window()->width(),
            std::max(window()->height(), layout->minimumHeightForWidth(window()->width())));
}
