#ifndef DESKCONFIG_H
#define DESKCONFIG_H

// What the configuration file means: devices, thresholds, operators, and where secrets are kept.
// May touch: Qt Core, the file system, addresses, names of readings.
//
//  [poll]        interval        1..3600 s, default 5; for devices without their own
//  [thresholds]  charge-low, charge-critical, runtime-low, load-high, temperature-high: see
//  Thresholds [session]     idle-logout     1..1440 min, default 10 [secrets]     store keychain
//  (default) or file [operator "NAME"]  level      0..9
//                     hash       as `upsdesk add-operator` writes it
//  [device "NAME"]    address    sim:, nut:// or snmp://
//                     user       account of a NUT server
//                     interval   1..3600 s, default of [poll]
//                     timeout    1..120 s, default 5
//                     retries    0..10, default 1
//                     shutdown-delay     0..86400 s, default 20
//                     restart-duration   0..86400 s, default 60
//                     shutdown-whole-ups yes or no (default)
//                     seed       0..2147483647, default 1; simulator
//                     scale.NAME factor above 0, see readingscale.h
//
// A value that is out of its range is replaced by its default, a device or operator that cannot be
// used is left out; each is a fault of severity error. What is not known here is kept and warned
// of.

#include "config/configdocument.h"
#include "config/desksettings.h"
#include "config/operatoraccount.h"
#include "connectors/devicesettings.h"

#include <functional>

class DeskConfig
{
public:
    // upsdesk/upsdesk.conf in the user's configuration folder.
    static QString defaultPath();
    // Never fails: what cannot be used is in faults(). A missing file gives the defaults.
    static DeskConfig load(const QString& path = defaultPath());
    explicit DeskConfig(const ConfigDocument& document);

    QString path() const { return m_document.path(); }
    // Syntax and meaning together, in the order of the lines.
    const ConfigFaults& faults() const { return m_faults; }
    const DeskSettings& settings() const { return m_settings; }
    const QVector<DeviceSettings>& devices() const { return m_devices; } // in the file's order
    const OperatorAccounts& operators() const { return m_operators; }
    const ConfigDocument& document() const { return m_document; }

    // Limits of a device's number by its key above, "interval" for one.
    struct Range {
        int minimum = 0;
        int maximum = 0;
        QString unit;
    };
    static Range deviceRange(const QString& key);

    // Longest name of a device or operator.
    static constexpr int kMaxName = 100;

    // Edits. Each changes the document, not yet the file, and returns why it was refused; empty:
    // done. Values that equal their default get a line only where there is one already. Secrets in
    // `device` are not written: they belong in the secret store, under the device's name.
    QString setSettings(const DeskSettings& settings);
    QString addDevice(const DeviceSettings& device);
    QString changeDevice(const QString& name, const DeviceSettings& device); // may rename it
    QString removeDevice(const QString& name);
    QString moveDevice(int from, int to);                // indices of devices()
    QString putOperator(const OperatorAccount& account); // adds or replaces
    QString removeOperator(const QString& name);

    // As ConfigDocument::save(); refuses also while a value was faulty as loaded or is now.
    QString save();

private:
    class Reader;

    // Makes the edit where it brings no new fault; says the first one otherwise.
    QString edit(const std::function<void(ConfigDocument&)>& change);
    void evaluate();
    int deviceIndex(const QString& name) const;
    void writeDevice(ConfigDocument& document, const DeviceSettings& device) const;

    ConfigDocument m_document;
    ConfigFaults m_faults;
    ConfigFaults m_errorsAsLoaded;
    DeskSettings m_settings;
    QVector<DeviceSettings> m_devices;
    OperatorAccounts m_operators;
};

#endif // DESKCONFIG_H
