#ifndef COLLECTOR_H
#define COLLECTOR_H

// upsdesk without a window: waits for its turn among the collectors of its site, and does its duty
// as long as it has it.
// May touch: the configuration, the secret store, the site lock, the service manager.

#include "collector/collectorduty.h"

class Collector : public QObject
{
    Q_OBJECT

public:
    explicit Collector(Fleet::ConnectorMaker maker,
                       const QString& configPath = DeskConfig::defaultPath());
    ~Collector() override;

    // Why it cannot begin; empty: it has begun.
    QString start();
    // Reads the configuration again. One with faults is refused as a whole; what was goes on.
    void reload();

private:
    void open();
    void check();
    void tellState();

    const Fleet::ConnectorMaker m_maker;
    const QString m_configPath;
    DeskConfig m_config;
    StoreAddress m_store;
    std::unique_ptr<SecretStore> m_secrets;
    std::unique_ptr<SiteLock> m_lock; // null until the password is known
    std::unique_ptr<CollectorDuty> m_duty;
    QTimer m_timer;
    QString m_told; // as the service manager has it
};

#endif // COLLECTOR_H
