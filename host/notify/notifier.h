#ifndef NOTIFIER_H
#define NOTIFIER_H

// Tells people what happens to the devices of the fleet: what is told by which channel, and when
// it is quiet. Knows no widget, so that it works without a window.
// May touch: the fleet, channels, the settings.

#include "config/notifysettings.h"
#include "fleet/fleet.h"
#include "notify/announcer.h"
#include "notify/notifychannel.h"

#include <QDBusConnection>

#include <array>
#include <functional>
#include <memory>

class Notifier : public QObject
{
    Q_OBJECT

public:
    enum Channel { Desktop, Command, Webhook };
    Q_ENUM(Channel)
    static constexpr int kChannels = Webhook + 1;
    using WallClock = std::function<QTime()>;

    // The fleet must outlive the notifier.
    Notifier(Fleet& fleet, const NotifySettings& settings,
             const QDBusConnection& bus = QDBusConnection::sessionBus(), QObject* parent = nullptr);
    ~Notifier() override;

    const NotifySettings& settings() const { return m_settings; }
    void setSettings(const NotifySettings& settings);
    // No sound until it is taken back; everything else goes on.
    void setMuted(bool isMuted);
    bool isMuted() const { return m_isMuted; }
    void setWallClock(const WallClock& clock) { m_wallClock = clock; }

    // The channel as these settings want it; null where they do not set it up.
    static std::unique_ptr<NotifyChannel>
    makeChannel(Channel channel, const NotifySettings& settings,
                const QDBusConnection& bus = QDBusConnection::sessionBus());
    // What a channel is tried out with.
    static Announcement trial();

    static QString channelName(Channel channel);

signals:
    void announced(const Announcement& announcement); // whatever channels took it
    void failed(Notifier::Channel channel, const QString& reason);
    void beep();

private:
    void takePoll(Device* device);
    void tell(const Announcement& announcement);
    bool wants(Channel channel, const Announcement& announcement) const;
    void applySound();
    void setUp(Channel channel);

    Fleet& m_fleet;
    NotifySettings m_settings;
    QDBusConnection m_bus;
    WallClock m_wallClock;
    Announcer m_announcer;
    bool m_isMuted = false;
    std::array<std::unique_ptr<NotifyChannel>, kChannels> m_channels; // null: not set up
};

#endif // NOTIFIER_H
