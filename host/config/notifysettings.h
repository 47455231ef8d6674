#ifndef NOTIFYSETTINGS_H
#define NOTIFYSETTINGS_H

// Who is told what, as plain values.
// May touch: Qt Core.

#include "config/quiethours.h"

#include <QString>

// The lowest urgency that a channel tells.
enum class NotifyFrom { Never, Warning, Alarm, Critical };

struct NotifySettings {
    NotifyFrom desktopFrom = NotifyFrom::Warning;
    NotifyFrom soundFrom = NotifyFrom::Never;
    NotifyFrom commandFrom = NotifyFrom::Alarm;
    NotifyFrom webhookFrom = NotifyFrom::Alarm;
    QuietHours quiet;
    QString command; // a program with its arguments; empty: none
    QString webhook; // https:// address, http:// on this machine only; empty: none
};

#endif // NOTIFYSETTINGS_H
