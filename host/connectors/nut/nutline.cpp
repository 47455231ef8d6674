#include "connectors/nut/nutline.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QSet>
#include <QSslConfiguration>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <utility>

namespace {

constexpr char kAskForTls[] = "STARTTLS";
constexpr char kNotTrusted[] = "NOT-TRUSTED"; // our own word among those of servers

// Servers that have offered encryption since the program began; on the network thread only.
QSet<QString>& serversWithTls()
{
    static QSet<QString> servers;
    return servers;
}

// The server writes a list line by line; its second packet would wait for our delayed
// acknowledgement of the first, 40 ms for every list. The system forgets the option on its own.
void acknowledgeAtOnce(const QSslSocket& socket)
{
    const int on = 1;
    setsockopt(static_cast<int>(socket.socketDescriptor()), IPPROTO_TCP, TCP_QUICKACK, &on,
               sizeof on);
}

} // namespace

NutLine::NutLine(const NutEndpoint& endpoint, QObject* parent)
    : QObject(parent)
    , m_endpoint(endpoint)
    , m_names(endpoint.host, HostAddresses::askSystem, this)
    , m_socket(this)
    , m_limit(this)
    , m_share(this)
    , m_pause(this)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    for (QTimer* timer : {&m_limit, &m_share, &m_pause})
        timer->setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, &NutLine::expired);
    connect(&m_share, &QTimer::timeout, this, &NutLine::tryAddress);
    connect(&m_pause, &QTimer::timeout, this, &NutLine::send);
    connect(&m_socket, &QSslSocket::connected, this, &NutLine::connected);
    connect(&m_socket, &QSslSocket::encrypted, this, &NutLine::encrypted);
    connect(&m_socket, &QSslSocket::readyRead, this, &NutLine::readLines);
    connect(&m_socket, &QSslSocket::errorOccurred, this, &NutLine::socketFailed);
}

NutLine::~NutLine()
{
    m_socket.disconnect(this);
    close();
}

// The dialogue

void NutLine::run(NutDialogue* dialogue, std::chrono::milliseconds limit)
{
    m_dialogue = dialogue;
    m_limitMs = limit;
    m_mayReplace = m_state == State::Ready;
    m_limit.start(limit);
    ask();
}

void NutLine::ask()
{
    const auto question = m_dialogue->next();
    if (!question) {
        m_limit.stop();
        m_dialogue = nullptr;
        emit ended();
        return;
    }
    m_question = *question;
    m_isAsked = true;
    m_wasSent = false;
    m_asked.start();
    if (m_question.delay.count() == 0)
        return send();
    m_limit.stop();
    m_pause.start(m_question.delay);
}

void NutLine::send()
{
    if (m_question.startsLimit || !m_limit.isActive())
        m_limit.start(m_limitMs);
    const bool isOpen = m_state == State::Ready;
    if (m_question.connection != 0 && (!isOpen || m_question.connection != m_connection))
        return answer({LinkState::Lost, {}, closedByServer()});
    if (!isOpen)
        return open();
    if (m_question.isSecret && !mayCarrySecrets())
        return answer({LinkState::Refused, kNotTrusted,
                       tr("The password is not sent to %1, because the link is %2 Give the device "
                          "the server's certificate (fingerprint) or its authority (ca-file), or "
                          "allow plain text with tls = off.")
                           .arg(m_endpoint.label(),
                                m_security.isEncrypted ? tr("not trusted: %1").arg(m_security.issue)
                                                       : tr("in plain text."))});
    m_answer = NutAnswer(m_question.line);
    m_wasSent = true;
    m_socket.write(m_question.line + '\n');
    m_socket.flush();
    acknowledgeAtOnce(m_socket);
}

bool NutLine::mayCarrySecrets() const
{
    return m_endpoint.tls == TlsUse::Off || (m_security.isEncrypted && m_security.isTrusted);
}

// Connecting

void NutLine::open()
{
    m_state = State::Finding;
    m_addresses.clear();
    m_names.find([this](const HostAddresses::Found& found) {
        if (m_state != State::Finding)
            return;
        if (found.addresses.isEmpty())
            return fail(found.error);
        m_addresses = found.addresses;
        tryAddress();
    });
}

// One address that swallows packets must not cost the others their turn.
void NutLine::tryAddress()
{
    const int left = m_addresses.size();
    if (m_state == State::Connecting)
        m_names.fail(m_address);
    m_state = State::Connecting;
    m_socket.abort();
    if (left == 0)
        return fail(tr("%1 does not answer; check that the server is on and that no firewall is "
                       "in between.")
                        .arg(shownAddress()));
    m_address = m_addresses.takeFirst();
    m_share.start(m_limit.remainingTime() / left);
    m_socket.connectToHost(m_address, m_endpoint.port);
}

void NutLine::connected()
{
    m_share.stop();
    ++m_connection;
    m_security = {};
    m_security.isLocal = m_socket.peerAddress().isLoopback();
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    if (m_endpoint.tls == TlsUse::Off)
        ready();
    else
        askForTls();
}

void NutLine::askForTls()
{
    m_state = State::AskingForTls;
    m_socket.write(QByteArray(kAskForTls) + '\n');
}

void NutLine::takeTlsAnswer(const QByteArray& line)
{
    const NutWords words = splitNutLine(line).value_or(NutWords());
    const bool isOffered = words.value(0) == "OK";
    if (!isOffered && words.value(0) != "ERR")
        return fail(nutNonsense(m_endpoint.label()).message);
    if (isOffered) {
        // What came in plain text after the answer could pass for an answer under TLS.
        if (m_socket.bytesAvailable() > 0)
            return fail(tr("%1 went on in plain text after it had offered encryption: somebody may "
                           "be in between.")
                            .arg(m_endpoint.label()));
        serversWithTls().insert(m_endpoint.label());
        m_state = State::Encrypting;
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setPeerVerifyMode(QSslSocket::QueryPeer); // judged when it is done
        if (!m_endpoint.caFile.isEmpty())
            configuration.setCaCertificates(QSslCertificate::fromPath(
                m_endpoint.caFile, QSsl::Pem, QSslCertificate::PatternSyntax::FixedString));
        m_socket.setSslConfiguration(configuration);
        m_socket.setPeerVerifyName(m_endpoint.host);
        m_socket.startClientEncryption();
    } else if (m_endpoint.isTrustRequired()) {
        refuse(tr("%1 offers no encryption, and the configuration requires it (tls = required, or "
                  "a certificate to trust).")
                   .arg(m_endpoint.label()));
    } else if (serversWithTls().contains(m_endpoint.label())) {
        refuse(tr("%1 has offered encryption before and offers none now: somebody may be in "
                  "between. If the server was changed on purpose, set tls = off.")
                   .arg(m_endpoint.label()));
    } else {
        ready();
    }
}

void NutLine::encrypted()
{
    m_security =
        judgeCertificate(m_endpoint, m_socket.peerCertificate(), m_socket.sslHandshakeErrors());
    const bool hasNoAuthority = m_endpoint.fingerprint.isEmpty() && !m_endpoint.caFile.isEmpty() &&
                                m_socket.sslConfiguration().caCertificates().isEmpty();
    if (hasNoAuthority)
        m_security.issue = tr("there is no certificate to be read in %1.").arg(m_endpoint.caFile);
    if (m_endpoint.isTrustRequired() && !m_security.isTrusted)
        refuse(tr("%1 cannot be trusted: %2 Its certificate is %3.")
                   .arg(m_endpoint.label(), m_security.issue, m_security.fingerprint));
    else
        ready();
}

void NutLine::ready()
{
    m_state = State::Ready;
    send();
}

// Answers

void NutLine::readLines()
{
    while (m_socket.canReadLine() && m_state != State::Closed) {
        QByteArray line = m_socket.readLine(NutAnswer::kLongestLine + 2);
        if (line.endsWith('\n'))
            line.chop(1);
        if (m_state == State::AskingForTls)
            takeTlsAnswer(line);
        else
            takeLine(line);
    }
    const bool isUnbounded =
        m_state != State::Encrypting && m_socket.bytesAvailable() > NutAnswer::kLongestLine;
    if (m_state != State::Closed && isUnbounded && !m_socket.canReadLine())
        fail(nutNonsense(m_endpoint.label()).message);
}

void NutLine::takeLine(const QByteArray& line)
{
    if (!m_dialogue || !m_wasSent || m_pause.isActive())
        return close(); // an answer to nothing
    m_mayReplace = false;
    switch (m_answer.take(line)) {
    case NutAnswer::State::Open:
        break;
    case NutAnswer::State::Broken:
        close();
        answer(m_answer.refusal());
        break;
    case NutAnswer::State::Complete:
        answer(m_answer.refusal(), m_answer.rows());
        break;
    case NutAnswer::State::Unusable:
        fail(nutNonsense(m_endpoint.label()).message);
        break;
    }
}

void NutLine::answer(const NutFailure& failure, const QList<NutWords>& rows)
{
    if (!std::exchange(m_isAsked, false))
        return; // nobody waits for it: a connection that ends between two questions
    NutReply reply;
    reply.failure = failure;
    reply.rows = rows;
    reply.wasSent = m_wasSent;
    reply.connection = m_connection;
    reply.security = m_security;
    reply.elapsed = std::chrono::milliseconds(m_asked.elapsed());
    m_wasSent = false;
    m_dialogue->take(reply);
    // From the event loop: the socket is in the middle of a signal.
    QMetaObject::invokeMethod(this, &NutLine::ask, Qt::QueuedConnection);
}

// Failures

// The socket tidies up after its signal, a connection that was begun in there included; so the next
// one waits for the event loop.
void NutLine::socketFailed()
{
    if (m_state == State::Connecting) {
        if (!m_addresses.isEmpty())
            return m_share.start(0); // the next one
        m_names.fail(m_address);
        return fail(connectError());
    }
    if (m_state == State::Encrypting)
        return fail(QSslSocket::supportsSsl()
                        ? tr("%1 offers encryption, but the two sides cannot agree on it; check "
                             "the certificate of the server.")
                              .arg(m_endpoint.label())
                        : tr("%1 offers encryption, but this machine has no TLS library.")
                              .arg(m_endpoint.label()));
    if (m_pause.isActive())
        return close(); // the question that is to come opens another one
    if (m_isAsked && m_mayReplace && m_state == State::Ready && !m_question.isOrder) {
        m_mayReplace = false;
        close();
        return m_pause.start(0);
    }
    fail(closedByServer());
}

QString NutLine::closedByServer() const
{
    return tr("%1 closed the connection.").arg(m_endpoint.label());
}

QString NutLine::connectError() const
{
    switch (m_socket.error()) {
    case QAbstractSocket::ConnectionRefusedError:
        return tr("%1 refuses the connection: no NUT server runs there, or it does not listen on "
                  "this address.")
            .arg(shownAddress());
    case QAbstractSocket::SocketResourceError:
        return tr("No connection to %1: too many open files.").arg(shownAddress());
    default:
        return tr("No connection to %1: %2.").arg(shownAddress(), m_socket.errorString());
    }
}

void NutLine::expired()
{
    if (m_state == State::Connecting)
        m_names.fail(m_address);
    switch (m_state) {
    case State::Finding:
        return fail(
            tr("No name server answered for %1 in time; check the network.").arg(m_endpoint.host));
    case State::Connecting:
        return fail(tr("%1 does not answer; check that the server is on and that no firewall is "
                       "in between.")
                        .arg(shownAddress()));
    default:
        return fail(tr("%1 accepts the connection but does not answer.").arg(m_endpoint.label()));
    }
}

QString NutLine::shownAddress() const
{
    return m_address.isEmpty() || m_address == m_endpoint.host
               ? m_endpoint.label()
               : tr("%1 (%2)").arg(m_endpoint.label(), m_address);
}

void NutLine::refuse(const QString& message)
{
    close();
    answer({LinkState::Refused, kNotTrusted, message});
}

void NutLine::fail(const QString& message)
{
    close();
    answer({LinkState::Lost, {}, message});
}

void NutLine::close()
{
    m_share.stop();
    m_state = State::Closed;
    m_socket.abort();
}
