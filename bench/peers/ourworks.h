#ifndef OURWORKS_H
#define OURWORKS_H

// What the library's views do, and what the same pixels cost at least.
// May touch: the library's views, Qt Widgets.

#include "peers/trendfeed.h"
#include "peers/work.h"

#include <QVector>

Work ourTrend(const TrendFeed& feed);
Work bareTrend(const TrendFeed& feed);
Work ourGauge(const QSize& size);
Work bareGauge(const QSize& size);
// One step of the animation with all flows on, and a repaint of the whole page.
Work ourFlow(const QSize& size);
Work plainFlow(const QSize& size);
// The live values of a device, in our table and written plainly into one.
Work ourTable();
Work plainTable();

// The gauges' value at a step: another than before, seldom of another band.
double gaugeValue(int step);
// Paints what was asked for.
void finishPainting();

#endif // OURWORKS_H
