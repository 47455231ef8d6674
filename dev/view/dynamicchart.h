#ifndef DYNAMICCHART_H
#define DYNAMICCHART_H

// Trend chart of one phase: four curves against one scale of 0 to 400.
// May touch: TrendChart.

#include <devview/trendchart.h>

class DEVVIEW_EXPORT DynamicChart : public TrendChart
{
    Q_OBJECT

public:
    // Series 0 magenta, 1 green, 2 cyan, 3 red.
    explicit DynamicChart(QWidget* parent = nullptr);
};

#endif // DYNAMICCHART_H
