#ifndef BATCHSTORE_H
#define BATCHSTORE_H

// Puts batches of records into the tables, each in one transaction and each once.
// May touch: the store.

#include "history/historyrecord.h"
#include "history/historystore.h"
#include "history/rollup.h"

#include <QHash>

class BatchStore
{
public:
    // The store is open for writing and outlives this.
    BatchStore(HistoryStore& store, const QString& site);

    // False: nothing of it is in, see the store's errorText(). A batch that is in already is done.
    bool write(const HistoryBatch& batch);
    Rollup& rollup() { return m_rollup; }

private:
    bool isWritten(const HistoryBatch& batch, bool& isIn);
    bool writeRecords(const HistoryBatch& batch);
    bool writeSamples(const QVector<HistoryRecord>& records);
    bool writeEntry(const HistoryRecord& record);
    bool beginEntry(const JournalEntry& entry, qint64 device);
    bool endEntry(const JournalEntry& entry);
    bool acknowledge(const JournalEntry& entry);
    bool noteProgress(const HistoryBatch& batch);
    qint64 deviceId(const QString& name, const QString& address); // 0: error
    qint64 freeTime(qint64 device, qint64 timeMs);                // -1: error

    HistoryStore& m_store;
    QString m_site;
    QHash<QString, StoredDevice> m_devices;
    QHash<qint64, qint64> m_newest; // time of the last sample of each device
    Rollup m_rollup;
};

#endif // BATCHSTORE_H
