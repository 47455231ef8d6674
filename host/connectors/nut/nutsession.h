#ifndef NUTSESSION_H
#define NUTSESSION_H

// One connection to one NUT server: questions out, answers or the reason for none back.
// May touch: libupsclient. Blocks: for a worker thread only.

#include "connectors/nut/hostlookup.h"
#include "connectors/nut/nutprotocol.h"
#include "connectors/nut/nutreading.h"
#include "connectors/nut/socketguard.h"

#include <QByteArray>
#include <QVector>

#include <functional>
#include <memory>

struct NutConnection; // the library's own

// Every call ends by the deadline in force. After anything but a proper answer, refusals included
// among those, the connection is closed: an answer that comes late would be taken for the next one.
class NutSession
{
public:
    using Clock = SocketGuard::Clock;

    NutSession(const QString& host, quint16 port);
    ~NutSession();

    void setDeadline(Clock::time_point deadline) { m_deadline = deadline; }
    bool isOverdue() const { return Clock::now() >= m_deadline; }

    // Nothing happens on an open connection. TLS wherever the server offers it, then without a way
    // back to plain text.
    NutFailure open();
    void close();
    bool isOpen() const;
    // Counts connections: another number tells that the server may have forgotten something.
    quint64 number() const { return m_number; }

    // Private variables are dropped here.
    NutFailure listVariables(const QByteArray& ups, NutVariables& variables);
    NutFailure listWritable(const QByteArray& ups, NutVariables& variables);
    NutFailure listCommands(const QByteArray& ups, QList<QByteArray>& commands);
    NutFailure listDevices(QVector<NutUpsEntry>& devices);
    // Empty where the administrator wrote none.
    NutFailure description(const QByteArray& ups, QByteArray& text);

    // Once per connection. The server says OK to any password; only a command tells.
    NutFailure logIn(const QString& user, const QString& secret);
    // What follows an order: its number for trackedState(), empty where the server keeps no track.
    NutFailure setVariable(const QByteArray& ups, const QByteArray& name, const QByteArray& value,
                           QByteArray& tracking);
    NutFailure command(const QByteArray& ups, const QByteArray& name, QByteArray& tracking);
    // done stays false while the order is under way; its failure comes back as a refusal.
    NutFailure trackedState(const QByteArray& tracking, bool& done);

    // From any thread, for good: what is under way ends now, everything else fails.
    void abort();
    bool isAborted() const { return m_guard.isAborted(); }

private:
    using Words = QList<QByteArray>;

    NutFailure connectTo(const QByteArray& address, Clock::time_point deadline);
    NutFailure encrypt();
    NutFailure ask(const QByteArray& line, Words& answer);
    NutFailure list(const QByteArray& query, int words,
                    const std::function<void(const Words&)>& row);
    NutFailure order(const QByteArray& line, QByteArray& tracking);
    NutFailure sendLine(const QByteArray& line);
    NutFailure readLine(Words& words);
    NutFailure lost(const QString& message);
    NutFailure noUsableAnswer();
    NutFailure failedExchange();
    int secondsLeft() const;

    const QByteArray m_host;
    const quint16 m_port;
    const QString m_server; // "HOST port PORT" for messages

    std::unique_ptr<NutConnection> m_connection;
    HostLookup m_lookup;
    SocketGuard m_guard;
    int m_guardedFd = -1; // the connection's socket under a number that only we close
    Clock::time_point m_deadline;
    quint64 m_number = 0;
    bool m_open = false;
    bool m_loggedIn = false;
};

#endif // NUTSESSION_H
