#ifndef DATABASESITELOCK_H
#define DATABASESITELOCK_H

// The lock of a site in PostgreSQL: an advisory lock on a connection of its own, with a heartbeat.
// May touch: a connection to the store, the PostgreSQL client library, the boot clock, sockets.
//
// Never two on duty, whatever becomes of process, server and network:
//   - each heartbeat that was answered is good for kLeaseMs from the moment it was sent;
//   - a holder from which nothing comes for kExpiryMs loses its session to the server, also when
//     it was only stopped, so the next one comes later than the lease ends;
//   - while the server refuses connections, nobody can get the lock: who was on duty stays so, and
//     a new holder waits for kProbationMs, in which that one has noticed.

#include "collector/sitelock.h"
#include "history/historystore.h"

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>

class DatabaseSiteLock : public SiteLock
{
public:
    static constexpr int kBeatMs = 1000;
    static constexpr int kLeaseMs = 6000;
    static constexpr int kProbationMs = 7000;
    static constexpr int kExpiryMs = 10000;

    DatabaseSiteLock(const StoreAddress& store, const QString& site);
    ~DatabaseSiteLock() override;

    bool isOnDuty() const override;
    QString reason() const override;

private:
    void work();
    enum class Answer { Held, Taken, None };

    void beat();
    Answer ask();
    bool isServerDown() const;
    void setReason(const QString& reason);

    const QString m_site;
    std::unique_ptr<HistoryStore> m_store;
    std::unique_ptr<QThread> m_thread;

    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    bool m_isEnding = false;
    QString m_reason;

    // On the boot clock; the duty lasts from one to the other.
    std::atomic<qint64> m_fromMs{0};
    std::atomic<qint64> m_untilMs{0};
    bool m_isHolder = false; // the thread's own: had the lock at the last beat
};

#endif // DATABASESITELOCK_H
