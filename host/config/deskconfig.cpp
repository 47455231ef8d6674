#include "config/deskconfig.h"

#include "private/privatefile.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <algorithm>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DeskConfig)
};

const char kNewFile[] =
    "# Configuration of upsdesk. A # starts a comment; upsdesk check-config says\n"
    "# what is wrong in here.\n";

bool isError(const ConfigFault& fault)
{
    return fault.severity == ConfigSeverity::Error;
}

QString noDevice(const QString& name)
{
    return Tr::tr("there is no device \"%1\"").arg(name);
}

QString deviceTwice(const QString& name)
{
    return Tr::tr("there is a device \"%1\" already").arg(name);
}

} // namespace

QString DeskConfig::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/upsdesk/upsdesk.conf");
}

DeskConfig DeskConfig::load(const QString& path)
{
    DeskConfig config(ConfigDocument::load(path, kNewFile));
    if (!isPrivateFile(path))
        config.m_content.faults.prepend(
            {0, ConfigSeverity::Warning,
             Tr::tr("others may read or write %1, and it holds password hashes; "
                    "chmod 600 ends that")
                 .arg(path)});
    return config;
}

DeskConfig::DeskConfig(const ConfigDocument& document)
    : m_document(document)
    , m_content(readConfig(document))
{
    std::copy_if(m_content.faults.cbegin(), m_content.faults.cend(),
                 std::back_inserter(m_errorsAsLoaded), isError);
}

const ConfigFault* DeskConfig::firstError() const
{
    for (const ConfigFaults* faults : {&m_errorsAsLoaded, &m_content.faults}) {
        const auto found = std::find_if(faults->cbegin(), faults->cend(), isError);
        if (found != faults->cend())
            return &*found;
    }
    return nullptr;
}

QString DeskConfig::edit(const std::function<void(ConfigDocument&)>& change)
{
    ConfigDocument document = m_document;
    change(document);
    const ConfigContent content = readConfig(document, m_content);
    QStringList known; // by text: the edit moves lines
    for (const ConfigFault& fault : qAsConst(m_content.faults))
        known += fault.text;
    for (const ConfigFault& fault : content.faults)
        if (isError(fault) && !known.removeOne(fault.text))
            return fault.text;
    m_document = document;
    m_content = content;
    return {};
}

QString DeskConfig::setSettings(const DeskSettings& settings)
{
    return edit(
        [&](ConfigDocument& document) { writeSettings(document, settings, m_content.settings); });
}

QString DeskConfig::addDevice(const DeviceSettings& device)
{
    if (m_document.contains(deviceSection(device.name)))
        return deviceTwice(device.name);
    return edit([&](ConfigDocument& document) {
        writeDevice(document, device, m_content.deviceDefaults());
    });
}

QString DeskConfig::changeDevice(const QString& name, const DeviceSettings& device)
{
    const DeviceSettings* inForce = m_content.device(name);
    if (!inForce)
        return noDevice(name);
    if (device.name != name && m_document.contains(deviceSection(device.name)))
        return deviceTwice(device.name);
    return edit([&](ConfigDocument& document) {
        document.renameSection(deviceSection(name), device.name);
        writeDevice(document, device, *inForce);
    });
}

QString DeskConfig::removeDevice(const QString& name)
{
    if (!m_content.device(name))
        return noDevice(name);
    return edit([&](ConfigDocument& document) { document.removeSection(deviceSection(name)); });
}

QString DeskConfig::moveDevice(int from, int to)
{
    const QVector<DeviceSettings>& all = devices();
    if (from < 0 || from >= all.size() || to < 0 || to >= all.size())
        return Tr::tr("there is no such place in the list of devices");
    QStringList names;
    for (const DeviceSettings& device : all)
        names += device.name;
    names.move(from, to);
    return edit(
        [&](ConfigDocument& document) { document.reorderSections(deviceSection({}).type, names); });
}

QString DeskConfig::putOperator(const OperatorAccount& account)
{
    return edit([&](ConfigDocument& document) { writeOperator(document, account); });
}

QString DeskConfig::removeOperator(const QString& name)
{
    const ConfigSection section = operatorSection(name);
    if (!m_document.contains(section))
        return Tr::tr("there is no operator \"%1\"").arg(name);
    return edit([&](ConfigDocument& document) { document.removeSection(section); });
}

QString DeskConfig::save()
{
    if (const ConfigFault* fault = firstError())
        return Tr::tr("%1 is not written because it has faults (line %2: %3); mend it with a text "
                      "editor first")
            .arg(path())
            .arg(fault->line)
            .arg(fault->text);
    return m_document.save();
}
