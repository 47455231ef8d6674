#ifndef LIVEWRITER_H
#define LIVEWRITER_H

// Tells the viewers what is so of the collector's devices now: through a table of the shared store,
// in a thread of its own. Only the latest of each device counts, so nothing is ever queued.
// May touch: the fleet, the live table, the boot clock.

#include "fleet/fleet.h"
#include "history/livetable.h"

#include <QHash>
#include <QMutex>
#include <QSet>
#include <QThread>
#include <QWaitCondition>

#include <atomic>

class LiveWriter : public QObject
{
public:
    // mayWrite: from any thread, asked before each write. The fleet must outlive it.
    LiveWriter(Fleet& fleet, const StoreAddress& store, const QString& site,
               std::function<bool()> mayWrite);
    ~LiveWriter() override;

private:
    void gather();
    LiveDevice liveOf(int place, bool withFacts);
    void work();
    bool writeOnce();

    Fleet& m_fleet;
    const QString m_site;
    const std::function<bool()> m_mayWrite;

    QSet<const Device*> m_dirty;
    QHash<QString, QByteArray> m_told; // settings and identity, by name
    QTimer m_timer;

    QMutex m_mutex;
    QWaitCondition m_wake;
    QHash<QString, LiveDevice> m_waiting; // by name
    bool m_isAll = false;                 // m_waiting is the whole list
    bool m_isEnding = false;

    std::atomic<bool> m_wantsAll{true};
    std::atomic<qint64> m_busySinceMs{0}; // boot clock; 0: waits for nobody
    std::unique_ptr<HistoryStore> m_store;
    std::unique_ptr<QThread> m_thread;
};

#endif // LIVEWRITER_H
