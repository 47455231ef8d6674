#include "connectors/snmp/snmpport.h"

#include "connectors/snmp/snmpsession.h"

#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include <QNetworkDatagram>
#include <QNetworkProxy>

#include <sys/resource.h>

namespace {

// Numbers of version 3 are counted apart from those of versions 1 and 2c.
constexpr quint64 kVersion3 = quint64(1) << 32;

// By which an answer names its question: msgID of version 3, else request-id. The library counts
// both up for the whole process, so that no two sessions use the same.
std::optional<quint64> messageNumber(const QByteArray& message)
{
    QByteArray copy = message; // the library's readers take no constants
    auto* at = reinterpret_cast<u_char*>(copy.data());
    std::size_t left = static_cast<std::size_t>(copy.size());
    u_char type = 0;
    long version = 0;
    long number = 0;
    at = asn_parse_header(at, &left, &type);
    at = at ? asn_parse_int(at, &left, &type, &version, sizeof(version)) : nullptr;
    if (at && version != SNMP_VERSION_3) { // the community
        std::size_t length = left;
        const u_char* community = at;
        at = asn_parse_header(at, &length, &type);
        if (at) {
            at += length;
            left -= static_cast<std::size_t>(at - community);
        }
    }
    at = at ? asn_parse_header(at, &left, &type) : nullptr;
    if (!at || !asn_parse_int(at, &left, &type, &number, sizeof(number)))
        return {};
    return (version == SNMP_VERSION_3 ? kVersion3 : 0) | static_cast<quint32>(number);
}

} // namespace

SnmpPort::SnmpPort(QAbstractSocket::NetworkLayerProtocol family)
    : m_family(family)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    QObject::connect(&m_socket, &QUdpSocket::readyRead, [this] { receive(); });
}

SnmpPort::~SnmpPort() = default;

QString SnmpPort::open()
{
    const bool v6 = m_family == QAbstractSocket::IPv6Protocol;
    // As an address, in so many words: the bare constant would be taken for the number of a port.
    if (m_socket.bind(QHostAddress(v6 ? QHostAddress::AnyIPv6 : QHostAddress::AnyIPv4)))
        return {};
    if (m_socket.error() != QAbstractSocket::SocketResourceError)
        return m_socket.errorString();
    rlimit files{};
    getrlimit(RLIMIT_NOFILE, &files);
    return tr("upsdesk has as many files open as this computer allows it (%1; see \"ulimit -n\")")
        .arg(static_cast<qulonglong>(files.rlim_cur));
}

bool SnmpPort::send(const QByteArray& message, const QHostAddress& to, quint16 port,
                    SnmpSession* owner)
{
    const std::optional<quint64> number = messageNumber(message);
    if (!number || m_socket.writeDatagram(message, to, port) != message.size())
        return false;
    m_askers.insert(*number, {owner, to});
    return true;
}

void SnmpPort::forget(const SnmpSession* owner)
{
    for (auto asker = m_askers.begin(); asker != m_askers.end();)
        asker = asker->session == owner ? m_askers.erase(asker) : std::next(asker);
}

void SnmpPort::receive()
{
    while (m_socket.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram();
        const std::optional<quint64> number = messageNumber(datagram.data());
        const auto asker = number ? m_askers.constFind(*number) : m_askers.constEnd();
        // All agents see numbers of this socket: none may answer for another.
        if (asker != m_askers.constEnd() &&
            asker->agent.isEqual(datagram.senderAddress(), QHostAddress::TolerantConversion))
            asker->session->receive(datagram.data());
    }
}

std::shared_ptr<SnmpPort> SnmpPorts::take(QAbstractSocket::NetworkLayerProtocol family,
                                          QString* reason)
{
    const std::shared_ptr<SnmpPort>* emptiest = nullptr;
    for (const std::shared_ptr<SnmpPort>& port : m_ports)
        if (port->family() == family && (!emptiest || port.use_count() < emptiest->use_count()))
            emptiest = &port;
    if (emptiest && emptiest->use_count() <= kSessionsPerPort)
        return *emptiest;
    auto fresh = std::make_shared<SnmpPort>(family);
    *reason = fresh->open();
    if (!reason->isEmpty())
        return emptiest ? *emptiest : nullptr;
    m_ports.push_back(fresh);
    return fresh;
}
