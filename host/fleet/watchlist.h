#ifndef WATCHLIST_H
#define WATCHLIST_H

// The watched devices as the configuration file, the secret store and the fleet agree on them.
// May touch: the configuration, the secret store, the fleet; no widget.

#include "config/deskconfig.h"
#include "fleet/fleet.h"
#include "private/privatefile.h"
#include "secrets/secretkeeper.h"

#include <QHash>

// Every change is written to the file first; where the file refuses, nothing else changes. The
// fleet may hold devices beside those of the file (from the command line): they stay where they
// are, and become devices of the file when they are changed.
class WatchList : public QObject
{
    Q_OBJECT

public:
    using Edit = std::function<QString(DeskConfig&)>;
    using Guard = std::function<QString()>;

    // The fleet must outlive the list. makeStore: of the secret store that the settings choose.
    WatchList(Fleet& fleet, const DeskConfig& config,
              const SecretKeeper::Maker& makeStore = SecretStore::make, QObject* parent = nullptr);
    ~WatchList() override;

    const DeskConfig& config() const { return m_config; }
    // As the file names them at this moment, also while it has faults; where it is gone, as they
    // were.
    const OperatorAccounts& operators() const { return m_operators; }
    // Reads operators() again where another program has changed the file. All else waits for the
    // next edit, so that no device changes under somebody's hands.
    void readOperators();

    // The fleet's devices come from elsewhere: those of the file are left alone.
    void leaveDevices() { m_leavesDevices = true; }

    // Asked at every change from the desk: why nothing may be changed now; empty: it may.
    void setGuard(const Guard& guard) { m_guard = guard; }

    // Adds the devices of the file to the fleet, at once. Secrets follow when the store answers;
    // until then, for at most kSecretsPatienceMs, an SNMPv3 agent is not asked without them.
    void load();
    static constexpr qint64 kSecretsPatienceMs = 10 * 1000;

    // Another configuration, as the file has it now: the fleet follows it.
    void follow(const DeskConfig& config);

    // The fleet's device for this name in the file, or null.
    Device* find(const QString& name) const { return m_devices.value(name); }
    bool isConfigured(const Device* device) const;

    // Each returns why it was refused; empty: done and saved. A file that was changed by another
    // program meanwhile is read again, the fleet follows it, and the reason says so.
    QString add(const DeviceSettings& device) { return add(QVector<DeviceSettings>{device}); }
    QString add(const QVector<DeviceSettings>& devices); // all or none, in one write
    // Replaces the device in the fleet, so that the pointer ends here; may rename it. The settings
    // may be those of the device itself.
    QString change(Device* device, const DeviceSettings& settings);
    QString remove(Device* device);
    QString move(Device* device, int to); // index in the fleet
    // Any other edit of the configuration, on the same terms. what: for the event list.
    QString edit(const QString& what, const Edit& edit);

signals:
    // The list or the configuration is another one; after the fleet's own signals.
    void changed();
    // Somebody at this desk has changed the configuration; device: empty where it concerns none.
    void edited(const QString& device, const QString& what);
    // Secrets could not be read or kept; plain text for the operator. Devices are watched without.
    void secretsFailed(const QString& message);

private:
    QString whyNot() const { return m_guard ? m_guard() : QString(); }
    QString save(const Edit& edit);
    QString tellChange(const QString& reason);
    void followDevices();
    void orderAsInFile();
    void append(const DeviceSettings& settings);
    void replace(Device* device, const DeviceSettings& settings);
    void put(Device* device);
    DeviceSettings settingsOf(const QString& name, const DeviceSettings& secretsFrom) const;
    int configuredBefore(int index, const Device* except) const;
    void fetchSecrets();
    void takeSecrets(const QVector<DeviceSettings>& devices);

    Fleet& m_fleet;
    DeskConfig m_config;
    OperatorAccounts m_operators;
    FileStamp m_stamp; // of the file that they were read from
    Guard m_guard;
    bool m_leavesDevices = false;
    SecretKeeper m_secrets;
    QHash<QString, Device*> m_devices; // of the file, by name
};

#endif // WATCHLIST_H
