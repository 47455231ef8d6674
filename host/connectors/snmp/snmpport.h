#ifndef SNMPPORT_H
#define SNMPPORT_H

// A UDP socket that the sessions of many agents share, and who gets which answer.
// May touch: Qt Network, net-snmp's reading of a message's head. Lives on the engine's thread.

#include <QCoreApplication>
#include <QHash>
#include <QHostAddress>
#include <QUdpSocket>

#include <memory>
#include <vector>

class SnmpSession;

class SnmpPort
{
    Q_DECLARE_TR_FUNCTIONS(SnmpPort)

public:
    explicit SnmpPort(QAbstractSocket::NetworkLayerProtocol family);
    ~SnmpPort();
    SnmpPort(const SnmpPort&) = delete;
    SnmpPort& operator=(const SnmpPort&) = delete;

    QAbstractSocket::NetworkLayerProtocol family() const { return m_family; }
    // Opens the socket; returns why it cannot, for the operator, or nothing.
    QString open();

    // The answers to this message that come from there go to the owner until it is forgotten.
    bool send(const QByteArray& message, const QHostAddress& to, quint16 port, SnmpSession* owner);
    void forget(const SnmpSession* owner);
    QString errorText() const { return m_socket.errorString(); }

    // Answers that wait in the socket have come in time, however late the thread gets to them.
    bool hasWaiting() const { return m_socket.hasPendingDatagrams(); }
    void receive();

private:
    struct Asker {
        SnmpSession* session;
        QHostAddress agent;
    };

    const QAbstractSocket::NetworkLayerProtocol m_family;
    QUdpSocket m_socket;
    QHash<quint64, Asker> m_askers; // by the number of the message
};

// The sockets of all sessions: so few that their number does not grow into the limit of open
// files, so many that a burst of answers finds room in their buffers.
class SnmpPorts
{
public:
    static constexpr long kSessionsPerPort = 64;

    // Where no further socket can be opened the sessions move closer together; null, with the
    // reason, where there is none at all.
    std::shared_ptr<SnmpPort> take(QAbstractSocket::NetworkLayerProtocol family, QString* reason);
    void clear() { m_ports.clear(); }

private:
    std::vector<std::shared_ptr<SnmpPort>> m_ports;
};

#endif // SNMPPORT_H
