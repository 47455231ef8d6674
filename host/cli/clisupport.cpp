#include "cli/clisupport.h"

#include "config/deskconfig.h"
#include "connectors/nearestname.h"
#include "connectors/simulator/simulatorscenarios.h"
#include "secrets/devicesecrets.h"
#include "secrets/secretstore.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTextStream>

#include <cstdio>

void printOut(const QString& line)
{
    QTextStream(stdout) << line << '\n';
}

void printError(const QString& line)
{
    QTextStream(stderr) << "upsdesk: " << line << '\n';
}

namespace {

// For NUT commands on a device that is not in the configuration.
constexpr char kUserVariable[] = "UPSDESK_NUT_USER";

// The simulator moves quickly, and asking it costs nothing.
constexpr int kSimulatorPollSeconds = 1;

std::optional<DeviceSettings> configuredDevice(const DeskConfig& config, const QString& text)
{
    for (const DeviceSettings& device : config.devices())
        if (device.name == text || device.address.text == text)
            return device;
    return {};
}

QStringList deviceNames(const DeskConfig& config)
{
    QStringList names;
    for (const DeviceSettings& device : config.devices())
        names << device.name;
    return names;
}

QString unknownScenario(const DeviceAddress& address)
{
    const bool simulated = address.scheme == DeviceAddress::Scheme::Simulator;
    return simulated && !findScenario(address.scenario) ? unknownScenarioText(address.scenario)
                                                        : QString();
}

DeviceSettings withStoredSecrets(const DeviceSettings& device, SecretsChoice choice)
{
    if (neededSecrets(device).isEmpty())
        return device;
    const auto store = SecretStore::make(choice);
    DeviceSettings complete = device;
    QEventLoop loop;
    readDeviceSecrets(*store, {device}, &loop,
                      [&](const QVector<DeviceSettings>& devices, const QString& message) {
                          complete = devices.first();
                          if (!message.isEmpty())
                              printError(message);
                          loop.quit();
                      });
    loop.exec();
    return complete;
}

} // namespace

ChosenDevice chooseDevice(const QString& text, const QStringList& otherNames)
{
    const DeskConfig config = DeskConfig::load();
    if (const auto configured = configuredDevice(config, text))
        return {withStoredSecrets(*configured, config.settings().secrets), {}};

    const ParsedAddress parsed = parseDeviceAddress(text);
    if (!parsed.address)
        return {{}, parsed.error + didYouMean(text, otherNames + deviceNames(config))};
    if (const QString unknown = unknownScenario(*parsed.address); !unknown.isEmpty())
        return {{}, unknown};
    DeviceSettings settings;
    settings.address = *parsed.address;
    settings.pollInterval = parsed.address->scheme == DeviceAddress::Scheme::Simulator
                                ? kSimulatorPollSeconds
                                : config.settings().pollInterval;
    settings.user = qEnvironmentVariable(kUserVariable);
    applySecretOverrides(settings);
    return {settings, {}};
}

std::optional<DeviceSettings> settingsForAddress(const QString& text, const QStringList& otherNames)
{
    const ChosenDevice chosen = chooseDevice(text, otherNames);
    if (!chosen.settings)
        printError(chosen.error);
    return chosen.settings;
}
