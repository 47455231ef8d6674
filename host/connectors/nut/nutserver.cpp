#include "connectors/nut/nutserver.h"

#include <QMap>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <vector>

namespace {

// Threads that are on their way out. The program's end is the one place that waits for them, at
// most as long as the request that each is still in.
class EndingThreads
{
public:
    ~EndingThreads()
    {
        for (const auto& thread : m_threads)
            thread->wait();
    }

    void add(std::unique_ptr<QThread> thread)
    {
        m_threads.erase(std::remove_if(m_threads.begin(), m_threads.end(),
                                       [](const auto& other) { return other->isFinished(); }),
                        m_threads.end());
        m_threads.push_back(std::move(thread));
    }

private:
    std::vector<std::unique_ptr<QThread>> m_threads;
};

EndingThreads& endingThreads()
{
    static EndingThreads threads;
    return threads;
}

void registerTypes()
{
    qRegisterMetaType<PollResult>();
    qRegisterMetaType<CommandResult>();
    qRegisterMetaType<QVector<NutUpsEntry>>();
}

} // namespace

std::shared_ptr<NutServer> NutServer::of(const DeviceSettings& settings)
{
    static QMap<QStringList, std::weak_ptr<NutServer>> servers;
    const NutAccount account{settings.address.host, settings.address.port, settings.user,
                             settings.secret};
    const QStringList key{account.host, QString::number(account.port), account.user,
                          account.secret};
    std::shared_ptr<NutServer> server = servers.value(key).lock();
    if (!server) {
        for (auto it = servers.begin(); it != servers.end();)
            it = it.value().expired() ? servers.erase(it) : std::next(it);
        server.reset(new NutServer(account));
        servers.insert(key, server);
    }
    return server;
}

NutServer::NutServer(const NutAccount& account)
    : m_thread(std::make_unique<QThread>())
    , m_worker(new NutWorker(account))
{
    registerTypes();
    endingThreads(); // exists before, so outlives, every thread
    m_thread->setObjectName(QStringLiteral("nut"));
    m_worker->moveToThread(m_thread.get());
    // In its own thread, and not by an event: at the program's end there may be no application left
    // to deliver one.
    connect(m_thread.get(), &QThread::finished, [worker = m_worker] { delete worker; });
    connect(m_worker, &NutWorker::polled, this, &NutServer::polled);
    connect(m_worker, &NutWorker::listed, this, &NutServer::listed);
    connect(m_worker, &NutWorker::commandFinished, this, &NutServer::commandFinished);
    m_thread->start();
}

NutServer::~NutServer()
{
    m_worker->abort();
    m_thread->quit();
    endingThreads().add(std::move(m_thread));
}

NutRequest NutServer::request(const DeviceSettings& settings)
{
    constexpr int kShortest = 1;
    constexpr int kLongest = 60;
    NutRequest request;
    request.ticket = ++m_tickets;
    request.ups = settings.address.ups;
    request.limit = std::chrono::seconds(std::clamp(settings.timeout, kShortest, kLongest));
    request.posted = NutSession::Clock::now();
    return request;
}

quint64 NutServer::poll(const DeviceSettings& settings)
{
    const NutRequest posted = request(settings);
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, posted] { worker->poll(posted); });
    return posted.ticket;
}

quint64 NutServer::list(const DeviceSettings& settings)
{
    const NutRequest posted = request(settings);
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, posted] { worker->list(posted); });
    return posted.ticket;
}

quint64 NutServer::send(const DeviceSettings& settings, const UpsCommand& command)
{
    const NutRequest posted = request(settings);
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, posted, command] { worker->send(posted, command); });
    return posted.ticket;
}
