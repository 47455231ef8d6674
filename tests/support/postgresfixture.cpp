#include "postgresfixture.h"

#include "freeport.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QThread>

#include <csignal>
#include <pwd.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr int kStartLimit = 30000; // ms
const char kServerUser[] = "postgres";

// The server refuses to run as root; the package brings a user for it.
const passwd* serverUser()
{
    return geteuid() == 0 ? getpwnam(kServerUser) : nullptr;
}

// Ends with the test program, however that ends.
class ServerProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
        if (const passwd* user = serverUser())
            if (setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0)
                _exit(1);
        prctl(PR_SET_PDEATHSIG, SIGQUIT);
    }
};

// Of Debian's newest version.
QString findProgram(const QString& name)
{
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    QStringList folders;
    for (const QString& version : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        folders.prepend(versions.filePath(version + "/bin"));
    const QString found = QStandardPaths::findExecutable(name, folders);
    return found.isEmpty() ? QStandardPaths::findExecutable(name) : found;
}

QString execute(const StoreAddress& address, const QString& sql)
{
    const QString name = QStringLiteral("postgresfixture");
    QString error;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", name);
        database.setHostName(address.host);
        database.setPort(address.port);
        database.setUserName(address.user);
        database.setDatabaseName(address.database);
        QSqlQuery query(database);
        if (!database.open() || !(query = QSqlQuery(database)).exec(sql))
            error = database.lastError().text() + query.lastError().text() + ' ';
    }
    QSqlDatabase::removeDatabase(name);
    return error;
}

} // namespace

PostgresFixture::~PostgresFixture()
{
    stopServer();
}

StoreAddress PostgresFixture::address() const
{
    StoreAddress address;
    address.kind = StoreAddress::Kind::Postgres;
    address.host = QStringLiteral("127.0.0.1");
    address.port = m_port;
    address.user = QStringLiteral("upsdesk");
    address.database = QStringLiteral("postgres");
    return address;
}

std::unique_ptr<QProcess> PostgresFixture::launch(const QString& program,
                                                  const QStringList& arguments)
{
    auto process = std::make_unique<ServerProcess>();
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->setWorkingDirectory(m_folder.path());
    process->start(findProgram(program), arguments);
    return process;
}

QString PostgresFixture::start()
{
    m_port = freePort();
    if (const passwd* user = serverUser())
        if (chown(qPrintable(m_folder.path()), user->pw_uid, user->pw_gid) != 0)
            return QStringLiteral("cannot hand over ") + m_folder.path();
    const auto init = launch("initdb", {"-D", m_folder.filePath("data"), "-U", "upsdesk", "-A",
                                        "trust", "-N", "-E", "UTF8", "--locale=C"});
    if (!init->waitForFinished(kStartLimit) || init->exitCode() != 0)
        return "initdb: " + init->errorString() + init->readAll();
    return startServer();
}

QString PostgresFixture::startServer()
{
    m_server =
        launch("postgres", {"-D", m_folder.filePath("data"), "-p", QString::number(m_port), "-c",
                            "listen_addresses=127.0.0.1", "-c", "unix_socket_directories="});
    QElapsedTimer clock;
    clock.start();
    QString error;
    do {
        error = execute(address(), QStringLiteral("SELECT 1"));
        if (error.isEmpty())
            return {};
        QThread::msleep(50);
    } while (clock.elapsed() < kStartLimit && m_server->state() != QProcess::NotRunning);
    return error + m_server->errorString() + m_server->readAll();
}

void PostgresFixture::stopServer()
{
    if (!m_server || m_server->state() == QProcess::NotRunning)
        return;
    freezeServer(false);
    ::kill(static_cast<pid_t>(m_server->processId()), SIGQUIT);
    if (!m_server->waitForFinished())
        m_server->kill();
}

void PostgresFixture::freezeServer(bool frozen)
{
    // The backends, too: what is between two queries must not answer either.
    QProcess children;
    children.start("pgrep", {"-P", QString::number(m_server->processId())});
    children.waitForFinished();
    QList<QByteArray> all = children.readAll().split('\n');
    all.prepend(QByteArray::number(m_server->processId()));
    for (const QByteArray& pid : all)
        if (pid.toInt() > 0)
            ::kill(pid.toInt(), frozen ? SIGSTOP : SIGCONT);
}

QString PostgresFixture::clear()
{
    return execute(
        address(),
        QStringLiteral(
            "SET client_min_messages = error; DROP SCHEMA public CASCADE; CREATE SCHEMA public"));
}
