#ifndef SNMPEXCHANGE_H
#define SNMPEXCHANGE_H

// Carries a dialogue over a session, question by question.
// May touch: sessions and dialogues. Lives on the engine's thread.

#include "connectors/snmp/snmpsession.h"

class SnmpExchange : public QObject
{
    Q_OBJECT

public:
    // The engine must outlive the exchange.
    SnmpExchange(const DeviceSettings& settings, SnmpEngine& engine);

    // The dialogue must live until ended() or stop(). One at a time.
    void start(SnmpDialogue* dialogue, const QString& numericAddress);
    // Breaks off without ended(); late answers go nowhere.
    void stop();

signals:
    // The last thing that happens; stop() may be called here, but not the destructor.
    void ended();

private:
    void step();

    DeviceSettings m_settings;
    SnmpSession m_session;
    SnmpDialogue* m_dialogue = nullptr;
    SnmpRequest m_request;
    QTimer m_delay;
    QString m_address;
};

#endif // SNMPEXCHANGE_H
