#include "history/historyreader.h"

HistoryReader::HistoryReader(const StoreAddress& address, QObject* parent)
    : QObject(parent)
    , m_worker(new QObject)
    , m_store(HistoryStore::make(address))
{
    m_worker->moveToThread(&m_thread);
    m_thread.setObjectName(QStringLiteral("history reader"));
    m_thread.start();
}

HistoryReader::~HistoryReader()
{
    QMetaObject::invokeMethod(m_worker, [this] { m_store.reset(); });
    m_thread.quit();
    m_thread.wait();
    delete m_worker;
}

void HistoryReader::post(const Job& job)
{
    QMetaObject::invokeMethod(
        m_worker, [this, job] { run(job); }, Qt::QueuedConnection);
}

void HistoryReader::run(const Job& job)
{
    if (!m_store)
        return;
    if (m_store->isOpen() && m_store->isConnectionLost())
        m_store->close();
    if (!m_store->isOpen() && !m_store->open(HistoryStore::Access::Read)) {
        job(nullptr, m_store->errorText());
        return;
    }
    HistoryQueries queries(*m_store);
    job(&queries, {});
}
