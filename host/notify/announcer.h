#ifndef ANNOUNCER_H
#define ANNOUNCER_H

// When a change of condition is worth telling: at once for power failures, else after it has held
// for one more poll, and each only once.
// May touch: conditions of the fleet. No clock, no channel.

#include "notify/announcement.h"

#include <QHash>

#include <optional>

class Announcer
{
public:
    using Key = quintptr; // tells devices apart

    // One poll of the device has ended and left it in this condition. A device that is first heard
    // of on mains is not news.
    std::optional<Announcement> polled(Key key, const QString& name, const Condition& condition,
                                       const QDateTime& since);
    void forget(Key key) { m_told.remove(key); }

private:
    struct Told {
        Condition last; // as announced, or taken as known
        std::optional<Condition> candidate;
    };
    QHash<Key, Told> m_told;
};

// Power is failing, or will: nobody waits for a second look.
bool isPowerFailure(const Condition& condition);
// It needs somebody.
bool isTrouble(const Condition& condition);

#endif // ANNOUNCER_H
