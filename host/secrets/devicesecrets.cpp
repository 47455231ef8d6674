#include "secrets/devicesecrets.h"

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

namespace {

struct Wanted {
    int device;
    SecretPurpose purpose;
};

// Returns why one was not read; empty: all that there are were.
QString takeResults(const SecretStore::Results& results, const QVector<Wanted>& wanted,
                    QVector<DeviceSettings>& devices)
{
    QString message;
    for (int i = 0; i < results.size(); ++i)
        if (results.at(i).status == SecretResult::Status::Done)
            setDeviceSecret(devices[wanted.at(i).device], wanted.at(i).purpose,
                            results.at(i).secret.toString());
        else if (results.at(i).status == SecretResult::Status::Failed)
            message = results.at(i).message;
    return message;
}

} // namespace

void readDeviceSecrets(SecretStore& store, const QVector<DeviceSettings>& devices, QObject* context,
                       const SecretsReady& ready)
{
    QVector<DeviceSettings> filled = devices;
    QVector<Wanted> wanted;
    SecretStore::Errands errands;
    for (int i = 0; i < filled.size(); ++i) {
        DeviceSettings& device = filled[i];
        applySecretOverrides(device);
        for (SecretPurpose purpose : neededSecrets(device)) {
            if (device.name.isEmpty() || !deviceSecret(device, purpose).isEmpty())
                continue;
            wanted += {i, purpose};
            errands += {SecretStore::Action::Read, secretKey(device.name, purpose), {}};
        }
    }
    // Asks the store also where nothing is wanted, so that callers meet one order of events.
    store.run(errands, context, [=](const SecretStore::Results& results) {
        QVector<DeviceSettings> complete = filled;
        const QString message = takeResults(results, wanted, complete);
        ready(complete, message);
    });
}
