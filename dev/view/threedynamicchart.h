#ifndef THREEDYNAMICCHART_H
#define THREEDYNAMICCHART_H

// Trend chart of three phases: series 0 to 2 against the left scale (0 to 400), series 3 to 5
// against the right scale (0 to 100). Its grid is always shown.
// May touch: TrendChart.

#include <devview/trendchart.h>

class DEVVIEW_EXPORT ThreeDynamicChart : public TrendChart
{
    Q_OBJECT

public:
    // Left: yellow, green, red. Right: amber, leaf green, dark red.
    explicit ThreeDynamicChart(QWidget* parent = nullptr);
};

#endif // THREEDYNAMICCHART_H
