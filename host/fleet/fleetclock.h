#ifndef FLEETCLOCK_H
#define FLEETCLOCK_H

// The clocks that polling and ages go by. None of them follows corrections of the wall clock.
// May touch: the boot clock, the standard library and Qt Core.

#include <QDateTime>

class FleetClock
{
public:
    virtual ~FleetClock() = default;

    // ms; stands still while the machine is suspended, as timers do.
    virtual qint64 monotonicMs() const;
    // ms; runs on while the machine is suspended: ages are told by this one.
    virtual qint64 bootMs() const;
    // Wall clock, for what people read.
    virtual QDateTime now() const { return QDateTime::currentDateTime(); }

    static const FleetClock& system();
};

#endif // FLEETCLOCK_H
