#ifndef CONNECTORFACTORY_H
#define CONNECTORFACTORY_H

// The one place that knows which connector serves which kind of address.
// May touch: all connectors.

#include "connectors/connector.h"
#include "connectors/devicesettings.h"

#include <memory>

// Never null.
std::unique_ptr<Connector> makeConnector(const DeviceSettings& settings);

#endif // CONNECTORFACTORY_H
