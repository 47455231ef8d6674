#ifndef SNMPCONNECTOR_H
#define SNMPCONNECTOR_H

#include "connectors/connector.h"
#include "connectors/devicesettings.h"

class SnmpConnector : public Connector
{
    Q_OBJECT

public:
    explicit SnmpConnector(const DeviceSettings& settings, QObject* parent = nullptr);

    void poll() override;
    void send(const UpsCommand& command) override;

private:
    DeviceSettings m_settings;
};

#endif
