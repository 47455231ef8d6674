#include "history/rollup.h"

namespace {

// Samples of the last moments of a span may still be on their way.
constexpr qint64 kGraceMs = 5000;

QString table(int tier)
{
    return QLatin1String(kTiers[tier].table);
}

} // namespace

void Rollup::noteSample(qint64 device, qint64 timeMs)
{
    const qint64 start = spanStart(timeMs, kTiers[1].spanMs);
    qint64& last = m_lastMinute[device];
    if (last == start && start != 0)
        return;
    last = start;
    m_due[1].insert({start, device});
}

bool Rollup::isIdle(qint64 nowMs) const
{
    for (int tier = 1; tier < kTierCount; ++tier)
        if (!m_due[tier].empty() &&
            m_due[tier].begin()->first + kTiers[tier].spanMs + kGraceMs <= nowMs)
            return false;
    return true;
}

int Rollup::step(qint64 nowMs, int most)
{
    std::vector<std::pair<int, Span>> chosen;
    for (int tier = 1; tier < kTierCount; ++tier)
        for (const Span& span : m_due[tier]) {
            if (static_cast<int>(chosen.size()) >= most ||
                span.first + kTiers[tier].spanMs + kGraceMs > nowMs)
                break;
            chosen.push_back({tier, span});
        }
    if (chosen.empty())
        return 0;
    bool done = m_store.begin();
    for (const auto& choice : chosen)
        done = done && make(choice.first, choice.second);
    if (!done || !m_store.commit()) {
        m_store.rollback();
        return -1;
    }
    for (const auto& choice : chosen) {
        m_due[choice.first].erase(choice.second);
        if (choice.first == 1 && m_lastMinute.value(choice.second.second) == choice.second.first)
            m_lastMinute.remove(choice.second.second);
        if (choice.first + 1 < kTierCount)
            m_due[choice.first + 1].insert(
                {spanStart(choice.second.first, kTiers[choice.first + 1].spanMs),
                 choice.second.second});
    }
    return static_cast<int>(chosen.size());
}

bool Rollup::make(int tier, const Span& span)
{
    Bucket bucket;
    if (!gather(tier, span, bucket))
        return false;
    if (bucket.count == 0)
        return true;
    if (!uniteWithStored(tier, span, bucket) || !m_store.prepareTier(tier, span.first))
        return false;
    return m_store.run(QStringLiteral("INSERT INTO %1 (device, t, data) VALUES (?, ?, ?) ON "
                                      "CONFLICT (device, t) DO UPDATE SET data = excluded.data")
                           .arg(table(tier)),
                       {span.second, span.first, encodeBucket(bucket)});
}

bool Rollup::gather(int tier, const Span& span, Bucket& bucket)
{
    QSqlQuery* query = m_store.run(
        QStringLiteral("SELECT data FROM %1 WHERE device = ? AND t >= ? AND t < ? ORDER BY t")
            .arg(table(tier - 1)),
        {span.second, span.first, span.first + kTiers[tier].spanMs});
    while (query && query->next()) {
        const QByteArray data = query->value(0).toByteArray();
        Sample sample;
        Bucket finer;
        if (tier == 1 && decodeSample(data, sample))
            bucket.add(sample);
        else if (tier > 1 && decodeBucket(data, finer))
            bucket.add(finer);
    }
    return query;
}

// Where part of the finer rows has been forgotten already (a clock that was set back far), what
// was known of the span stays.
bool Rollup::uniteWithStored(int tier, const Span& span, Bucket& bucket)
{
    QSqlQuery* query = m_store.run(
        QStringLiteral("SELECT data FROM %1 WHERE device = ? AND t = ?").arg(table(tier)),
        {span.second, span.first});
    Bucket stored;
    if (query && query->next() && decodeBucket(query->value(0).toByteArray(), stored))
        bucket.unite(stored);
    if (query)
        query->finish();
    return query;
}

bool Rollup::resume()
{
    QSqlQuery* query = m_store.run(QStringLiteral("SELECT id FROM devices"));
    std::vector<qint64> devices;
    while (query && query->next())
        devices.push_back(query->value(0).toLongLong());
    bool done = query;
    for (const qint64 device : devices)
        for (int tier = 1; done && tier < kTierCount; ++tier)
            done = resumeTier(tier, device);
    return done;
}

// All spans from the last one that was made on: it may have been made of a part.
bool Rollup::resumeTier(int tier, qint64 device)
{
    QSqlQuery* last =
        m_store.run(QStringLiteral("SELECT t FROM %1 WHERE device = ? ORDER BY t DESC LIMIT 1")
                        .arg(table(tier)),
                    {device});
    if (!last)
        return false;
    const qint64 from = last->next() ? last->value(0).toLongLong() : 0;
    last->finish();
    QSqlQuery* query =
        m_store.run(QStringLiteral("SELECT DISTINCT t - t % ? FROM %1 WHERE device = ? AND t >= ?")
                        .arg(table(tier - 1)),
                    {kTiers[tier].spanMs, device, from});
    while (query && query->next())
        m_due[tier].insert({query->value(0).toLongLong(), device});
    return query;
}
