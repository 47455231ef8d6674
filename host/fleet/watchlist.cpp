#include "fleet/watchlist.h"

#include "secrets/devicesecrets.h"

#include <algorithm>
#include <tuple>

namespace {

// Equal but for secrets, which are not in the file.
bool isSameInFile(const DeviceSettings& a, const DeviceSettings& b)
{
    const auto content = [](const DeviceSettings& d) {
        return std::tie(d.name, d.address.text, d.user, d.pollInterval, d.timeout, d.retries,
                        d.shutdownDelay, d.restartDuration, d.shutdownWholeUps, d.seed, d.scales);
    };
    return content(a) == content(b);
}

const DeviceSettings* findDevice(const QVector<DeviceSettings>& devices, const QString& name)
{
    const auto found =
        std::find_if(devices.begin(), devices.end(),
                     [&name](const DeviceSettings& device) { return device.name == name; });
    return found != devices.end() ? found : nullptr;
}

// A NUT server is polled without its account, and a refusal that the next moment mends is a false
// alarm.
qint64 holdMs(const DeviceSettings& device)
{
    const bool snmp = device.address.scheme == DeviceAddress::Scheme::Snmp;
    return snmp && lacksSecrets(device) ? WatchList::kSecretsPatienceMs : 0;
}

} // namespace

WatchList::WatchList(Fleet& fleet, const DeskConfig& config, std::unique_ptr<SecretStore> secrets,
                     QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_config(config)
    , m_secrets(std::move(secrets))
{
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this,
            [this](int index) { m_configured.remove(m_fleet.at(index)); });
}

WatchList::~WatchList() = default;

void WatchList::load()
{
    followFile();
}

Device* WatchList::find(const QString& name) const
{
    for (int i = 0; i < m_fleet.count(); ++i)
        if (isConfigured(m_fleet.at(i)) && m_fleet.at(i)->settings().name == name)
            return m_fleet.at(i);
    return nullptr;
}

// Changes

QString WatchList::add(const DeviceSettings& device)
{
    const QString reason = save([&](DeskConfig& config) { return config.addDevice(device); });
    if (!reason.isEmpty())
        return reason;
    keepSecrets({}, device);
    append(settingsOf(device.name, device));
    fetchSecrets();
    emit changed();
    return {};
}

QString WatchList::change(Device* device, const DeviceSettings& settings)
{
    const bool known = isConfigured(device);
    const DeviceSettings before = known ? device->settings() : DeviceSettings();
    const int place = configuredBefore(m_fleet.indexOf(device), device);
    const QString reason = save([&](DeskConfig& config) {
        if (known)
            return config.changeDevice(before.name, settings);
        const QString refusal = config.addDevice(settings);
        return refusal.isEmpty() ? config.moveDevice(config.devices().size() - 1, place) : refusal;
    });
    if (!reason.isEmpty())
        return reason;
    keepSecrets(before, settings);
    replace(device, settingsOf(settings.name, settings));
    fetchSecrets();
    emit changed();
    return {};
}

QString WatchList::remove(Device* device)
{
    if (isConfigured(device)) {
        const DeviceSettings before = device->settings();
        const QString reason =
            save([&](DeskConfig& config) { return config.removeDevice(before.name); });
        if (!reason.isEmpty())
            return reason;
        for (SecretPurpose purpose : neededSecrets(before))
            m_secrets->remove(secretKey(before.name, purpose), this,
                              [this](const SecretResult& result) { report(result); });
    }
    m_fleet.remove(m_fleet.indexOf(device));
    emit changed();
    return {};
}

QString WatchList::move(Device* device, int to)
{
    const int from = m_fleet.indexOf(device);
    if (to < 0 || to >= m_fleet.count())
        return tr("there is no such place in the list of devices");
    if (isConfigured(device)) {
        const int oldPlace = configuredBefore(from, device);
        const int newPlace = configuredBefore(to > from ? to + 1 : to, device);
        const QString reason = oldPlace == newPlace ? QString() : save([&](DeskConfig& config) {
            return config.moveDevice(oldPlace, newPlace);
        });
        if (!reason.isEmpty())
            return reason;
    }
    m_fleet.move(from, to);
    emit changed();
    return {};
}

QString WatchList::edit(const Edit& edit)
{
    const QString reason = save(edit);
    if (reason.isEmpty())
        followFile();
    return reason;
}

QString WatchList::save(const Edit& edit)
{
    DeskConfig edited = m_config;
    const QString refusal = edit(edited);
    if (!refusal.isEmpty())
        return refusal;
    const QString reason = edited.save();
    if (!reason.isEmpty())
        return readAgain(reason);
    m_config = edited;
    return {};
}

// Where another program has changed the file, its change stands and ours is to be repeated. A file
// that is gone or faulty now does not take the devices off the list.
QString WatchList::readAgain(const QString& reason)
{
    const DeskConfig onDisk = DeskConfig::load(m_config.path());
    if (onDisk.document().toBytes() == m_config.document().toBytes() ||
        (onDisk.document().isNew() && !m_config.document().isNew()))
        return reason;
    for (const ConfigFault& fault : onDisk.faults())
        if (fault.severity == ConfigSeverity::Error)
            return tr("%1 was changed by another program and has faults now (line %2: %3); mend it "
                      "with a text editor first")
                .arg(onDisk.path())
                .arg(fault.line)
                .arg(fault.text);
    m_config = onDisk;
    followFile();
    return tr("%1 was changed by another program and has been read again. Nothing else was "
              "changed; look at the devices and repeat the change")
        .arg(m_config.path());
}

// The fleet

DeviceSettings WatchList::settingsOf(const QString& name, const DeviceSettings& secretsFrom) const
{
    const DeviceSettings* inFile = findDevice(m_config.devices(), name);
    DeviceSettings settings = inFile ? *inFile : secretsFrom;
    for (SecretPurpose purpose : neededSecrets(settings))
        setDeviceSecret(settings, purpose, deviceSecret(secretsFrom, purpose));
    return settings;
}

int WatchList::configuredBefore(int index, const Device* except) const
{
    int number = 0;
    for (int i = 0; i < index; ++i)
        number += isConfigured(m_fleet.at(i)) && m_fleet.at(i) != except;
    return number;
}

void WatchList::append(const DeviceSettings& settings)
{
    m_configured.insert(m_fleet.add(settings, holdMs(settings)));
}

void WatchList::replace(Device* device, const DeviceSettings& settings)
{
    m_configured.insert(m_fleet.replace(m_fleet.indexOf(device), settings));
}

void WatchList::followFile()
{
    const QVector<DeviceSettings> devices = m_config.devices();
    for (int i = m_fleet.count() - 1; i >= 0; --i)
        if (isConfigured(m_fleet.at(i)) && !findDevice(devices, m_fleet.at(i)->settings().name))
            m_fleet.remove(i);
    for (const DeviceSettings& inFile : devices) {
        Device* device = find(inFile.name);
        if (!device) {
            DeviceSettings settings = inFile;
            applySecretOverrides(settings);
            append(settings);
        } else if (!isSameInFile(device->settings(), inFile)) {
            replace(device, settingsOf(inFile.name, device->settings()));
        }
    }
    orderAsInFile();
    fetchSecrets();
    emit changed();
}

void WatchList::orderAsInFile()
{
    int index = 0; // of the next place that a device of the file holds
    for (const DeviceSettings& inFile : m_config.devices()) {
        while (!isConfigured(m_fleet.at(index)))
            ++index;
        m_fleet.move(m_fleet.indexOf(find(inFile.name)), index++);
    }
}

// Secrets

void WatchList::fetchSecrets()
{
    QVector<DeviceSettings> lacking;
    for (int i = 0; i < m_fleet.count(); ++i)
        if (isConfigured(m_fleet.at(i)) && lacksSecrets(m_fleet.at(i)->settings()))
            lacking += m_fleet.at(i)->settings();
    if (lacking.isEmpty())
        return;
    readDeviceSecrets(*m_secrets, lacking, this,
                      [this](const QVector<DeviceSettings>& devices, const QString& message) {
                          takeSecrets(devices, message);
                      });
}

void WatchList::takeSecrets(const QVector<DeviceSettings>& devices, const QString& message)
{
    for (const DeviceSettings& given : devices) {
        Device* device = find(given.name);
        if (!device)
            continue;
        DeviceSettings settings = device->settings(); // may have been changed since
        bool better = false;
        for (SecretPurpose purpose : neededSecrets(settings)) {
            const QString secret = deviceSecret(given, purpose);
            if (secret.isEmpty() || !deviceSecret(settings, purpose).isEmpty())
                continue;
            setDeviceSecret(settings, purpose, secret);
            better = true;
        }
        if (better)
            replace(device, settings);
        else if (device->link() == LinkState::Connecting && !device->isPolling())
            m_fleet.pollNow(device); // it was held back for them
    }
    if (!message.isEmpty())
        emit secretsFailed(message);
}

// before: without a name where the file did not have the device.
void WatchList::keepSecrets(const DeviceSettings& before, const DeviceSettings& now)
{
    const auto needed = neededSecrets(now);
    const bool renamed = !before.name.isEmpty() && before.name != now.name;
    for (SecretPurpose purpose : needed) {
        const QString secret = deviceSecret(now, purpose);
        const QString key = secretKey(now.name, purpose);
        const QString oldKey = secretKey(before.name, purpose);
        if (!secret.isEmpty() && secret != deviceSecret(before, purpose))
            m_secrets->write(key, SecretText(secret), this,
                             [this, renamed, oldKey](const SecretResult& result) {
                                 report(result);
                                 if (renamed && result.status == SecretResult::Status::Done)
                                     m_secrets->remove(oldKey, this, [](const SecretResult&) {});
                             });
        else if (renamed)
            moveSecret(oldKey, key);
    }
    for (SecretPurpose purpose : neededSecrets(before))
        if (!needed.contains(purpose))
            m_secrets->remove(secretKey(before.name, purpose), this,
                              [this](const SecretResult& result) { report(result); });
}

// The old key goes only when the new one is there.
void WatchList::moveSecret(const QString& from, const QString& to)
{
    m_secrets->read(from, this, [this, from, to](const SecretResult& found) {
        report(found);
        if (found.status != SecretResult::Status::Done)
            return;
        m_secrets->write(to, found.secret, this, [this, from](const SecretResult& written) {
            report(written);
            if (written.status != SecretResult::Status::Done)
                return;
            m_secrets->remove(from, this, [](const SecretResult&) {});
            fetchSecrets(); // a first answer may still have been on its way under the old name
        });
    });
}

void WatchList::report(const SecretResult& result)
{
    if (result.status == SecretResult::Status::Failed)
        emit secretsFailed(tr("A secret was not kept: %1").arg(result.message));
}
