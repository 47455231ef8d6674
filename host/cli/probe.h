#ifndef PROBE_H
#define PROBE_H

// upsdesk probe ADDRESS [--json]: one poll, every value by the name of its data key.
// May touch: connectors by their base class, readings.

#include <QStringList>

int runProbe(const QStringList& arguments);

#endif // PROBE_H
