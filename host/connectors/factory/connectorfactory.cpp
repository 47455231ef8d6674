#include "connectors/factory/connectorfactory.h"

#include "connectors/nut/nutconnector.h"
#include "connectors/simulator/simulatorconnector.h"
#include "connectors/snmp/snmpconnector.h"

std::unique_ptr<Connector> makeConnector(const DeviceSettings& settings)
{
    switch (settings.address.scheme) {
    case DeviceAddress::Scheme::Nut:
        return std::make_unique<NutConnector>(settings);
    case DeviceAddress::Scheme::Snmp:
        return std::make_unique<SnmpConnector>(settings);
    case DeviceAddress::Scheme::Simulator:
        break;
    }
    return std::make_unique<SimulatorConnector>(settings);
}
