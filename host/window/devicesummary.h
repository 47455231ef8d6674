#ifndef DEVICESUMMARY_H
#define DEVICESUMMARY_H

// One device in a few words, the same in heading, list, tiles and tool tips: age of its data, since
// when, and the three figures that matter most.
// May touch: devices; no widget.

#include "fleet/device.h"

#include <QString>

#include <array>

// "now", "12 s", "3 min", "2 h 5 min", "4 days"; empty for a negative age (no reading yet).
QString ageText(qint64 ageMs);
// "live, 2 s ago", "no answer, last data 3 min ago", "connecting"
QString linkText(LinkState link, qint64 ageMs);

// "87 %", "21 min", "34 %"; "--" where the device does not say.
QString chargeText(const UpsReading* reading);
QString runtimeText(const UpsReading* reading);
// The highest load of all lines.
QString loadText(const UpsReading* reading);

// Of live data its age, of other data why there is none and how old the last is: what a state like
// "No answer" leaves open. May have several lines.
QString dataText(const Device& device);
// "since 14:03:10"; before today with the day.
QString sinceText(const QDateTime& since);
// "14:03"; before today only the day.
QString momentText(const QDateTime& moment);

struct DeviceFigure {
    QString caption;
    QString value; // with its unit
};
// Battery, minutes, load.
std::array<DeviceFigure, 3> deviceFigures(const UpsReading* reading);

// How a connection test ended: "Live: Model 7  ·  On mains  ·  Battery 87 %", or what is wrong.
QString testResultText(const Device& device);

#endif // DEVICESUMMARY_H
