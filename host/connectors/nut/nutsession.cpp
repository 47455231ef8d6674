#include "connectors/nut/nutsession.h"

#include "connectors/nut/nuttls.h"

#include "reading/sanitize.h"

#include <QCoreApplication>

// The library's headers lean on these.
#include <cstdint>
#include <ctime>
#include <sys/types.h>

#include <upsclient.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

struct NutConnection {
    UPSCONN_t library = {};
};

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(NutSession)
};

constexpr int kLongestLine = 2048; // octets; the server's own limit is far below
constexpr int kMostRows = 4096;    // of one list
// What the server says where its administrator wrote no description.
constexpr char kNoDescription[] = "Unavailable";
constexpr char kNoListedDescription[] = "Description unavailable";

// The library writes to sockets that the other side may have closed.
void blockBrokenPipeSignal()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

// The server writes a list line by line; its second packet would wait for our delayed
// acknowledgement of the first, 40 ms for every list. The system forgets the option on its own.
void acknowledgeAtOnce(int fd)
{
    const int on = 1;
    setsockopt(fd, IPPROTO_TCP, TCP_QUICKACK, &on, sizeof on);
}

timeval asTimeval(NutSession::Clock::duration duration)
{
    const auto us = std::chrono::duration_cast<std::chrono::microseconds>(duration).count();
    timeval result;
    result.tv_sec = static_cast<time_t>(std::max<qint64>(us, 0) / 1000000);
    result.tv_usec = static_cast<suseconds_t>(std::max<qint64>(us, 0) % 1000000);
    return result;
}

} // namespace

NutSession::NutSession(const QString& host, quint16 port)
    : m_host(host.toUtf8())
    , m_port(port)
    , m_server(Tr::tr("%1 port %2").arg(host).arg(port))
    , m_connection(std::make_unique<NutConnection>())
{
    m_connection->library.fd = -1;
}

NutSession::~NutSession()
{
    close();
}

bool NutSession::isOpen() const
{
    return m_open;
}

NutFailure NutSession::lost(const QString& message)
{
    return {LinkState::Lost, {}, message};
}

NutFailure NutSession::open()
{
    if (m_open)
        return {};
    if (isAborted())
        return lost(Tr::tr("The connection is being closed."));
    blockBrokenPipeSignal();

    const HostLookup::Result lookup = m_lookup.find(m_host, m_deadline);
    const QString host = QString::fromUtf8(m_host);
    switch (lookup.outcome) {
    case HostLookup::Outcome::Found:
        break;
    case HostLookup::Outcome::UnknownName:
        return lost(Tr::tr("There is no host named %1; check the address.").arg(host));
    case HostLookup::Outcome::NoNameServer:
        return lost(Tr::tr("The name %1 could not be looked up; check the network and its name "
                           "server.")
                        .arg(host));
    case HostLookup::Outcome::TimedOut:
        return lost(Tr::tr("No name server answered for %1 in time; check the network.").arg(host));
    }

    NutFailure failure;
    int left = lookup.addresses.size();
    for (const QByteArray& address : lookup.addresses) {
        // One address that swallows packets must not cost the others their turn.
        const auto now = Clock::now();
        const auto share = (m_deadline - now) / left--;
        failure = connectTo(address, now + share);
        if (!failure)
            failure = encrypt();
        if (!failure || isOverdue())
            break;
    }
    return failure;
}

NutFailure NutSession::connectTo(const QByteArray& address, Clock::time_point deadline)
{
    UPSCONN_t& library = m_connection->library;
    timeval limit = asTimeval(deadline - Clock::now());
    const int result = upscli_tryconnect(&library, address.constData(), m_port, 0, &limit);

    const QString shown = QString::fromLatin1(address) == QString::fromUtf8(m_host)
                              ? m_server
                              : Tr::tr("%1 (%2)").arg(m_server, QString::fromLatin1(address));
    if (result == 0) {
        m_guardedFd = dup(library.fd);
        m_open = m_guardedFd >= 0;
        if (m_open) {
            ++m_number;
            return {};
        }
        close();
        return lost(Tr::tr("No connection to %1: too many open files.").arg(shown));
    }

    // No number at all means that the limit was reached.
    const int error = library.syserrno;
    library.fd = -1;
    if (error == ECONNREFUSED)
        return lost(Tr::tr("%1 refuses the connection: no NUT server runs there, or it does not "
                           "listen on this address.")
                        .arg(shown));
    if (error != 0 && error != ETIMEDOUT)
        return lost(Tr::tr("No connection to %1: %2.")
                        .arg(shown, QString::fromLocal8Bit(std::strerror(error))));
    return lost(Tr::tr("%1 does not answer; check that the server is on and that no firewall is in "
                       "between.")
                    .arg(shown));
}

NutFailure NutSession::encrypt()
{
    Words answer;
    const NutFailure failure = ask("STARTTLS", answer);
    if (failure)
        return failure.isAnswer() ? NutFailure() : failure; // it has no TLS
    UPSCONN_t& library = m_connection->library;
    // What came in plain text after the answer could pass for an answer under TLS.
    if (answer.first() != "OK" || library.readidx != library.readlen)
        return noUsableAnswer();

    m_guard.watch(m_guardedFd, m_deadline);
    library.ssl = startNutTls(library.fd);
    const bool timedOut = m_guard.leave();
    if (library.ssl)
        return {};
    if (timedOut)
        return failedExchange();
    close();
    return lost(Tr::tr("%1 offers encryption, but the two sides cannot agree on it; check the "
                       "certificate of the server.")
                    .arg(m_server));
}

void NutSession::close()
{
    if (m_connection->library.fd >= 0) {
        m_guard.watch(m_guardedFd, m_deadline); // it says goodbye to the server
        upscli_disconnect(&m_connection->library);
        m_guard.leave();
    }
    m_connection->library.fd = -1;
    if (m_guardedFd >= 0)
        ::close(m_guardedFd);
    m_guardedFd = -1;
    m_open = false;
    m_loggedIn = false;
}

void NutSession::abort()
{
    m_guard.abort();
    m_lookup.abort();
}

int NutSession::secondsLeft() const
{
    // The library counts whole seconds; rounded up they leave the exact time to the guard.
    const auto left = std::chrono::duration_cast<std::chrono::seconds>(m_deadline - Clock::now());
    return static_cast<int>(std::max<qint64>(left.count(), 0)) + 1;
}

NutFailure NutSession::failedExchange()
{
    // To the library a time-out and the end of the stream are the same; the clock tells them apart.
    const bool timedOut = m_guard.leave() || isOverdue();
    close();
    return lost(timedOut ? Tr::tr("%1 accepts the connection but does not answer.").arg(m_server)
                         : Tr::tr("%1 closed the connection.").arg(m_server));
}

NutFailure NutSession::noUsableAnswer()
{
    close();
    return lost(Tr::tr("What %1 answers is not the language of a NUT server; check host and port.")
                    .arg(m_server));
}

NutFailure NutSession::sendLine(const QByteArray& line)
{
    if (!m_open)
        return lost(Tr::tr("There is no connection to %1.").arg(m_server));
    const QByteArray octets = line + '\n';
    m_guard.watch(m_guardedFd, m_deadline);
    const auto sent = upscli_sendline_timeout(&m_connection->library, octets.constData(),
                                              static_cast<size_t>(octets.size()), secondsLeft());
    if (sent < 0)
        return failedExchange();
    m_guard.leave();
    acknowledgeAtOnce(m_guardedFd);
    return {};
}

NutFailure NutSession::readLine(Words& words)
{
    if (isOverdue())
        return failedExchange();
    char line[kLongestLine];
    m_guard.watch(m_guardedFd, m_deadline);
    const auto read =
        upscli_readline_timeout(&m_connection->library, line, sizeof line, secondsLeft());
    if (read < 0)
        return failedExchange();
    m_guard.leave();
    const QByteArray text(line);
    const auto split = splitNutLine(text);
    if (text.size() >= kLongestLine - 1 || !split || split->isEmpty())
        return noUsableAnswer();
    words = *split;
    if (words.first() == "ERR")
        return nutRefusal(words.value(1));
    return {};
}

NutFailure NutSession::ask(const QByteArray& line, Words& answer)
{
    const NutFailure failure = sendLine(line);
    return failure ? failure : readLine(answer);
}

NutFailure NutSession::list(const QByteArray& query, int words,
                            const std::function<void(const Words&)>& row)
{
    const Words asked = splitNutLine(query).value_or(Words());
    Words answer;
    NutFailure failure = ask("LIST " + query, answer);
    if (failure)
        return failure;
    if (answer != Words{"BEGIN", "LIST"} + asked)
        return noUsableAnswer();
    for (int rows = 0; rows <= kMostRows; ++rows) {
        failure = readLine(answer);
        if (failure.isAnswer()) { // the list ends in the middle
            close();
            return failure;
        }
        if (failure)
            return failure;
        if (answer == Words{"END", "LIST"} + asked)
            return {};
        if (answer.size() < words || answer.mid(0, asked.size()) != asked)
            break;
        row(answer);
    }
    return noUsableAnswer();
}

NutFailure NutSession::listVariables(const QByteArray& ups, NutVariables& variables)
{
    variables.clear();
    return list("VAR " + nutQuoted(ups), 4, [&](const Words& row) {
        if (!isPrivateNutVariable(row.at(2)))
            variables.insert(row.at(2), row.at(3));
    });
}

NutFailure NutSession::listWritable(const QByteArray& ups, NutVariables& variables)
{
    variables.clear();
    return list("RW " + nutQuoted(ups), 4, [&](const Words& row) {
        if (!isPrivateNutVariable(row.at(2)))
            variables.insert(row.at(2), row.at(3));
    });
}

NutFailure NutSession::listCommands(const QByteArray& ups, QList<QByteArray>& commands)
{
    commands.clear();
    return list("CMD " + nutQuoted(ups), 3, [&](const Words& row) { commands << row.at(2); });
}

NutFailure NutSession::listDevices(QVector<NutUpsEntry>& devices)
{
    devices.clear();
    return list("UPS", 2, [&](const Words& row) {
        const bool hasText = row.value(2) != kNoListedDescription;
        devices << NutUpsEntry{cleanDeviceText(row.at(1)),
                               hasText ? cleanDeviceText(row.value(2)) : QString()};
    });
}

NutFailure NutSession::description(const QByteArray& ups, QByteArray& text)
{
    Words answer;
    const NutFailure failure = ask("GET UPSDESC " + nutQuoted(ups), answer);
    if (failure)
        return failure;
    if (answer.mid(0, 2) != Words{"UPSDESC", ups})
        return noUsableAnswer();
    text = answer.value(2);
    if (text == kNoDescription)
        text.clear();
    return {};
}

NutFailure NutSession::logIn(const QString& user, const QString& secret)
{
    if (m_loggedIn)
        return {};
    Words answer;
    NutFailure failure = ask("USERNAME " + nutQuoted(user.toUtf8()), answer);
    if (!failure)
        failure = ask("PASSWORD " + nutQuoted(secret.toUtf8()), answer);
    if (!failure) {
        m_loggedIn = true;
        failure = ask("SET TRACKING ON", answer);
        // A server of before tracking refuses; its orders then go without a number.
        if (failure.isAnswer() && failure.error != "ACCESS-DENIED")
            failure = NutFailure();
    }
    return failure;
}

NutFailure NutSession::order(const QByteArray& line, QByteArray& tracking)
{
    tracking.clear();
    Words answer;
    const NutFailure failure = ask(line, answer);
    if (failure)
        return failure;
    if (answer.first() != "OK")
        return noUsableAnswer();
    if (answer.value(1) == "TRACKING")
        tracking = answer.value(2);
    return {};
}

NutFailure NutSession::setVariable(const QByteArray& ups, const QByteArray& name,
                                   const QByteArray& value, QByteArray& tracking)
{
    return order("SET VAR " + nutQuoted(ups) + ' ' + name + ' ' + nutQuoted(value), tracking);
}

NutFailure NutSession::command(const QByteArray& ups, const QByteArray& name, QByteArray& tracking)
{
    return order("INSTCMD " + nutQuoted(ups) + ' ' + name, tracking);
}

NutFailure NutSession::trackedState(const QByteArray& tracking, bool& done)
{
    done = false;
    Words answer;
    const NutFailure failure = ask("GET TRACKING " + nutQuoted(tracking), answer);
    if (failure)
        return failure;
    done = answer.first() == "SUCCESS";
    if (!done && answer.first() != "PENDING")
        return noUsableAnswer();
    return {};
}
