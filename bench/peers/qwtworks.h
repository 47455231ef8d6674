#ifndef QWTWORKS_H
#define QWTWORKS_H

// The same with Qwt: curves of raw samples, fixed axes, nothing replotted by itself.
// May touch: Qwt.

#include "peers/trendfeed.h"
#include "peers/work.h"

Work qwtTrend(const TrendFeed& feed);
Work qwtGauge(const QSize& size);

#endif // QWTWORKS_H
