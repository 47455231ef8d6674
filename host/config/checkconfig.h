#ifndef CHECKCONFIG_H
#define CHECKCONFIG_H

// What `upsdesk check-config` says.
// May touch: the configuration file, for reading.

#include "config/configfault.h"

// All faults in the order of the lines. A missing file is one warning.
ConfigFaults checkConfig(const QString& path);

#endif // CHECKCONFIG_H
