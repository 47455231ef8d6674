#ifndef CHARTPAGE_H
#define CHARTPAGE_H

// What the two chart pages share: gauge scales, legend texts and the page's colour. Inside the
// library only.
// May touch: Qt, the gauge and the real-time block.

#include "realtimeblock.h"

#include <QList>
#include <QString>

class DataChart;
class QLabel;
class QWidget;

namespace chartpage {

// From 0 to `top`; colours and limits as in DataChart::setRadioValue.
struct GaugeScale {
    int top;
    const char* unit;
    QList<int> colours;
    QList<int> limits;
};

GaugeScale batteryCharge();
GaugeScale outputLoad();
GaugeScale batteryTemperature();

void setScale(DataChart* gauge, const GaugeScale& scale);
// Paints as well: the gauge itself does not where "0" becomes "--".
void setValue(DataChart* gauge, double value);
void setCaption(DataChart* gauge, QLabel* label, const QString& caption);
// Ground and texts of the page in its own colours, and its small font, on every part: where the
// host's application has a style sheet, Qt passes neither on.
void setPageLook(QWidget* page);
// A legend entry; its accessible name says what the value is of.
void showLegend(QLabel* label, const QLabel* caption, const QString& text);

// A key in its unit, read unsigned. `tenths`: the device gives tenths.
double reading(const RealTimeBlock& values, int key, bool tenths);
// "(<lead><number>)", at most 6 significant digits of tenths.
QString legendText(const QString& lead, const RealTimeBlock& values, int key, bool tenths);

} // namespace chartpage

#endif // CHARTPAGE_H
