#ifndef NUTCONNECTOR_H
#define NUTCONNECTOR_H

#include "connectors/connector.h"
#include "connectors/devicesettings.h"

class NutConnector : public Connector
{
    Q_OBJECT

public:
    explicit NutConnector(const DeviceSettings& settings, QObject* parent = nullptr);

    void poll() override;
    void send(const UpsCommand& command) override;

private:
    DeviceSettings m_settings;
};

#endif
