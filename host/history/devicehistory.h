#ifndef DEVICEHISTORY_H
#define DEVICEHISTORY_H

// All that the history page shows of one device and one stretch of time, by one question.
// May touch: the store's questions.

#include "history/historyqueries.h"

struct DeviceHistory {
    struct Wish {
        QString device; // name, or address as it may be shown
        QString site;   // empty: any
        TimeRange range;
        int mostRows = 1000;
        QVector<int> quantities; // indexes
    };
    static constexpr int kMostEntries = 2000; // of bands and of marks each, the newest

    bool isKnown = false;            // false: nothing was ever stored of the device
    std::optional<TimeRange> extent; // of all samples
    HistorySeries series;
    QVector<JournalEntry> bands; // outages, bypass, not reachable; newest first
    QVector<JournalEntry> marks; // what else happened to the device; newest first
    bool isCut = false;          // there were more entries

    static DeviceHistory read(HistoryQueries& store, const Wish& wish);
};

// Until when an entry lasted. What is still open is known to last until the last sample, not
// longer.
qint64 knownEnd(const JournalEntry& entry, const std::optional<TimeRange>& extent);

// Of an outage, %: what the journal says; while it lasts, the least of the rows that are there.
std::optional<double> lowestCharge(const JournalEntry& entry, const DeviceHistory& history);

// How long a device may be silent between two samples that are still neighbours, in ms: a poll or
// two may be missing.
qint64 longestStep(qint64 intervalMs);
// The same where the polls may have come at another interval when they were recorded.
qint64 longestStep(const HistorySeries& series, qint64 intervalMs);

// First and last row of each stretch in which that column (an index in quantities) has values
// without a gap.
QVector<QPair<int, int>> unbrokenRuns(const HistorySeries& series, int column,
                                      qint64 longestStepMs);

// The row that holds the time, or the last one before it that is not too old to speak for it.
std::optional<int> rowAt(const HistorySeries& series, qint64 timeMs, qint64 longestStepMs);

// Everything that is stored of the time, as "upsdesk export" prints it, into a file that is there
// as a whole or not at all. Returns what went wrong, in plain words; empty: nothing.
QString writeCsv(HistoryQueries& store, const DeviceHistory::Wish& wish, const QString& path);

#endif // DEVICEHISTORY_H
