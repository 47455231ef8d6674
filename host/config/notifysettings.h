#ifndef NOTIFYSETTINGS_H
#define NOTIFYSETTINGS_H

// Who is told what, as plain values.
// May touch: Qt Core.

#include "config/quiethours.h"

#include <QString>

// The lowest urgency that a channel tells. In the order of its words in configkeys.cpp.
enum class NotifyFrom { Never, Warning, Alarm, Critical };

struct NotifySettings {
    NotifyFrom desktopFrom = NotifyFrom::Warning;
    NotifyFrom soundFrom = NotifyFrom::Never;
    NotifyFrom commandFrom = NotifyFrom::Alarm;
    NotifyFrom webhookFrom = NotifyFrom::Alarm;
    QString quietFrom; // "22:00", by the wall clock; empty: none
    QString quietTo;
    QString command; // a program with its arguments; empty: none
    QString webhook; // https:// address, http:// on this machine only; empty: none

    QuietHours quiet() const
    {
        const QString format = QStringLiteral("HH:mm");
        return {QTime::fromString(quietFrom, format), QTime::fromString(quietTo, format)};
    }
};

#endif // NOTIFYSETTINGS_H
