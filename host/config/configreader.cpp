#include "config/configreader.h"

#include "private/passwordhash.h"
#include "reading/readingscale.h"

#include <QCoreApplication>

#include <algorithm>

const QString ConfigReader::kAddress = QStringLiteral("address");
const QString ConfigReader::kScalePrefix = QStringLiteral("scale.");
const QString ConfigReader::kHash = QStringLiteral("hash");

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(ConfigReader)
};

const QString kScaleKey = ConfigReader::kScalePrefix + QStringLiteral("NAME");

// Keys that people try for what must not stand in this file.
const QStringList kSecretKeys{"secret", "password", "auth-secret", "priv-secret"};

// Reason why a section cannot have this name; empty: it can.
QString nameFault(const QString& name)
{
    if (name.isEmpty())
        return Tr::tr("a device or operator needs a name, as in [device \"Rack 3\"]");
    if (name.size() > kMaxConfigName)
        return Tr::tr("the name is longer than %1 characters").arg(kMaxConfigName);
    if (hasControlCharacters(name))
        return Tr::tr("the name holds control characters");
    if (name.trimmed() != name)
        return Tr::tr("the name starts or ends with a blank");
    return {};
}

QStringList sectionsOfDesk()
{
    QStringList sections;
    for (const auto& key : deskKeys())
        if (!sections.contains(QLatin1String(key.section)))
            sections += QLatin1String(key.section);
    return sections;
}

QStringList keysOfDesk(const QString& section)
{
    QStringList names;
    for (const auto& key : deskKeys())
        if (section == QLatin1String(key.section))
            names += QLatin1String(key.name);
    return names;
}

template <typename T>
QStringList namesOf(const std::vector<ConfigKey<T>>& keys)
{
    QStringList names;
    for (const auto& key : keys)
        names += QLatin1String(key.name);
    return names;
}

} // namespace

ConfigReader::ConfigReader(const ConfigDocument& document, const ConfigContent& before)
    : m_document(document)
    , m_before(before)
{
    m_content.faults = document.faults();
}

ConfigContent ConfigReader::read()
{
    readValues({}, deskKeys(), m_content.settings);
    checkThresholds();
    for (const ConfigSection& section : m_document.sections())
        readSection(section);
    std::stable_sort(m_content.faults.begin(), m_content.faults.end(),
                     [](const ConfigFault& a, const ConfigFault& b) { return a.line < b.line; });
    return m_content;
}

void ConfigReader::error(int line, const QString& text)
{
    m_content.faults += ConfigFault{line, ConfigSeverity::Error, text};
}

void ConfigReader::warning(int line, const QString& text)
{
    m_content.faults += ConfigFault{line, ConfigSeverity::Warning, text};
}

template <typename T>
void ConfigReader::readValues(const ConfigSection& object, const std::vector<ConfigKey<T>>& keys,
                              T& target)
{
    for (const ConfigKey<T>& key : keys) {
        const ConfigSection section =
            *key.section ? ConfigSection{QLatin1String(key.section), {}} : object;
        const QString name = QLatin1String(key.name);
        const std::optional<QString> text = m_document.value(section, name);
        if (!text)
            continue;
        if (const std::optional<QVariant> value = key.type.parse(*text)) {
            key.set(target, *value);
            continue;
        }
        const QString inForce = key.type.format(key.get(target));
        error(m_document.line(section, name),
              Tr::tr("%1 is %2; %3 is used")
                  .arg(name, key.type.description(), inForce.isEmpty() ? Tr::tr("none") : inForce));
    }
}

void ConfigReader::checkThresholds()
{
    Thresholds& thresholds = m_content.settings.thresholds;
    if (thresholds.chargeCritical <= thresholds.chargeLow)
        return;
    const ConfigSection section{QStringLiteral("thresholds"), {}};
    error(std::max(m_document.line(section, QStringLiteral("charge-critical")),
                   m_document.line(section, QStringLiteral("charge-low"))),
          Tr::tr("charge-critical is above charge-low; %1 is used for both")
              .arg(thresholds.chargeLow));
    thresholds.chargeCritical = thresholds.chargeLow;
}

void ConfigReader::readSection(const ConfigSection& section)
{
    const bool device = section.type == deviceSection({}).type;
    if (!device && section.type != operatorSection({}).type)
        return checkDeskSection(section);
    const QString reason = nameFault(section.name);
    if (!reason.isEmpty())
        error(m_document.line(section), Tr::tr("%1; the section is skipped").arg(reason));
    else if (device)
        readDevice(section);
    else
        readOperator(section);
}

void ConfigReader::checkDeskSection(const ConfigSection& section)
{
    static const QStringList sections = sectionsOfDesk();
    if (!sections.contains(section.type))
        warning(m_document.line(section),
                Tr::tr("unknown section \"%1\"; it is not used. Known are %2, operator and device")
                    .arg(section.type.left(kMaxConfigName), sections.join(QStringLiteral(", "))));
    else if (!section.name.isEmpty())
        warning(m_document.line(section),
                Tr::tr("section %1 takes no name; it is not used").arg(section.type));
    else
        warnOfUnknown(section, keysOfDesk(section.type));
}

void ConfigReader::warnOfUnknown(const ConfigSection& section, const QStringList& known)
{
    for (const QString& key : m_document.keys(section)) {
        const bool scale = key.startsWith(kScalePrefix) && known.contains(kScaleKey);
        if (known.contains(key) || scale) // readScales() has more to say
            continue;
        const int line = m_document.line(section, key);
        if (kSecretKeys.contains(key))
            warning(
                line,
                Tr::tr("%1 is not used: secrets do not belong in this file but in the keychain, "
                       "or in the file that [secrets] store = file stands for")
                    .arg(key));
        else
            warning(line, Tr::tr("unknown key \"%1\"; it is not used. Known are %2")
                              .arg(key.left(kMaxConfigName), known.join(QStringLiteral(", "))));
    }
}

void ConfigReader::readDevice(const ConfigSection& section)
{
    static const QStringList known =
        QStringList{kAddress} + namesOf(deviceKeys()) + QStringList{kScaleKey};
    DeviceSettings device = m_content.deviceDefaults();
    device.name = section.name;
    readValues(section, deviceKeys(), device);
    readScales(section, device);
    warnOfUnknown(section, known);
    if (!readAddress(section, device))
        return;
    m_content.indexOf.insert(device.name, m_content.devices.size());
    m_content.devices += device;
}

bool ConfigReader::readAddress(const ConfigSection& section, DeviceSettings& device)
{
    const std::optional<QString> text = m_document.value(section, kAddress);
    if (!text) {
        error(m_document.line(section), Tr::tr("the device has no address; it is left out"));
        return false;
    }
    const DeviceSettings* known = m_before.device(device.name);
    if (known && known->address.text == *text) {
        device.address = known->address;
        return true;
    }
    const ParsedAddress parsed = parseDeviceAddress(*text);
    if (parsed.address)
        device.address = *parsed.address;
    else
        error(m_document.line(section, kAddress),
              Tr::tr("%1; the device is left out").arg(parsed.error));
    return parsed.address.has_value();
}

void ConfigReader::readScales(const ConfigSection& section, DeviceSettings& device)
{
    for (const QString& key : m_document.keys(section)) {
        if (!key.startsWith(kScalePrefix))
            continue;
        static const QStringList names = scaleNames();
        const QString name = key.mid(kScalePrefix.size());
        const int line = m_document.line(section, key);
        bool ok = false;
        const double factor = m_document.value(section, key)->toDouble(&ok);
        if (!names.contains(name))
            warning(line, Tr::tr("unknown quantity \"%1\"; it is not used. Known are %2")
                              .arg(name.left(kMaxConfigName), names.join(QStringLiteral(", "))));
        else if (!ok || !isScaleFactor(factor))
            error(line, Tr::tr("%1 is a factor above 0, as 0.1; 1 is used").arg(key));
        else
            device.scales.insert(name, factor);
    }
}

void ConfigReader::readOperator(const ConfigSection& section)
{
    static const QStringList known = namesOf(operatorKeys()) + QStringList{kHash};
    warnOfUnknown(section, known);
    OperatorAccount account;
    account.name = section.name;
    account.hash = m_document.value(section, kHash).value_or(QString());
    readValues(section, operatorKeys(), account);
    if (!m_document.value(section, QStringLiteral("level")))
        error(m_document.line(section), Tr::tr("the operator has no level; 0 is used"));
    if (isPasswordHash(account.hash))
        m_content.operators += account;
    else
        error(std::max(m_document.line(section), m_document.line(section, kHash)),
              Tr::tr("no valid hash; the operator is left out. Set the password with upsdesk "
                     "add-operator"));
}
