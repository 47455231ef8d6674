#ifndef THREEDYNAMICCHART_H
#define THREEDYNAMICCHART_H

// Trend chart of three phases: series 0 to 2 against the left scale (0 to 400), series 3 to 5
// against the right scale (0 to 100). Its grid is always shown.
// May touch: TrendChart.

#include <devview/trendchart.h>

/// The trend of three phases: series 0 to 2 against the left scale of 0 to 400 (volts of the lines
/// A, B, C), series 3 to 5 against the right scale of 0 to 100 (their frequencies in Hz). Its grid
/// is always shown. How it is fed: TrendChart.
/// \image html trend-three-phase.png "Voltages and frequencies of an input"
class DEVVIEW_EXPORT ThreeDynamicChart : public TrendChart
{
    Q_OBJECT

public:
    /// Empty. Left: yellow, green, red. Right: amber, leaf green, dark red. Other ids are ignored.
    explicit ThreeDynamicChart(QWidget* parent = nullptr);
};

#endif // THREEDYNAMICCHART_H
