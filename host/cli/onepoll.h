#ifndef ONEPOLL_H
#define ONEPOLL_H

// Asks or commands one device and waits for the answer. Command line only: it runs an event loop.
// May touch: devices.

#include "fleet/device.h"

// One poll. When it returns, the device is live, stale, lost or refused; never still connecting.
void pollOnce(Device& device);

// Sends the command and waits for its result; Unknown when there is none within the limit.
CommandResult sendOnce(Device& device, const UpsCommand& command, int limitSeconds);

#endif // ONEPOLL_H
