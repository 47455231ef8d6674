#ifndef LINKSTATE_H
#define LINKSTATE_H

// What the way to one device is worth now.
// May touch: Qt Core.

#include <QString>

enum class LinkState {
    Connecting, // nothing heard yet
    Live,
    Stale,  // the server answers, the driver behind it is silent
    Lost,   // no answer
    Refused // the answer says no: unknown device, access denied
};

// "live", "stale", "lost", "refused", "connecting": the words of scripts.
QString linkStateName(LinkState link);

#endif // LINKSTATE_H
