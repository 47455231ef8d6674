#ifndef LIVEFEED_H
#define LIVEFEED_H

// What the collectors tell, from the shared store, in a thread of its own: nobody waits. Listens
// for notifications and asks at least once a second.
// May touch: the live table, the boot clock.

#include "history/livetable.h"

#include <QHash>
#include <QMutex>
#include <QObject>
#include <QThread>
#include <QTimer>

#include <atomic>

class PostgresStore;

struct LiveNews {
    QString fault; // empty: the store has answered; plain text
    QVector<LiveSite> sites;
    QVector<LiveDevice> devices; // that changed
};

class LiveFeed : public QObject
{
    Q_OBJECT

public:
    static constexpr int kPullMs = 1000; // longest pause between two questions

    explicit LiveFeed(const StoreAddress& address, QObject* parent = nullptr);
    ~LiveFeed() override;

    // The last news has been worked on; there is no other before.
    void goOn() { m_isTaken = true; }
    // Everything of the site is told again, as if nothing of it were known.
    void forget(const QString& site);

signals:
    void arrived(const LiveNews& news);

private:
    void work();
    void rest();
    LiveNews pull();
    QVector<LiveSite> changedSites(const QVector<LiveSite>& sites);
    void watch();

    std::unique_ptr<PostgresStore> m_store;
    std::unique_ptr<QThread> m_thread;
    QTimer m_watch;
    std::atomic<bool> m_isTaken{true};
    std::atomic<bool> m_isEnding{false};
    std::atomic<qint64> m_busySinceMs{0}; // boot clock; 0: waits for nobody
    QMutex m_mutex;
    QHash<QString, qint64> m_known; // number of each site
};

#endif // LIVEFEED_H
