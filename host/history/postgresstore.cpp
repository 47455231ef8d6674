#include "history/postgresstore.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QHostInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QThread>
#include <QVariant>

#include <libpq-fe.h>
#include <poll.h>

#include <memory>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(PostgresStore)
};

// One lock for all that changes tables; any number that no other program uses.
constexpr qint64 kSchemaLock = 0x757073646573;
const QString kSystemAuthorities = QStringLiteral("/etc/ssl/certs/ca-certificates.crt");

constexpr int kConnectMs = 5000;
constexpr int kLookMs = 50; // between looks whether connecting is to be given up

struct Fault {
    const char* code; // SQLSTATE, or how it begins
    const char* text; // %1: the server
};
constexpr Fault kFaults[] = {
    {"28",
     QT_TRANSLATE_NOOP("PostgresStore", "%1 does not let this user in; look at the password")},
    {"3D000", QT_TRANSLATE_NOOP("PostgresStore", "%1: there is no such database; create it")},
    {"42501",
     QT_TRANSLATE_NOOP("PostgresStore", "%1: the user may not do this; look at its rights")},
    {"25006", QT_TRANSLATE_NOOP("PostgresStore", "%1 is read-only")},
    {"53100", QT_TRANSLATE_NOOP("PostgresStore", "the disk of %1 is full")},
    {"53300", QT_TRANSLATE_NOOP("PostgresStore", "%1 has too many connections")},
    {"55P03", QT_TRANSLATE_NOOP("PostgresStore", "%1: a table is locked by another program")},
    {"57P", QT_TRANSLATE_NOOP("PostgresStore", "%1 is shutting down or starting up")},
};

QString quoted(QString value)
{
    return QLatin1Char('\'') + value.replace('\\', "\\\\").replace('\'', "\\'") + QLatin1Char('\'');
}

QStringList optionsOf(const StoreAddress& store)
{
    QStringList options{
        QStringLiteral("connect_timeout=5"),  QStringLiteral("tcp_user_timeout=10000"),
        QStringLiteral("keepalives_idle=10"), QStringLiteral("keepalives_interval=5"),
        QStringLiteral("keepalives_count=3"), QStringLiteral("application_name=upsdesk")};
    const bool isTrusted = store.isLocal() || store.secret.isEmpty();
    // A password goes to nobody but the server that was meant, unless the configuration says so.
    const bool verify =
        store.tls == HistoryTls::Required || (store.tls == HistoryTls::Preferred && !isTrusted);
    if (!verify)
        return options << (store.tls == HistoryTls::Off ? QStringLiteral("sslmode=disable")
                                                        : QStringLiteral("sslmode=prefer"));
    const QString& file = store.certificateAuthority;
    return options << QStringLiteral("sslmode=verify-full")
                   << "sslrootcert=" + quoted(file.isEmpty() ? kSystemAuthorities : file);
}

} // namespace

PGconn* PostgresStore::connection() const
{
    return isOpen() ? *static_cast<PGconn**>(m_database.driver()->handle().data()) : nullptr;
}

bool PostgresStore::listen(const QString& channel)
{
    return execute(QStringLiteral("LISTEN ") + channel);
}

int PostgresStore::waitForNotice(int ms)
{
    PGconn* link = connection();
    pollfd wanted{link ? PQsocket(link) : -1, POLLIN, 0};
    if (!link || (::poll(&wanted, 1, ms) > 0 && PQconsumeInput(link) == 0)) {
        takeError({});
        return -1;
    }
    int count = 0;
    for (; PGnotify* notice = PQnotifies(link); ++count)
        PQfreemem(notice);
    return count;
}

// Opening waits for names and servers without an end that anybody could bring about. So it is
// looked first who answers, in a way that can be given up.
std::optional<QHostAddress> PostgresStore::addressThatAnswers()
{
    std::optional<QHostAddress> refusing;
    for (const QHostAddress& address : addresses()) {
        const auto isLetIn = letsIn(address);
        if (isLetIn == true)
            return address;
        if (isLetIn && !refusing)
            refusing = address; // why is told by the attempt that follows
    }
    return refusing;
}

// In a thread of its own: an event loop in this one would begin the next question in the middle of
// the connecting for this one.
QList<QHostAddress> PostgresStore::addresses()
{
    const int before = aborts();
    QList<QHostAddress> found;
    const std::unique_ptr<QThread> thread(QThread::create([this, &found] {
        QEventLoop loop;
        const int lookup = QHostInfo::lookupHost(m_address.host, &loop, [&](const QHostInfo& info) {
            found = info.addresses();
            loop.quit();
        });
        loop.exec();
        QHostInfo::abortHostLookup(lookup);
    }));
    const QDeadlineTimer limit(kConnectMs);
    thread->start();
    while (!thread->wait(kLookMs))
        if (aborts() != before || limit.hasExpired())
            thread->quit();
    return found;
}

std::optional<bool> PostgresStore::letsIn(const QHostAddress& address)
{
    const int before = aborts();
    const QStringList settings = optionsOf(m_address) << "host=" + quoted(m_address.host)
                                                      << "hostaddr=" + address.toString()
                                                      << "port=" + QString::number(m_address.port)
                                                      << "user=" + quoted(m_address.user)
                                                      << "password=" + quoted(m_address.secret)
                                                      << "dbname=" + quoted(m_address.database);
    PGconn* link = PQconnectStart(settings.join(QLatin1Char(' ')).toUtf8().constData());
    const QDeadlineTimer limit(kConnectMs);
    PostgresPollingStatusType status = PGRES_POLLING_WRITING;
    while (status != PGRES_POLLING_OK && status != PGRES_POLLING_FAILED && !limit.hasExpired() &&
           aborts() == before) {
        pollfd wanted{PQsocket(link), short(status == PGRES_POLLING_READING ? POLLIN : POLLOUT), 0};
        if (wanted.fd < 0 || ::poll(&wanted, 1, kLookMs) > 0)
            status = PQconnectPoll(link);
    }
    PQfinish(link);
    if (status != PGRES_POLLING_OK && status != PGRES_POLLING_FAILED)
        return {};
    return status == PGRES_POLLING_OK;
}

bool PostgresStore::connectTo(QSqlDatabase& database, Access access)
{
    m_partitions.clear();
    QStringList options = optionsOf(m_address);
    if (const auto address = addressThatAnswers())
        options << QStringLiteral("hostaddr=") + address->toString();
    else
        return fail(plainFault({}));
    database.setConnectOptions(options.join(QLatin1Char(';')));
    database.setHostName(m_address.host);
    database.setPort(m_address.port);
    database.setUserName(m_address.user);
    database.setPassword(m_address.secret);
    database.setDatabaseName(m_address.database);
    if (!database.open())
        return takeError(database.lastError());
    if (PGconn* link = connection())
        setSocket(PQsocket(link));
    const QString timeout = QStringLiteral("SET lock_timeout = '5s'");
    const QString limit = QStringLiteral("SET statement_timeout = '60s'");
    const QString readOnly =
        QStringLiteral("SET default_transaction_read_only = %1")
            .arg(access == Access::Read ? QStringLiteral("on") : QStringLiteral("off"));
    return execute(timeout) && execute(limit) && execute(readOnly) &&
           execute(QStringLiteral("SET client_min_messages = error"));
}

QString PostgresStore::beginStatement(bool isMigration) const
{
    return isMigration ? QStringLiteral("BEGIN; SELECT pg_advisory_xact_lock(%1)").arg(kSchemaLock)
                       : QStringLiteral("BEGIN");
}

QString PostgresStore::inDialect(QString statement) const
{
    return statement.replace("{id}", "BIGSERIAL PRIMARY KEY")
        .replace("{big}", "BIGINT")
        .replace("{blob}", "BYTEA")
        .replace("{real}", "DOUBLE PRECISION")
        .replace("{partitioned}", "PARTITION BY RANGE (t)")
        .replace("{clustered}", QString())
        .replace("{unlogged}", "UNLOGGED")
        .replace("{roomy}", "WITH (fillfactor = 50)"); // a row that changes stays in its page
}

QString PostgresStore::plainFault(const QString& code) const
{
    const QString server = QStringLiteral("PostgreSQL %1:%2/%3")
                               .arg(m_address.host)
                               .arg(m_address.port)
                               .arg(m_address.database);
    if (code.isEmpty())
        return Tr::tr("%1 does not answer").arg(server);
    for (const Fault& fault : kFaults)
        if (code.startsWith(QLatin1String(fault.code)))
            return Tr::tr(fault.text).arg(server);
    return {};
}

void PostgresStore::rollback()
{
    HistoryStore::rollback();
    m_partitions.clear(); // those just made are gone again
}

bool PostgresStore::prepareTier(int tier, qint64 timeMs)
{
    const Tier& row = kTiers[tier];
    const qint64 from = spanStart(timeMs, row.partitionMs);
    const QString name =
        QStringLiteral("%1_%2").arg(QLatin1String(row.table)).arg(from / kMsPerHour);
    if (m_partitions.contains(name))
        return true;
    // Two collectors may need the same new partition in the same second.
    if (!execute(QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(kSchemaLock)) ||
        !execute(QStringLiteral("CREATE TABLE IF NOT EXISTS \"%1\" PARTITION OF %2 "
                                "FOR VALUES FROM (%3) TO (%4)")
                     .arg(name, QLatin1String(row.table))
                     .arg(from)
                     .arg(from + row.partitionMs)))
        return false;
    m_partitions += name;
    return true;
}

bool PostgresStore::forgetSome(int tier, qint64 beforeMs)
{
    const Tier& row = kTiers[tier];
    QSqlQuery* query = run(QStringLiteral("SELECT c.relname FROM pg_inherits i JOIN pg_class c ON "
                                          "c.oid = i.inhrelid WHERE i.inhparent = ?::regclass"),
                           {QLatin1String(row.table)});
    const QString prefix = QLatin1String(row.table) + QLatin1Char('_');
    while (query && query->next()) {
        const QString name = query->value(0).toString();
        bool ok = false;
        const qint64 from = name.mid(prefix.size()).toLongLong(&ok) * kMsPerHour;
        if (!ok || !name.startsWith(prefix) || from + row.partitionMs > beforeMs)
            continue;
        query->finish();
        m_partitions.remove(name);
        return execute(QStringLiteral("DROP TABLE \"%1\"").arg(name));
    }
    return false;
}
