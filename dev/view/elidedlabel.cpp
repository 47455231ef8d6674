#include "elidedlabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QtMath>
#include <QToolTip>

namespace {

// No line is wider and no tool tip longer; measuring more would only cost time.
constexpr int kMaxCharacters = 1000;
constexpr int kPreferredCharacters = 40;

QString bounded(const QString& text)
{
    return text.size() > kMaxCharacters ? text.left(kMaxCharacters) + QChar(0x2026) : text;
}

} // namespace

ElidedLabel::ElidedLabel(const QString& text, int minimumCharacters, QWidget* parent)
    : QLabel(text, parent)
    , m_minimumCharacters(minimumCharacters)
{
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(bounded(text()), Qt::ElideRight, contentsRect().width(),
                                    Qt::TextSingleLine);
}

QSize ElidedLabel::sizeFor(int maxCharacters) const
{
    const QFontMetrics metrics = fontMetrics();
    // Rounded up: a fraction of a pixel too little would cut the text.
    const int textWidth = qCeil(QFontMetricsF(font()).horizontalAdvance(bounded(text())));
    const QSize content(qMin(textWidth, metrics.averageCharWidth() * maxCharacters),
                        metrics.height());
    return content + size() - contentsRect().size();
}

QSize ElidedLabel::sizeHint() const
{
    return sizeFor(kPreferredCharacters);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return sizeFor(m_minimumCharacters);
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    if (shownText() == text())
        QToolTip::hideText();
    else
        // Wrapped by the rich-text engine, so escaped.
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<p>%1</p>").arg(bounded(text()).toHtmlEscaped()), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawFrame(&painter);
    style()->drawItemText(&painter, contentsRect(),
                          static_cast<int>(alignment()) | Qt::TextSingleLine, palette(),
                          isEnabled(), shownText(), foregroundRole());
}
