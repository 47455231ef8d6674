#include "window/linkband.h"

#include "window/plainlabel.h"
#include "window/urgencycolors.h"

#include <QVBoxLayout>

LinkBand::LinkBand(QWidget* parent)
    : QFrame(parent)
    , m_title(new PlainLabel)
    , m_text(new PlainLabel)
{
    setObjectName(QStringLiteral("LinkBand"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 8, 16, 8);
    column->setSpacing(2);
    m_title->setObjectName(QStringLiteral("LinkBandTitle"));
    column->addWidget(m_title);
    column->addWidget(m_text);
    hide();
}

void LinkBand::say(const QString& title, const QString& text, bool isWaiting)
{
    m_title->setText(title);
    m_text->setText(text);
    setAccessibleName(title + QStringLiteral(": ") + text);
    const QString color = urgencyColor(isWaiting ? Urgency::Notice : Urgency::Alarm).name();
    if (color == m_color)
        return;
    m_color = color;
    setStyleSheet(
        QStringLiteral("#LinkBand { background: %1; } QLabel { color: white; }").arg(color));
}
