#include "notify/notifier.h"

#include "notify/commandchannel.h"
#include "notify/desktopchannel.h"
#include "notify/webhookchannel.h"

namespace {

// The lowest urgency that a level lets through; empty: nothing.
std::optional<Urgency> lowestOf(NotifyFrom from)
{
    switch (from) {
    case NotifyFrom::Never:
        return {};
    case NotifyFrom::Warning:
        return Urgency::Warning;
    case NotifyFrom::Alarm:
        return Urgency::Alarm;
    case NotifyFrom::Critical:
        break;
    }
    return Urgency::Critical;
}

} // namespace

Notifier::Notifier(Fleet& fleet, const NotifySettings& settings, const QDBusConnection& bus,
                   QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_bus(bus)
    , m_wallClock([] { return QTime::currentTime(); })
{
    qRegisterMetaType<Notifier::Channel>("Notifier::Channel");
    connect(&fleet, &Fleet::devicePolled, this, &Notifier::takePoll);
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this, [this](int index) {
        m_announcer.forget(reinterpret_cast<Announcer::Key>(m_fleet.at(index)));
    });
    setUp(Desktop);
    connect(static_cast<DesktopChannel*>(m_channels[Desktop].get()), &DesktopChannel::beep, this,
            &Notifier::beep);
    setSettings(settings);
}

Notifier::~Notifier() = default;

QString Notifier::channelName(Channel channel)
{
    const QString names[] = {tr("Desktop notifications"), tr("Command"), tr("Webhook")};
    return names[channel];
}

std::unique_ptr<NotifyChannel>
Notifier::makeChannel(Channel channel, const NotifySettings& settings, const QDBusConnection& bus)
{
    switch (channel) {
    case Desktop:
        return std::make_unique<DesktopChannel>(bus);
    case Command:
        if (!settings.command.isEmpty())
            return std::make_unique<CommandChannel>(settings.command);
        break;
    case Webhook:
        if (!settings.webhook.isEmpty())
            return std::make_unique<WebhookChannel>(QUrl(settings.webhook));
        break;
    }
    return {};
}

Announcement Notifier::trial()
{
    Announcement trial;
    trial.condition.state = tr("upsdesk: a trial");
    trial.condition.text = tr("Notifications arrive here.");
    trial.condition.alarms = QStringList{trial.condition.text};
    trial.since = QDateTime::currentDateTime();
    trial.isTest = true;
    return trial;
}

void Notifier::setUp(Channel channel)
{
    auto& place = m_channels[static_cast<std::size_t>(channel)];
    place = makeChannel(channel, m_settings, m_bus);
    if (place)
        connect(place.get(), &NotifyChannel::failed, this,
                [this, channel](const QString& reason) { emit failed(channel, reason); });
}

// A channel that stays as it was keeps what it is doing.
void Notifier::setSettings(const NotifySettings& settings)
{
    const NotifySettings before = m_settings;
    m_settings = settings;
    if (settings.command != before.command)
        setUp(Command);
    if (settings.webhook != before.webhook)
        setUp(Webhook);
    applySound();
}

void Notifier::setMuted(bool isMuted)
{
    m_isMuted = isMuted;
    applySound();
}

void Notifier::applySound()
{
    static_cast<DesktopChannel*>(m_channels[Desktop].get())
        ->setSound(m_isMuted ? std::nullopt : lowestOf(m_settings.soundFrom));
}

void Notifier::takePoll(Device* device)
{
    const auto announcement =
        m_announcer.polled(reinterpret_cast<Announcer::Key>(device), device->name(),
                           device->condition(), device->conditionSince());
    if (!announcement)
        return;
    emit announced(*announcement);
    tell(*announcement);
}

bool Notifier::wants(Channel channel, const Announcement& announcement) const
{
    const NotifyFrom levels[] = {m_settings.desktopFrom, m_settings.commandFrom,
                                 m_settings.webhookFrom};
    const auto lowest = lowestOf(levels[channel]);
    if (!lowest || announcement.weight < *lowest)
        return false;
    // Quiet is about who sits at this desk; who is on duty elsewhere is told as always.
    return channel != Desktop || announcement.weight >= Urgency::Critical ||
           !m_settings.quiet().contains(m_wallClock());
}

void Notifier::tell(const Announcement& announcement)
{
    for (int i = 0; i < kChannels; ++i) {
        NotifyChannel* channel = m_channels[static_cast<std::size_t>(i)].get();
        if (channel && wants(static_cast<Channel>(i), announcement))
            channel->tell(announcement);
    }
}
