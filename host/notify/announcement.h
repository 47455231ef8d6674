#ifndef ANNOUNCEMENT_H
#define ANNOUNCEMENT_H

// One thing to tell people who are not looking at the desk.
// May touch: conditions of the fleet.

#include "fleet/urgency.h"

#include <QDateTime>
#include <QString>

struct Announcement {
    QString device; // its name, as people know it
    Condition condition;
    QDateTime since;
    // What it is judged by: the condition's, or of a recovery that of what is over.
    Urgency weight = Urgency::Normal;
    bool isRecovery = false; // it needs nobody any more
    bool isTest = false;     // the operator tries the channel out

    // "Plant room: On battery", plain text.
    QString title() const
    {
        return device.isEmpty() ? condition.state : device + QStringLiteral(": ") + condition.state;
    }
};

#endif // ANNOUNCEMENT_H
