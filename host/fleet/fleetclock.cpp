#include "fleet/fleetclock.h"

#include "connectors/bootclock.h"

#include <chrono>

qint64 FleetClock::monotonicMs() const
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

qint64 FleetClock::bootMs() const
{
    return bootClockMs();
}

const FleetClock& FleetClock::system()
{
    static const FleetClock clock;
    return clock;
}
