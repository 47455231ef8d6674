#include "config/deskconfig.h"

#include "private/passwordhash.h"
#include "private/privatefile.h"
#include "reading/readingscale.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStandardPaths>

#include <algorithm>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DeskConfig)
};

const QString kDevice = QStringLiteral("device");
const QString kOperator = QStringLiteral("operator");
const QString kAddress = QStringLiteral("address");
const QString kUser = QStringLiteral("user");
const QString kWholeUps = QStringLiteral("shutdown-whole-ups");
const QString kSeed = QStringLiteral("seed");
const QString kScalePrefix = QStringLiteral("scale.");
const QString kScaleKey = kScalePrefix + QStringLiteral("NAME");
const QString kLevel = QStringLiteral("level");
const QString kHash = QStringLiteral("hash");
const ConfigSection kSecrets{QStringLiteral("secrets"), {}};
const QString kStore = QStringLiteral("store");

constexpr int kMaxUser = 255;

const char kNewFile[] =
    "# Configuration of upsdesk. A # starts a comment; upsdesk check-config says\n"
    "# what is wrong in here.\n";

template <typename T>
struct Number {
    const char* section; // null: of the object itself
    const char* key;
    int T::*field;
    int minimum;
    int maximum;
    const char* unit;
};

constexpr Number<DeskSettings> kDeskNumbers[] = {
    {"poll", "interval", &DeskSettings::pollInterval, 1, 3600, "s"},
    {"session", "idle-logout", &DeskSettings::idleLogout, 1, 1440, "min"},
};

constexpr Number<Thresholds> kThresholdNumbers[] = {
    {"thresholds", "charge-low", &Thresholds::chargeLow, 1, 100, "%"},
    {"thresholds", "charge-critical", &Thresholds::chargeCritical, 0, 100, "%"},
    {"thresholds", "runtime-low", &Thresholds::runtimeLow, 0, 1440, "min"},
    {"thresholds", "load-high", &Thresholds::loadHigh, 1, 200, "%"},
    {"thresholds", "temperature-high", &Thresholds::temperatureHigh, 1, 150, "\u00b0C"},
};

constexpr Number<DeviceSettings> kDeviceNumbers[] = {
    {nullptr, "interval", &DeviceSettings::pollInterval, 1, 3600, "s"},
    {nullptr, "timeout", &DeviceSettings::timeout, 1, 120, "s"},
    {nullptr, "retries", &DeviceSettings::retries, 0, 10, ""},
    {nullptr, "shutdown-delay", &DeviceSettings::shutdownDelay, 0, 86400, "s"},
    {nullptr, "restart-duration", &DeviceSettings::restartDuration, 0, 86400, "s"},
};

constexpr Number<OperatorAccount> kOperatorNumbers[] = {
    {nullptr, "level", &OperatorAccount::level, OperatorAccount::kMinLevel,
     OperatorAccount::kMaxLevel, ""},
};

// The section of a row; its own, or that of the object that is read.
template <typename T>
ConfigSection sectionOf(const Number<T>& row, const ConfigSection& object)
{
    return row.section ? ConfigSection{QLatin1String(row.section), {}} : object;
}

struct StoreName {
    const char* name;
    SecretsChoice choice;
};
constexpr StoreName kStoreNames[] = {{"keychain", SecretsChoice::Keychain},
                                     {"file", SecretsChoice::File}};

// Keys that people try for what must not stand in this file.
const QStringList kSecretKeys{"secret", "password", "auth-secret", "priv-secret"};

std::optional<bool> parseSwitch(const QString& text)
{
    static const QStringList on{"yes", "true", "on", "1"};
    static const QStringList off{"no", "false", "off", "0"};
    const QString word = text.toLower();
    if (on.contains(word) || off.contains(word))
        return on.contains(word);
    return std::nullopt;
}

QString factorText(double factor)
{
    return QString::number(factor, 'g', QLocale::FloatingPointShortest);
}

bool hasControlCharacters(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.category() == QChar::Other_Control; });
}

// Writes the numbers that differ from what is in force.
template <typename T, size_t N>
void writeNumbers(ConfigDocument& document, const ConfigSection& object, const Number<T> (&rows)[N],
                  const T& wanted, const T& inForce)
{
    for (const Number<T>& row : rows)
        if (wanted.*row.field != inForce.*row.field)
            document.setValue(sectionOf(row, object), QLatin1String(row.key),
                              QString::number(wanted.*row.field));
}

} // namespace

// Turns the document into values, one fault for each that cannot be used.
class DeskConfig::Reader
{
public:
    explicit Reader(DeskConfig& config)
        : m_config(config)
        , m_document(config.m_document)
    {}

    void read()
    {
        numbers({}, kDeskNumbers, m_config.m_settings);
        numbers({}, kThresholdNumbers, m_config.m_settings.thresholds);
        checkThresholds();
        readStore();
        for (const ConfigSection& section : m_document.sections())
            readSection(section);
    }

private:
    void add(int line, ConfigSeverity severity, const QString& text)
    {
        m_config.m_faults += ConfigFault{line, severity, text};
    }

    template <typename T, size_t N>
    void numbers(const ConfigSection& object, const Number<T> (&rows)[N], T& target)
    {
        for (const Number<T>& row : rows) {
            const ConfigSection section = sectionOf(row, object);
            const QString key = QLatin1String(row.key);
            const std::optional<QString> text = m_document.value(section, key);
            if (!text)
                continue;
            bool ok = false;
            const int number = text->toInt(&ok);
            if (ok && number >= row.minimum && number <= row.maximum)
                target.*row.field = number;
            else
                add(m_document.line(section, key), ConfigSeverity::Error,
                    Tr::tr("%1 is a whole number from %2 to %3 %4; %5 is used")
                        .arg(key)
                        .arg(row.minimum)
                        .arg(row.maximum)
                        .arg(QString::fromUtf8(row.unit))
                        .arg(target.*row.field)
                        .simplified()
                        .replace(QLatin1String(" ;"), QLatin1String(";")));
        }
    }

    void checkThresholds()
    {
        Thresholds& thresholds = m_config.m_settings.thresholds;
        if (thresholds.chargeCritical <= thresholds.chargeLow)
            return;
        const ConfigSection section{QStringLiteral("thresholds"), {}};
        const int line = std::max(m_document.line(section, QStringLiteral("charge-critical")),
                                  m_document.line(section, QStringLiteral("charge-low")));
        add(line, ConfigSeverity::Error,
            Tr::tr("charge-critical is above charge-low; %1 is used for both")
                .arg(thresholds.chargeLow));
        thresholds.chargeCritical = thresholds.chargeLow;
    }

    void readStore()
    {
        const std::optional<QString> text = m_document.value(kSecrets, kStore);
        if (!text)
            return;
        for (const StoreName& store : kStoreNames)
            if (*text == QLatin1String(store.name)) {
                m_config.m_settings.secrets = store.choice;
                return;
            }
        add(m_document.line(kSecrets, kStore), ConfigSeverity::Error,
            Tr::tr("store is keychain or file; keychain is used"));
    }

    void readSection(const ConfigSection& section)
    {
        if (section.type == kDevice || section.type == kOperator) {
            const QString reason = nameFault(section.name);
            if (!reason.isEmpty())
                add(m_document.line(section), ConfigSeverity::Error,
                    Tr::tr("%1; the section is skipped").arg(reason));
            else if (section.type == kDevice)
                readDevice(section);
            else
                readOperator(section);
            return;
        }
        QStringList known = keysOf(section.type);
        if (known.isEmpty())
            add(m_document.line(section), ConfigSeverity::Warning,
                Tr::tr("unknown section \"%1\"; it is not used. Known are poll, thresholds, "
                       "session, secrets, operator and device")
                    .arg(section.type.left(kMaxName)));
        else if (!section.name.isEmpty())
            add(m_document.line(section), ConfigSeverity::Warning,
                Tr::tr("section %1 takes no name; it is not used").arg(section.type));
        else
            warnOfUnknown(section, known);
    }

    static QStringList keysOf(const QString& type)
    {
        QStringList keys;
        for (const auto& row : kDeskNumbers)
            if (type == QLatin1String(row.section))
                keys += QLatin1String(row.key);
        for (const auto& row : kThresholdNumbers)
            if (type == QLatin1String(row.section))
                keys += QLatin1String(row.key);
        if (type == kSecrets.type)
            keys += kStore;
        return keys;
    }

    void warnOfUnknown(const ConfigSection& section, const QStringList& known)
    {
        for (const QString& key : m_document.keys(section)) {
            const bool scale = key.startsWith(kScalePrefix) && known.contains(kScaleKey);
            if (known.contains(key) || scale) // readScales() has more to say
                continue;
            const int line = m_document.line(section, key);
            if (kSecretKeys.contains(key))
                add(line, ConfigSeverity::Warning,
                    Tr::tr(
                        "%1 is not used: secrets do not belong in this file but in the keychain, "
                        "or in the file that [secrets] store = file stands for")
                        .arg(key));
            else
                add(line, ConfigSeverity::Warning,
                    Tr::tr("unknown key \"%1\"; it is not used. Known are %2")
                        .arg(key.left(kMaxName), known.join(QStringLiteral(", "))));
        }
    }

    static QString nameFault(const QString& name)
    {
        if (name.isEmpty())
            return Tr::tr("a device or operator needs a name, as in [device \"Rack 3\"]");
        if (name.size() > kMaxName)
            return Tr::tr("the name is longer than %1 characters").arg(kMaxName);
        if (hasControlCharacters(name))
            return Tr::tr("the name holds control characters");
        if (name.trimmed() != name)
            return Tr::tr("the name starts or ends with a blank");
        return {};
    }

    void readDevice(const ConfigSection& section)
    {
        const int line = m_document.line(section);
        DeviceSettings device;
        device.name = section.name;
        device.pollInterval = m_config.m_settings.pollInterval;
        numbers(section, kDeviceNumbers, device);
        readDeviceTexts(section, device);
        readScales(section, device);
        warnOfUnknown(section, deviceKeys());

        const std::optional<QString> address = m_document.value(section, kAddress);
        if (!address) {
            add(line, ConfigSeverity::Error, Tr::tr("the device has no address; it is left out"));
            return;
        }
        const ParsedAddress parsed = parseDeviceAddress(*address);
        if (!parsed.address) {
            add(m_document.line(section, kAddress), ConfigSeverity::Error,
                Tr::tr("%1; the device is left out").arg(parsed.error));
            return;
        }
        device.address = *parsed.address;
        m_config.m_devices += device;
    }

    static QStringList deviceKeys()
    {
        QStringList known{kAddress, kUser};
        for (const auto& row : kDeviceNumbers)
            known += QLatin1String(row.key);
        return known << kWholeUps << kSeed << kScaleKey;
    }

    void readDeviceTexts(const ConfigSection& section, DeviceSettings& device)
    {
        const auto error = [&](const QString& key, const QString& text) {
            add(m_document.line(section, key), ConfigSeverity::Error, text);
        };
        const QString user = m_document.value(section, kUser).value_or(QString());
        if (user.size() > kMaxUser || hasControlCharacters(user))
            error(kUser,
                  Tr::tr("user is a text of at most %1 characters; none is used").arg(kMaxUser));
        else
            device.user = user;

        if (const auto text = m_document.value(section, kWholeUps)) {
            const std::optional<bool> on = parseSwitch(*text);
            device.shutdownWholeUps = on.value_or(device.shutdownWholeUps);
            if (!on)
                error(kWholeUps, Tr::tr("%1 is yes or no; no is used").arg(kWholeUps));
        }
        if (const auto text = m_document.value(section, kSeed)) {
            bool ok = false;
            const int seed = text->toInt(&ok);
            if (ok && seed >= 0)
                device.seed = static_cast<quint32>(seed);
            else
                error(kSeed, Tr::tr("seed is a whole number from 0 to 2147483647; %1 is used")
                                 .arg(device.seed));
        }
    }

    void readScales(const ConfigSection& section, DeviceSettings& device)
    {
        const QStringList names = scaleNames();
        for (const QString& key : m_document.keys(section)) {
            if (!key.startsWith(kScalePrefix))
                continue;
            const QString name = key.mid(kScalePrefix.size());
            const int line = m_document.line(section, key);
            bool ok = false;
            const double factor = m_document.value(section, key)->toDouble(&ok);
            if (!names.contains(name))
                add(line, ConfigSeverity::Warning,
                    Tr::tr("unknown quantity \"%1\"; it is not used. Known are %2")
                        .arg(name.left(kMaxName), names.join(QStringLiteral(", "))));
            else if (!ok || !isScaleFactor(factor))
                add(line, ConfigSeverity::Error,
                    Tr::tr("%1 is a factor above 0, as 0.1; 1 is used").arg(key));
            else
                device.scales.insert(name, factor);
        }
    }

    void readOperator(const ConfigSection& section)
    {
        warnOfUnknown(section, {kLevel, kHash});
        OperatorAccount account;
        account.name = section.name;
        account.hash = m_document.value(section, kHash).value_or(QString());
        numbers(section, kOperatorNumbers, account);
        if (!m_document.value(section, kLevel))
            add(m_document.line(section), ConfigSeverity::Error,
                Tr::tr("the operator has no level; 0 is used"));
        if (isPasswordHash(account.hash))
            m_config.m_operators += account;
        else
            add(std::max(m_document.line(section), m_document.line(section, kHash)),
                ConfigSeverity::Error,
                Tr::tr("no valid hash; the operator is left out. Set the password with upsdesk "
                       "add-operator"));
    }

    DeskConfig& m_config;
    const ConfigDocument& m_document;
};

QString DeskConfig::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/upsdesk/upsdesk.conf");
}

DeskConfig::Range DeskConfig::deviceRange(const QString& key)
{
    for (const auto& row : kDeviceNumbers)
        if (key == QLatin1String(row.key))
            return {row.minimum, row.maximum, QString::fromUtf8(row.unit)};
    return {};
}

DeskConfig DeskConfig::load(const QString& path)
{
    DeskConfig config(ConfigDocument::load(path, kNewFile));
    if (!isPrivateFile(path))
        config.m_faults.prepend(
            {0, ConfigSeverity::Warning,
             Tr::tr("others may read or write %1, and it holds password hashes; "
                    "chmod 600 ends that")
                 .arg(path)});
    return config;
}

DeskConfig::DeskConfig(const ConfigDocument& document)
    : m_document(document)
{
    evaluate();
    for (const ConfigFault& fault : qAsConst(m_faults))
        if (fault.severity == ConfigSeverity::Error)
            m_errorsAsLoaded += fault;
}

void DeskConfig::evaluate()
{
    m_settings = {};
    m_devices.clear();
    m_operators.clear();
    m_faults = m_document.faults();
    Reader(*this).read();
    std::stable_sort(m_faults.begin(), m_faults.end(),
                     [](const ConfigFault& a, const ConfigFault& b) { return a.line < b.line; });
}

int DeskConfig::deviceIndex(const QString& name) const
{
    for (int i = 0; i < m_devices.size(); ++i)
        if (m_devices.at(i).name == name)
            return i;
    return -1;
}

QString DeskConfig::edit(const std::function<void(ConfigDocument&)>& change)
{
    DeskConfig candidate(*this);
    change(candidate.m_document);
    candidate.evaluate();
    QStringList known; // by text: the edit moves lines
    for (const ConfigFault& fault : qAsConst(m_faults))
        known += fault.text;
    for (const ConfigFault& fault : qAsConst(candidate.m_faults))
        if (fault.severity == ConfigSeverity::Error && !known.removeOne(fault.text))
            return fault.text;
    *this = candidate;
    return {};
}

QString DeskConfig::setSettings(const DeskSettings& settings)
{
    return edit([&](ConfigDocument& document) {
        writeNumbers(document, {}, kDeskNumbers, settings, m_settings);
        writeNumbers(document, {}, kThresholdNumbers, settings.thresholds, m_settings.thresholds);
        for (const StoreName& store : kStoreNames)
            if (settings.secrets == store.choice && settings.secrets != m_settings.secrets)
                document.setValue(kSecrets, kStore, QLatin1String(store.name));
    });
}

void DeskConfig::writeDevice(ConfigDocument& document, const DeviceSettings& device) const
{
    const ConfigSection section{kDevice, device.name};
    DeviceSettings inForce;
    inForce.pollInterval = m_settings.pollInterval;
    if (document.contains(section)) {
        const DeskConfig current(document);
        inForce = current.m_devices.value(current.deviceIndex(device.name), inForce);
    }
    document.setValue(section, kAddress, device.address.text);
    if (device.user.isEmpty())
        document.removeValue(section, kUser);
    else
        document.setValue(section, kUser, device.user);
    writeNumbers(document, section, kDeviceNumbers, device, inForce);
    if (device.shutdownWholeUps != inForce.shutdownWholeUps)
        document.setValue(section, kWholeUps,
                          QLatin1String(device.shutdownWholeUps ? "yes" : "no"));
    if (device.seed != inForce.seed)
        document.setValue(section, kSeed, QString::number(device.seed));
    for (const QString& name : inForce.scales.keys())
        if (!device.scales.contains(name))
            document.removeValue(section, kScalePrefix + name);
    for (auto it = device.scales.cbegin(); it != device.scales.cend(); ++it)
        if (!inForce.scales.contains(it.key()) || inForce.scales.value(it.key()) != it.value())
            document.setValue(section, kScalePrefix + it.key(), factorText(it.value()));
}

QString DeskConfig::addDevice(const DeviceSettings& device)
{
    if (m_document.contains({kDevice, device.name}))
        return Tr::tr("there is a device \"%1\" already").arg(device.name);
    return edit([&](ConfigDocument& document) { writeDevice(document, device); });
}

QString DeskConfig::changeDevice(const QString& name, const DeviceSettings& device)
{
    if (deviceIndex(name) < 0)
        return Tr::tr("there is no device \"%1\"").arg(name);
    if (device.name != name && m_document.contains({kDevice, device.name}))
        return Tr::tr("there is a device \"%1\" already").arg(device.name);
    return edit([&](ConfigDocument& document) {
        document.renameSection({kDevice, name}, device.name);
        writeDevice(document, device);
    });
}

QString DeskConfig::removeDevice(const QString& name)
{
    if (deviceIndex(name) < 0)
        return Tr::tr("there is no device \"%1\"").arg(name);
    return edit([&](ConfigDocument& document) { document.removeSection({kDevice, name}); });
}

QString DeskConfig::moveDevice(int from, int to)
{
    if (from < 0 || from >= m_devices.size() || to < 0 || to >= m_devices.size())
        return Tr::tr("there is no such place in the list of devices");
    QStringList names;
    for (const DeviceSettings& device : qAsConst(m_devices))
        names += device.name;
    names.move(from, to);
    return edit([&](ConfigDocument& document) { document.reorderSections(kDevice, names); });
}

QString DeskConfig::putOperator(const OperatorAccount& account)
{
    const ConfigSection section{kOperator, account.name};
    return edit([&](ConfigDocument& document) {
        document.setValue(section, kLevel, QString::number(account.level));
        document.setValue(section, kHash, account.hash);
    });
}

QString DeskConfig::removeOperator(const QString& name)
{
    if (!m_document.contains({kOperator, name}))
        return Tr::tr("there is no operator \"%1\"").arg(name);
    return edit([&](ConfigDocument& document) { document.removeSection({kOperator, name}); });
}

QString DeskConfig::save()
{
    for (const ConfigFaults& faults : {m_errorsAsLoaded, m_faults})
        for (const ConfigFault& fault : faults)
            if (fault.severity == ConfigSeverity::Error)
                return Tr::tr(
                           "%1 is not written because it has faults (line %2: %3); mend it with a "
                           "text editor first")
                    .arg(path())
                    .arg(fault.line)
                    .arg(fault.text);
    return m_document.save();
}
