#include "secrets/devicesecrets.h"

#include <QPointer>

#include <algorithm>

namespace {

using Scheme = DeviceAddress::Scheme;

struct Purpose {
    SecretPurpose purpose;
    const char* key;
    const char* variable;
    QString DeviceSettings::*field;
};

constexpr Purpose kPurposes[] = {
    {SecretPurpose::NutPassword, "nut", "UPSDESK_NUT_SECRET", &DeviceSettings::secret},
    {SecretPurpose::SnmpAuthentication, "auth", "UPSDESK_AUTH_SECRET", &DeviceSettings::authSecret},
    {SecretPurpose::SnmpPrivacy, "priv", "UPSDESK_PRIV_SECRET", &DeviceSettings::privSecret},
};

const Purpose& row(SecretPurpose purpose)
{
    return kPurposes[static_cast<int>(purpose)];
}

// One run over all devices: asks for one secret after the other, so that a keychain that is locked
// asks its own password once.
struct Reading {
    QPointer<SecretStore> store;
    QObject* context;
    SecretsReady ready;
    QVector<DeviceSettings> devices;
    struct Wanted {
        int device;
        SecretPurpose purpose;
    };
    QVector<Wanted> wanted;
};

void readNext(const std::shared_ptr<Reading>& reading)
{
    if (reading->wanted.isEmpty()) {
        reading->ready(reading->devices, {});
        return;
    }
    if (!reading->store)
        return;
    const Reading::Wanted wanted = reading->wanted.takeFirst();
    const QString key = secretKey(reading->devices.at(wanted.device).name, wanted.purpose);
    reading->store->read(key, reading->context, [reading, wanted](const SecretResult& result) {
        if (result.status == SecretResult::Status::Failed) {
            // The next one would fail for the same reason, perhaps after another time limit.
            reading->ready(reading->devices, result.message);
            return;
        }
        if (result.status == SecretResult::Status::Done)
            reading->devices[wanted.device].*row(wanted.purpose).field = result.secret.toString();
        readNext(reading);
    });
}

} // namespace

QVector<SecretPurpose> neededSecrets(const DeviceSettings& device)
{
    const DeviceAddress& address = device.address;
    if (address.scheme == Scheme::Nut && !device.user.isEmpty())
        return {SecretPurpose::NutPassword};
    if (address.scheme != Scheme::Snmp || address.snmpVersion != 3)
        return {};
    if (address.securityLevel == QLatin1String("authPriv"))
        return {SecretPurpose::SnmpAuthentication, SecretPurpose::SnmpPrivacy};
    if (address.securityLevel == QLatin1String("authNoPriv"))
        return {SecretPurpose::SnmpAuthentication};
    return {};
}

QString deviceSecret(const DeviceSettings& device, SecretPurpose purpose)
{
    return device.*row(purpose).field;
}

void setDeviceSecret(DeviceSettings& device, SecretPurpose purpose, const QString& secret)
{
    device.*row(purpose).field = secret;
}

bool lacksSecrets(const DeviceSettings& device)
{
    const auto needed = neededSecrets(device);
    return std::any_of(needed.begin(), needed.end(), [&device](SecretPurpose purpose) {
        return deviceSecret(device, purpose).isEmpty();
    });
}

QString secretKey(const QString& deviceName, SecretPurpose purpose)
{
    return QStringLiteral("device/%1/%2").arg(deviceName, QLatin1String(row(purpose).key));
}

void applySecretOverrides(DeviceSettings& device)
{
    for (SecretPurpose purpose : neededSecrets(device)) {
        const QString value = qEnvironmentVariable(row(purpose).variable);
        if (!value.isEmpty())
            device.*row(purpose).field = value;
    }
}

void readDeviceSecrets(SecretStore& store, const QVector<DeviceSettings>& devices, QObject* context,
                       const SecretsReady& ready)
{
    const auto reading = std::make_shared<Reading>();
    *reading = {&store, context, ready, devices, {}};
    for (int i = 0; i < reading->devices.size(); ++i) {
        DeviceSettings& device = reading->devices[i];
        applySecretOverrides(device);
        for (SecretPurpose purpose : neededSecrets(device))
            if (!device.name.isEmpty() && (device.*row(purpose).field).isEmpty())
                reading->wanted += {i, purpose};
    }
    // Later also where nothing is wanted, so that callers meet one order of events.
    QMetaObject::invokeMethod(
        context, [reading] { readNext(reading); }, Qt::QueuedConnection);
}
