#include "history/storeschema.h"

#include "history/tiers.h"

namespace {

QStringList firstVersion()
{
    QStringList statements{
        "CREATE TABLE devices (id {id}, site TEXT NOT NULL, name TEXT NOT NULL, "
        "address TEXT NOT NULL, UNIQUE (site, name))",
        "CREATE TABLE device_info (device {big} NOT NULL, since {big} NOT NULL, "
        "data {blob} NOT NULL, PRIMARY KEY (device, since))",
        // Batches of each writer that are in, so that none is written twice.
        "CREATE TABLE progress (writer TEXT PRIMARY KEY, batch {big} NOT NULL, t {big} NOT NULL)",
        "CREATE TABLE journal (id {id}, key TEXT NOT NULL UNIQUE, site TEXT NOT NULL, "
        "device {big}, kind TEXT NOT NULL, severity INTEGER NOT NULL, text TEXT NOT NULL, "
        "message TEXT NOT NULL, operator TEXT NOT NULL, fact TEXT NOT NULL, "
        "onset {big} NOT NULL, ended {big}, moment INTEGER NOT NULL, lowest_charge {real}, "
        "acknowledged_by TEXT NOT NULL DEFAULT '', acknowledged {big}, "
        "note TEXT NOT NULL DEFAULT '')",
        "CREATE INDEX journal_onset ON journal (onset)",
        "CREATE INDEX journal_device ON journal (device, onset)",
        "CREATE INDEX journal_open ON journal (device) WHERE ended IS NULL AND moment = 0",
    };
    for (const Tier& tier : kTiers)
        statements += QStringLiteral("CREATE TABLE %1 (device {big} NOT NULL, t {big} NOT NULL, "
                                     "data {blob} NOT NULL, PRIMARY KEY (device, t)) "
                                     "{partitioned}{clustered}")
                          .arg(QLatin1String(tier.table));
    return statements;
}

// What is so now, for viewers. It is worth nothing after a crash of the server: the collectors
// write it anew.
QStringList secondVersion()
{
    return {
        "CREATE {unlogged} TABLE live_sites (site TEXT PRIMARY KEY, number {big} NOT NULL, "
        "heard {big} NOT NULL)",
        "CREATE {unlogged} TABLE live_devices (site TEXT NOT NULL, name TEXT NOT NULL, "
        "place INTEGER NOT NULL, gone INTEGER NOT NULL, number {big} NOT NULL, settings TEXT, "
        "settings_number {big}, info {blob}, link INTEGER NOT NULL, message TEXT NOT NULL, "
        "data {blob}, asked {big}, condition INTEGER NOT NULL, since {big} NOT NULL, "
        "PRIMARY KEY (site, name)) {roomy}",
    };
}

} // namespace

const QVector<QStringList>& schemaSteps()
{
    static const QVector<QStringList> steps{firstVersion(), secondVersion()};
    return steps;
}
