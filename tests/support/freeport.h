#ifndef FREEPORT_H
#define FREEPORT_H

// A port of loopback for a server that is started later, or again.
// May touch: sockets of Qt Network.

#include <QRandomGenerator>
#include <QTcpServer>
#include <QUdpSocket>

// Free now, and outside of the range out of which the system serves connections: nobody takes it
// by chance before its server does.
inline quint16 freePort()
{
    constexpr int kLowest = 10000;
    constexpr int kHighest = 32000;
    const QHostAddress loopback(QHostAddress::LocalHost);
    for (;;) {
        const auto port =
            static_cast<quint16>(QRandomGenerator::global()->bounded(kLowest, kHighest));
        if (QTcpServer().listen(loopback, port) && QUdpSocket().bind(loopback, port))
            return port;
    }
}

#endif // FREEPORT_H
