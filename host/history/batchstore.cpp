#include "history/batchstore.h"

#include <QDateTime>

namespace {

// Writers of earlier runs are remembered for as long as their spool may come back.
constexpr qint64 kProgressKeptMs = 90 * kMsPerDay;

// Text as the databases take it: none of them keeps a NUL, and PostgreSQL refuses it.
QString storable(QString text)
{
    text.remove(QChar::Null);
    return text.isNull() ? QStringLiteral("") : text;
}

template <typename T>
QVariant orNull(const std::optional<T>& value)
{
    return value ? QVariant(*value) : QVariant();
}

} // namespace

BatchStore::BatchStore(HistoryStore& store, const QString& site)
    : m_store(store)
    , m_site(storable(site))
    , m_rollup(store)
{}

bool BatchStore::write(const HistoryBatch& batch)
{
    bool isIn = false;
    if (!m_store.begin())
        return false;
    if (isWritten(batch, isIn) && (isIn || (writeRecords(batch) && noteProgress(batch))) &&
        m_store.commit())
        return true;
    m_store.rollback();
    m_devices.clear(); // ids that were given in there are void
    m_newest.clear();
    return false;
}

bool BatchStore::isWritten(const HistoryBatch& batch, bool& isIn)
{
    QSqlQuery* query =
        m_store.run(QStringLiteral("SELECT batch FROM progress WHERE writer = ?"), {batch.writer});
    if (!query)
        return false;
    isIn = query->next() && query->value(0).toULongLong() >= batch.number;
    query->finish();
    return true;
}

bool BatchStore::noteProgress(const HistoryBatch& batch)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const auto number = static_cast<qint64>(batch.number);
    if (number == 1 &&
        !m_store.run(QStringLiteral("DELETE FROM progress WHERE t < ?"), {now - kProgressKeptMs}))
        return false;
    return m_store.run(QStringLiteral("INSERT INTO progress (writer, batch, t) VALUES (?, ?, ?) ON "
                                      "CONFLICT (writer) DO UPDATE SET batch = excluded.batch, "
                                      "t = excluded.t"),
                       {batch.writer, number, now});
}

bool BatchStore::writeRecords(const HistoryBatch& batch)
{
    if (!writeSamples(batch.records))
        return false;
    for (const HistoryRecord& record : batch.records)
        if (!record.isSample() && !writeEntry(record))
            return false;
    return true;
}

bool BatchStore::writeSamples(const QVector<HistoryRecord>& records)
{
    QVariantList values;
    for (const HistoryRecord& record : records) {
        if (!record.isSample())
            continue;
        const qint64 device = deviceId(record.device, record.address);
        const qint64 time = device > 0 ? freeTime(device, record.timeMs) : -1;
        if (time < 0 || !m_store.prepareTier(0, time))
            return false;
        values << device << time << record.data;
        m_rollup.noteSample(device, time);
    }
    return m_store.insertRows(QStringLiteral("samples (device, t, data)"),
                              QStringLiteral("ON CONFLICT DO NOTHING"), 3, values);
}

// A clock that was set back must not let new samples hide old ones of the same millisecond.
qint64 BatchStore::freeTime(qint64 device, qint64 timeMs)
{
    timeMs = std::max<qint64>(timeMs, 0);
    auto newest = m_newest.find(device);
    if (newest == m_newest.end()) {
        QSqlQuery* query = m_store.run(
            QStringLiteral("SELECT t FROM samples WHERE device = ? ORDER BY t DESC LIMIT 1"),
            {device});
        if (!query)
            return -1;
        newest = m_newest.insert(device, query->next() ? query->value(0).toLongLong() : -1);
        query->finish();
    }
    if (timeMs > *newest)
        return *newest = timeMs;
    for (;; ++timeMs) {
        QSqlQuery* query = m_store.run(
            QStringLiteral("SELECT 1 FROM samples WHERE device = ? AND t = ?"), {device, timeMs});
        if (!query)
            return -1;
        const bool isTaken = query->next();
        query->finish();
        if (!isTaken)
            return timeMs;
    }
}

bool BatchStore::writeEntry(const HistoryRecord& record)
{
    const qint64 device = record.device.isEmpty() ? 0 : deviceId(record.device, record.address);
    if (!record.device.isEmpty() && device <= 0)
        return false;
    switch (record.kind) {
    case HistoryRecord::Kind::Begin:
        return beginEntry(*record.entry, device);
    case HistoryRecord::Kind::End:
        return endEntry(*record.entry);
    case HistoryRecord::Kind::Acknowledge:
        return acknowledge(*record.entry);
    case HistoryRecord::Kind::Info:
        return m_store.run(QStringLiteral("INSERT INTO device_info (device, since, data) VALUES "
                                          "(?, ?, ?) ON CONFLICT (device, since) DO UPDATE SET "
                                          "data = excluded.data"),
                           {device, record.timeMs, record.data});
    case HistoryRecord::Kind::Sample:
        break;
    }
    return true;
}

bool BatchStore::beginEntry(const JournalEntry& entry, qint64 device)
{
    return m_store.run(
        QStringLiteral("INSERT INTO journal (key, site, device, kind, severity, text, message, "
                       "operator, fact, onset, ended, moment, lowest_charge) VALUES (?, ?, ?, ?, "
                       "?, ?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT (key) DO NOTHING"),
        {entry.key, m_site, device > 0 ? QVariant(device) : QVariant(), journalKindName(entry.kind),
         static_cast<int>(entry.severity), storable(entry.text), storable(entry.message),
         storable(entry.operatorName), storable(entry.fact), entry.onsetMs, orNull(entry.endMs),
         entry.isMoment ? 1 : 0, orNull(entry.lowestCharge)});
}

bool BatchStore::endEntry(const JournalEntry& entry)
{
    return m_store.run(QStringLiteral("UPDATE journal SET ended = ?, message = CASE WHEN ? = '' "
                                      "THEN message ELSE ? END, lowest_charge = coalesce(?, "
                                      "lowest_charge), severity = CASE WHEN severity < ? THEN ? "
                                      "ELSE severity END WHERE key = ?"),
                       {orNull(entry.endMs), storable(entry.message), storable(entry.message),
                        orNull(entry.lowestCharge), static_cast<int>(entry.severity),
                        static_cast<int>(entry.severity), entry.key});
}

bool BatchStore::acknowledge(const JournalEntry& entry)
{
    return m_store.run(QStringLiteral("UPDATE journal SET acknowledged_by = ?, acknowledged = ?, "
                                      "note = ? WHERE key = ?"),
                       {storable(entry.acknowledgedBy), orNull(entry.acknowledgedMs),
                        storable(entry.acknowledgeNote), entry.key});
}

qint64 BatchStore::deviceId(const QString& givenName, const QString& givenAddress)
{
    const QString name = storable(givenName);
    const QString address = storable(givenAddress);
    const auto known = m_devices.constFind(name);
    if (known != m_devices.cend() && known->address == address)
        return known->id;
    QSqlQuery* query = m_store.run(
        QStringLiteral("INSERT INTO devices (site, name, address) VALUES (?, ?, ?) ON CONFLICT "
                       "(site, name) DO UPDATE SET address = excluded.address RETURNING id"),
        {m_site, name, address});
    if (!query || !query->next())
        return 0;
    const qint64 id = query->value(0).toLongLong();
    query->finish();
    m_devices.insert(name, {id, m_site, name, address});
    return id;
}
