// Several collectors of one site: one is on duty, another follows it, never both.

#include "collector/databasesitelock.h"
#include "support/postgresfixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int kLimitMs = 60000;

// A collector in a process of its own, with folders of its own, watching a device of its name.
class CollectorProcess
{
public:
    CollectorProcess(const QString& name, const StoreAddress& store, const QByteArray& more = {})
        : m_name(name)
        , m_store(store.text().toUtf8())
    {
        QDir(m_folder.path()).mkpath("upsdesk");
        configure(deviceNamed(name) + more);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "HOME"})
            environment.insert(variable, m_folder.path());
        environment.insert("NOTIFY_SOCKET", m_folder.filePath("notify"));
        environment.remove("DISPLAY");
        m_socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, qPrintable(m_folder.filePath("notify")),
                 sizeof address.sun_path);
        if (::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            qFatal("no socket for the service manager");
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(UPSDESK, {"--collector"});
        m_process.waitForStarted();
    }
    ~CollectorProcess()
    {
        send(SIGCONT);
        send(SIGTERM);
        m_process.waitForFinished();
        ::close(m_socket);
    }

    static QByteArray deviceNamed(const QString& name)
    {
        return "[device \"" + name.toUtf8() + "\"]\naddress = sim:\ninterval = 1\n";
    }
    void configure(const QByteArray& rest)
    {
        QFile file(m_folder.filePath("upsdesk/upsdesk.conf"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[secrets]\nstore = file\n[history]\nstore = " + m_store +
                   "\n[collector]\nsite = north\n" + rest);
    }
    void send(int signal)
    {
        if (m_process.processId() > 0)
            ::kill(static_cast<pid_t>(m_process.processId()), signal);
    }
    // All that the service manager was told and the log says so far.
    QByteArray words()
    {
        char buffer[4096];
        for (ssize_t n = 0; (n = ::recv(m_socket, buffer, sizeof buffer, 0)) > 0;)
            m_words += QByteArray(buffer, static_cast<int>(n)) + '\n';
        m_words += m_process.readAll();
        return m_words;
    }
    QString name() const { return m_name; }

private:
    QString m_name;
    QByteArray m_store;
    QTemporaryDir m_folder;
    int m_socket = -1;
    QProcess m_process;
    QByteArray m_words;
};

} // namespace

class TestCollector : public QObject
{
    Q_OBJECT

private:
    PostgresFixture m_postgres;

    static QVariant ask(const QString& sql)
    {
        QSqlQuery query(QSqlDatabase::database());
        return query.exec(sql) && query.next() ? query.value(0) : QVariant();
    }
    static qint64 samples(const QString& device, const QString& what)
    {
        return ask(QStringLiteral("SELECT %1 FROM samples s JOIN devices d ON d.id = s.device "
                                  "WHERE d.name = '%2' AND d.site = 'north'")
                       .arg(what, device))
            .toLongLong();
    }

private slots:
    void initTestCase()
    {
        QCOMPARE(m_postgres.start(), QString());
        QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL");
        const StoreAddress address = m_postgres.address();
        database.setHostName(address.host);
        database.setPort(address.port);
        database.setUserName(address.user);
        database.setDatabaseName(address.database);
        QVERIFY(database.open());
    }
    void cleanupTestCase() { QSqlDatabase::removeDatabase(QSqlDatabase::defaultConnection); }

    void theSecondFollowsTheFirst()
    {
        CollectorProcess first("first", m_postgres.address());
        QTRY_VERIFY_WITH_TIMEOUT(first.words().contains("READY=1"), kLimitMs);
        QTRY_VERIFY_WITH_TIMEOUT(samples("first", "count(*)") > 0, kLimitMs);
        CollectorProcess second("second", m_postgres.address());
        QTRY_VERIFY_WITH_TIMEOUT(second.words().contains("another collector of this site"),
                                 kLimitMs);

        // Who loses the session but can have it again goes on.
        ask("SELECT pg_terminate_backend(pid) FROM pg_locks WHERE locktype = 'advisory' AND "
            "granted");
        const qint64 before = samples("first", "count(*)");
        QTRY_VERIFY_WITH_TIMEOUT(samples("first", "count(*)") > before + 2 ||
                                     samples("second", "count(*)") > 0,
                                 kLimitMs);
        // A file with faults changes nothing; a good one is followed.
        CollectorProcess* onDuty = samples("second", "count(*)") > 0 ? &second : &first;
        CollectorProcess* other = onDuty == &first ? &second : &first;
        onDuty->configure("[device \"broken\"]\naddress = what://\n");
        onDuty->send(SIGHUP);
        QTRY_VERIFY_WITH_TIMEOUT(onDuty->words().contains("The configuration is not used"),
                                 kLimitMs);
        onDuty->configure(CollectorProcess::deviceNamed(onDuty->name()) +
                          CollectorProcess::deviceNamed("third"));
        onDuty->send(SIGHUP);
        QTRY_VERIFY_WITH_TIMEOUT(samples("third", "count(*)") > 0, kLimitMs);
        QVERIFY(onDuty->words().contains("RELOADING=1"));

        // A stopped one holds nothing for long, and does nothing when it goes on.
        onDuty->send(SIGSTOP);
        QTRY_VERIFY_WITH_TIMEOUT(samples(other->name(), "count(*)") > 2, kLimitMs);
        const qint64 lastWord = samples(onDuty->name(), "max(t)");
        const qint64 firstWord = samples(other->name(), "min(t)");
        QVERIFY2(lastWord < firstWord, "both were on duty");
        onDuty->send(SIGCONT);
        QTRY_VERIFY_WITH_TIMEOUT(onDuty->words().contains("Not on duty"), kLimitMs);
        QTest::qWait(2500);
        QCOMPARE(samples(onDuty->name(), "max(t)"), lastWord);

        // And a killed one is followed, too.
        other->send(SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(samples(onDuty->name(), "max(t)") > lastWord, kLimitMs);
        QVERIFY(
            samples(other->name(), "max(t)") <
            samples(onDuty->name(), QStringLiteral("min(t) FILTER (WHERE t > %1)").arg(lastWord)));
    }

    void aServerThatIsGoneHasNoLockToGive()
    {
        DatabaseSiteLock holder(m_postgres.address(), "north");
        QTRY_VERIFY_WITH_TIMEOUT(holder.isOnDuty(), kLimitMs);
        const DatabaseSiteLock elsewhere(m_postgres.address(), "south");
        QTRY_VERIFY_WITH_TIMEOUT(elsewhere.isOnDuty(), kLimitMs);

        m_postgres.stopServer();
        QTest::qWait(DatabaseSiteLock::kLeaseMs + 2 * DatabaseSiteLock::kBeatMs);
        QVERIFY(holder.isOnDuty());
        QCOMPARE(m_postgres.startServer(), QString());
        QTRY_VERIFY_WITH_TIMEOUT(holder.reason().isEmpty(), kLimitMs);
        QVERIFY(holder.isOnDuty());

        // One that is silent may have given it to another.
        m_postgres.freezeServer(true);
        QTRY_VERIFY_WITH_TIMEOUT(!holder.isOnDuty(), DatabaseSiteLock::kExpiryMs);
        m_postgres.freezeServer(false);
        QTRY_VERIFY_WITH_TIMEOUT(holder.isOnDuty(), kLimitMs);
    }
};

QTEST_GUILESS_MAIN(TestCollector)
#include "tst_collector.moc"
