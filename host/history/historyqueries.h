#ifndef HISTORYQUERIES_H
#define HISTORYQUERIES_H

// Questions to the store. They may take a while: the window asks them through HistoryReader.
// May touch: the store.

#include "history/historystore.h"
#include "history/journalentry.h"
#include "history/sample.h"

#include <functional>

// A stretch of time of one device, in grains that fit the question. Columns stand by index.
struct HistorySeries {
    qint64 fromMs = 0;
    qint64 toMs = 0;
    QVector<int> quantities; // as asked

    // One row each, ascending. A row covers [timeMs, timeMs + spanMs); a full sample has span 0.
    // Where there is no row, nothing was recorded.
    QVector<qint64> timeMs;
    QVector<qint64> spanMs;
    QVector<SpanState> state;
    QVector<QVector<ValueRange>> values; // [index in quantities][row]
};

// A full sample as it was, with identity and ratings, or the mean of a span: what a page needs for
// a replay.
struct StoredReading {
    qint64 timeMs = 0;
    LinkState link = LinkState::Connecting;
    UpsReading reading;
    qint64 spanMs = 0; // 0: a full sample
};

struct Outage {
    qint64 onsetMs = 0;
    std::optional<qint64> endMs; // none: still on battery
    std::optional<double> lowestCharge;
};

struct TimeRange {
    qint64 fromMs = 0;
    qint64 toMs = 0; // exclusive
};

// One object for one question: after an error the answer is not complete and errorText() says why.
class HistoryQueries
{
public:
    explicit HistoryQueries(HistoryStore& store)
        : m_store(store)
    {}

    QString errorText() const { return m_failed ? m_store.errorText() : QString(); }

    QVector<StoredDevice> devices();
    // By name, "SITE/NAME", or address as it may be shown; the site matters where it is not empty.
    std::optional<StoredDevice> device(const QString& nameOrAddress, const QString& site = {});

    // About mostRows rows at most (twice that at the seams of the tiers).
    HistorySeries series(qint64 device, TimeRange range, int mostRows, const QVector<int>& wanted);
    // All that is stored of the time, each moment in its finest tier; oldest first. The function
    // returns false to end it. span 0: a full sample.
    void
    forEach(qint64 device, TimeRange range,
            const std::function<bool(qint64 timeMs, qint64 spanMs, const Bucket& bucket)>& use);
    // First and last moment of which anything is stored; none: nothing is.
    std::optional<TimeRange> extent(qint64 device);

    // Full samples, oldest first, at most mostRows from the start of the range on.
    QVector<StoredReading> readings(qint64 device, TimeRange range, int mostRows);
    // The last full sample at or before that time.
    std::optional<StoredReading> readingAt(qint64 device, qint64 timeMs);

    // For a replay, oldest first, each moment in its finest tier: at most mostRows from the start
    // of the range on, and the last ones that began at or before that time.
    QVector<StoredReading> frames(qint64 device, TimeRange range, int mostRows);
    QVector<StoredReading> framesBefore(qint64 device, qint64 timeMs, int mostRows);

    QVector<JournalEntry> journal(const JournalFilter& filter);
    int journalCount(const JournalFilter& filter);
    QVector<JournalEntry> openEntries(const QString& site);
    // On battery, newest first, those that touch the range.
    QVector<Outage> outages(const QString& device, TimeRange range, const QString& site = {});
    // Time of the last sample of each device of the site, by name.
    QMap<QString, qint64> lastSeen(const QString& site);

private:
    struct Piece {
        int tier;
        TimeRange range;
    };
    using UseRow = std::function<bool(int tier, qint64 timeMs, const QByteArray& data)>;

    QSqlQuery* ask(const QString& sql, const QVariantList& values = {});
    std::optional<TimeRange> tierExtent(int tier, qint64 device);
    QVector<Piece> pieces(qint64 device, TimeRange range, int tier);
    bool eachRow(qint64 device, const Piece& piece, const UseRow& use);
    QVector<JournalEntry> readEntries(QSqlQuery* query);
    QVector<StoredReading> readReadings(qint64 device, QSqlQuery* query);
    void addInfo(qint64 device, QVector<StoredReading>& readings);

    HistoryStore& m_store;
    bool m_failed = false;
};

#endif // HISTORYQUERIES_H
