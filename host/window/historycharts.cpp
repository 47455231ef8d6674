#include "window/historycharts.h"

#include "history/quantities.h"

#include <QCoreApplication>

namespace {

enum Chart { Voltage, Load, Charge, Minutes, Current, Frequency, Temperature, BatteryVoltage };

constexpr double kMinutesPerSecond = 1.0 / 60;

struct FamilyRow {
    const char* name;
    QRgb onLight;
    QRgb onDark;
};

constexpr FamilyRow kFamilies[] = {
    {QT_TRANSLATE_NOOP("HistoryCharts", "Input"), 0xff2947c6, 0xff9dacff},
    {QT_TRANSLATE_NOOP("HistoryCharts", "Output"), 0xff2e7d32, 0xff6fd074},
    {QT_TRANSLATE_NOOP("HistoryCharts", "Bypass"), 0xff965900, 0xffffb347},
    {QT_TRANSLATE_NOOP("HistoryCharts", "Battery"), 0xff7b3fa0, 0xffd59cf5},
};

struct CurveRow {
    Chart chart;
    CurveFamily family;
    const char* quantity;
    int lines; // 0: a single value
};

constexpr CurveRow kCurves[] = {
    {Voltage, CurveFamily::Input, "input.voltage", 3},
    {Voltage, CurveFamily::Output, "output.voltage", 3},
    {Voltage, CurveFamily::Bypass, "bypass.voltage", 3},
    {Load, CurveFamily::Output, "output.load", 3},
    {Charge, CurveFamily::Battery, "battery.charge", 0},
    {Minutes, CurveFamily::Battery, "battery.runtime", 0},
    {Current, CurveFamily::Input, "input.current", 3},
    {Current, CurveFamily::Output, "output.current", 3},
    {Current, CurveFamily::Bypass, "bypass.current", 3},
    // All lines of one supply have the same.
    {Frequency, CurveFamily::Input, "input.frequency", 1},
    {Frequency, CurveFamily::Output, "output.frequency", 1},
    {Frequency, CurveFamily::Bypass, "bypass.frequency", 1},
    {Temperature, CurveFamily::Battery, "battery.temperature", 0},
    {BatteryVoltage, CurveFamily::Battery, "battery.voltage", 0},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("HistoryCharts", text);
}

QVector<HistoryCurve> makeCurves()
{
    QVector<HistoryCurve> curves;
    for (const CurveRow& row : kCurves) {
        const QString name = QLatin1String(row.quantity);
        if (row.lines == 0)
            curves += {row.chart, row.family, 0, quantityIndex(name)};
        for (int line = 1; line <= row.lines; ++line)
            curves += {row.chart, row.family, line,
                       quantityIndex(QStringLiteral("%1.%2").arg(name).arg(line))};
    }
    return curves;
}

} // namespace

const QVector<HistoryChart>& historyCharts()
{
    // In the order of Chart.
    static const QVector<HistoryChart> charts{
        {QT_TRANSLATE_NOOP("HistoryCharts", "Voltage"), "V", 1, 1, 10, false, true},
        {QT_TRANSLATE_NOOP("HistoryCharts", "Load"), "%", 1, 0, 100, true, true},
        {QT_TRANSLATE_NOOP("HistoryCharts", "Charge"), "%", 1, 0, 100, true, true},
        {QT_TRANSLATE_NOOP("HistoryCharts", "Time left on battery"), "min", kMinutesPerSecond, 0,
         10, false, false},
        {QT_TRANSLATE_NOOP("HistoryCharts", "Current"), "A", 1, 1, 1, false, false},
        {QT_TRANSLATE_NOOP("HistoryCharts", "Frequency"), "Hz", 1, 1, 1, false, false},
        {QT_TRANSLATE_NOOP("HistoryCharts", "Battery temperature"), "°C", 1, 1, 5, false, false},
        {QT_TRANSLATE_NOOP("HistoryCharts", "Battery voltage"), "V", 1, 1, 2, false, false},
    };
    return charts;
}

const QVector<HistoryCurve>& historyCurves()
{
    static const QVector<HistoryCurve> curves = makeCurves();
    return curves;
}

QString chartTitle(const HistoryChart& chart)
{
    return QStringLiteral("%1 (%2)").arg(translated(chart.title), QString::fromUtf8(chart.unit));
}

QString familyName(CurveFamily family)
{
    return translated(kFamilies[static_cast<int>(family)].name);
}

QColor curveColor(CurveFamily family, bool onDark)
{
    const FamilyRow& row = kFamilies[static_cast<int>(family)];
    return QColor::fromRgb(onDark ? row.onDark : row.onLight);
}
