#ifndef CUSTOMPLOTWORKS_H
#define CUSTOMPLOTWORKS_H

// The same with QCustomPlot.
// May touch: QCustomPlot, which is under the GPL as this program is where it has it.

#include "peers/trendfeed.h"
#include "peers/work.h"

Work customPlotTrend(const TrendFeed& feed);

#endif // CUSTOMPLOTWORKS_H
