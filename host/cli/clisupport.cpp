#include "cli/clisupport.h"

#include "config/configkeys.h"
#include "config/deskconfig.h"
#include "connectors/nearestname.h"
#include "connectors/simulator/simulatorscenarios.h"
#include "secrets/devicesecrets.h"
#include "secrets/secretstore.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTextStream>

#include <cstdio>
#include <utility>

void printOut(const QString& line)
{
    QTextStream(stdout) << line << '\n';
}

void printError(const QString& line)
{
    QTextStream(stderr) << "upsdesk: " << line << '\n';
}

namespace {

// For NUT servers that are not in the configuration: variables and the keys whose values they take.
constexpr std::pair<const char*, const char*> kVariables[] = {
    {"UPSDESK_NUT_USER", "user"},
    {"UPSDESK_NUT_TLS", "tls"},
    {"UPSDESK_NUT_CA_FILE", "ca-file"},
    {"UPSDESK_NUT_FINGERPRINT", "fingerprint"},
};

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

// What is wrong in the environment; empty: it is applied.
QString applyVariables(DeviceSettings& settings)
{
    for (const auto& [variable, name] : kVariables) {
        const QString text = qEnvironmentVariable(variable);
        for (const auto& key : deviceKeys()) {
            if (text.isEmpty() || QLatin1String(key.name) != QLatin1String(name))
                continue;
            const std::optional<QVariant> value = key.type.parse(text);
            if (!value)
                return QCoreApplication::translate("CliSupport", "%1 is %2")
                    .arg(QLatin1String(variable), key.type.description());
            key.set(settings, *value);
        }
    }
    applySecretOverrides(settings);
    return {};
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
    if (const QString wrong = applyVariables(settings); !wrong.isEmpty())
        return {{}, wrong};
    return {settings, {}};
}

std::optional<DeviceSettings> settingsForAddress(const QString& text, const QStringList& otherNames)
{
    const ChosenDevice chosen = chooseDevice(text, otherNames);
    if (!chosen.settings)
        printError(chosen.error);
    return chosen.settings;
}
