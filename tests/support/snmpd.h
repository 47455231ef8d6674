#ifndef SNMPD_H
#define SNMPD_H

// Debian's SNMP agent on a free port of loopback, for version 3; all its files in one folder.
// May touch: that process and folder, which end with the object.

#include <QProcess>
#include <QTemporaryDir>

class Snmpd
{
public:
    // Its users; the secrets of both are "auth-secret" and "priv-secret".
    //   operator: SHA, AES, may set    watcher: SHA-256, AES-256, may read

    ~Snmpd() { stop(); }

    // objects: lines "override ..." as its manual explains them. A fresh engine forgets how often
    // it has been started, and has another name. False: not installed, or it does not come up.
    bool start(const QByteArray& objects, bool freshEngine);
    void stop(); // no last words: a crash
    void freeze(bool on);

    QString address() const; // of the operator, with level and protocols

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    quint16 m_port = 0;
};

#endif // SNMPD_H
