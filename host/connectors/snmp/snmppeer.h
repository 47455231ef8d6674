#ifndef SNMPPEER_H
#define SNMPPEER_H

// One agent as its connector sees it: polls and commands in, results out.
// May touch: sessions, polls, commands, addresses of hosts. Lives on the engine's thread.

#include "connectors/hostaddresses.h"
#include "connectors/snmp/snmpcommand.h"
#include "connectors/snmp/snmpexchange.h"
#include "connectors/snmp/snmppoll.h"

#include <map>

class SnmpPeer : public QObject
{
    Q_OBJECT

public:
    // The engine must outlive the peer.
    SnmpPeer(const DeviceSettings& settings, SnmpEngine& engine);

    // One poll at a time; ends with exactly one polled(), after a time that timeout and retries
    // bound.
    void poll();
    // Each command has a session of its own: a poll that waits for an answer holds up none.
    void send(const UpsCommand& command);

signals:
    void polled(const PollResult& result);
    void commandFinished(const CommandResult& result);

private:
    void startPoll(const QString& address);
    void endPoll(const PollResult& result);
    void onPollLimit();
    QString peer() const;

    struct RunningCommand {
        std::unique_ptr<SnmpCommand> dialogue;
        std::unique_ptr<SnmpExchange> exchange;
    };

    DeviceSettings m_settings;
    SnmpEngine& m_engine;
    SnmpMemory m_memory;
    HostAddresses m_addresses;
    QString m_address; // that the running or last poll asks

    bool m_polling = false;
    std::unique_ptr<SnmpPoll> m_poll;
    std::unique_ptr<SnmpExchange> m_exchange;
    QTimer m_pollLimit;
    std::map<SnmpCommand*, RunningCommand> m_commands;
};

#endif // SNMPPEER_H
