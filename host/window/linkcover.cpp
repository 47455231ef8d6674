#include "linkcover.h"

#include "window/urgencycolors.h"

#include <QEvent>
#include <QPainter>

namespace {

// Light enough to read through, grey enough that nothing beneath passes for live.
constexpr int kVeilAlpha = 150;
constexpr int kBandAlpha = 240;
constexpr int kBandMargin = 12; // px
constexpr double kTitleScale = 1.5;

} // namespace

LinkCover::LinkCover(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    parent->installEventFilter(this);
    hide();
}

void LinkCover::say(const QString& title, const QString& text)
{
    const bool shown = !title.isEmpty();
    if (shown && (title != m_title || text != m_text)) {
        m_title = title;
        m_text = text;
        setAccessibleName(title + QStringLiteral(": ") + text);
        update();
    }
    if (shown) {
        setGeometry(parentWidget()->rect());
        raise();
    }
    setVisible(shown);
}

void LinkCover::setOpaque(bool opaque)
{
    if (opaque == m_opaque)
        return;
    m_opaque = opaque;
    update();
}

bool LinkCover::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void LinkCover::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor veil = palette().color(QPalette::Window);
    veil.setAlpha(m_opaque ? 255 : kVeilAlpha);
    painter.fillRect(rect(), veil);

    QFont titleFont = font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * kTitleScale);
    const int titleHeight = QFontMetrics(titleFont).height();
    const QRect textRoom(0, 0, width() - 2 * kBandMargin, height());
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int textHeight = fontMetrics().boundingRect(textRoom, flags, m_text).height();

    // At the top, where it hides a heading at most.
    const QRect band(0, 0, width(), titleHeight + textHeight + 3 * kBandMargin);
    QColor bandColor = urgencyColor(m_opaque ? Urgency::Notice : Urgency::Alarm);
    bandColor.setAlpha(kBandAlpha);
    painter.fillRect(band, bandColor);
    painter.setPen(Qt::white);
    painter.setFont(titleFont);
    painter.drawText(QRect(0, kBandMargin, width(), titleHeight), Qt::AlignCenter, m_title);
    painter.setFont(font());
    painter.drawText(QRect(kBandMargin, titleHeight + 2 * kBandMargin, width() - 2 * kBandMargin,
                           textHeight + kBandMargin),
                     flags, m_text);
}
