#ifndef BOOTCLOCK_H
#define BOOTCLOCK_H

// The clock that ages are told by.
// May touch: Linux and Qt Core.

#include <QtGlobal>

#include <ctime>

// ms; runs on while the machine is suspended, and follows no correction of the wall clock.
inline qint64 bootClockMs()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<qint64>(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

#endif // BOOTCLOCK_H
