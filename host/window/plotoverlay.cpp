#include "window/plotoverlay.h"

#include <QPainter>

namespace {

constexpr double kChoiceShade = 0.25;

} // namespace

void PlotOverlay::setLine(std::optional<double> x)
{
    if (x == m_line)
        return;
    m_line = x;
    updateOverlay();
}

void PlotOverlay::setChoice(std::optional<QPair<int, int>> choice)
{
    m_choice = choice;
    updateOverlay();
}

void PlotOverlay::drawOverlay(QPainter* painter) const
{
    if (m_choice) {
        QColor shade = palette().color(QPalette::Highlight);
        shade.setAlphaF(kChoiceShade);
        painter->fillRect(QRectF(m_choice->first, 0, m_choice->second - m_choice->first, height()),
                          shade);
    }
    if (m_line) {
        painter->setPen(QPen(palette().color(QPalette::Text), 1));
        painter->drawLine(QPointF(*m_line, 0), QPointF(*m_line, height()));
    }
}
