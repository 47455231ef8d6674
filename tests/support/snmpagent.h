#ifndef SNMPAGENT_H
#define SNMPAGENT_H

// An SNMPv1 and v2c agent on a free port of loopback that answers from a table. Needs an event
// loop; may live on a thread of its own.
// May touch: Qt Network and the table.

#include "snmptable.h"

#include <QUdpSocket>

#include <functional>

class SnmpAgent : public QObject
{
    Q_OBJECT

public:
    // port: 0 takes a free one.
    explicit SnmpAgent(QObject* parent = nullptr, quint16 port = 0);

    quint16 port() const { return m_socket.localPort(); }

    SnmpTable table;
    QByteArray community = "public";
    bool frozen = false; // keeps what it is asked and answers when it thaws
    void thaw();
    int answerAfter = 0; // ms
    // Datagrams to send in place of each good one; empty: the good one.
    std::function<QByteArrayList(const QByteArray& good)> spoil;

private:
    void receive();
    void answer(const QByteArray& packet, const QHostAddress& from, quint16 port);

    struct Packet {
        QByteArray bytes;
        QHostAddress from;
        quint16 port;
    };

    QUdpSocket m_socket;
    std::vector<Packet> m_kept;
};

#endif // SNMPAGENT_H
