#include "history/historyqueries.h"

#include "connectors/devicesettings.h"

#include <algorithm>

namespace {

constexpr int kMostJournalRows = 100000;

QString table(int tier)
{
    return QLatin1String(kTiers[tier].table);
}

const QString kEntryColumns = QStringLiteral(
    "j.id, j.key, j.site, d.name, j.kind, j.severity, j.text, j.message, j.operator, j.fact, "
    "j.onset, j.ended, j.moment, j.lowest_charge, j.acknowledged_by, j.acknowledged, j.note");
const QString kEntryTables =
    QStringLiteral("FROM journal j LEFT JOIN devices d ON d.id = j.device");

std::optional<qint64> optionalTime(const QVariant& value)
{
    return value.isNull() ? std::nullopt : std::optional<qint64>(value.toLongLong());
}

// "%" and "_" of the operator's text stand for themselves.
QString likePattern(QString text)
{
    text.remove(QChar::Null);
    return '%' + text.replace('\\', "\\\\").replace('%', "\\%").replace('_', "\\_") + '%';
}

struct Where {
    QStringList conditions{QStringLiteral("1 = 1")};
    QVariantList values;

    void add(const QString& condition, const QVariantList& more = {})
    {
        conditions += condition;
        values += more;
    }
    QString text() const { return QStringLiteral(" WHERE ") + conditions.join(" AND "); }
};

Where whereOf(const JournalFilter& filter, const QString& like)
{
    Where where;
    if (!filter.device.isEmpty())
        where.add("(d.name = ? OR d.site || '/' || d.name = ?)", {filter.device, filter.device});
    if (!filter.kinds.isEmpty()) {
        QStringList marks;
        QVariantList kinds;
        for (JournalKind kind : filter.kinds) {
            marks += "?";
            kinds += journalKindName(kind);
        }
        where.add("j.kind IN (" + marks.join(',') + ')', kinds);
    }
    if (filter.fromMs)
        where.add("(j.onset >= ? OR j.ended >= ? OR (j.ended IS NULL AND j.moment = 0))",
                  {*filter.fromMs, *filter.fromMs});
    if (filter.toMs)
        where.add("j.onset < ?", {*filter.toMs});
    if (filter.atLeast)
        where.add("j.severity >= ?", {static_cast<int>(*filter.atLeast)});
    if (filter.onlyOpen)
        where.add("j.ended IS NULL AND j.moment = 0");
    if (filter.onlyUnacknowledged)
        where.add("j.acknowledged IS NULL");
    if (!filter.text.isEmpty()) {
        const QString match = QStringLiteral("%1 ") + like + QStringLiteral(" ? ESCAPE '\\'");
        where.add('(' + match.arg("j.text") + " OR " + match.arg("j.message") + " OR " +
                      match.arg("j.note") + ')',
                  QVariantList{} << likePattern(filter.text) << likePattern(filter.text)
                                 << likePattern(filter.text));
    }
    return where;
}

// Puts rows together until there are few enough of them.
class SeriesMaker
{
public:
    SeriesMaker(HistorySeries& series, qint64 grainMs)
        : m_series(series)
        , m_grainMs(std::max<qint64>(grainMs, 1))
    {
        series.values.resize(series.quantities.size());
    }

    void add(qint64 timeMs, qint64 spanMs, const Bucket& bucket)
    {
        const qint64 start = m_series.fromMs + spanStart(timeMs - m_series.fromMs, m_grainMs);
        if (m_open.count > 0 && (start != m_start || spanMs >= m_grainMs))
            flush();
        if (m_open.count == 0) {
            m_start = start;
            m_timeMs = timeMs;
        }
        m_open.add(bucket);
        m_endMs = timeMs + spanMs;
    }

    void flush()
    {
        if (m_open.count == 0)
            return;
        m_series.timeMs += m_timeMs;
        m_series.spanMs += m_endMs - m_timeMs;
        m_series.state += m_open.state;
        for (int i = 0; i < m_series.quantities.size(); ++i) {
            const auto index = static_cast<std::size_t>(m_series.quantities.at(i));
            m_series.values[i] +=
                index < m_open.parts.size() ? m_open.parts[index].range : ValueRange();
        }
        m_open = {};
    }

private:
    HistorySeries& m_series;
    qint64 m_grainMs;
    qint64 m_start = 0;
    qint64 m_timeMs = 0;
    qint64 m_endMs = 0;
    Bucket m_open;
};

// Where coarse rows end and finer ones begin. The span in which the finer ones begin is taken
// whole: from the coarse tier where that knows more (the finer rows before were forgotten).
qint64 seam(TimeRange coarse, qint64 spanMs, qint64 finerFrom)
{
    const qint64 start = spanStart(finerFrom, spanMs);
    return coarse.fromMs < start && start < finerFrom ? start + spanMs : start;
}

Bucket bucketOf(int tier, const QByteArray& data)
{
    Bucket bucket;
    Sample sample;
    if (tier > 0)
        decodeBucket(data, bucket);
    else if (decodeSample(data, sample))
        bucket.add(sample);
    return bucket;
}

// A span is shown by its means, and by what it was at its worst.
StoredReading frameOf(int tier, qint64 timeMs, const QByteArray& data)
{
    StoredReading frame;
    frame.timeMs = timeMs;
    frame.spanMs = kTiers[tier].spanMs;
    if (tier == 0) {
        Sample sample;
        if (decodeSample(data, sample)) {
            frame.link = sample.link;
            frame.reading = sample.reading;
        }
        return frame;
    }
    const Bucket bucket = bucketOf(tier, data);
    frame.link = bucket.state.link;
    frame.reading.outputSource = bucket.state.source;
    frame.reading.batteryState = bucket.state.battery;
    frame.reading.alarms = alarmsOfBits(bucket.state.alarms);
    for (std::size_t i = 0; i < std::min(bucket.parts.size(), quantities().size()); ++i)
        if (bucket.parts[i].count > 0)
            setQuantity(frame.reading, quantities()[i], bucket.parts[i].range.mean);
    return frame;
}

} // namespace

QSqlQuery* HistoryQueries::ask(const QString& sql, const QVariantList& values)
{
    QSqlQuery* query = m_store.run(sql, values);
    m_failed = m_failed || !query;
    return query;
}

// Devices

QVector<StoredDevice> HistoryQueries::devices()
{
    QVector<StoredDevice> all;
    QSqlQuery* query = ask("SELECT id, site, name, address FROM devices ORDER BY site, name");
    while (query && query->next())
        all += {query->value(0).toLongLong(), query->value(1).toString(),
                query->value(2).toString(), query->value(3).toString()};
    return all;
}

std::optional<StoredDevice> HistoryQueries::device(const QString& nameOrAddress,
                                                   const QString& site)
{
    std::optional<StoredDevice> byAddress;
    for (const StoredDevice& device : devices()) {
        if (!site.isEmpty() && device.site != site)
            continue;
        if (device.name == nameOrAddress || nameAtSite(device.site, device.name) == nameOrAddress)
            return device;
        if (device.address == nameOrAddress)
            byAddress = device;
    }
    return byAddress;
}

QMap<QString, qint64> HistoryQueries::lastSeen(const QString& site)
{
    QMap<QString, qint64> times;
    for (const StoredDevice& device : devices())
        if (device.site == site)
            if (const auto range = tierExtent(0, device.id))
                times.insert(device.name, range->toMs);
    return times;
}

// Samples

std::optional<TimeRange> HistoryQueries::tierExtent(int tier, qint64 device)
{
    const auto end = [&](const char* order) -> std::optional<qint64> {
        QSqlQuery* query = ask(QStringLiteral("SELECT t FROM %1 WHERE device = ? ORDER BY t %2 "
                                              "LIMIT 1")
                                   .arg(table(tier), QLatin1String(order)),
                               {device});
        if (!query || !query->next())
            return {};
        const qint64 time = query->value(0).toLongLong();
        query->finish();
        return time;
    };
    const auto first = end("ASC");
    const auto last = first ? end("DESC") : std::nullopt;
    if (!last)
        return {};
    return TimeRange{*first, *last + std::max<qint64>(kTiers[tier].spanMs, 1)};
}

std::optional<TimeRange> HistoryQueries::extent(qint64 device)
{
    std::optional<TimeRange> all;
    for (int tier = 0; tier < kTierCount; ++tier)
        if (const auto range = tierExtent(tier, device)) {
            if (!all)
                all = range;
            else if (range->fromMs + kTiers[tier].spanMs <= all->fromMs) // not a mean of the finer
                all->fromMs = range->fromMs;
        }
    return all;
}

// The tier itself where it reaches; before its first row what coarser tiers have, and after its
// last one (its spans are made when they are over) what finer ones have.
QVector<HistoryQueries::Piece> HistoryQueries::pieces(qint64 device, TimeRange range, int tier)
{
    QVector<Piece> chosen;
    qint64 from = range.fromMs;
    const auto take = [&](int which, qint64 to) {
        if (from < std::min(to, range.toMs))
            chosen += Piece{which, {from, std::min(to, range.toMs)}};
        from = std::max(from, to);
    };
    std::array<std::optional<TimeRange>, kTierCount> extents;
    for (int i = 0; i < kTierCount; ++i)
        extents[static_cast<std::size_t>(i)] = tierExtent(i, device);
    for (int coarse = kTierCount - 1; coarse > tier; --coarse) {
        // Up to where anything finer begins.
        std::optional<qint64> finerFrom;
        for (int i = tier; i < coarse; ++i)
            if (const auto& extent = extents[static_cast<std::size_t>(i)])
                finerFrom = std::min(finerFrom.value_or(extent->fromMs), extent->fromMs);
        const auto& extent = extents[static_cast<std::size_t>(coarse)];
        if (!extent)
            continue;
        take(coarse, finerFrom ? seam(*extent, kTiers[coarse].spanMs, *finerFrom) : extent->toMs);
    }
    for (int i = tier; i >= 0; --i)
        if (const auto& extent = extents[static_cast<std::size_t>(i)])
            take(i, extent->toMs);
    return chosen;
}

bool HistoryQueries::eachRow(qint64 device, const Piece& piece, const UseRow& use)
{
    QSqlQuery* query = ask(
        QStringLiteral("SELECT t, data FROM %1 WHERE device = ? AND t >= ? AND t < ? ORDER BY t")
            .arg(table(piece.tier)),
        {device, piece.range.fromMs, piece.range.toMs});
    while (query && query->next())
        if (!use(piece.tier, query->value(0).toLongLong(), query->value(1).toByteArray())) {
            query->finish();
            return false;
        }
    return query;
}

void HistoryQueries::forEach(
    qint64 device, TimeRange range,
    const std::function<bool(qint64 timeMs, qint64 spanMs, const Bucket& bucket)>& use)
{
    for (const Piece& piece : pieces(device, range, 0))
        if (!eachRow(device, piece, [&](int tier, qint64 time, const QByteArray& data) {
                return use(time, kTiers[tier].spanMs, bucketOf(tier, data));
            }))
            return;
}

HistorySeries HistoryQueries::series(qint64 device, TimeRange range, int mostRows,
                                     const QVector<int>& wanted)
{
    HistorySeries series;
    series.fromMs = range.fromMs;
    series.toMs = range.toMs;
    series.quantities = wanted;
    const qint64 grainMs = (range.toMs - range.fromMs) / std::max(mostRows, 1);
    int tier = 0;
    while (tier + 1 < kTierCount && kTiers[tier + 1].spanMs <= grainMs)
        ++tier;
    SeriesMaker maker(series, grainMs);
    for (const Piece& piece : pieces(device, range, tier)) {
        eachRow(device, piece, [&](int rowTier, qint64 time, const QByteArray& data) {
            maker.add(time, kTiers[rowTier].spanMs, bucketOf(rowTier, data));
            return true;
        });
        maker.flush();
    }
    return series;
}

QVector<StoredReading> HistoryQueries::readReadings(qint64 device, QSqlQuery* query)
{
    QVector<StoredReading> readings;
    while (query && query->next()) {
        Sample sample;
        if (decodeSample(query->value(1).toByteArray(), sample))
            readings += {query->value(0).toLongLong(), sample.link, sample.reading};
    }
    addInfo(device, readings);
    return readings;
}

// Identity and ratings as they were at each of these times, which ascend.
void HistoryQueries::addInfo(qint64 device, QVector<StoredReading>& readings)
{
    if (readings.isEmpty())
        return;
    QSqlQuery* info = ask("SELECT since, data FROM device_info WHERE device = ? AND since <= ? "
                          "ORDER BY since DESC",
                          {device, readings.constLast().timeMs});
    int row = readings.size() - 1;
    while (row >= 0 && info && info->next()) {
        const qint64 since = info->value(0).toLongLong();
        const QByteArray data = info->value(1).toByteArray();
        for (; row >= 0 && readings.at(row).timeMs >= since; --row)
            decodeInfo(data, readings[row].reading);
    }
    if (info)
        info->finish();
}

QVector<StoredReading> HistoryQueries::readings(qint64 device, TimeRange range, int mostRows)
{
    return readReadings(device, ask("SELECT t, data FROM samples WHERE device = ? AND t >= ? AND "
                                    "t < ? ORDER BY t LIMIT ?",
                                    {device, range.fromMs, range.toMs, mostRows}));
}

std::optional<StoredReading> HistoryQueries::readingAt(qint64 device, qint64 timeMs)
{
    const auto found = readReadings(device, ask("SELECT t, data FROM samples WHERE device = ? AND "
                                                "t <= ? ORDER BY t DESC LIMIT 1",
                                                {device, timeMs}));
    return found.isEmpty() ? std::nullopt : std::optional<StoredReading>(found.constFirst());
}

QVector<StoredReading> HistoryQueries::frames(qint64 device, TimeRange range, int mostRows)
{
    QVector<StoredReading> frames;
    for (const Piece& piece : pieces(device, range, 0)) {
        const bool goesOn =
            eachRow(device, piece, [&](int tier, qint64 time, const QByteArray& data) {
                frames += frameOf(tier, time, data);
                return frames.size() < mostRows;
            });
        if (!goesOn)
            break;
    }
    addInfo(device, frames);
    return frames;
}

QVector<StoredReading> HistoryQueries::framesBefore(qint64 device, qint64 timeMs, int mostRows)
{
    QVector<StoredReading> frames; // the newest first
    qint64 latestMs = timeMs;
    for (int tier = 0; tier < kTierCount && frames.size() < mostRows; ++tier) {
        QSqlQuery* query =
            ask(QStringLiteral(
                    "SELECT t, data FROM %1 WHERE device = ? AND t <= ? ORDER BY t DESC LIMIT ?")
                    .arg(table(tier)),
                {device, latestMs, mostRows - frames.size()});
        while (query && query->next())
            frames += frameOf(tier, query->value(0).toLongLong(), query->value(1).toByteArray());
        const auto finer = tierExtent(tier, device);
        if (finer && tier + 1 < kTierCount) // spans that end before the finer ones begin
            latestMs = std::min(latestMs, finer->fromMs - kTiers[tier + 1].spanMs);
    }
    std::reverse(frames.begin(), frames.end());
    addInfo(device, frames);
    return frames;
}

// Journal

QVector<JournalEntry> HistoryQueries::readEntries(QSqlQuery* query)
{
    QVector<JournalEntry> entries;
    while (query && query->next()) {
        JournalEntry entry;
        int column = 0;
        const auto next = [&] { return query->value(column++); };
        entry.id = next().toLongLong();
        entry.key = next().toString();
        entry.site = next().toString();
        entry.device = next().toString();
        entry.kind = journalKindOf(next().toString()).value_or(JournalKind::Desk);
        entry.severity =
            static_cast<Urgency>(qBound(0, next().toInt(), static_cast<int>(Urgency::Critical)));
        entry.text = next().toString();
        entry.message = next().toString();
        entry.operatorName = next().toString();
        entry.fact = next().toString();
        entry.onsetMs = next().toLongLong();
        entry.endMs = optionalTime(next());
        entry.isMoment = next().toInt() != 0;
        if (const QVariant charge = next(); !charge.isNull())
            entry.lowestCharge = charge.toDouble();
        entry.acknowledgedBy = next().toString();
        entry.acknowledgedMs = optionalTime(next());
        entry.acknowledgeNote = next().toString();
        entries += entry;
    }
    return entries;
}

QVector<JournalEntry> HistoryQueries::journal(const JournalFilter& filter)
{
    const Where where = whereOf(filter, m_store.likeOperator());
    const QString order = filter.oldestFirst ? QStringLiteral("ASC") : QStringLiteral("DESC");
    return readEntries(
        ask(QStringLiteral("SELECT %1 %2 %3 ORDER BY j.onset %4, j.id %4 LIMIT ? OFFSET ?")
                .arg(kEntryColumns, kEntryTables, where.text(), order),
            QVariantList(where.values)
                << qBound(1, filter.limit, kMostJournalRows) << std::max(filter.offset, 0)));
}

int HistoryQueries::journalCount(const JournalFilter& filter)
{
    const Where where = whereOf(filter, m_store.likeOperator());
    QSqlQuery* query =
        ask(QStringLiteral("SELECT count(*) %1 %2").arg(kEntryTables, where.text()), where.values);
    const int count = query && query->next() ? query->value(0).toInt() : 0;
    if (query)
        query->finish();
    return count;
}

QVector<JournalEntry> HistoryQueries::openEntries(const QString& site)
{
    return readEntries(ask(QStringLiteral("SELECT %1 %2 WHERE j.ended IS NULL AND j.moment = 0 AND "
                                          "j.site = ? ORDER BY j.onset")
                               .arg(kEntryColumns, kEntryTables),
                           {site.isNull() ? QStringLiteral("") : site}));
}

QVector<Outage> HistoryQueries::outages(const QString& device, TimeRange range, const QString& site)
{
    JournalFilter filter;
    filter.device = device;
    filter.kinds = {JournalKind::Outage};
    filter.fromMs = range.fromMs;
    filter.toMs = range.toMs;
    filter.limit = kMostJournalRows;
    QVector<Outage> outages;
    for (const JournalEntry& entry : journal(filter))
        if (site.isEmpty() || entry.site == site)
            outages += {entry.onsetMs, entry.endMs, entry.lowestCharge};
    return outages;
}
