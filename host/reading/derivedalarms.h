#ifndef DERIVEDALARMS_H
#define DERIVEDALARMS_H

// Alarms that follow from the states of a reading, whatever the device lists: a table that is
// empty, late or not served hides nothing.
// May touch: readings.

#include "reading/upsreading.h"

// True when every input line with a known voltage has enough of it to be mains: half of what the
// device is rated for, 80 V where it does not say. Without a known voltage, what the device says.
bool hasMains(const UpsReading& reading);

// True while the load is on battery for a test, and not for want of mains.
bool isBatteryTest(const UpsReading& reading);

// Adds what the source and the battery state say: on battery (unless for a test), on bypass, output
// off, battery low, battery depleted. Never takes one away.
void addDerivedAlarms(UpsReading& reading);

#endif // DERIVEDALARMS_H
