#ifndef SIMULATORCONNECTOR_H
#define SIMULATORCONNECTOR_H

#include "connectors/connector.h"
#include "connectors/devicesettings.h"

class SimulatorConnector : public Connector
{
    Q_OBJECT

public:
    explicit SimulatorConnector(const DeviceSettings& settings, QObject* parent = nullptr);

    void poll() override;
    void send(const UpsCommand& command) override;

private:
    DeviceSettings m_settings;
};

#endif
