#ifndef NUTWORKER_H
#define NUTWORKER_H

// What one server is asked and told, one thing after the other.
// May touch: its session. Lives in the server's worker thread, where it may block for as long as a
// request allows.

#include "connectors/connector.h"
#include "connectors/nut/nutprotocol.h"
#include "connectors/nut/nutsession.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

struct NutAccount {
    QString host;
    quint16 port = 0;
    QString user;
    QString secret;
};

// One request, for the device `ups`; empty for the only one of the server.
struct NutRequest {
    quint64 ticket = 0; // comes back with the answer
    QString ups;
    std::chrono::seconds limit{5}; // for all that the request needs, connecting included
    NutSession::Clock::time_point posted = NutSession::Clock::now();
};

class NutWorker : public QObject
{
    Q_OBJECT

public:
    explicit NutWorker(const NutAccount& account);

    void poll(const NutRequest& request);
    void list(const NutRequest& request);
    void send(const NutRequest& request, const UpsCommand& command);

    // From any thread, for good: what is under way ends now without an answer.
    void abort() { m_session.abort(); }

signals:
    void polled(quint64 ticket, const PollResult& result);
    void listed(quint64 ticket, const QVector<NutUpsEntry>& devices, const QString& error);
    void commandFinished(quint64 ticket, const CommandResult& result);

private:
    struct Order;
    struct Job;
    using JobPointer = std::shared_ptr<Job>;

    NutFailure attempt(const NutRequest& request, const std::function<NutFailure()>& exchange);
    NutFailure chooseDevice(const NutRequest& request, QByteArray& ups);
    NutFailure readDevice(const NutRequest& request, UpsReading& reading);

    NutFailure prepare(Job& job);
    void sendNext(const JobPointer& job);
    void follow(const JobPointer& job);
    void proceed(const JobPointer& job, bool tracked);
    void finish(const JobPointer& job, CommandOutcome outcome, const QString& message);

    const NutAccount m_account;
    NutSession m_session;
    NutSession::Clock::time_point m_lostAt; // when the server was last found lost
    NutFailure m_lostFailure;
};

#endif // NUTWORKER_H
