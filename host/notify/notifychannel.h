#ifndef NOTIFYCHANNEL_H
#define NOTIFYCHANNEL_H

// One way to people: desktop, command, webhook.
// May touch: Qt Core, announcements.

#include "notify/announcement.h"

#include <QObject>

class NotifyChannel : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Returns at once; ends with exactly one delivered() or failed(), later.
    virtual void tell(const Announcement& announcement) = 0;

signals:
    void delivered();
    // What is wrong and how to mend it, plain text.
    void failed(const QString& reason);
};

#endif // NOTIFYCHANNEL_H
