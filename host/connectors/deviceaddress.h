#ifndef DEVICEADDRESS_H
#define DEVICEADDRESS_H

// Device addresses as the command line, the configuration and the dialogs share them.
// May touch: Qt Core.

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

struct DeviceAddress {
    enum class Scheme { Simulator, Nut, Snmp };

    Scheme scheme = Scheme::Simulator;
    QString text; // as given

    QString scenario; // sim: name of the scenario, empty for the day in minutes

    QString host; // nut, snmp; IPv6 without brackets
    quint16 port = 0;

    QString ups; // nut: name of the device; empty: the server's list is asked for

    QString community;     // snmp versions 1 and 2c; empty: "public"
    QString user;          // snmp version 3
    int snmpVersion = 2;   // 1, 2 (2c) or 3
    QString securityLevel; // one of securityLevels()
    QString authProtocol;  // one of authProtocols()
    QString privProtocol;  // one of privProtocols()
    QString context;

    static constexpr quint16 kNutPort = 3493;
    static constexpr quint16 kSnmpPort = 161;
    static QStringList securityLevels(); // noAuthNoPriv, authNoPriv, authPriv
    static QStringList authProtocols();  // MD5, SHA, SHA-224, SHA-256, SHA-384, SHA-512
    static QStringList privProtocols();  // DES, AES, AES-192, AES-256
};

struct ParsedAddress {
    std::optional<DeviceAddress> address;
    QString error; // what is wrong and how it should look
};

// Whether `host`, as QUrl read it from `text`, stands nowhere in it: a number alone, such as a port
// without its host, counts as an IPv4 address for QUrl.
bool isMadeUpHost(const QString& host, const QString& text);

//  sim:[NAME]   nut://HOST[:PORT]/[UPS]   snmp://COMMUNITY@HOST[:PORT][?version=1]
//  snmp://USER@HOST[:PORT]?version=3&level=authPriv&auth=SHA&priv=AES[&context=NAME]
// A secret in the address is an error: secrets come from the configuration.
ParsedAddress parseDeviceAddress(const QString& text);

// The address for windows and lists: a community is as good as a password and is left out.
QString shownAddress(const DeviceAddress& address);

// The address in its shortest usual form; `text` does not count. Parsing it gives the same address,
// or the reason why there is none.
QString deviceAddressText(const DeviceAddress& address);

#endif // DEVICEADDRESS_H
