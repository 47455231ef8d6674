#ifndef DEVICENAME_H
#define DEVICENAME_H

// A name for a device that has none yet.
// May touch: readings, the limits of the configuration.

#include "reading/upsreading.h"

#include <QStringList>

// What the device calls itself, or else its model; empty where it says neither.
QString nameOfReading(const UpsReading* reading);
// The proposal, unless it says nothing of the device (an IP address, nothing at all), shortened
// and numbered so that it is none of those taken.
QString freeName(const QString& proposal, const QStringList& taken);

#endif // DEVICENAME_H
