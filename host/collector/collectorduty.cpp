#include "collector/collectorduty.h"

#include "collector/servicemanager.h"

namespace {

QString deviceAnd(const QString& device, const QString& text)
{
    return device.isEmpty() ? text : QStringLiteral("%1: %2").arg(device, text);
}

} // namespace

CollectorDuty::CollectorDuty(const DeskConfig& config, const Fleet::ConnectorMaker& maker,
                             const SiteLock& lock)
    : m_fleet(maker)
    , m_list(m_fleet, config)
    , m_notifier(m_fleet, {}, QDBusConnection(QString()))
    , m_metrics(m_fleet)
    , m_history(m_fleet, m_log, [](const Device&) { return true; })
{
    const auto isOnDuty = [&lock] { return lock.isOnDuty(); };
    m_fleet.setPermit(isOnDuty);
    m_history.setPermit(isOnDuty);
    connect(&m_list, &WatchList::secretsFailed, this,
            [](const QString& text) { logLine(LogLevel::Warning, text); });
    connect(&m_history, &DeskHistory::told, this, [](const QString& text, bool isBad) {
        logLine(isBad ? LogLevel::Error : LogLevel::Info, text);
    });
    connect(&m_history, &DeskHistory::started, this, [this, isOnDuty] {
        logJournal();
        const HistoryWriterOptions& options = m_history.writer()->options();
        if (options.store.kind == StoreAddress::Kind::Postgres)
            m_live = std::make_unique<LiveWriter>(m_fleet, options.store, options.site, isOnDuty);
    });
    connect(&m_notifier, &Notifier::failed, this,
            [this](Notifier::Channel channel, const QString& reason) {
                DeskEvent event;
                event.kind = EventKind::Fault;
                event.text = Notifier::channelName(channel);
                event.outcome = tr("failed");
                event.message = reason;
                event.isBad = true;
                m_log.append(event);
            });
    const DeskSettings& settings = config.settings();
    m_history.start(settings.history, settings.secrets, settings.site);
    applySettings();
    m_list.load();
}

void CollectorDuty::use(const DeskConfig& config)
{
    m_list.follow(config);
    applySettings();
}

void CollectorDuty::applySettings()
{
    const DeskSettings& settings = m_list.config().settings();
    m_fleet.setThresholds(settings.thresholds);
    NotifySettings notify = settings.notify;
    notify.desktopFrom = NotifyFrom::Never; // nobody sits here
    notify.soundFrom = NotifyFrom::Never;
    m_notifier.setSettings(notify);
    if (settings.metrics == m_listening)
        return;
    m_listening = settings.metrics;
    if (const QString reason = m_metrics.listen(settings.metrics); !reason.isEmpty()) {
        logLine(LogLevel::Error, tr("Metrics are not served: %1").arg(reason));
        m_listening.clear(); // to be tried again with the next configuration
    }
}

void CollectorDuty::logJournal()
{
    connect(m_history.recorder(), &Recorder::entryBegun, this, [](const JournalEntry& entry) {
        const LogLevel level = entry.severity >= Urgency::Alarm     ? LogLevel::Error
                               : entry.severity >= Urgency::Warning ? LogLevel::Warning
                                                                    : LogLevel::Info;
        QStringList words{entry.text, entry.message};
        words.removeAll(QString());
        logLine(level, deviceAnd(entry.device, words.join(QStringLiteral(": "))));
    });
    connect(m_history.recorder(), &Recorder::entryEnded, this, [](const JournalEntry& entry) {
        logLine(LogLevel::Info, deviceAnd(entry.device, tr("over: %1").arg(entry.text)));
    });
}
