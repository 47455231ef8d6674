#include "window/resultbanner.h"

#include "window/plainlabel.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

ResultBanner::ResultBanner(QWidget* parent)
    : QFrame(parent)
    , m_text(new PlainLabel)
{
    setObjectName(QStringLiteral("ResultBanner"));
    auto* close = new QToolButton;
    close->setText(QStringLiteral("\u00d7"));
    close->setAccessibleName(tr("Close"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 6, 8, 6);
    row->addWidget(m_text, 1);
    row->addWidget(close);
    hide();
}

void ResultBanner::say(const QString& text, bool isBad)
{
    m_text->setText(text);
    setAccessibleName(text);
    setProperty("bad", QVariant(isBad));
    style()->unpolish(this); // the style sheet looks at the property
    style()->polish(this);
    show();
}
