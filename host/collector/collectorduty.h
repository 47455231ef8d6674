#ifndef COLLECTORDUTY_H
#define COLLECTORDUTY_H

// All that a collector does while it is on duty: polls, records, notifies, serves metrics. It
// begins with the object and ends with it.
// May touch: fleet, history, notify, metrics, the site lock, the service manager.

#include "collector/livewriter.h"
#include "collector/sitelock.h"
#include "fleet/eventlog.h"
#include "fleet/watchlist.h"
#include "history/deskhistory.h"
#include "metrics/metricsserver.h"
#include "notify/notifier.h"

class CollectorDuty : public QObject
{
    Q_OBJECT

public:
    // The lock must outlive it.
    CollectorDuty(const DeskConfig& config, const Fleet::ConnectorMaker& maker,
                  const SiteLock& lock);

    // Another configuration for the same store and site.
    void use(const DeskConfig& config);
    int deviceCount() const { return m_fleet.count(); }

private:
    void applySettings();
    void logJournal();

    Fleet m_fleet;
    EventLog m_log;
    WatchList m_list;
    Notifier m_notifier;
    MetricsServer m_metrics;
    DeskHistory m_history;
    std::unique_ptr<LiveWriter> m_live; // where viewers can read it
    QString m_listening;
};

#endif // COLLECTORDUTY_H
