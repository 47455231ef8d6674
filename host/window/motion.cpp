#include "window/motion.h"

#include "window/deskstyle.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

// The settings portal tells every desktop's own words: a switch, or a factor that durations have.
constexpr struct {
    const char* group;
    const char* key;
} kSettings[] = {
    {"org.gnome.desktop.interface", "enable-animations"},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor"},
};

QString service()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString path()
{
    return QStringLiteral("/org/freedesktop/portal/desktop");
}

QString settingsInterface()
{
    return QStringLiteral("org.freedesktop.portal.Settings");
}

// The portal wraps a value once or twice.
QVariant unwrapped(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

bool isKnown(const QString& group, const QString& key)
{
    for (const auto& row : kSettings)
        if (group == QLatin1String(row.group) && key == QLatin1String(row.key))
            return true;
    return false;
}

} // namespace

Motion::Motion(const QDBusConnection& bus, QObject* parent)
    : QObject(parent)
{
    QDBusConnection(bus).connect(service(), path(), settingsInterface(),
                                 QStringLiteral("SettingChanged"), this,
                                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (const auto& row : kSettings)
        ask(bus, QLatin1String(row.group), QLatin1String(row.key));
}

void Motion::ask(QDBusConnection bus, const QString& group, const QString& key)
{
    QDBusMessage question = QDBusMessage::createMethodCall(service(), path(), settingsInterface(),
                                                           QStringLiteral("Read"));
    question << group << key;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, group, key] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            settingChanged(group, key, reply.value());
    });
}

void Motion::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (!isKnown(group, key))
        return;
    const QVariant setting = unwrapped(value.variant());
    m_desktopMoves = setting.type() == QVariant::Bool ? setting.toBool() : setting.toDouble() > 0;
    apply();
}

void Motion::choose(MotionChoice choice)
{
    m_choice = choice;
    apply();
}

bool Motion::moves() const
{
    return m_choice == MotionChoice::System ? m_desktopMoves : m_choice == MotionChoice::Full;
}

void Motion::apply()
{
    DeskStyle::setMotion(moves());
}
