#ifndef DEVICEMETRICS_H
#define DEVICEMETRICS_H

// What the metrics say of one device, as a plain value that may cross threads.
// May touch: readings, link states.

#include "connectors/linkstate.h"
#include "reading/upsreading.h"

struct DeviceMetrics {
    QString device;
    QString group;
    LinkState link = LinkState::Connecting;
    int urgency = 0;                   // of its condition, 0 normal to 4 critical
    qint64 readAtBootMs = -1;          // when the poll began that brought the reading; -1: none
    std::optional<UpsReading> reading; // the last good one
};

#endif // DEVICEMETRICS_H
