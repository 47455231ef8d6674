#include "snmpconnector.h"

SnmpConnector::SnmpConnector(const DeviceSettings& settings, QObject* parent)
    : Connector(parent)
    , m_settings(settings)
{
}

void SnmpConnector::poll() {}

void SnmpConnector::send(const UpsCommand&) {}
