#include "config/configcontent.h"

#include "config/configreader.h"

#include <QLocale>

namespace {

QString factorText(double factor)
{
    return QString::number(factor, 'g', QLocale::FloatingPointShortest);
}

template <typename T>
void writeValues(ConfigDocument& document, const ConfigSection& object,
                 const std::vector<ConfigKey<T>>& keys, const T& wanted, const T& inForce)
{
    for (const ConfigKey<T>& key : keys) {
        const QVariant value = key.get(wanted);
        if (value == key.get(inForce))
            continue;
        const ConfigSection section =
            *key.section ? ConfigSection{QLatin1String(key.section), {}} : object;
        const QString name = QLatin1String(key.name);
        const bool nothing = key.type.kind == ConfigType::Kind::Text && value.toString().isEmpty();
        if (nothing)
            document.removeValue(section, name);
        else
            document.setValue(section, name, key.type.format(value));
    }
}

} // namespace

const DeviceSettings* ConfigContent::device(const QString& name) const
{
    const auto found = indexOf.find(name);
    return found == indexOf.end() ? nullptr : &devices.at(*found);
}

DeviceSettings ConfigContent::deviceDefaults() const
{
    DeviceSettings device;
    device.pollInterval = settings.pollInterval;
    return device;
}

ConfigSection deviceSection(const QString& name)
{
    return {QStringLiteral("device"), name};
}

ConfigSection operatorSection(const QString& name)
{
    return {QStringLiteral("operator"), name};
}

ConfigContent readConfig(const ConfigDocument& document, const ConfigContent& before)
{
    return ConfigReader(document, before).read();
}

void writeSettings(ConfigDocument& document, const DeskSettings& settings,
                   const DeskSettings& inForce)
{
    writeValues(document, {}, deskKeys(), settings, inForce);
}

void writeDevice(ConfigDocument& document, const DeviceSettings& device,
                 const DeviceSettings& inForce)
{
    const ConfigSection section = deviceSection(device.name);
    document.setValue(section, ConfigReader::kAddress, device.address.text);
    writeValues(document, section, deviceKeys(), device, inForce);
    for (const QString& name : inForce.scales.keys())
        if (!device.scales.contains(name))
            document.removeValue(section, ConfigReader::kScalePrefix + name);
    for (auto it = device.scales.cbegin(); it != device.scales.cend(); ++it)
        if (!inForce.scales.contains(it.key()) || inForce.scales.value(it.key()) != it.value())
            document.setValue(section, ConfigReader::kScalePrefix + it.key(),
                              factorText(it.value()));
}

void writeOperator(ConfigDocument& document, const OperatorAccount& account)
{
    const ConfigSection section = operatorSection(account.name);
    for (const auto& key : operatorKeys())
        document.setValue(section, QLatin1String(key.name), key.type.format(key.get(account)));
    document.setValue(section, ConfigReader::kHash, account.hash);
}
