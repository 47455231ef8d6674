#ifndef QUIETHOURS_H
#define QUIETHOURS_H

// A part of every day, by the wall clock, in which only what is critical makes itself heard.
// May touch: Qt Core.

#include <QTime>

struct QuietHours {
    QTime from; // not valid: there are none
    QTime to;

    // May run over midnight; equal ends are no time at all.
    bool contains(const QTime& time) const
    {
        if (!from.isValid() || !to.isValid() || from == to)
            return false;
        return from < to ? time >= from && time < to : time >= from || time < to;
    }
};

#endif // QUIETHOURS_H
