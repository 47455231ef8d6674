#ifndef NUTSERVERFIXTURE_H
#define NUTSERVERFIXTURE_H

// A NUT server of the test's own on a free loopback port, with one simulated device per recording.
// May touch: upsd, dummy-ups and a temporary folder. Everything ends with the object, and with the
// test program.

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <memory>

// Accounts: "operator"/"secret" may do everything, "guest"/"guest" nothing but look.
class NutServerFixture
{
public:
    // One device per .dev file, by the file's stem.
    explicit NutServerFixture(const QStringList& recordings);
    ~NutServerFixture();

    // Empty when server and drivers run; otherwise what went wrong.
    QString start();

    QString address(const QString& device) const; // nut://...

    bool startServer();
    void stopServer();
    void freezeServer(bool frozen);
    bool startDriver(const QString& device);
    void stopDriver(const QString& device);
    void freezeDriver(const QString& device, bool frozen);

private:
    bool writeFile(const QString& name, const QByteArray& text);
    std::unique_ptr<QProcess> launch(const QString& program, const QStringList& arguments);

    const QStringList m_recordings;
    QTemporaryDir m_folder;
    quint16 m_port = 0;
    std::unique_ptr<QProcess> m_server;
    std::map<QString, std::unique_ptr<QProcess>> m_drivers;
};

#endif // NUTSERVERFIXTURE_H
