#ifndef ROLLUP_H
#define ROLLUP_H

// Makes means of samples, and of means those of longer spans, in small steps.
// May touch: the store.
//
// A span is always made anew from all that the finer tier holds of it, so that doing it twice, or
// after a restart, or after the clock was set back, gives the same.

#include "history/historystore.h"
#include "history/sample.h"

#include <QHash>

#include <set>
#include <utility>

class Rollup
{
public:
    explicit Rollup(HistoryStore& store)
        : m_store(store)
    {}

    // Finds out what an earlier run left undone. False: see the store's errorText().
    bool resume();
    // The sample is in, or will be when the transaction is.
    void noteSample(qint64 device, qint64 timeMs);
    // Makes at most `most` spans of those that are over at that time (or all that are open, for an
    // end). Returns how many, -1 after an error; within a transaction of its own.
    int step(qint64 nowMs, int most);
    bool isIdle(qint64 nowMs) const;

private:
    using Span = std::pair<qint64, qint64>; // start, device

    bool resumeTier(int tier, qint64 device);
    bool make(int tier, const Span& span);
    bool gather(int tier, const Span& span, Bucket& bucket);
    bool uniteWithStored(int tier, const Span& span, Bucket& bucket);

    HistoryStore& m_store;
    std::array<std::set<Span>, kTierCount> m_due; // the first stays empty
    QHash<qint64, qint64> m_lastMinute;           // of each device: noted already
};

#endif // ROLLUP_H
