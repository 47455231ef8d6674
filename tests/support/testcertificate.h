#ifndef TESTCERTIFICATE_H
#define TESTCERTIFICATE_H

// A certificate of the test's own, signed by itself, with its key.
// May touch: the openssl command and a temporary folder.

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QTemporaryDir>

class TestCertificate
{
public:
    // altName: whom it is for, "IP:127.0.0.1" or "DNS:ups.example".
    explicit TestCertificate(const QString& altName)
    {
        const QString keyPath = m_folder.filePath("key.pem");
        const QString command =
            "exec openssl req -x509 -newkey ec -pkeyopt "
            "ec_paramgen_curve:P-256 -nodes -days 2 -subj '/CN=test server' "
            "-addext \"subjectAltName=$1\" -keyout \"$2\" -out \"$3\" 2>/dev/null";
        QProcess::execute("sh", {"-c", command, "sh", altName, keyPath, path()});
        certificate = QSslCertificate::fromPath(path()).value(0);
        QFile file(keyPath);
        if (file.open(QIODevice::ReadOnly))
            key = QSslKey(file.readAll(), QSsl::Ec);
    }

    QString path() const { return m_folder.filePath("certificate.pem"); }
    QString fingerprint() const
    {
        return "sha256:" +
               QString::fromLatin1(certificate.digest(QCryptographicHash::Sha256).toHex());
    }

    QSslCertificate certificate;
    QSslKey key;

private:
    QTemporaryDir m_folder;
};

#endif // TESTCERTIFICATE_H
