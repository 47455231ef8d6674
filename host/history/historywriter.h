#ifndef HISTORYWRITER_H
#define HISTORYWRITER_H

// Takes samples and journal entries and sees to it that they get into the store, in a thread of
// its own: none of its functions waits for the database or the disk, but stop().
// May touch: the store, the spool and the boot clock.

#include "history/historyspool.h"
#include "history/historystore.h"

#include <QMutex>
#include <QObject>
#include <QTimer>
#include <QWaitCondition>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>

class BatchStore;
class QThread;

struct HistoryWriterOptions {
    StoreAddress store;
    QString site; // which of several collectors this one is; "" for a desk of its own
    TierLengths keep{kMsPerDay, 30 * kMsPerDay, 3 * 365 * kMsPerDay, 3 * 365 * kMsPerDay};
    QString spoolFolder = HistorySpool::defaultFolder();
    // Whether the store may be written at this moment; from the writer's thread. What comes while
    // it may not waits as while the store is gone. Null: always.
    std::function<bool()> mayWrite;
    // Makes means of samples and forgets what is old; not where others write the samples.
    bool keepsHouse = true;
    int mostSamples = 400000; // that wait in memory; the oldest go first
    int retryMs = 3000;       // between tries to reach a store that failed
    int commitMs = 250;       // longest time that a record waits for others to join it
};

class HistoryWriter : public QObject
{
    Q_OBJECT

public:
    explicit HistoryWriter(const HistoryWriterOptions& options, QObject* parent = nullptr);
    ~HistoryWriter() override; // stops

    void start();
    // Writes what waits, or spools it where the store does not take it, and ends the thread.
    void stop();

    void addSample(const QString& device, const QString& address, const Sample& sample);
    // What changes rarely: call it when it has changed.
    void addInfo(const QString& device, const QString& address, qint64 timeMs,
                 const UpsReading& reading);
    // A new entry; its key must be set, its site is that of the options. address: of its device.
    void begin(const JournalEntry& entry, const QString& address = {});
    // An entry that lasted is over, or a command has its outcome. message: replaces the entry's own
    // unless empty. atLeast: it turned out to be that severe.
    void end(const QString& key, qint64 endMs, const QString& message = {},
             std::optional<double> lowestCharge = {}, Urgency atLeast = Urgency::Normal);
    void acknowledge(const QString& key, const QString& operatorName, qint64 timeMs,
                     const QString& note);

    const HistoryWriterOptions& options() const { return m_options; }
    int waiting() const;                           // records in memory
    quint64 written() const { return m_written; }  // records that are in the store
    quint64 lostSamples() const { return m_lost; } // for want of memory
    bool isFaulty() const { return m_isFaulty; }

signals:
    // The store does not take anything now; why, and what is done meanwhile. Plain text. Again only
    // when the reason is another one.
    void storeFault(const QString& text);
    // It does again, and what waited is in.
    void storeRecovered(const QString& text);
    // After each commit; for who shows what is stored.
    void committed();

private:
    void add(HistoryRecord record);
    void work();
    bool waitForWork(); // false: to stop
    QVector<HistoryRecord> takeWaiting(bool withSamples);
    void step();
    void finish();
    bool isReady();
    bool openStore();
    bool replaySpool();
    void writeOrPark(QVector<HistoryRecord> records);
    void park(HistoryBatch batch);
    void putBack(const QVector<HistoryRecord>& records);
    void maintain();
    void forgetOld(qint64 nowMs);
    void tellFault(const QString& text);
    void tellRecovered();
    void watchStore();

    const HistoryWriterOptions m_options;
    QThread* m_thread = nullptr;

    mutable QMutex m_mutex;
    QWaitCondition m_wake;
    std::deque<HistoryRecord> m_samples;
    std::deque<HistoryRecord> m_entries; // and what else is no sample
    bool m_isStopping = false;

    std::atomic<quint64> m_written{0};
    std::atomic<quint64> m_lost{0};
    std::atomic<bool> m_isFaulty{false};
    std::atomic<qint64> m_busySinceMs{0}; // boot clock; 0: the thread waits for nobody
    QTimer m_watch;

    // The thread's own.
    std::unique_ptr<HistoryStore> m_store;
    std::unique_ptr<BatchStore> m_batches;
    std::unique_ptr<HistorySpool> m_spool;
    QString m_writer;
    bool m_spoolsSamples;
    quint64 m_number = 0;
    qint64 m_nextTryMs = 0; // boot clock
    QString m_faultText;
    quint64 m_lostBefore = 0; // when the fault began
    qint64 m_forgetAtMs = 0;  // boot clock
    int m_forgetTier = 0;
    qint64 m_clockOffsetMs = 0; // wall clock ahead of the boot clock
};

#endif // HISTORYWRITER_H
