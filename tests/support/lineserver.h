#ifndef LINESERVER_H
#define LINESERVER_H

// A server of text lines on a free loopback port that answers what a test tells it to.
// May touch: sockets of Qt Network. Needs the event loop of its thread.

#include <QByteArray>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <functional>

class LineServer : public QTcpServer
{
public:
    // Answers each line, without its end, with the octets returned; empty: with silence.
    using Answer = std::function<QByteArray(const QByteArray& line)>;

    explicit LineServer(const Answer& answer)
        : m_answer(answer)
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            ++connections;
            m_sockets << socket;
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_sockets.removeOne(socket);
                socket->deleteLater();
            });
        });
        listen(QHostAddress::LocalHost);
    }

    void write(const QByteArray& octets)
    {
        for (QTcpSocket* socket : qAsConst(m_sockets))
            if (socket->state() == QTcpSocket::ConnectedState)
                socket->write(octets);
    }

    void closeConnections()
    {
        const auto sockets = m_sockets; // each takes itself off the list
        for (QTcpSocket* socket : sockets)
            socket->abort();
    }

    int count(const QByteArray& start) const
    {
        return static_cast<int>(
            std::count_if(lines.begin(), lines.end(),
                          [&](const QByteArray& line) { return line.startsWith(start); }));
    }

    bool hasConnections() const
    {
        return std::any_of(m_sockets.begin(), m_sockets.end(), [](const QTcpSocket* socket) {
            return socket->state() == QTcpSocket::ConnectedState;
        });
    }

    QList<QByteArray> lines; // all that came, in order
    int connections = 0;
    bool closesAfterAnswers = false;

private:
    void read(QTcpSocket* socket)
    {
        while (socket->canReadLine()) {
            const QByteArray line = socket->readLine().trimmed();
            lines << line;
            socket->write(m_answer(line));
            if (closesAfterAnswers)
                socket->disconnectFromHost();
        }
    }

    const Answer m_answer;
    QList<QTcpSocket*> m_sockets;
};

#endif // LINESERVER_H
