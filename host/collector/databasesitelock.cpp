#include "collector/databasesitelock.h"

#include "connectors/bootclock.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QLocalSocket>
#include <QTcpSocket>
#include <QtEndian>

#include <algorithm>
#include <libpq-fe.h>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DatabaseSiteLock)
};

constexpr qint32 kLockClass = 0x75707363; // of all locks of collectors; any that is ours alone
constexpr int kProbeMs = 2000;
constexpr unsigned long kEndMs = 500;

// The same on every machine.
qint32 lockNumber(const QString& site)
{
    const QByteArray hash = QCryptographicHash::hash(site.toUtf8(), QCryptographicHash::Sha256);
    return qFromBigEndian<qint32>(hash.constData());
}

} // namespace

DatabaseSiteLock::DatabaseSiteLock(const StoreAddress& store, const QString& site)
    : m_site(site)
    , m_store(HistoryStore::make(store))
    , m_thread(QThread::create([this] { work(); }))
{
    m_thread->setObjectName(QStringLiteral("site lock"));
    m_thread->start();
}

DatabaseSiteLock::~DatabaseSiteLock()
{
    {
        QMutexLocker locker(&m_mutex);
        m_isEnding = true;
    }
    m_wake.wakeAll();
    while (!m_thread->wait(kEndMs))
        m_store->abort();
}

bool DatabaseSiteLock::isOnDuty() const
{
    const qint64 now = bootClockMs();
    return now >= m_fromMs && now < m_untilMs;
}

QString DatabaseSiteLock::reason() const
{
    QMutexLocker locker(&m_mutex);
    return m_reason;
}

void DatabaseSiteLock::setReason(const QString& reason)
{
    QMutexLocker locker(&m_mutex);
    m_reason = reason;
}

void DatabaseSiteLock::work()
{
    for (;;) {
        beat();
        QMutexLocker locker(&m_mutex);
        if (!m_isEnding)
            m_wake.wait(&m_mutex, kBeatMs);
        if (m_isEnding)
            break;
    }
    m_untilMs = 0;
    m_store->close();
}

void DatabaseSiteLock::beat()
{
    const bool wasOnDuty = isOnDuty();
    qint64 sentMs = bootClockMs();
    Answer answer = ask();
    if (answer == Answer::None && m_isHolder) {
        // A session that was ended is often to be had again at once.
        m_isHolder = false;
        m_store->close();
        sentMs = bootClockMs();
        answer = ask();
    }
    if (answer == Answer::Held) {
        if (!m_isHolder && !(wasOnDuty && isOnDuty()))
            m_fromMs = sentMs + kProbationMs;
        m_isHolder = true;
        m_untilMs = std::max<qint64>(sentMs, m_fromMs) + kLeaseMs;
        return setReason({});
    }
    m_isHolder = false;
    setReason(answer == Answer::Taken ? Tr::tr("another collector of this site is on duty")
                                      : m_store->errorText());
    if (answer == Answer::None)
        m_store->close();
    sentMs = bootClockMs();
    const bool goesOn = answer == Answer::None && isOnDuty() && isServerDown();
    m_untilMs = goesOn ? sentMs + kLeaseMs : 0;
}

DatabaseSiteLock::Answer DatabaseSiteLock::ask()
{
    if (!m_store->isOpen() && !m_store->open(HistoryStore::Access::Write))
        return Answer::None;
    const auto says = [this](const QString& sql, const QVariantList& values) {
        QSqlQuery* query = m_store->run(sql, values);
        if (!query || !query->next())
            return Answer::None;
        const bool isTrue = query->value(0).toBool();
        query->finish();
        return isTrue ? Answer::Held : Answer::Taken;
    };
    if (m_isHolder)
        return says(QStringLiteral("SELECT true"), {});
    if (says(QStringLiteral("SELECT set_config('idle_session_timeout', ?, false) <> ''"),
             {QString::number(kExpiryMs)}) != Answer::Held)
        return Answer::None;
    return says(QStringLiteral("SELECT pg_try_advisory_lock(?::int, ?::int)"),
                {kLockClass, lockNumber(m_site)});
}

// A server that turns everybody away has no lock to give; a silent one may give it to another.
bool DatabaseSiteLock::isServerDown() const
{
    const StoreAddress& address = m_store->address();
    const QByteArray host = address.host.toUtf8();
    if (host.startsWith('/')) {
        QLocalSocket socket;
        socket.connectToServer(
            QStringLiteral("%1/.s.PGSQL.%2").arg(address.host).arg(address.port));
        if (socket.error() == QLocalSocket::ServerNotFoundError ||
            socket.error() == QLocalSocket::ConnectionRefusedError)
            return true;
    } else {
        QTcpSocket socket;
        socket.connectToHost(address.host, address.port);
        if (!socket.waitForConnected(kProbeMs))
            return socket.error() == QAbstractSocket::ConnectionRefusedError;
    }
    const QByteArray port = QByteArray::number(address.port);
    const char* const keys[] = {"host", "port", "connect_timeout", nullptr};
    const char* const values[] = {host.constData(), port.constData(), "2", nullptr};
    return PQpingParams(keys, values, 0) == PQPING_REJECT; // is starting up or shutting down
}
