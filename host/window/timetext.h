#ifndef TIMETEXT_H
#define TIMETEXT_H

// Stored times and durations as people read them, in the local zone.
// May touch: Qt Core.

#include <QString>

// "2026-10-25 02:30:00 CEST": the zone tells the hour that there is twice from its twin.
QString localTimeText(qint64 timeMs);
// "17 s", "4 min 17 s", "2 h 5 min", "3 days 4 h"
QString durationText(qint64 ms);

#endif // TIMETEXT_H
