#ifndef DEVICESNAPSHOT_H
#define DEVICESNAPSHOT_H

// The one place where a reading becomes data keys: scaling, halves, tenths and alarm texts.
// May touch: readings and the library's data keys.

#include "reading/upsreading.h"

#include <QMap>
#include <QVariant>

// The views disagree about units, so each page gets a snapshot of its own.
enum class SnapshotPage {
    EnergyFlow, // power in whole kilowatts
    Device,     // alarm, detail and control page: power in W, battery temperature in tenths
    Chart       // chart pages and table: whole degrees, battery current as its magnitude
};

// What the host knows beside the reading.
struct SnapshotLink {
    bool communicationsLost = false; // raises alarm_CommunicationsLost whatever the reading says
    QString protocol;
    QString state;
    int failedPolls = 0; // in a row
    QString address;
};

// Complete snapshot for one page: every count and every alarm key from 2000 to 2024 is in it; a
// value that the device did not give is left out. Numbers are plain int, saturated.
QMap<int, QVariant> deviceSnapshot(const UpsReading& reading, SnapshotPage page,
                                   const SnapshotLink& link = {});

struct PhysicalValue {
    double value;
    QString unit; // "V", "min"; empty for a count
};

// The same values by the same keys as they were measured, neither scaled nor rounded. A power
// stands at its _Hi key only.
QMap<int, PhysicalValue> physicalValues(const UpsReading& reading);

// The text that the alarm page shows for the alarm; AwaitingPower, which has none there, gets one
// of its own for the event list.
QString alarmText(Alarm alarm);

// The data key at which the alarm page shows that text; -1 where it shows none. The page's texts
// sit one key below the key names from 2020 on, and the text is what an operator reads.
int alarmKey(Alarm alarm);

// 1 or 3, all that the views know: no such input and split phase count as one line.
int shownLines(const LineReading& group);

// Remarks for the operator: the reading's own, and what the views cannot say: split phase, and
// which of their zeros stand for values that the device did not give.
QStringList readingNotes(const UpsReading& reading);

#endif // DEVICESNAPSHOT_H
