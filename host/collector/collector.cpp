#include "collector/collector.h"

#include "collector/servicemanager.h"

namespace {

constexpr int kCheckMs = 200;

QString faultText(const DeskConfig& config, const ConfigFault& fault)
{
    if (fault.line == 0) // of the file as a whole
        return fault.text;
    return Collector::tr("%1, line %2: %3").arg(config.path()).arg(fault.line).arg(fault.text);
}

// Why no collector can work with it; empty: one can.
QString unfitness(const DeskSettings& settings)
{
    const ParsedStore store = storeOf(settings.history);
    if (store.error.isEmpty() && settings.history.mode == HistoryMode::Viewer)
        return Collector::tr("[history] mode = viewer is for desks; a collector records");
    return store.error;
}

bool isSameDuty(const DeskSettings& a, const DeskSettings& b)
{
    const auto key = [](const DeskSettings& s) {
        const HistorySettings& h = s.history;
        return std::make_tuple(s.site, s.secrets, h.store, h.tls, h.certificateAuthority,
                               h.keepSamples, h.keepMinutes, h.keepQuarters);
    };
    return key(a) == key(b);
}

} // namespace

Collector::Collector(Fleet::ConnectorMaker maker, const QString& configPath)
    : m_maker(std::move(maker))
    , m_configPath(configPath)
    , m_config(DeskConfig::load(configPath))
{
    connect(&m_timer, &QTimer::timeout, this, &Collector::check);
}

// The last words are written while the lock is still held.
Collector::~Collector()
{
    tellStopping();
    m_duty.reset();
}

QString Collector::start()
{
    for (const ConfigFault& fault : m_config.faults())
        logLine(fault.severity == ConfigSeverity::Error ? LogLevel::Error : LogLevel::Warning,
                faultText(m_config, fault));
    if (const QString reason = unfitness(m_config.settings()); !reason.isEmpty())
        return reason;
    open();
    m_timer.start(kCheckMs);
    startWatchdog();
    tellReady(tr("Waiting for the store"));
    return {};
}

void Collector::open()
{
    const DeskSettings& settings = m_config.settings();
    m_secrets = SecretStore::make(settings.secrets);
    const QString site = settings.site;
    withStoreSecret(storeOf(settings.history).address, *m_secrets, this,
                    [this, site](const StoreAddress& address, const QString& fault) {
                        if (!fault.isEmpty())
                            logLine(LogLevel::Error, fault);
                        m_lock = SiteLock::make(address, site);
                    });
}

void Collector::reload()
{
    tellReloading();
    const DeskConfig config = DeskConfig::load(m_configPath);
    const ConfigFault* fault = config.firstError();
    QString reason = fault ? faultText(config, *fault) : QString();
    if (reason.isEmpty() && config.document().isNew())
        reason = tr("there is no file %1").arg(config.path());
    if (reason.isEmpty())
        reason = unfitness(config.settings());
    if (reason.isEmpty()) {
        const DeskConfig before = std::exchange(m_config, config);
        if (!isSameDuty(before.settings(), config.settings())) {
            m_duty.reset();
            m_lock.reset();
            open();
        } else if (m_duty) {
            m_duty->use(config);
        }
    }
    logLine(reason.isEmpty() ? LogLevel::Info : LogLevel::Error,
            reason.isEmpty() ? tr("The configuration has been read again")
                             : tr("The configuration is not used: %1").arg(reason));
    tellReady(m_told);
}

void Collector::check()
{
    const bool isOnDuty = m_lock && m_lock->isOnDuty();
    if (isOnDuty && !m_duty)
        m_duty = std::make_unique<CollectorDuty>(m_config, m_maker, *m_lock);
    else if (!isOnDuty && m_duty)
        m_duty.reset();
    tellState();
}

void Collector::tellState()
{
    const QString reason = m_lock ? m_lock->reason() : QString();
    QString state =
        m_duty ? tr("On duty, %n device(s)", nullptr, m_duty->deviceCount()) : tr("Not on duty");
    if (!reason.isEmpty())
        state += QStringLiteral(": ") + reason;
    if (state == m_told)
        return;
    m_told = state;
    logLine(m_duty ? LogLevel::Info : LogLevel::Warning, state);
    tellStatus(state);
}
