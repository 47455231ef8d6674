#ifndef SNMPENGINE_H
#define SNMPENGINE_H

// The one thread that speaks SNMP for all agents: version 5.9 of the library is not safe for SNMPv3
// from several. Runs while there is a connector.
// May touch: net-snmp's global state, Qt Core.

#include "connectors/snmp/snmpport.h"
#include "connectors/snmp/snmpusers.h"

#include <QThread>

#include <memory>

class SnmpEngine : public QThread
{
    Q_OBJECT

public:
    // GUI thread only. The last holder to let go stops the thread, which waits for no agent.
    static std::shared_ptr<SnmpEngine> instance();
    ~SnmpEngine() override;

    // What its sessions share; to be used on its thread only.
    SnmpUsers& users() { return m_users; }
    SnmpPorts& ports() { return m_ports; }

protected:
    void run() override;

private:
    SnmpUsers m_users;
    SnmpPorts m_ports;
};

#endif // SNMPENGINE_H
