#include "connectors/devicesettings.h"

#include <QCoreApplication>

QString DeviceSettings::displayName() const
{
    if (!name.isEmpty())
        return nameAtSite(site, name);
    if (address.scheme == DeviceAddress::Scheme::Simulator)
        return address.scenario.isEmpty()
                   ? QCoreApplication::translate("DeviceSettings", "Simulator")
                   : QCoreApplication::translate("DeviceSettings", "Simulator, %1")
                         .arg(address.scenario);
    return address.ups.isEmpty() ? shownAddress(address) : address.ups;
}
