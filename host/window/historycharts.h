#ifndef HISTORYCHARTS_H
#define HISTORYCHARTS_H

// Which charts the history page has and which stored quantities each of them draws.
// May touch: the history's list of quantities.

#include <QColor>
#include <QString>
#include <QVector>

struct HistoryChart {
    const char* title; // translated where it is shown, in the context "HistoryCharts"
    const char* unit;
    double factor; // stored value times this is shown
    int decimals;
    double leastScale;   // the scale never spans less, so that noise does not look like a swing
    bool isPercent;      // from 0, at least to 100
    bool isShownAtFirst; // the operator turns the others on
};

enum class CurveFamily { Input, Output, Bypass, Battery };

struct HistoryCurve {
    int chart; // index in historyCharts()
    CurveFamily family;
    int line;     // 1 to 3; 0: a single value
    int quantity; // index in quantities()
};

const QVector<HistoryChart>& historyCharts();
const QVector<HistoryCurve>& historyCurves();

QString chartTitle(const HistoryChart& chart); // "Voltage (V)"
QString familyName(CurveFamily family);
// On a light or a dark ground.
QColor curveColor(CurveFamily family, bool onDark);

#endif // HISTORYCHARTS_H
