#ifndef QTCHARTSWORKS_H
#define QTCHARTSWORKS_H

// The same with QtCharts.
// May touch: QtCharts, which is under the GPL as this program is where it has it.

#include "peers/trendfeed.h"
#include "peers/work.h"

Work qtChartsTrend(const TrendFeed& feed);

#endif // QTCHARTSWORKS_H
