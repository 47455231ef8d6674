#ifndef SNMPSESSION_H
#define SNMPSESSION_H

// One open conversation with one agent through net-snmp: a request out, a reply in, never blocking.
// May touch: net-snmp, the engine's users and ports, values. Lives on the engine's thread, like all
// calls of net-snmp.

#include "connectors/snmp/snmpdialogue.h"

#include "connectors/devicesettings.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QTimer>

#include <functional>
#include <memory>

struct netsnmp_transport_s;
struct snmp_pdu;
struct snmp_session;

class SnmpEngine;
class SnmpPort;

class SnmpSession
{
    Q_DECLARE_TR_FUNCTIONS(SnmpSession)

public:
    using Handler = std::function<void(const SnmpReply&)>;

    // handler is called once for each request(), never from within it; it may call request() again,
    // but must not destroy the session. The engine must outlive the session.
    SnmpSession(const DeviceSettings& settings, SnmpEngine& engine, Handler handler);
    ~SnmpSession();
    SnmpSession(const SnmpSession&) = delete;
    SnmpSession& operator=(const SnmpSession&) = delete;

    // Where to send to: a numeric address. Takes effect when the session opens.
    void setPeer(const QString& numericAddress, quint16 port);

    // One at a time. Opens the session where it is closed; with version 3 this asks for the agent's
    // engine first. A silent version 3 session is opened anew for each further try, for an agent
    // that has restarted never answers an old one.
    void request(const SnmpRequest& request);

    // Answers that are still on their way are lost; a pending request gets no reply.
    void close();

    // From the port: a message that answers one of ours.
    void receive(const QByteArray& message);

private:
    static netsnmp_transport_s* makeTransport(SnmpSession* self);
    static int onSend(netsnmp_transport_s* transport, const void* bytes, int size, void**, int*);
    static int onReceive(netsnmp_transport_s* transport, void* buffer, int size, void** opaque,
                         int* opaqueSize);
    static int onReply(int operation, snmp_session*, int, snmp_pdu* pdu, void* self);

    bool open();
    void claimUser();
    bool needsEngine() const;
    void startAfresh();
    void sendTry();
    void sendPdu(snmp_pdu* pdu);
    snmp_pdu* makePdu() const;
    snmp_pdu* makeEngineProbe() const;

    void onTimer();
    void settleReply();
    void deliver(const SnmpReply& reply);
    void fail(SnmpReply::Kind kind, const QString& message);
    QString securityError(int error) const;

    DeviceSettings m_settings;
    SnmpEngine& m_engine;
    Handler m_handler;
    QHostAddress m_agent;
    quint16 m_agentPort = 0;
    std::shared_ptr<SnmpPort> m_port; // while the session is open
    void* m_session = nullptr;
    QByteArray m_received; // what the library is about to read
    QTimer m_timer;
    QElapsedTimer m_clock;

    SnmpRequest m_request;
    bool m_pending = false;
    bool m_probing = false;     // for the engine of version 3
    bool m_engineFound = false; // since the request was made
    int m_triesLeft = 0;
    std::optional<SnmpReply> m_reply; // left by the callback, taken up after it
    int m_reportError = 0;
};

#endif // SNMPSESSION_H
