#include "window/plainlabel.h"

#include <QResizeEvent>

PlainLabel::PlainLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void PlainLabel::setFullText(const QString& text)
{
    if (text == m_fullText)
        return;
    m_fullText = text;
    updateGeometry();
    elide();
}

QSize PlainLabel::sizeHint() const
{
    const QMargins margins = contentsMargins();
    return {fontMetrics().horizontalAdvance(m_fullText) + margins.left() + margins.right() + 2,
            QLabel::sizeHint().height()};
}

QSize PlainLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth(), QLabel::minimumSizeHint().height()};
}

void PlainLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    elide();
}

void PlainLabel::elide()
{
    const QString shown =
        fontMetrics().elidedText(m_fullText, Qt::ElideRight, contentsRect().width());
    setText(shown);
    setToolTip(shown == m_fullText ? QString()
                                   : QStringLiteral("<qt>%1</qt>").arg(m_fullText.toHtmlEscaped()));
}
