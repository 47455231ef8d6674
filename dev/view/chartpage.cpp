#include "chartpage.h"

#include "datachart.h"

#include <QLabel>
#include <QPalette>

namespace chartpage {

namespace {

enum Colour { Green, Yellow, Red }; // of DataChart's bands

} // namespace

GaugeScale batteryCharge()
{
    return {100, "%", {Red, Yellow, Green}, {30, 60, 100}};
}

GaugeScale outputLoad()
{
    return {160, "%", {Green, Yellow, Red}, {100, 120, 160}};
}

GaugeScale batteryTemperature()
{
    return {100, "C", {Green, Red}, {100, 120}};
}

void setScale(DataChart* gauge, const GaugeScale& scale)
{
    gauge->setMinValue(0);
    gauge->setMaxValue(scale.top);
    gauge->setUnitText(QLatin1String(scale.unit));
    gauge->setRadioValue(scale.colours, scale.limits);
}

void setValue(DataChart* gauge, double value)
{
    gauge->setValue(value);
    gauge->update();
}

void setCaption(DataChart* gauge, QLabel* label, const QString& caption)
{
    label->setText(caption);
    gauge->setAccessibleName(caption);
}

void setPageColour(QWidget* page)
{
    page->setPalette(QPalette(QColor(205, 240, 255)));
    page->setAutoFillBackground(true);
}

double reading(const RealTimeBlock& values, int key, bool tenths)
{
    return values.unsignedAt(key) / (tenths ? 10.0 : 1.0);
}

QString legendText(const QString& lead, const RealTimeBlock& values, int key, bool tenths)
{
    const QString number = tenths ? QString::number(reading(values, key, tenths))
                                  : QString::number(values.unsignedAt(key));
    return QLatin1Char('(') + lead + number + QLatin1Char(')');
}

} // namespace chartpage
