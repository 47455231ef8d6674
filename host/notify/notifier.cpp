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
    setSettings(settings);
}

Notifier::~Notifier() = default;

QString Notifier::channelName(Channel channel)
{
    const QString names[] = {tr("Desktop notifications"), tr("Command"), tr("Webhook")};
    return names[channel];
}

void Notifier::makeChannel(Channel channel, std::unique_ptr<NotifyChannel> made)
{
    auto& place = m_channels[static_cast<std::size_t>(channel)];
    place = std::move(made);
    if (!place)
        return;
    connect(place.get(), &NotifyChannel::delivered, this,
            [this, channel] { emit delivered(channel); });
    connect(place.get(), &NotifyChannel::failed, this,
            [this, channel](const QString& reason) { emit failed(channel, reason); });
}

// A channel that stays as it was keeps what it is doing.
void Notifier::setSettings(const NotifySettings& settings)
{
    const NotifySettings before = m_settings;
    m_settings = settings;
    if (!m_channels[Desktop]) {
        auto desktop = std::make_unique<DesktopChannel>(m_bus);
        connect(desktop.get(), &DesktopChannel::beep, this, &Notifier::beep);
        makeChannel(Desktop, std::move(desktop));
    }
    if (settings.command != before.command)
        makeChannel(Command, settings.command.isEmpty()
                                 ? nullptr
                                 : std::make_unique<CommandChannel>(settings.command));
    if (settings.webhook != before.webhook)
        makeChannel(Webhook, settings.webhook.isEmpty()
                                 ? nullptr
                                 : std::make_unique<WebhookChannel>(QUrl(settings.webhook)));
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

void Notifier::test(Channel channel)
{
    NotifyChannel* to = m_channels[static_cast<std::size_t>(channel)].get();
    if (!to) {
        emit failed(channel, tr("It is not set up."));
        return;
    }
    Announcement trial;
    trial.condition.state = tr("upsdesk: a trial");
    trial.condition.text = tr("Notifications arrive here.");
    trial.condition.alarms = QStringList{trial.condition.text};
    trial.since = QDateTime::currentDateTime();
    trial.isTest = true;
    to->tell(trial);
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
           !m_settings.quiet.contains(m_wallClock());
}

void Notifier::tell(const Announcement& announcement)
{
    for (int i = 0; i < kChannels; ++i) {
        NotifyChannel* channel = m_channels[static_cast<std::size_t>(i)].get();
        if (channel && wants(static_cast<Channel>(i), announcement))
            channel->tell(announcement);
    }
}
