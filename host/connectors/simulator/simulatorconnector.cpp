#include "simulatorconnector.h"

SimulatorConnector::SimulatorConnector(const DeviceSettings& settings, QObject* parent)
    : Connector(parent)
    , m_settings(settings)
{
}

void SimulatorConnector::poll() {}

void SimulatorConnector::send(const UpsCommand&) {}
