#ifndef CLISUPPORT_H
#define CLISUPPORT_H

// What the subcommands share: output streams, and settings for an address on the command line.
// May touch: addresses and the configuration.

#include "connectors/devicesettings.h"

#include <QString>

#include <optional>

class QCommandLineParser;

void printOut(const QString& line);
void printError(const QString& line);

// Settings of the configured device with this address or name, else defaults for the address; with
// secrets from the environment or, for a configured device, the secret store. Prints what is wrong
// and returns nothing for a bad address. Runs an event loop while the store answers.
std::optional<DeviceSettings> settingsForAddress(const QString& text);

// False after telling what is wrong with them: the caller ends with ExitUsage. --help ends the
// program.
bool readArguments(QCommandLineParser& parser, const QStringList& arguments);

#endif // CLISUPPORT_H
