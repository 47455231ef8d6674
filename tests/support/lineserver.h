#ifndef LINESERVER_H
#define LINESERVER_H

// A server of text lines on a free loopback port that answers what a test tells it to, under TLS
// from the answer "OK STARTTLS" on where it has a certificate.
// May touch: sockets of Qt Network. Needs the event loop of its thread.

#include <QByteArray>
#include <QList>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>

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
        listen(QHostAddress::LocalHost);
    }

    void write(const QByteArray& octets)
    {
        for (QSslSocket* socket : qAsConst(m_sockets))
            if (socket->state() == QTcpSocket::ConnectedState)
                socket->write(octets);
    }

    void closeConnections()
    {
        const auto sockets = m_sockets; // each takes itself off the list
        for (QSslSocket* socket : sockets)
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
        return std::any_of(m_sockets.begin(), m_sockets.end(), [](const QSslSocket* socket) {
            return socket->state() == QTcpSocket::ConnectedState;
        });
    }

    QList<QByteArray> lines; // all that came, in order
    QList<int> lineOf;       // the connection that brought each of them, from 1
    int connections = 0;
    bool closesAfterAnswers = false;
    QSslCertificate certificate;
    QSslKey key;

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto* socket = new QSslSocket(this);
        const int number = ++connections;
        socket->setSocketDescriptor(descriptor);
        m_sockets << socket;
        connect(socket, &QSslSocket::readyRead, this,
                [this, socket, number] { read(socket, number); });
        connect(socket, &QSslSocket::disconnected, this, [this, socket] {
            m_sockets.removeOne(socket);
            socket->deleteLater();
        });
    }

private:
    void read(QSslSocket* socket, int number)
    {
        while (socket->canReadLine()) {
            const QByteArray line = socket->readLine().trimmed();
            lines << line;
            lineOf << number;
            const QByteArray answer = m_answer(line);
            socket->write(answer);
            if (answer == "OK STARTTLS\n" && !key.isNull()) {
                socket->setLocalCertificate(certificate);
                socket->setPrivateKey(key);
                socket->startServerEncryption();
            }
            if (closesAfterAnswers)
                socket->disconnectFromHost();
        }
    }

    const Answer m_answer;
    QList<QSslSocket*> m_sockets;
};

#endif // LINESERVER_H
