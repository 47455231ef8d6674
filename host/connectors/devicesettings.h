#ifndef DEVICESETTINGS_H
#define DEVICESETTINGS_H

// Everything a connector needs to know of one device.
// May touch: Qt Core and addresses.

#include "connectors/deviceaddress.h"

#include <QMap>
#include <QString>

// How far the link to a NUT server has to be encrypted and trusted. Each in the order of its words
// in the configuration.
enum class TlsUse {
    Required,  // nothing is said over a link that is not
    Preferred, // where the server offers it; commands only over one that is
    Off        // plain text, passwords too
};

// "North/Rack 3": the name that no device of another site has; without a site, the name alone.
inline QString nameAtSite(const QString& site, const QString& name)
{
    return site.isEmpty() ? name : site + QLatin1Char('/') + name;
}

struct DeviceSettings {
    QString name; // the operator's name for it; empty: what the address calls it
    DeviceAddress address;
    QString site;  // whose collector watches it; empty: this desk does
    QString group; // site or room, to order the devices by; empty: none

    // Account of a NUT server; needed for commands only.
    QString user;
    QString secret;
    TlsUse tls = TlsUse::Preferred;
    QString caFile;      // authorities of its certificate, PEM; empty: the system's
    QString fingerprint; // "sha256:..." of the one certificate that is trusted; empty: any good one
    // SNMP version 3.
    QString authSecret;
    QString privSecret;

    int pollInterval = 5;          // s
    int timeout = 5;               // s until a connect or an answer counts as missing
    int retries = 1;               // SNMP: further tries of one request
    int shutdownDelay = 20;        // s, handed on with shutdown and standby
    int restartDuration = 60;      // s
    bool shutdownWholeUps = false; // SNMP: shut the system down instead of the output
    quint32 seed = 1;              // simulator

    // Correction of agents that are wrong by a power of ten: quantity name to factor.
    QMap<QString, double> scales;

    // For people: the given name, else what the address calls the device; with its site.
    QString displayName() const;
};

#endif // DEVICESETTINGS_H
