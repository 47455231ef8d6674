#ifndef NUTLINE_H
#define NUTLINE_H

// One connection to one NUT server, carrying one dialogue after the other: names, connecting,
// encryption and trust, one limit of time for all of it.
// May touch: sockets, dialogues, names of hosts. Lives on the network thread; nothing here blocks.

#include "connectors/hostaddresses.h"
#include "connectors/nut/nutanswer.h"
#include "connectors/nut/nutdialogue.h"
#include "connectors/nut/nuttrust.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSslSocket>
#include <QTimer>

// After anything but a proper answer (refusals are proper) the connection is closed: an answer that
// comes late would be taken for the next one. A connection that had been open before the dialogue
// and turns out to be dead is replaced once.
class NutLine : public QObject
{
    Q_OBJECT

public:
    explicit NutLine(const NutEndpoint& endpoint, QObject* parent = nullptr);
    ~NutLine() override;

    // The dialogue must live until ended() or the end of the line. One at a time. limit: for all
    // that it says, connecting included, unless it begins a new one itself.
    void run(NutDialogue* dialogue, std::chrono::milliseconds limit);

signals:
    void ended();

private:
    enum class State { Closed, Finding, Connecting, AskingForTls, Encrypting, Ready };

    void ask();
    void send();
    void open();
    void tryAddress();
    void connected();
    void askForTls();
    void takeTlsAnswer(const QByteArray& line);
    void encrypted();
    void ready();
    void readLines();
    void takeLine(const QByteArray& line);
    void socketFailed();
    void expired();
    void refuse(const QString& message);
    void fail(const QString& message);
    void answer(const NutFailure& failure, const QList<NutWords>& rows = {});
    void close();
    bool mayCarrySecrets() const;
    QString shownAddress() const;
    QString closedByServer() const;
    QString connectError() const;

    const NutEndpoint m_endpoint;
    HostAddresses m_names;
    QSslSocket m_socket;
    QTimer m_limit; // of all that is done now
    QTimer m_share; // of the address that is tried
    QTimer m_pause; // before a question
    std::chrono::milliseconds m_limitMs{0};
    State m_state = State::Closed;
    QStringList m_addresses; // still to be tried
    QString m_address;
    LinkSecurity m_security;
    quint64 m_connection = 0;

    NutDialogue* m_dialogue = nullptr;
    NutQuestion m_question;
    NutAnswer m_answer{{}};
    QElapsedTimer m_asked;
    bool m_isAsked = false; // the question waits for its one answer
    bool m_wasSent = false;
    bool m_mayReplace = false; // the connection is old, and nothing has been heard on it yet
};

#endif // NUTLINE_H
