#include "fleet/watchlist.h"

#include "secrets/devicesecrets.h"

#include <algorithm>
#include <tuple>

namespace {

// Equal but for secrets, which are not in the file.
bool isSameInFile(const DeviceSettings& a, const DeviceSettings& b)
{
    const auto content = [](const DeviceSettings& d) {
        return std::tie(d.name, d.address.text, d.group, d.user, d.tls, d.caFile, d.fingerprint,
                        d.pollInterval, d.timeout, d.retries, d.shutdownDelay, d.restartDuration,
                        d.shutdownWholeUps, d.seed, d.scales);
    };
    return content(a) == content(b);
}

// A NUT server is polled without its account, and a refusal that the next moment mends is a false
// alarm.
qint64 holdMs(const DeviceSettings& device)
{
    const bool snmp = device.address.scheme == DeviceAddress::Scheme::Snmp;
    return snmp && lacksSecrets(device) ? WatchList::kSecretsPatienceMs : 0;
}

// False where there are none to take.
bool takeLackingSecrets(DeviceSettings& settings, const DeviceSettings& given)
{
    bool better = false;
    for (SecretPurpose purpose : neededSecrets(settings)) {
        const QString secret = deviceSecret(given, purpose);
        if (secret.isEmpty() || !deviceSecret(settings, purpose).isEmpty())
            continue;
        setDeviceSecret(settings, purpose, secret);
        better = true;
    }
    return better;
}

} // namespace

WatchList::WatchList(Fleet& fleet, const DeskConfig& config, const SecretKeeper::Maker& makeStore,
                     QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_config(config)
    , m_operators(config.operators())
    , m_secrets(makeStore, config.settings().secrets)
{
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this, [this](int index) {
        if (isConfigured(m_fleet.at(index)))
            m_devices.remove(m_fleet.at(index)->settings().name);
    });
    connect(&m_secrets, &SecretKeeper::fetched, this, &WatchList::takeSecrets);
    connect(&m_secrets, &SecretKeeper::renamed, this, &WatchList::fetchSecrets);
    connect(&m_secrets, &SecretKeeper::failed, this, &WatchList::secretsFailed);
}

WatchList::~WatchList() = default;

void WatchList::load()
{
    follow(m_config);
}

bool WatchList::isConfigured(const Device* device) const
{
    return find(device->settings().name) == device;
}

// Changes

QString WatchList::add(const QVector<DeviceSettings>& devices)
{
    const QString reason = save([&](DeskConfig& config) {
        QString refusal;
        for (const DeviceSettings& device : devices)
            if (refusal.isEmpty())
                refusal = config.addDevice(device);
        return refusal;
    });
    if (!reason.isEmpty())
        return reason;
    for (const DeviceSettings& device : devices) {
        m_secrets.keep({}, device);
        append(settingsOf(device.name, device));
    }
    fetchSecrets();
    for (const DeviceSettings& device : devices)
        emit edited(device.name, tr("Device added"));
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
    const QString name = settings.name;
    m_secrets.keep(before, settings);
    replace(device, settingsOf(name, settings)); // ends the device, and settings that are its own
    fetchSecrets();
    emit edited(name, !known || before.name == name
                          ? tr("Device changed")
                          : tr("Device changed, was \"%1\"").arg(before.name));
    emit changed();
    return {};
}

QString WatchList::remove(Device* device)
{
    const QString name = device->name();
    if (const QString barrier = whyNot(); !barrier.isEmpty())
        return barrier;
    if (isConfigured(device)) {
        const DeviceSettings& before = device->settings();
        const QString reason =
            save([&](DeskConfig& config) { return config.removeDevice(before.name); });
        if (!reason.isEmpty())
            return reason;
        m_secrets.forget(before);
    }
    m_fleet.remove(m_fleet.indexOf(device));
    emit edited(name, tr("Device removed"));
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

QString WatchList::edit(const QString& what, const Edit& edit)
{
    const QString reason = save(edit);
    if (!reason.isEmpty())
        return reason;
    follow(m_config);
    emit edited({}, what);
    return {};
}

QString WatchList::save(const Edit& edit)
{
    if (const QString barrier = whyNot(); !barrier.isEmpty())
        return barrier;
    DeskConfig edited = m_config;
    const QString refusal = edit(edited);
    if (!refusal.isEmpty())
        return refusal;
    const QString reason = edited.save();
    if (!reason.isEmpty())
        return tellChange(reason);
    m_config = edited;
    return {};
}

void WatchList::readOperators()
{
    const FileStamp stamp = FileStamp::of(m_config.path());
    if (stamp == m_stamp)
        return;
    m_stamp = stamp;
    const DeskConfig onDisk = DeskConfig::load(m_config.path());
    if (!onDisk.document().isNew())
        m_operators = onDisk.operators();
}

// Where another program has changed the file, its change stands and ours is to be repeated. A file
// that is gone or faulty now does not take the devices off the list.
QString WatchList::tellChange(const QString& reason)
{
    const DeskConfig onDisk = DeskConfig::load(m_config.path());
    if (onDisk.document().toBytes() == m_config.document().toBytes() ||
        (onDisk.document().isNew() && !m_config.document().isNew()))
        return reason;
    if (const ConfigFault* fault = onDisk.firstError())
        return tr("%1 was changed by another program and has faults now (line %2: %3); mend it "
                  "with a text editor first")
            .arg(onDisk.path())
            .arg(fault->line)
            .arg(fault->text);
    follow(onDisk);
    return tr("%1 was changed by another program and has been read again. Nothing else was "
              "changed; look at the devices and repeat the change")
        .arg(m_config.path());
}

// The fleet

DeviceSettings WatchList::settingsOf(const QString& name, const DeviceSettings& secretsFrom) const
{
    const DeviceSettings* inFile = m_config.device(name);
    DeviceSettings settings = inFile ? *inFile : secretsFrom;
    for (SecretPurpose purpose : neededSecrets(settings))
        setDeviceSecret(settings, purpose, deviceSecret(secretsFrom, purpose));
    applySecretOverrides(settings);
    return settings;
}

int WatchList::configuredBefore(int index, const Device* except) const
{
    int count = 0;
    for (int i = 0; i < index; ++i)
        if (m_fleet.at(i) != except && isConfigured(m_fleet.at(i)))
            ++count;
    return count;
}

void WatchList::append(const DeviceSettings& settings)
{
    put(m_fleet.add(settings, holdMs(settings)));
}

void WatchList::replace(Device* device, const DeviceSettings& settings)
{
    put(m_fleet.replace(m_fleet.indexOf(device), settings));
}

void WatchList::put(Device* device)
{
    m_devices.insert(device->settings().name, device);
}

void WatchList::follow(const DeskConfig& config)
{
    m_config = config;
    m_operators = config.operators();
    if (!m_leavesDevices)
        followDevices();
    emit changed();
}

void WatchList::followDevices()
{
    for (int i = m_fleet.count() - 1; i >= 0; --i)
        if (isConfigured(m_fleet.at(i)) && !m_config.device(m_fleet.at(i)->settings().name))
            m_fleet.remove(i);
    for (const DeviceSettings& inFile : m_config.devices()) {
        Device* device = find(inFile.name);
        if (!device)
            append(settingsOf(inFile.name, inFile));
        else if (!isSameInFile(device->settings(), inFile))
            replace(device, settingsOf(inFile.name, device->settings()));
    }
    orderAsInFile();
    QVector<DeviceSettings> devices;
    for (const Device* device : qAsConst(m_devices))
        devices += device->settings();
    m_secrets.use(m_config.settings().secrets, devices);
    fetchSecrets();
}

void WatchList::orderAsInFile()
{
    int index = 0; // of the next place that a device of the file holds
    for (const DeviceSettings& inFile : m_config.devices()) {
        while (!isConfigured(m_fleet.at(index)))
            ++index;
        Device* device = find(inFile.name);
        if (m_fleet.at(index) != device)
            m_fleet.move(m_fleet.indexOf(device), index);
        ++index;
    }
}

// Secrets

void WatchList::fetchSecrets()
{
    QVector<DeviceSettings> lacking;
    for (int i = 0; i < m_fleet.count(); ++i)
        if (isConfigured(m_fleet.at(i)) && lacksSecrets(m_fleet.at(i)->settings()))
            lacking += m_fleet.at(i)->settings();
    if (!lacking.isEmpty())
        m_secrets.fetch(lacking);
}

void WatchList::takeSecrets(const QVector<DeviceSettings>& devices)
{
    for (const DeviceSettings& given : devices) {
        Device* device = find(given.name);
        if (!device)
            continue;
        DeviceSettings settings = device->settings(); // may have been changed since
        if (takeLackingSecrets(settings, given))
            replace(device, settings);
        else
            m_fleet.release(device);
    }
}
