#include "nutserverfixture.h"

#include "freeport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTest>

#include <csignal>
#include <pwd.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr int kStartLimit = 10000; // ms
constexpr int kMaxAge = 2;         // s until the server calls silent drivers stale

// Ends with the test program, however that ends.
class ChildProcess : public QProcess
{
protected:
    void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGKILL); }
};

QString findProgram(const QString& name)
{
    return QStandardPaths::findExecutable(name, {"/lib/nut", "/usr/lib/nut", "/usr/sbin"});
}

QString userName()
{
    const passwd* entry = getpwuid(getuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString();
}

void end(QProcess& process)
{
    process.kill(); // works on a frozen process, too
    process.waitForFinished();
}

void sendSignal(const QProcess& process, int signal)
{
    ::kill(static_cast<pid_t>(process.processId()), signal);
}

} // namespace

NutServerFixture::NutServerFixture(const QStringList& recordings)
    : m_recordings(recordings)
{}

NutServerFixture::~NutServerFixture()
{
    stopServer();
    for (const auto& driver : m_drivers)
        end(*driver.second);
}

QString NutServerFixture::start()
{
    QByteArray devices = "maxretry = 1\npollinterval = 1\n";
    for (const QString& recording : m_recordings) {
        const QString name = QFileInfo(recording).completeBaseName();
        const QString copy = m_folder.filePath(name + ".dev");
        if (!QFile::copy(recording, copy))
            return "no recording " + recording;
        devices += "[" + name.toUtf8() + "]\n  driver = dummy-ups\n  port = \"" + copy.toUtf8() +
                   "\"\n  mode = dummy-once\n  desc = \"Test device " + name.toUtf8() + "\"\n";
    }
    const QByteArray users = "[operator]\n  password = secret\n  actions = SET\n  instcmds = ALL\n"
                             "[guest]\n  password = guest\n";
    if (!writeFile("ups.conf", devices) || !writeFile("upsd.users", users))
        return "cannot write to " + m_folder.path();
    if (findProgram("dummy-ups").isEmpty() || findProgram("upsd").isEmpty())
        return "upsd or dummy-ups is missing: install nut-server";
    for (const QString& recording : m_recordings)
        if (!startDriver(QFileInfo(recording).completeBaseName()))
            return "the driver for " + recording + " does not start";
    m_port = freePort();
    const QByteArray server = "LISTEN 127.0.0.1 " + QByteArray::number(m_port) + "\nMAXAGE " +
                              QByteArray::number(kMaxAge) + "\n";
    return writeFile("upsd.conf", server) && startServer() ? QString() : "upsd does not start";
}

QString NutServerFixture::address(const QString& device) const
{
    return QStringLiteral("nut://127.0.0.1:%1/%2").arg(m_port).arg(device);
}

bool NutServerFixture::startServer()
{
    m_server = launch("upsd", {"-F", "-u", userName()});
    const auto isUp = [this] {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, m_port);
        return socket.waitForConnected(100);
    };
    const auto hasEnded = [this] { return m_server->state() == QProcess::NotRunning; };
    return QTest::qWaitFor([&] { return hasEnded() || isUp(); }, kStartLimit) && !hasEnded();
}

void NutServerFixture::stopServer()
{
    if (m_server)
        end(*m_server);
    m_server.reset();
}

void NutServerFixture::freezeServer(bool frozen)
{
    sendSignal(*m_server, frozen ? SIGSTOP : SIGCONT);
}

bool NutServerFixture::startDriver(const QString& device)
{
    const QString socket = m_folder.filePath("dummy-ups-" + device);
    QFile::remove(socket);
    m_drivers[device] = launch("dummy-ups", {"-F", "-u", userName(), "-a", device});
    return QTest::qWaitFor([&] { return QFile::exists(socket); }, kStartLimit);
}

void NutServerFixture::stopDriver(const QString& device)
{
    end(*m_drivers.at(device));
}

void NutServerFixture::freezeDriver(const QString& device, bool frozen)
{
    sendSignal(*m_drivers.at(device), frozen ? SIGSTOP : SIGCONT);
}

bool NutServerFixture::writeFile(const QString& name, const QByteArray& text)
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::WriteOnly) &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
           file.write(text) == text.size();
}

std::unique_ptr<QProcess> NutServerFixture::launch(const QString& program,
                                                   const QStringList& arguments)
{
    auto process = std::make_unique<ChildProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* folder : {"NUT_CONFPATH", "NUT_STATEPATH", "NUT_ALTPIDPATH"})
        environment.insert(folder, m_folder.path());
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->setStandardOutputFile(m_folder.filePath(program + ".log"), QIODevice::Append);
    process->start(findProgram(program), arguments);
    process->waitForStarted();
    return process;
}
