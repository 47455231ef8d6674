#ifndef CONFIGCONTENT_H
#define CONFIGCONTENT_H

// What a configuration file means, as plain values: read from its lines, and written back into
// them. May touch: Qt Core, addresses, names of readings; no file.

#include "config/configdocument.h"
#include "config/configkeys.h"

#include <QHash>

struct ConfigContent {
    DeskSettings settings;
    QVector<DeviceSettings> devices; // in the file's order, without secrets
    QHash<QString, int> indexOf;     // of a device by its name
    OperatorAccounts operators;
    ConfigFaults faults; // of syntax and meaning, in the order of the lines

    // Null: not there.
    const DeviceSettings* device(const QString& name) const;
    // What a device has where the file says nothing.
    DeviceSettings deviceDefaults() const;
};

// Longest name of a device or operator.
constexpr int kMaxConfigName = 100;

ConfigSection deviceSection(const QString& name);
ConfigSection operatorSection(const QString& name);

// before: what the document meant before its last edit; addresses that are still the same are not
// parsed again.
ConfigContent readConfig(const ConfigDocument& document, const ConfigContent& before = {});

// Each writes what differs from `inForce`, so that a value that equals its default gets a line only
// where there is one already.
void writeSettings(ConfigDocument& document, const DeskSettings& settings,
                   const DeskSettings& inForce);
void writeDevice(ConfigDocument& document, const DeviceSettings& device,
                 const DeviceSettings& inForce);
void writeOperator(ConfigDocument& document, const OperatorAccount& account);

#endif // CONFIGCONTENT_H
