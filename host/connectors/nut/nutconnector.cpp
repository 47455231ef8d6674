#include "nutconnector.h"

NutConnector::NutConnector(const DeviceSettings& settings, QObject* parent)
    : Connector(parent)
    , m_settings(settings)
{
}

void NutConnector::poll() {}

void NutConnector::send(const UpsCommand&) {}
