#ifndef CONFIGREADER_H
#define CONFIGREADER_H

// Turns the lines of a configuration into values, with one fault for each that cannot be used.
// May touch: Qt Core, addresses, names of readings, the form of password hashes.

#include "config/configcontent.h"

class ConfigReader
{
public:
    // Both must outlive the reader.
    ConfigReader(const ConfigDocument& document, const ConfigContent& before);

    ConfigContent read(); // once

    static const QString kAddress;
    static const QString kScalePrefix;
    static const QString kHash;

private:
    void error(int line, const QString& text);
    void warning(int line, const QString& text);
    template <typename T>
    void readValues(const ConfigSection& object, const std::vector<ConfigKey<T>>& keys, T& target);
    void checkThresholds();
    void readSection(const ConfigSection& section);
    void checkDeskSection(const ConfigSection& section);
    void warnOfUnknown(const ConfigSection& section, const QStringList& known);
    void readDevice(const ConfigSection& section);
    bool readAddress(const ConfigSection& section, DeviceSettings& device);
    void readScales(const ConfigSection& section, DeviceSettings& device);
    void readOperator(const ConfigSection& section);

    const ConfigDocument& m_document;
    const ConfigContent& m_before;
    ConfigContent m_content;
};

#endif // CONFIGREADER_H
