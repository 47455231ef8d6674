#ifndef SNMPENGINE_H
#define SNMPENGINE_H

// The one thread that speaks SNMP for all agents: version 5.9 of the library is not safe for SNMPv3
// from several. Runs while there is a connector.
// May touch: net-snmp's global state, Qt Core.

#include <QThread>

#include <memory>

class SnmpEngine : public QThread
{
    Q_OBJECT

public:
    // GUI thread only. The last holder to let go stops the thread, which waits for no agent.
    static std::shared_ptr<SnmpEngine> instance();
    ~SnmpEngine() override;

protected:
    void run() override;
};

#endif // SNMPENGINE_H
