#include "fleet/fleetclock.h"

#include <ctime>

namespace {

qint64 readClockMs(clockid_t id)
{
    timespec t{};
    clock_gettime(id, &t);
    return static_cast<qint64>(t.tv_sec) * 1000 + t.tv_nsec / 1000000;
}

} // namespace

qint64 FleetClock::monotonicMs() const
{
    return readClockMs(CLOCK_MONOTONIC);
}

qint64 FleetClock::bootMs() const
{
    return readClockMs(CLOCK_BOOTTIME);
}

const FleetClock& FleetClock::system()
{
    static const FleetClock clock;
    return clock;
}
