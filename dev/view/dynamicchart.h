#ifndef DYNAMICCHART_H
#define DYNAMICCHART_H

// Trend chart of one phase: four curves against one scale of 0 to 400.
// May touch: TrendChart.

#include <devview/trendchart.h>

/// The trend of one phase: up to four curves against one scale of 0 to 400, as the single-phase
/// page shows input, output, battery and bypass voltage. How it is fed: TrendChart.
/// \image html trend.png "Four voltages"
class DEVVIEW_EXPORT DynamicChart : public TrendChart
{
    Q_OBJECT

public:
    /// Empty. Series 0 is magenta, 1 green, 2 cyan, 3 red; other ids are ignored. The ground is
    /// light grey in every theme, whatever a style sheet of the host's says.
    explicit DynamicChart(QWidget* parent = nullptr);
};

#endif // DYNAMICCHART_H
