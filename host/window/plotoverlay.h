#ifndef PLOTOVERLAY_H
#define PLOTOVERLAY_H

// What moves over a chart with the pointer, so that the chart below is not painted again: the line
// at the time that is read, and the stretch that is being chosen.
// May touch: Qwt.

#include <qwt_widget_overlay.h>

#include <optional>

class PlotOverlay : public QwtWidgetOverlay
{
    Q_OBJECT

public:
    explicit PlotOverlay(QWidget* canvas)
        : QwtWidgetOverlay(canvas)
    {}

    // px from the left of the canvas
    void setLine(std::optional<double> x);
    void setChoice(std::optional<QPair<int, int>> choice);

protected:
    void drawOverlay(QPainter* painter) const override;

private:
    std::optional<double> m_line;
    std::optional<QPair<int, int>> m_choice;
};

#endif // PLOTOVERLAY_H
