#ifndef COMMANDTERMS_H
#define COMMANDTERMS_H

// Commands in the terms of a device: what goes off, when, for how long, and what hangs on it.
// May touch: devices.

#include "fleet/device.h"

// Shutdown, standby and restart: whoever is fed by the UPS loses power.
bool takesLoadDown(CommandKind kind);

// "Self-test"; "Standby: output off in 20 s for 15 min".
QString commandTerms(const UpsCommand& command, const DeviceSettings& settings);

// "Plant room: output off in 20 s for 60 min; 12 kW of load lose power". The load is what the
// device reports at this moment; where it does not, that is said.
QString commandWarning(const UpsCommand& command, const Device& device);

#endif // COMMANDTERMS_H
