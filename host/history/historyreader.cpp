#include "history/historyreader.h"

#include "connectors/bootclock.h"

namespace {

constexpr qint64 kSilenceMs = 30000; // of a server, after which a question is given up
constexpr int kWatchMs = 1000;
constexpr unsigned long kEndMs = 200; // for which the end of the program waits for an answer

} // namespace

HistoryReader::HistoryReader(const StoreAddress& address, QObject* parent)
    : QObject(parent)
    , m_worker(new QObject)
    , m_store(HistoryStore::make(address))
{
    m_worker->moveToThread(&m_thread);
    m_thread.setObjectName(QStringLiteral("history reader"));
    m_thread.start();
    connect(&m_watch, &QTimer::timeout, this, &HistoryReader::watchStore);
    m_watch.start(kWatchMs);
}

HistoryReader::~HistoryReader()
{
    m_isEnding = true;
    QMetaObject::invokeMethod(m_worker, [this] { m_store->close(); });
    m_thread.quit();
    while (!m_thread.wait(kEndMs))
        m_store->abort();
    delete m_worker;
}

void HistoryReader::post(const Job& job)
{
    QMetaObject::invokeMethod(
        m_worker, [this, job] { run(job); }, Qt::QueuedConnection);
}

void HistoryReader::run(const Job& job)
{
    if (m_isEnding)
        return;
    m_busySinceMs = bootClockMs();
    if (m_store->isOpen() && m_store->isConnectionLost())
        m_store->close();
    if (!m_store->isOpen() && !m_store->open(HistoryStore::Access::Read)) {
        job(nullptr, m_store->errorText());
    } else {
        HistoryQueries queries(*m_store);
        job(&queries, {});
    }
    m_busySinceMs = 0;
}

void HistoryReader::watchStore()
{
    const qint64 since = m_busySinceMs;
    if (since > 0 && bootClockMs() - since > kSilenceMs)
        m_store->abort();
}
