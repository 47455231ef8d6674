#include "notify/desktopchannel.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

constexpr int kAnswerLimitMs = 10 * 1000;
constexpr int kServerDecides = -1; // how long a notification stays
constexpr int kStays = 0;

enum class Weight : uchar { Low, Normal, Critical };

Weight weightOf(const Announcement& announcement)
{
    if (announcement.isRecovery || announcement.isTest)
        return Weight::Low;
    return announcement.condition.urgency >= Urgency::Alarm ? Weight::Critical : Weight::Normal;
}

// Of the freedesktop sound theme.
QString soundOf(const Announcement& announcement)
{
    if (announcement.isRecovery)
        return QStringLiteral("power-plug");
    if (announcement.condition.urgency >= Urgency::Critical)
        return QStringLiteral("battery-caution");
    return announcement.condition.kind == ConditionKind::Battery ? QStringLiteral("power-unplug")
                                                                 : QStringLiteral("dialog-warning");
}

// The service takes markup in the body; a device's words are no markup.
QString bodyOf(const Announcement& announcement)
{
    QString body = announcement.condition.alarms.join(QLatin1Char('\n')).toHtmlEscaped();
    if (announcement.since.isValid())
        body += (body.isEmpty() ? QString() : QStringLiteral("\n")) +
                DesktopChannel::tr("since %1")
                    .arg(announcement.since.toLocalTime().toString(
                        QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    return body;
}

QVariantMap hintsOf(const Announcement& announcement, bool loud)
{
    const auto urgency = static_cast<uchar>(weightOf(announcement));
    QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(urgency)},
                      {QStringLiteral("desktop-entry"), QStringLiteral("upsdesk")}};
    if (loud)
        hints.insert(QStringLiteral("sound-name"), soundOf(announcement));
    else
        hints.insert(QStringLiteral("suppress-sound"), true);
    return hints;
}

QDBusMessage callOf(const QString& method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                          QStringLiteral("/org/freedesktop/Notifications"),
                                          QStringLiteral("org.freedesktop.Notifications"), method);
}

} // namespace

DesktopChannel::DesktopChannel(const QDBusConnection& bus, QObject* parent)
    : NotifyChannel(parent)
    , m_bus(bus)
{}

bool DesktopChannel::isLoud(const Announcement& announcement) const
{
    return m_soundFrom && (announcement.isTest || announcement.weight >= *m_soundFrom);
}

void DesktopChannel::tell(const Announcement& announcement)
{
    const bool loud = isLoud(announcement);
    send(announcement, loud);
    if (!loud)
        return;
    auto* watcher = new QDBusPendingCallWatcher(
        m_bus.asyncCall(callOf(QStringLiteral("GetCapabilities")), kAnswerLimitMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QStringList> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError() || !reply.value().contains(QStringLiteral("sound")))
            emit beep();
    });
}

void DesktopChannel::send(const Announcement& announcement, bool loud)
{
    const Weight weight = weightOf(announcement);
    QDBusMessage call = callOf(QStringLiteral("Notify"));
    call << QStringLiteral("upsdesk") << m_shown.value(announcement.device, 0)
         << QStringLiteral("upsdesk") << announcement.title() << bodyOf(announcement)
         << QStringList() << hintsOf(announcement, loud)
         << (weight == Weight::Critical ? kStays : kServerDecides);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, kAnswerLimitMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, device = announcement.device] {
                const QDBusPendingReply<quint32> reply = *watcher;
                watcher->deleteLater();
                if (reply.isError()) {
                    emit failed(
                        tr("The desktop shows no notifications: %1").arg(reply.error().message()));
                    return;
                }
                m_shown.insert(device, reply.value());
                emit delivered();
            });
}
