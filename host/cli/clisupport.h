#ifndef CLISUPPORT_H
#define CLISUPPORT_H

// What the subcommands share: output streams, and settings for an address on the command line.
// May touch: addresses, situations of the simulator, configuration and secrets.

#include "connectors/devicesettings.h"

#include <QString>

#include <optional>

void printOut(const QString& line);
void printError(const QString& line);

struct ChosenDevice {
    std::optional<DeviceSettings> settings;
    QString error; // why there are none, with the nearest name
};

// Settings of the configured device with this address or name, else defaults for the address; with
// secrets from the environment or, for a configured device, the secret store. Runs an event loop
// while the store answers. otherNames: what else could have been meant by a wrong name.
ChosenDevice chooseDevice(const QString& text, const QStringList& otherNames = {});

// The same; prints what is wrong and returns nothing.
std::optional<DeviceSettings> settingsForAddress(const QString& text,
                                                 const QStringList& otherNames = {});

#endif // CLISUPPORT_H
