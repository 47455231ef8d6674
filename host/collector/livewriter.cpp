#include "collector/livewriter.h"

#include "connectors/bootclock.h"
#include "history/devicefacts.h"
#include "history/sample.h"

namespace {

constexpr int kGatherMs = 500;
constexpr int kBeatMs = 1000; // longest pause between two signs of life
constexpr int kRetryMs = 2000;
constexpr qint64 kSilenceMs = 8000; // of a server, after which it is not waited for any more
constexpr unsigned long kEndMs = 500;

} // namespace

LiveWriter::LiveWriter(Fleet& fleet, const StoreAddress& store, const QString& site,
                       std::function<bool()> mayWrite)
    : m_fleet(fleet)
    , m_site(site)
    , m_mayWrite(std::move(mayWrite))
    , m_store(HistoryStore::make(store))
    , m_thread(QThread::create([this] { work(); }))
{
    connect(&fleet, &Fleet::devicePolled, this, [this](Device* device) { m_dirty += device; });
    // The list is another one.
    for (auto happened : {&Fleet::deviceAdded, &Fleet::deviceRemoved, &Fleet::deviceReplaced})
        connect(&fleet, happened, this, [this] { m_wantsAll = true; });
    connect(&fleet, &Fleet::deviceMoved, this, [this] { m_wantsAll = true; });
    connect(&m_timer, &QTimer::timeout, this, &LiveWriter::gather);
    m_timer.start(kGatherMs);
    m_thread->setObjectName(QStringLiteral("live"));
    m_thread->start();
}

LiveWriter::~LiveWriter()
{
    {
        QMutexLocker locker(&m_mutex);
        m_isEnding = true;
    }
    m_wake.wakeAll();
    while (!m_thread->wait(kEndMs))
        m_store->abort();
}

// The GUI thread, or what a collector has in its place

void LiveWriter::gather()
{
    const qint64 busySince = m_busySinceMs;
    if (busySince > 0 && bootClockMs() - busySince > kSilenceMs)
        m_store->abort();
    const bool isAll = m_wantsAll.exchange(false);
    if (!isAll && m_dirty.isEmpty())
        return;
    QMutexLocker locker(&m_mutex);
    if (isAll)
        m_waiting.clear();
    m_isAll = m_isAll || isAll;
    for (int i = 0; i < m_fleet.count(); ++i) {
        if (!isAll && !m_dirty.contains(m_fleet.at(i)))
            continue;
        const LiveDevice live = liveOf(i, m_isAll);
        LiveDevice& slot = m_waiting[live.name];
        const LiveDevice before = std::exchange(slot, live);
        if (slot.settings.isNull() && !before.settings.isNull()) { // still to be told
            slot.settings = before.settings;
            slot.info = before.info;
        }
    }
    m_dirty.clear();
    m_wake.wakeAll();
}

LiveDevice LiveWriter::liveOf(int place, bool withFacts)
{
    const Device& device = *m_fleet.at(place);
    const qint64 boot = bootClockMs();
    LiveDevice live;
    live.site = m_site;
    live.name = storedName(device);
    live.place = place;
    live.link = device.link();
    live.message = device.message();
    live.condition = static_cast<int>(device.condition().kind);
    live.sinceBootMs = boot - device.conditionSince().msecsTo(QDateTime::currentDateTime());
    const QByteArray info = device.reading() ? encodeInfo(*device.reading()) : QByteArray();
    if (device.reading()) {
        live.reading = encodeSample({0, LinkState::Live, *device.reading()});
        live.askedBootMs = boot - device.ageMs();
    }
    const QString settings = encodeLiveSettings(device.settings());
    QByteArray& told = m_told[live.name];
    if (const QByteArray facts = settings.toUtf8() + info; withFacts || told != facts) {
        told = facts;
        live.settings = settings;
        live.info = info;
    }
    return live;
}

// The thread

void LiveWriter::work()
{
    for (;;) {
        m_busySinceMs = bootClockMs();
        const bool done = writeOnce();
        m_busySinceMs = 0;
        if (!done) {
            m_store->close();
            m_wantsAll = true; // the table may be another one, or empty
        }
        QMutexLocker locker(&m_mutex);
        if (!m_isEnding && (!done || m_waiting.isEmpty()))
            m_wake.wait(&m_mutex, done ? kBeatMs : kRetryMs);
        if (m_isEnding)
            break;
    }
    m_store->close();
}

bool LiveWriter::writeOnce()
{
    if (!m_mayWrite())
        return false;
    if (!m_store->isOpen() &&
        !(m_store->open(HistoryStore::Access::Write) &&
          // What is lost in a crash is written anew within seconds.
          m_store->run(QStringLiteral("SELECT set_config('synchronous_commit', 'off', false)"))))
        return false;
    QVector<LiveDevice> devices;
    bool isAll = false;
    {
        QMutexLocker locker(&m_mutex);
        for (const LiveDevice& device : qAsConst(m_waiting))
            devices += device;
        m_waiting.clear();
        isAll = std::exchange(m_isAll, false);
    }
    return LiveTable(*m_store).write(m_site, devices, isAll);
}
