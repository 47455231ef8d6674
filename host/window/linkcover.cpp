#include "window/linkcover.h"

#include <QEvent>
#include <QPainter>

namespace {

// Light enough to read through, strong enough that nothing beneath passes for live.
constexpr int kVeilAlpha = 150;

} // namespace

LinkCover::LinkCover(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    parent->installEventFilter(this);
    hide();
}

void LinkCover::setOpaque(bool opaque)
{
    if (opaque == m_opaque)
        return;
    m_opaque = opaque;
    update();
}

void LinkCover::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setGeometry(parentWidget()->rect());
    raise();
}

bool LinkCover::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void LinkCover::paintEvent(QPaintEvent*)
{
    QColor veil = palette().color(QPalette::Window);
    veil.setAlpha(m_opaque ? 255 : kVeilAlpha);
    QPainter(this).fillRect(rect(), veil);
}
