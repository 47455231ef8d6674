#ifndef NUTREADING_H
#define NUTREADING_H

// The variables of one NUT device as a reading.
// May touch: readings and Qt Core. Pure functions, no socket.

#include "reading/upsreading.h"

#include <QByteArray>
#include <QMap>
#include <QString>

using NutVariables = QMap<QByteArray, QByteArray>;

// Variables that are never kept: anybody may read the driver's parameters without logging in, and
// they can hold the driver's own secrets.
bool isPrivateNutVariable(const QByteArray& name);

// description: the server's text for the device (UPSDESC), may be empty; upsName: its name on the
// server. secondsOnBattery stays empty: NUT has no such value, the connector keeps the time.
// Without a token in ups.status that names the source of power, the source is Other, the battery
// Unknown, and a note says so.
UpsReading readingFromNut(const NutVariables& variables, const QByteArray& description = {},
                          const QString& upsName = {});

#endif // NUTREADING_H
