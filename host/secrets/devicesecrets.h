#ifndef DEVICESECRETS_H
#define DEVICESECRETS_H

// Which secrets a device needs, and where they come from.
// May touch: device settings, the secret store, the environment.

#include "connectors/devicesettings.h"
#include "secrets/secretstore.h"

enum class SecretPurpose { NutPassword, SnmpAuthentication, SnmpPrivacy };

// What the address asks for: the password of a NUT account (where the device has a user), and the
// keys of SNMPv3 as far as its security level uses them.
QVector<SecretPurpose> neededSecrets(const DeviceSettings& device);

QString deviceSecret(const DeviceSettings& device, SecretPurpose purpose);
void setDeviceSecret(DeviceSettings& device, SecretPurpose purpose, const QString& secret);
// Whether one that it needs is empty.
bool lacksSecrets(const DeviceSettings& device);

// Key of the store. A device that is renamed keeps its secrets only if they are moved.
QString secretKey(const QString& deviceName, SecretPurpose purpose);

// Fills in what the environment gives: UPSDESK_NUT_SECRET, UPSDESK_AUTH_SECRET and
// UPSDESK_PRIV_SECRET, for what the device needs.
void applySecretOverrides(DeviceSettings& device);

// Calls back once, with the secrets of all `devices` filled in as far as they are known; the
// environment comes before the store. `message` is empty or says why the store could not be read.
// A device without a name of its own gets secrets of the environment only.
using SecretsReady =
    std::function<void(const QVector<DeviceSettings>& devices, const QString& message)>;
void readDeviceSecrets(SecretStore& store, const QVector<DeviceSettings>& devices, QObject* context,
                       const SecretsReady& ready);

#endif // DEVICESECRETS_H
