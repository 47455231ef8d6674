#ifndef NUTSERVER_H
#define NUTSERVER_H

// One NUT server as its devices share it: one connection for all polls, one after the other, and
// one of its own for each command, so that neither holds up the other. Polls need no account, so
// devices with different accounts share the connection, and no password is ever on it.
// May touch: lines and dialogues. Lives on the network thread; its functions may be called from the
// GUI thread, and none blocks.

#include "connectors/connector.h"
#include "connectors/nut/nutdevices.h"
#include "connectors/nut/nutline.h"

#include <QVector>

#include <deque>
#include <memory>

class NutServer : public QObject
{
    Q_OBJECT

public:
    // The server of these settings; devices with the same host, port and trust get the same one.
    // GUI thread only, and so is letting go of it: what is under way is broken off then.
    static std::shared_ptr<NutServer> of(const DeviceSettings& settings);
    ~NutServer() override;

    // Each returns the ticket that the one answer carries.
    quint64 poll(const DeviceSettings& settings);
    quint64 list(const DeviceSettings& settings);
    quint64 send(const DeviceSettings& settings, const UpsCommand& command);

signals:
    void polled(quint64 ticket, const PollResult& result);
    void listed(quint64 ticket, const QVector<NutUpsEntry>& devices, const QString& error);
    void commandFinished(quint64 ticket, const CommandResult& result);

private:
    struct Job;
    struct Order;
    using Finish = std::function<void()>;

    explicit NutServer(const NutEndpoint& endpoint);
    void enqueue(std::unique_ptr<Job> job);
    void runNext();
    void endJob();
    void startOrder(quint64 ticket, const DeviceSettings& settings, const UpsCommand& command);

    const NutEndpoint m_endpoint;
    NutLine m_line;
    std::deque<std::unique_ptr<Job>> m_jobs; // the first one is under way
    bool m_isRunning = false;
    std::vector<std::unique_ptr<Order>> m_orders;
    QElapsedTimer m_clock;
    qint64 m_lostAt = -1; // ms of the clock at which the server was last found lost
    NutFailure m_lostFailure;
};

#endif // NUTSERVER_H
