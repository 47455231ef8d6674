#ifndef DESKTOPCHANNEL_H
#define DESKTOPCHANNEL_H

// Notifications of the desktop (org.freedesktop.Notifications). A device has one at most: a newer
// one takes the place of the one before.
// May touch: the session bus through QtDBus.

#include "notify/notifychannel.h"

#include <QDBusConnection>
#include <QHash>

class DesktopChannel : public NotifyChannel
{
    Q_OBJECT

public:
    explicit DesktopChannel(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                            QObject* parent = nullptr);

    // Lowest urgency that may be heard; empty: none.
    void setSound(const std::optional<Urgency>& from) { m_soundFrom = from; }
    void tell(const Announcement& announcement) override;

signals:
    // Should be heard, but the desktop's service plays no sounds.
    void beep();

private:
    bool isLoud(const Announcement& announcement) const;
    void send(const Announcement& announcement, bool loud);

    QDBusConnection m_bus;
    std::optional<Urgency> m_soundFrom;
    QHash<QString, quint32> m_shown; // by device: number of its notification
};

#endif // DESKTOPCHANNEL_H
