#ifndef SNMPCONNECTOR_H
#define SNMPCONNECTOR_H

// A UPS behind an SNMP agent with the UPS-MIB (RFC 1628), versions 1, 2c and 3.
// May touch: the SNMP engine and its devices, by queued calls only.

#include "connectors/connector.h"
#include "connectors/devicesettings.h"

#include <memory>

class SnmpPeer;
class SnmpEngine;

class SnmpConnector : public Connector
{
    Q_OBJECT

public:
    explicit SnmpConnector(const DeviceSettings& settings, QObject* parent = nullptr);
    ~SnmpConnector() override;

    void poll() override;
    void send(const UpsCommand& command) override;

private:
    std::shared_ptr<SnmpEngine> m_engine;
    SnmpPeer* m_device; // on the engine's thread; polls and results cross by queued calls
};

#endif // SNMPCONNECTOR_H
