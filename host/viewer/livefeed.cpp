#include "viewer/livefeed.h"

#include "connectors/bootclock.h"
#include "history/postgresstore.h"

namespace {

constexpr int kRestMs = 400; // between two questions, whatever is notified
constexpr int kStepMs = 100; // for which an end may wait
constexpr qint64 kSilenceMs = 8000;
constexpr unsigned long kEndMs = 500;

} // namespace

LiveFeed::LiveFeed(const StoreAddress& address, QObject* parent)
    : QObject(parent)
    , m_store(std::make_unique<PostgresStore>(address))
    , m_thread(QThread::create([this] { work(); }))
{
    connect(&m_watch, &QTimer::timeout, this, &LiveFeed::watch);
    m_watch.start(kPullMs);
    m_thread->setObjectName(QStringLiteral("live feed"));
    m_thread->start();
}

LiveFeed::~LiveFeed()
{
    m_isEnding = true;
    while (!m_thread->wait(kEndMs))
        m_store->abort();
}

void LiveFeed::forget(const QString& site)
{
    QMutexLocker locker(&m_mutex);
    m_known.remove(site);
}

void LiveFeed::watch()
{
    const qint64 since = m_busySinceMs;
    if (since > 0 && bootClockMs() - since > kSilenceMs)
        m_store->abort();
}

// The thread

void LiveFeed::work()
{
    while (!m_isEnding) {
        m_busySinceMs = bootClockMs();
        const LiveNews news = pull();
        m_busySinceMs = 0;
        m_isTaken = false;
        QMetaObject::invokeMethod(
            this, [this, news] { emit arrived(news); }, Qt::QueuedConnection);
        rest();
    }
    m_store->close();
}

// At least for a moment, then until a notification comes or a second is over.
void LiveFeed::rest()
{
    const qint64 from = bootClockMs();
    const auto lasted = [from](int ms) { return bootClockMs() - from >= ms; };
    bool isNotified = false;
    while (!m_isEnding && (!m_isTaken || !lasted(kRestMs) || (!isNotified && !lasted(kPullMs)))) {
        const int notices = m_store->isOpen() ? m_store->waitForNotice(kStepMs) : -1;
        isNotified = isNotified || notices > 0;
        if (notices < 0) {
            m_store->close();
            QThread::msleep(kStepMs);
        }
    }
}

LiveNews LiveFeed::pull()
{
    LiveNews news;
    const bool isOpen = m_store->isOpen() || (m_store->open(HistoryStore::Access::Read) &&
                                              m_store->listen(QLatin1String(LiveTable::kChannel)));
    LiveTable table(*m_store);
    if (isOpen) {
        news.sites = table.sites();
        const QVector<LiveSite> changed = changedSites(news.sites);
        if (!table.failed() && !changed.isEmpty())
            news.devices = table.changedSince(changed);
    }
    if (!isOpen || table.failed()) {
        news = {m_store->errorText(), {}, {}};
        m_store->close();
        return news;
    }
    QMutexLocker locker(&m_mutex);
    for (const LiveSite& site : qAsConst(news.sites))
        m_known[site.site] = site.number;
    return news;
}

// With the numbers that are known.
QVector<LiveSite> LiveFeed::changedSites(const QVector<LiveSite>& sites)
{
    QMutexLocker locker(&m_mutex);
    QVector<LiveSite> changed;
    for (LiveSite site : sites)
        if (const qint64 known = m_known.value(site.site); site.number > known) {
            site.number = known;
            changed += site;
        }
    return changed;
}
