#include "viewer/viewer.h"

#include "connectors/bootclock.h"
#include "history/deskhistory.h"
#include "history/sample.h"
#include "reading/sanitize.h"

#include <QElapsedTimer>

namespace {

constexpr int kSliceMs = 5;         // for which the window waits at most
constexpr qint64 kSamePollMs = 200; // two polls of a device are never so close
constexpr auto kClock = "HH:mm:ss";

bool isSamePoll(qint64 a, qint64 b)
{
    return qAbs(a - b) < kSamePollMs;
}

QDateTime onWallClock(qint64 bootMs)
{
    return QDateTime::currentDateTime().addMSecs(bootMs - bootClockMs());
}

} // namespace

Viewer::Viewer(Fleet& fleet, QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
{
    fleet.setPermit([] { return false; });
    m_slice.setSingleShot(true);
    connect(&m_slice, &QTimer::timeout, this, &Viewer::applySome);
    connect(&fleet, &Fleet::ticked, this, &Viewer::checkStore);
}

Viewer::~Viewer() = default;

void Viewer::start(const HistorySettings& settings, SecretsChoice secrets)
{
    const ParsedStore store = storeOf(settings);
    m_fault = store.error;
    if (m_fault.isEmpty() && store.address.kind != StoreAddress::Kind::Postgres)
        m_fault = tr("mode = viewer needs the PostgreSQL database that the collectors write "
                     "(store = postgresql://USER@HOST/DATABASE)");
    if (!m_fault.isEmpty())
        return;
    m_secrets = SecretStore::make(secrets);
    withStoreSecret(store.address, *m_secrets, this,
                    [this](const StoreAddress& address, const QString& fault) {
                        m_fault = fault;
                        start(address);
                    });
}

void Viewer::start(const StoreAddress& store)
{
    m_newsMs = FleetClock::system().monotonicMs();
    m_feed = std::make_unique<LiveFeed>(store);
    connect(m_feed.get(), &LiveFeed::arrived, this, &Viewer::take);
}

QVector<Viewer::Word> Viewer::words() const
{
    QVector<Word> words;
    const qint64 now = bootClockMs();
    for (const auto& [name, site] : m_sites)
        words += {cleanDeviceText(name), now - site.heardBootMs, !site.silence.isEmpty()};
    return words;
}

// News

void Viewer::take(const LiveNews& news)
{
    m_fault = news.fault;
    if (m_fault.isEmpty()) {
        m_newsMs = FleetClock::system().monotonicMs();
        m_isStoreSilent = false;
        for (const LiveSite& site : news.sites)
            hear(site);
        m_waiting.insert(m_waiting.end(), news.devices.begin(), news.devices.end());
    }
    applySome();
    emit heard();
}

void Viewer::hear(const LiveSite& told)
{
    Site& site = m_sites[told.site];
    site.heardBootMs = told.heardBootMs;
    const bool isSilent = bootClockMs() - told.heardBootMs > kSilenceMs;
    if (!isSilent && !site.silence.isEmpty()) {
        site.silence.clear();
        m_feed->forget(told.site); // so that it is told what the silence has covered
    } else if (isSilent && site.silence.isEmpty()) {
        silence(told.site, site, LinkState::Stale,
                tr("The collector of %1 has been silent since %2.")
                    .arg(told.site.isEmpty() ? tr("this device") : cleanDeviceText(told.site),
                         onWallClock(told.heardBootMs).toString(QLatin1String(kClock))));
    }
}

void Viewer::checkStore()
{
    const qint64 silentMs = FleetClock::system().monotonicMs() - m_newsMs;
    if (m_feed && !m_isStoreSilent && silentMs > kSilenceMs) {
        m_isStoreSilent = true;
        const QString message =
            tr("The shared store has not answered since %1.")
                .arg(onWallClock(bootClockMs() - silentMs).toString(QLatin1String(kClock)));
        for (auto& [name, site] : m_sites)
            silence(name, site, LinkState::Lost, message);
    }
    emit heard();
}

void Viewer::silence(const QString& name, Site& site, LinkState link, const QString& message)
{
    site.silence = message;
    PollResult result;
    result.state = link;
    result.message = message;
    result.askedBootMs = bootClockMs();
    for (Known& known : m_known) {
        if (!known.device || known.device->settings().site != name)
            continue;
        known.device->takeResult(result);
        known.askedBootMs = 0; // the same reading is news again
    }
}

// Devices

void Viewer::applySome()
{
    QElapsedTimer elapsed;
    elapsed.start();
    for (; !m_waiting.empty() && elapsed.elapsed() < kSliceMs; m_waiting.pop_front())
        apply(m_waiting.front());
    if (m_waiting.empty())
        m_feed->goOn();
    else
        m_slice.start(0);
}

// Whether there is a device of it.
bool Viewer::settle(const LiveDevice& live, Known& known)
{
    if (live.isGone) {
        if (known.device)
            m_fleet.remove(m_fleet.indexOf(known.device));
        known = {};
        return false;
    }
    if (!live.info.isNull())
        known.info = live.info;
    if (live.settings.isNull() || (known.device && live.settings == known.settings))
        return known.device;
    DeviceSettings settings;
    if (!decodeLiveSettings(live.settings, settings))
        return known.device;
    settings.name = cleanDeviceText(live.name);
    settings.site = live.site;
    if (!live.site.isEmpty())
        settings.group = settings.group.isEmpty()
                             ? cleanDeviceText(live.site)
                             : cleanDeviceText(live.site) + QStringLiteral(" / ") + settings.group;
    known.settings = live.settings;
    known.askedBootMs = 0;
    known.device = known.device ? m_fleet.replace(m_fleet.indexOf(known.device), settings)
                                : m_fleet.add(settings);
    return true;
}

void Viewer::apply(const LiveDevice& live)
{
    Known& known = m_known[nameAtSite(live.site, live.name)];
    if (!settle(live, known))
        return;
    known.device->expectCondition(static_cast<ConditionKind>(live.condition),
                                  onWallClock(live.sinceBootMs));
    PollResult result;
    Sample sample;
    if (!live.reading.isNull() && !isSamePoll(live.askedBootMs, known.askedBootMs) &&
        decodeInfo(known.info, sample.reading) && decodeSample(live.reading, sample)) {
        known.askedBootMs = live.askedBootMs;
        result.state = LinkState::Live;
        result.reading = sample.reading;
        result.askedBootMs = live.askedBootMs;
        known.device->takeResult(result);
    }
    const QString silence = m_sites[live.site].silence;
    // Of a collector that has just begun the reading before it stays, and grows old.
    if (!silence.isEmpty() ||
        (live.link != LinkState::Live && live.link != LinkState::Connecting)) {
        result.state = silence.isEmpty() ? live.link : LinkState::Stale;
        result.message = silence.isEmpty() ? live.message : silence;
        result.askedBootMs = bootClockMs();
        known.device->takeResult(result);
    }
}
