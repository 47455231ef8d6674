#include "secrets/secretkeeper.h"

#include <algorithm>

using Action = SecretStore::Action;
using Status = SecretResult::Status;

namespace {

// All that the devices hold.
SecretStore::Errands writesOf(const QVector<DeviceSettings>& devices)
{
    SecretStore::Errands writes;
    for (const DeviceSettings& device : devices)
        for (SecretPurpose purpose : neededSecrets(device))
            if (const QString secret = deviceSecret(device, purpose); !secret.isEmpty())
                writes += {Action::Write, secretKey(device.name, purpose), SecretText(secret)};
    return writes;
}

} // namespace

SecretKeeper::SecretKeeper(Maker maker, SecretsChoice choice, QObject* parent)
    : QObject(parent)
    , m_maker(std::move(maker))
    , m_choice(choice)
    , m_store(m_maker(choice))
{}

SecretKeeper::~SecretKeeper() = default;

void SecretKeeper::fetch(const QVector<DeviceSettings>& devices)
{
    readDeviceSecrets(*m_store, devices, this,
                      [this](const QVector<DeviceSettings>& filled, const QString& message) {
                          emit fetched(filled);
                          if (!message.isEmpty())
                              emit failed(message);
                      });
}

void SecretKeeper::keep(const DeviceSettings& before, const DeviceSettings& now)
{
    const auto needed = neededSecrets(now);
    const bool otherName = !before.name.isEmpty() && before.name != now.name;
    SecretStore::Errands writes;
    SecretStore::Errands removals; // once the writes are done
    SecretStore::Errands reads;    // of what goes along to the new name
    QStringList newKeys;
    for (SecretPurpose purpose : needed) {
        const QString secret = deviceSecret(now, purpose);
        const QString key = secretKey(now.name, purpose);
        const QString oldKey = secretKey(before.name, purpose);
        if (!secret.isEmpty() && secret != deviceSecret(before, purpose)) {
            writes += {Action::Write, key, SecretText(secret)};
            if (otherName)
                removals += {Action::Remove, oldKey, {}};
        } else if (otherName) {
            reads += {Action::Read, oldKey, {}};
            newKeys += key;
        }
    }
    for (SecretPurpose purpose : neededSecrets(before))
        if (!needed.contains(purpose))
            removals += {Action::Remove, secretKey(before.name, purpose), {}};
    if (!writes.isEmpty() || !removals.isEmpty())
        m_store->run(writes, this, [this, removals](const Results& results) {
            if (report(results))
                runQuietly(removals);
        });
    if (!reads.isEmpty())
        rename(reads, newKeys);
}

void SecretKeeper::forget(const DeviceSettings& device)
{
    SecretStore::Errands removals;
    for (SecretPurpose purpose : neededSecrets(device))
        removals += {Action::Remove, secretKey(device.name, purpose), {}};
    if (!removals.isEmpty())
        m_store->run(removals, this, [this](const Results& results) { report(results); });
}

void SecretKeeper::use(SecretsChoice choice, const QVector<DeviceSettings>& devices)
{
    if (choice == m_choice)
        return;
    const std::shared_ptr<SecretStore> old = m_store;
    m_choice = choice;
    m_store = m_maker(choice);
    const SecretStore::Errands writes = writesOf(devices);
    if (writes.isEmpty())
        return;
    m_store->run(writes, this, [this, old, writes](const Results& results) {
        if (!report(results))
            return;
        SecretStore::Errands removals = writes;
        for (SecretStore::Errand& errand : removals)
            errand = {Action::Remove, errand.key, {}};
        // The callback holds the old store until it has answered.
        old->run(removals, this, [old](const Results&) {});
    });
}

// The old key goes only when the new one is there.
void SecretKeeper::rename(const SecretStore::Errands& reads, const QStringList& keys)
{
    m_store->run(reads, this, [this, reads, keys](const Results& found) {
        if (!report(found))
            return;
        SecretStore::Errands writes;
        SecretStore::Errands removals;
        for (int i = 0; i < found.size(); ++i) {
            if (found.at(i).status != Status::Done)
                continue;
            writes += {Action::Write, keys.at(i), found.at(i).secret};
            removals += {Action::Remove, reads.at(i).key, {}};
        }
        m_store->run(writes, this, [this, removals](const Results& written) {
            if (!report(written))
                return;
            runQuietly(removals);
            emit renamed();
        });
    });
}

void SecretKeeper::runQuietly(const SecretStore::Errands& errands)
{
    if (!errands.isEmpty())
        m_store->run(errands, this, [](const Results&) {});
}

// False where one failed.
bool SecretKeeper::report(const Results& results)
{
    const auto bad = std::find_if(results.begin(), results.end(), [](const SecretResult& result) {
        return result.status == Status::Failed;
    });
    if (bad != results.end())
        emit failed(tr("A secret was not kept: %1").arg(bad->message));
    return bad == results.end();
}
