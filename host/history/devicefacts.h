#ifndef DEVICEFACTS_H
#define DEVICEFACTS_H

// What the journal says of a device as long as it is so.
// May touch: devices, journal entries.

#include "fleet/device.h"
#include "history/journalentry.h"

#include <QVector>

struct DeviceFact {
    QString fact; // unchanging word of it: "outage", "alarm:2", "link:lost"
    JournalKind kind = JournalKind::Condition;
    Urgency severity = Urgency::Normal;
    QString text;
    QString message;
    double ageSeconds = 0; // for which it has been so by the device's own word; 0: it gives none
};

// All that is so now. Of a device that is not live that is its condition and its link alone: what
// else was so before is not known to have ended.
QVector<DeviceFact> factsOf(const Device& device);

// Whether the end of such a fact shows in a device that is not live.
bool isSeenWithoutReading(JournalKind kind);

// Under which name the history knows the device: the operator's, else its address; with its site
// where that is another desk's.
QString storedName(const Device& device);

#endif // DEVICEFACTS_H
