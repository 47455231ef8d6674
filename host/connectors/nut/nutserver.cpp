#include "connectors/nut/nutserver.h"

#include "connectors/nut/networkthread.h"
#include "connectors/nut/nutorder.h"
#include "connectors/nut/nutpoll.h"

#include <QMap>

#include <algorithm>
#include <atomic>

namespace {

std::chrono::milliseconds limitOf(const DeviceSettings& settings)
{
    constexpr int kShortest = 1;
    constexpr int kLongest = 60;
    return std::chrono::seconds(std::clamp(settings.timeout, kShortest, kLongest));
}

quint64 nextTicket()
{
    static std::atomic<quint64> tickets{0};
    return ++tickets;
}

void registerTypes()
{
    qRegisterMetaType<PollResult>();
    qRegisterMetaType<CommandResult>();
    qRegisterMetaType<QVector<NutUpsEntry>>();
}

NutFailure failureOf(const PollResult& result)
{
    return {result.state, {}, result.message};
}

PollResult lostPoll(const NutFailure& failure)
{
    PollResult result;
    result.state = failure.state;
    result.message = failure.message;
    return result;
}

} // namespace

// A poll or a list of devices, waiting for the line or on it.
struct NutServer::Job {
    Job(const DeviceSettings& settings, qint64 postedMs)
        : limit(limitOf(settings))
        , postedMs(postedMs)
    {}
    std::unique_ptr<NutDialogue> dialogue;
    std::chrono::milliseconds limit;
    qint64 postedMs;
    std::function<NutFailure()> failure;                 // of the dialogue, when it has ended
    std::function<void(const NutFailure& instead)> tell; // instead: of a job that never ran
};

struct NutServer::Order {
    Order(const NutEndpoint& endpoint, const UpsCommand& command,
          const NutOrder::Settings& settings)
        : dialogue(command, settings)
        , line(endpoint)
    {}
    NutOrder dialogue;
    NutLine line;
};

std::shared_ptr<NutServer> NutServer::of(const DeviceSettings& settings)
{
    static QMap<QString, std::weak_ptr<NutServer>> servers;
    const NutEndpoint endpoint = NutEndpoint::of(settings);
    std::shared_ptr<NutServer> server = servers.value(endpoint.key()).lock();
    if (server)
        return server;
    for (auto it = servers.begin(); it != servers.end();)
        it = it.value().expired() ? servers.erase(it) : std::next(it);
    registerTypes();
    const std::shared_ptr<NetworkThread> thread = NetworkThread::instance();
    auto* made = new NutServer(endpoint);
    made->moveToThread(thread.get());
    // The thread is held until its server has been told to go, not until the list above is cleared:
    // by then there may be no application whose events would delete the server.
    server.reset(made, [held = thread](NutServer* gone) mutable {
        gone->deleteLater();
        held.reset();
    });
    servers.insert(endpoint.key(), server);
    return server;
}

NutServer::NutServer(const NutEndpoint& endpoint)
    : m_endpoint(endpoint)
    , m_line(endpoint, this)
{
    m_clock.start();
    connect(&m_line, &NutLine::ended, this, &NutServer::endJob);
}

NutServer::~NutServer() = default;

quint64 NutServer::poll(const DeviceSettings& settings)
{
    const quint64 ticket = nextTicket();
    const qint64 posted = m_clock.elapsed();
    QMetaObject::invokeMethod(this, [this, ticket, posted, settings] {
        auto dialogue = std::make_unique<NutPoll>(m_endpoint.label(), settings.address.ups);
        NutPoll* poll = dialogue.get();
        auto job = std::make_unique<Job>(settings, posted);
        job->dialogue = std::move(dialogue);
        job->failure = [poll] { return failureOf(poll->result()); };
        job->tell = [this, ticket, poll](const NutFailure& instead) {
            emit polled(ticket, instead ? lostPoll(instead) : poll->result());
        };
        enqueue(std::move(job));
    });
    return ticket;
}

quint64 NutServer::list(const DeviceSettings& settings)
{
    const quint64 ticket = nextTicket();
    const qint64 posted = m_clock.elapsed();
    QMetaObject::invokeMethod(this, [this, ticket, posted, settings] {
        auto dialogue = std::make_unique<NutDevices>(m_endpoint.label());
        NutDevices* devices = dialogue.get();
        auto job = std::make_unique<Job>(settings, posted);
        job->dialogue = std::move(dialogue);
        job->failure = [devices] { return devices->failure(); };
        job->tell = [this, ticket, devices](const NutFailure& instead) {
            const NutFailure failure = instead ? instead : devices->failure();
            emit listed(ticket, failure ? QVector<NutUpsEntry>() : devices->devices(),
                        failure.message);
        };
        enqueue(std::move(job));
    });
    return ticket;
}

quint64 NutServer::send(const DeviceSettings& settings, const UpsCommand& command)
{
    const quint64 ticket = nextTicket();
    QMetaObject::invokeMethod(
        this, [this, ticket, settings, command] { startOrder(ticket, settings, command); });
    return ticket;
}

void NutServer::enqueue(std::unique_ptr<Job> job)
{
    m_jobs.push_back(std::move(job));
    if (!m_isRunning)
        runNext();
}

// A request that waited while the server was found lost shares that finding, so that many devices
// do not wait one time-out each.
void NutServer::runNext()
{
    while (!m_jobs.empty() && m_lostFailure && m_jobs.front()->postedMs < m_lostAt) {
        const std::unique_ptr<Job> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        job->tell(m_lostFailure);
    }
    m_isRunning = !m_jobs.empty();
    if (m_isRunning)
        m_line.run(m_jobs.front()->dialogue.get(), m_jobs.front()->limit);
}

void NutServer::endJob()
{
    const std::unique_ptr<Job> job = std::move(m_jobs.front());
    m_jobs.pop_front();
    const NutFailure failure = job->failure();
    const bool isLost = failure.state == LinkState::Lost;
    m_lostFailure = isLost ? failure : NutFailure();
    m_lostAt = isLost ? m_clock.elapsed() : -1;
    job->tell({});
    runNext();
}

void NutServer::startOrder(quint64 ticket, const DeviceSettings& settings,
                           const UpsCommand& command)
{
    m_orders.push_back(std::make_unique<Order>(
        m_endpoint, command,
        NutOrder::Settings{m_endpoint.label(), settings.address.ups, settings.user, settings.secret,
                           limitOf(settings)}));
    Order* order = m_orders.back().get();
    connect(&order->line, &NutLine::ended, this, [this, ticket, order] {
        emit commandFinished(ticket, order->dialogue.result());
        // From the event loop: the line is still in its signal.
        QMetaObject::invokeMethod(
            this,
            [this, order] {
                m_orders.erase(std::find_if(m_orders.begin(), m_orders.end(),
                                            [order](const auto& o) { return o.get() == order; }));
            },
            Qt::QueuedConnection);
    });
    order->line.run(&order->dialogue, limitOf(settings));
}
