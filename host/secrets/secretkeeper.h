#ifndef SECRETKEEPER_H
#define SECRETKEEPER_H

// The secrets' errands of a list of devices: fetched, kept, renamed, forgotten, taken along to
// another store.
// May touch: Qt Core, the secrets of devices, the secret store.

#include "secrets/devicesecrets.h"

class SecretKeeper : public QObject
{
    Q_OBJECT

public:
    using Maker = std::function<std::unique_ptr<SecretStore>(SecretsChoice)>;

    SecretKeeper(Maker maker, SecretsChoice choice, QObject* parent = nullptr);
    ~SecretKeeper() override;

    // Ends with fetched().
    void fetch(const QVector<DeviceSettings>& devices);
    // What changed between the two is written, or stands under the new name. before: without a name
    // where the device is new.
    void keep(const DeviceSettings& before, const DeviceSettings& now);
    void forget(const DeviceSettings& device);
    // Another store from now on, with the secrets of `devices` in it; the old one loses those that
    // have arrived. The store in use: nothing happens.
    void use(SecretsChoice choice, const QVector<DeviceSettings>& devices);

signals:
    // The devices with their secrets, as far as these are known.
    void fetched(const QVector<DeviceSettings>& devices);
    // Secrets stand under another name now; what was fetched before may lack them.
    void renamed();
    // Plain text for the operator.
    void failed(const QString& message);

private:
    using Results = SecretStore::Results;

    bool report(const Results& results);
    void runQuietly(const SecretStore::Errands& errands);
    void rename(const SecretStore::Errands& reads, const QStringList& keys);

    const Maker m_maker;
    SecretsChoice m_choice;
    std::shared_ptr<SecretStore> m_store;
};

#endif // SECRETKEEPER_H
