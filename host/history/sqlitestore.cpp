#include "history/sqlitestore.h"

#include "private/privatefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(SqliteStore)
};

constexpr int kForgetRows = 1000;

struct Fault {
    const char* code; // of SQLite
    const char* text; // %1: the file
};
constexpr Fault kFaults[] = {
    {"5", QT_TRANSLATE_NOOP("SqliteStore", "%1 is locked by another program")},
    {"6", QT_TRANSLATE_NOOP("SqliteStore", "%1 is locked by another program")},
    {"8", QT_TRANSLATE_NOOP("SqliteStore", "%1 may not be written; look at its permissions")},
    {"10", QT_TRANSLATE_NOOP("SqliteStore", "%1 cannot be read or written; the disk is at fault")},
    {"11", QT_TRANSLATE_NOOP("SqliteStore", "%1 is damaged; move it away and a new one is begun")},
    {"13", QT_TRANSLATE_NOOP("SqliteStore", "the disk of %1 is full")},
    {"14", QT_TRANSLATE_NOOP("SqliteStore", "%1 cannot be opened; look at its folder")},
    {"26", QT_TRANSLATE_NOOP("SqliteStore", "%1 is no history; move it away")},
};

} // namespace

bool SqliteStore::connectTo(QSqlDatabase& database, Access access)
{
    const QString& path = m_address.path;
    const bool isReading = access == Access::Read;
    if (isReading && !QFileInfo::exists(path))
        return fail(Tr::tr("there is no history yet: %1 does not exist").arg(path));
    const QString folder = QFileInfo(path).absolutePath();
    if (!isReading && !QFileInfo::exists(folder) && !makePrivateFolder(folder))
        return fail(Tr::tr("cannot make the folder %1").arg(folder));
    // What operators do is nobody else's business; the database's other files follow this one.
    if (QFile file(path); !isReading && !file.exists() && file.open(QIODevice::WriteOnly))
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    database.setDatabaseName(path);
    // A reader opens the file like a writer: it shares the write-ahead log with the desk.
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000"));
    if (!database.open())
        return takeError(database.lastError());
    if (isReading)
        return execute(QStringLiteral("PRAGMA query_only = ON"));
    // The last second must be on the disk even when the machine loses its power.
    return execute(QStringLiteral("PRAGMA journal_mode = WAL")) &&
           execute(QStringLiteral("PRAGMA synchronous = FULL")) &&
           execute(QStringLiteral("PRAGMA journal_size_limit = 16777216"));
}

QString SqliteStore::beginStatement(bool) const
{
    return QStringLiteral("BEGIN IMMEDIATE");
}

QString SqliteStore::inDialect(QString statement) const
{
    return statement.replace("{id}", "INTEGER PRIMARY KEY")
        .replace("{big}", "INTEGER")
        .replace("{blob}", "BLOB")
        .replace("{real}", "REAL")
        .replace("{partitioned}", QString())
        .replace("{clustered}", "WITHOUT ROWID")
        .replace("{unlogged}", QString())
        .replace("{roomy}", QString());
}

QString SqliteStore::plainFault(const QString& code) const
{
    for (const Fault& fault : kFaults)
        if (code == QLatin1String(fault.code))
            return Tr::tr(fault.text).arg(m_address.path);
    return {};
}

bool SqliteStore::prepareTier(int, qint64)
{
    return true;
}

bool SqliteStore::forgetSome(int tier, qint64 beforeMs)
{
    const QString table = QLatin1String(kTiers[tier].table);
    QSqlQuery* device =
        run(QStringLiteral("SELECT min(id) FROM devices WHERE id > ?"), {m_forgetFrom});
    if (!device || !device->next() || device->value(0).isNull()) {
        m_forgetFrom = 0;
        return false;
    }
    const qint64 id = device->value(0).toLongLong();
    device->finish();
    QSqlQuery* query = run(QStringLiteral("DELETE FROM %1 WHERE device = ? AND t IN (SELECT t FROM "
                                          "%1 WHERE device = ? AND t < ? ORDER BY t LIMIT %2)")
                               .arg(table)
                               .arg(kForgetRows),
                           {id, id, beforeMs});
    if (!query)
        return false;
    if (query->numRowsAffected() < kForgetRows)
        m_forgetFrom = id;
    query->finish();
    return true;
}
