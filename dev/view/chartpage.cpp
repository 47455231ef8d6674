#include "chartpage.h"

#include "datachart.h"
#include "trendchart.h"

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
    gauge->setCaption(caption);
}

void setPageLook(QWidget* page)
{
    constexpr int kPoints = 8;
    const QPalette palette(QColor(205, 240, 255));
    const QFont font(QStringLiteral("Microsoft YaHei"), kPoints);
    // Flat enough that the lowest number of a scale keeps clear of the first time below it.
    const QFont chartFont(QStringLiteral("Times New Roman"), kPoints);
    page->setPalette(palette);
    page->setAutoFillBackground(true);
    for (QWidget* part : page->findChildren<QWidget*>()) {
        part->setPalette(palette);
        if (!part->testAttribute(Qt::WA_SetFont))
            part->setFont(qobject_cast<TrendChart*>(part) ? chartFont : font);
    }
}

void showLegend(QLabel* label, const QLabel* caption, const QString& text)
{
    label->setText(text);
    label->setAccessibleName(caption->text() + QLatin1Char(' ') + text);
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
