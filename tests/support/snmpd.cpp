#include "snmpd.h"

#include "freeport.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

constexpr int kPatience = 20000; // ms, for the slowest machine

} // namespace

bool Snmpd::start(const QByteArray& objects, bool freshEngine)
{
    const QString state = m_folder.filePath("state");
    if (freshEngine)
        QDir(state).removeRecursively();
    QDir().mkpath(state);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SNMP_PERSISTENT_DIR", state);
    m_process.setProcessEnvironment(environment);
    if (m_port == 0)
        m_port = freePort();
    QFile conf(m_folder.filePath("agent.conf"));
    if (!conf.open(QIODevice::WriteOnly))
        return false;
    conf.write("agentaddress udp:127.0.0.1:" + QByteArray::number(m_port) + '\n');
    conf.write(R"(createUser operator SHA "auth-secret" AES "priv-secret"
createUser watcher SHA-256 "auth-secret" AES-256 "priv-secret"
rwuser operator priv
rouser watcher priv
)");
    conf.write(objects);
    conf.close();
    m_process.start("/usr/sbin/snmpd",
                    {"-f", "-Lo", "-C", "-c", conf.fileName(), "-I",
                     QStringLiteral("override,usmUser,usmConf,vacm_conf,vacm_vars,snmpEngine,"
                                    "setSerialNo")});
    // Its first words when it has its port.
    QByteArray said;
    while (!said.contains("NET-SNMP version"))
        if (m_process.waitForReadyRead(kPatience))
            said += m_process.readAllStandardOutput();
        else
            return false;
    return true;
}

void Snmpd::stop()
{
    m_process.kill();
    m_process.waitForFinished();
}

void Snmpd::freeze(bool on)
{
    ::kill(static_cast<pid_t>(m_process.processId()), on ? SIGSTOP : SIGCONT);
}

QString Snmpd::address() const
{
    return QStringLiteral("snmp://operator@127.0.0.1:%1?version=3&level=authPriv&auth=SHA&priv=AES")
        .arg(m_port);
}
