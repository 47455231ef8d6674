#include "history/historystore.h"

#include "history/postgresstore.h"
#include "history/sqlitestore.h"
#include "history/storeschema.h"
#include "reading/sanitize.h"

#include <QCoreApplication>
#include <QSqlDriver>
#include <QSqlError>
#include <QUuid>

#include <sys/socket.h>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(HistoryStore)
};

} // namespace

std::unique_ptr<HistoryStore> HistoryStore::make(const StoreAddress& address)
{
    if (address.kind == StoreAddress::Kind::Postgres)
        return std::make_unique<PostgresStore>(address);
    return std::make_unique<SqliteStore>(address);
}

HistoryStore::HistoryStore(const StoreAddress& address)
    : m_address(address)
    , m_name(QStringLiteral("history-") + QUuid::createUuid().toString(QUuid::Id128))
{}

HistoryStore::~HistoryStore()
{
    close();
}

QSqlDatabase HistoryStore::addDatabase(const QString& driver, const QString& name)
{
    return QSqlDatabase::addDatabase(driver, name);
}

bool HistoryStore::open(Access access)
{
    close();
    m_error.clear();
    const QString driver = m_address.kind == StoreAddress::Kind::Postgres
                               ? QStringLiteral("QPSQL")
                               : QStringLiteral("QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver))
        return fail(Tr::tr("the driver %1 of QtSql is not installed").arg(driver));
    m_database = addDatabase(driver, m_name);
    m_database.setNumericalPrecisionPolicy(QSql::LowPrecisionDouble);
    m_connectionLost = false;
    if (connectTo(m_database, access) && migrate(access))
        return true;
    close();
    return false;
}

void HistoryStore::close()
{
    setSocket(-1);
    if (!m_database.isValid())
        return;
    m_database.close();
    m_database = {};
    QSqlDatabase::removeDatabase(m_name);
    // Without a driver they do not try to tell a lost server that they are gone.
    m_prepared.clear();
}

void HistoryStore::setSocket(int socket)
{
    QMutexLocker locker(&m_socketMutex);
    m_socket = socket;
}

void HistoryStore::abort()
{
    ++m_aborts;
    QMutexLocker locker(&m_socketMutex);
    if (m_socket >= 0)
        ::shutdown(m_socket, SHUT_RDWR);
}

bool HistoryStore::fail(const QString& text)
{
    m_error = cleanDeviceText(text);
    return false;
}

bool HistoryStore::takeError(const QSqlError& error)
{
    m_connectionLost = error.type() == QSqlError::ConnectionError || !m_database.isOpen() ||
                       error.nativeErrorCode().isEmpty();
    const QString plain = plainFault(error.nativeErrorCode());
    if (!plain.isEmpty())
        return fail(plain);
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    return fail(text.section(QLatin1Char('\n'), 0, 0));
}

QSqlQuery* HistoryStore::run(const QString& sql, const QVariantList& values)
{
    if (!m_database.isOpen()) {
        takeError({});
        return nullptr;
    }
    auto found = m_prepared.find(sql);
    if (found == m_prepared.end()) {
        QSqlQuery query(m_database);
        query.setForwardOnly(true);
        if (!query.prepare(sql)) {
            takeError(query.lastError());
            return nullptr;
        }
        found = m_prepared.emplace(sql, std::move(query)).first;
    }
    QSqlQuery& query = found->second;
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values.at(i));
    if (query.exec())
        return &query;
    takeError(query.lastError());
    query.finish();
    return nullptr;
}

bool HistoryStore::insertRows(const QString& into, const QString& tail, int columns,
                              const QVariantList& values)
{
    QStringList marks;
    for (int i = 0; i < columns; ++i)
        marks += QStringLiteral("?");
    const QString row = QLatin1Char('(') + marks.join(QLatin1Char(',')) + QLatin1Char(')');
    const auto statement = [&](int rows) {
        return QStringLiteral("INSERT INTO %1 VALUES %2 %3")
            .arg(into, QVector<QString>(rows, row).toList().join(QLatin1Char(',')), tail);
    };
    // Two statements only, so that both stay prepared: full ones, then single rows.
    int done = 0;
    for (const int rows : {rowsPerInsert(), 1}) {
        const QString sql = statement(rows);
        for (; (values.size() - done) / columns >= rows; done += rows * columns) {
            QSqlQuery* query = run(sql, values.mid(done, rows * columns));
            if (!query)
                return false;
            query->finish();
        }
    }
    return true;
}

bool HistoryStore::execute(const QString& sql)
{
    if (!m_database.isOpen())
        return takeError({});
    QSqlQuery query(m_database);
    return query.exec(sql) || takeError(query.lastError());
}

bool HistoryStore::begin()
{
    return execute(beginStatement(false));
}

bool HistoryStore::commit()
{
    return execute(QStringLiteral("COMMIT"));
}

void HistoryStore::rollback()
{
    for (auto& prepared : m_prepared)
        prepared.second.finish();
    if (m_database.isOpen())
        QSqlQuery(m_database).exec(QStringLiteral("ROLLBACK"));
}

int HistoryStore::schemaVersion()
{
    QSqlQuery query(m_database);
    if (query.exec(QStringLiteral("SELECT value FROM meta WHERE key = 'schema'")) && query.next())
        return query.value(0).toInt();
    return 0;
}

bool HistoryStore::migrate(Access access)
{
    const int wanted = schemaSteps().size();
    const int present = m_database.tables().contains(QStringLiteral("meta")) ? schemaVersion() : 0;
    if (present == wanted)
        return true;
    if (present > wanted)
        return fail(Tr::tr("the history was written by a newer upsdesk; update this one"));
    if (access == Access::Read)
        return fail(present == 0 ? Tr::tr("there is no history yet")
                                 : Tr::tr("the history is of an older upsdesk; start the desk once "
                                          "so that it brings it up to date"));
    if (!execute(beginStatement(true)))
        return false;
    bool done = execute(inDialect(
        QStringLiteral("CREATE TABLE IF NOT EXISTS meta (key TEXT PRIMARY KEY, value TEXT)")));
    // Another desk may have been quicker.
    for (int version = schemaVersion(); done && version < wanted; ++version)
        for (const QString& statement : schemaSteps().at(version))
            done = done && execute(inDialect(statement));
    done = done &&
           execute(QStringLiteral("INSERT INTO meta VALUES ('schema', '%1') "
                                  "ON CONFLICT (key) DO UPDATE SET value = excluded.value")
                       .arg(wanted)) &&
           commit();
    if (!done)
        rollback();
    return done;
}
