#ifndef QUITSIGNALS_H
#define QUITSIGNALS_H

// An end that was asked for from outside, as by the session or the system at its own end.
// May touch: the process.

#include <functional>

// From now on the first SIGTERM, SIGINT or SIGHUP makes the application's event loop return, so
// that what is to be kept is kept. A second one ends the process. hangUp: called, in the event
// loop, at every SIGHUP instead.
void quitOnSignals(const std::function<void()>& hangUp = {});

#endif // QUITSIGNALS_H
