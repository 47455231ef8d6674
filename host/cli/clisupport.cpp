#include "clisupport.h"

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

std::optional<DeviceSettings> settingsForAddress(const QString& text)
{
    const ParsedAddress parsed = parseDeviceAddress(text);
    if (!parsed.address) {
        printError(parsed.error);
        return {};
    }
    DeviceSettings settings;
    settings.address = *parsed.address;
    settings.user = qEnvironmentVariable("UPSDESK_NUT_USER");
    settings.secret = qEnvironmentVariable("UPSDESK_NUT_SECRET");
    settings.authSecret = qEnvironmentVariable("UPSDESK_AUTH_SECRET");
    settings.privSecret = qEnvironmentVariable("UPSDESK_PRIV_SECRET");
    return settings;
}
