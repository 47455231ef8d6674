#ifndef POSTGRESFIXTURE_H
#define POSTGRESFIXTURE_H

// A PostgreSQL server of the test's own on a free loopback port.
// May touch: initdb, postgres and a temporary folder. Everything ends with the object, and with the
// test program.

#include "history/storeaddress.h"

#include <QProcess>
#include <QTemporaryDir>

#include <memory>

class PostgresFixture
{
public:
    ~PostgresFixture();

    // Makes the cluster and starts it. Empty when it takes connections; otherwise what went wrong.
    QString start();
    QString startServer();
    void stopServer();
    void freezeServer(bool frozen);
    // Forgets all tables.
    QString clear();

    StoreAddress address() const;

private:
    std::unique_ptr<QProcess> launch(const QString& program, const QStringList& arguments);

    QTemporaryDir m_folder;
    quint16 m_port = 0;
    std::unique_ptr<QProcess> m_server;
};

#endif // POSTGRESFIXTURE_H
