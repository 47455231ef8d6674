#ifndef DESKCONFIG_H
#define DESKCONFIG_H

// The user's configuration: read, edited on terms, saved.
// May touch: Qt Core, the file system, addresses, names of readings.
//
//  [poll] [thresholds] [session] [window] [secrets] [history]   the desk; keys, ranges and words:
//  configkeys.cpp [operator "NAME"]  level      0..9
//                     hash       as `upsdesk add-operator` writes it
//  [device "NAME"]    address    sim:, nut:// or snmp://
//                     scale.NAME factor above 0, see readingscale.h
//                     and the keys of configkeys.cpp
//
// A value that is out of its range is replaced by its default, a device or operator that cannot be
// used is left out; each is a fault of severity error. What is not known here is kept and warned
// of.

#include "config/configcontent.h"

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
    const ConfigFaults& faults() const { return m_content.faults; }
    // The first that keeps the file from being written; null: it may be.
    const ConfigFault* firstError() const;
    const DeskSettings& settings() const { return m_content.settings; }
    const QVector<DeviceSettings>& devices() const { return m_content.devices; } // as in the file
    const DeviceSettings* device(const QString& name) const { return m_content.device(name); }
    const OperatorAccounts& operators() const { return m_content.operators; }
    const ConfigDocument& document() const { return m_document; }

    // Longest name of a device or operator.
    static constexpr int kMaxName = kMaxConfigName;

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
    // Makes the edit where it brings no new fault; says the first one otherwise.
    QString edit(const std::function<void(ConfigDocument&)>& change);

    ConfigDocument m_document;
    ConfigContent m_content;
    ConfigFaults m_errorsAsLoaded;
};

#endif // DESKCONFIG_H
