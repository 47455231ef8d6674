#ifndef VALUEWORDS_H
#define VALUEWORDS_H

// Values in the words of the desk's own widgets: ages, percentages, minutes.
// May touch: devices; no widget.

#include "fleet/device.h"

#include <QString>

// "now", "12 s", "3 min", "2 h 5 min", "4 days"; empty for a negative age (no reading yet).
QString ageText(qint64 ageMs);
// "live, 2 s ago", "no answer, last data 3 min ago", "connecting"
QString linkText(LinkState link, qint64 ageMs);

// "87 %", "21 min", "34 %"; "--" where the device does not say.
QString chargeText(const UpsReading* reading);
QString runtimeText(const UpsReading* reading);
// The highest load of all lines.
QString loadText(const UpsReading* reading);

// How a connection test ended: "Live: Model 7  ·  On mains  ·  Battery 87 %", or what is wrong.
QString testResultText(const Device& device);

#endif // VALUEWORDS_H
