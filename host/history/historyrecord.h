#ifndef HISTORYRECORD_H
#define HISTORYRECORD_H

// What waits to be written: one sample, one change of the identity, or one step of an entry.
// May touch: journal entries, samples.

#include "history/journalentry.h"
#include "history/sample.h"

#include <QSharedPointer>

struct HistoryRecord {
    enum class Kind {
        Sample,     // data: encodeSample()
        Info,       // data: encodeInfo()
        Begin,      // entry: a new one
        End,        // entry: key, endMs, message (empty: as it was), lowestCharge
        Acknowledge // entry: key and the three fields of the acknowledgement
    };

    Kind kind = Kind::Sample;
    QString device; // name and shown address; empty for an entry that concerns no device
    QString address;
    qint64 timeMs = 0;
    QByteArray data;
    QSharedPointer<const JournalEntry> entry;

    bool isSample() const { return kind == Kind::Sample; }
};

// One step of the writer: written as a whole or not at all, and never twice.
struct HistoryBatch {
    QString writer;     // unique for a run of a desk
    quint64 number = 0; // rises with each batch of the writer
    QVector<HistoryRecord> records;
};

QByteArray encodeBatch(const HistoryBatch& batch);
bool decodeBatch(const QByteArray& bytes, HistoryBatch& batch);

#endif // HISTORYRECORD_H
