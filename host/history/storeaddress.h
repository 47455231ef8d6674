#ifndef STOREADDRESS_H
#define STOREADDRESS_H

// Where the history is kept.
// May touch: Qt Core and the settings of the desk.

#include "config/desksettings.h"

#include <QString>

struct StoreAddress {
    enum class Kind { Sqlite, Postgres };

    Kind kind = Kind::Sqlite;
    QString path; // sqlite: absolute

    QString host; // postgresql; empty: this machine's socket. A path (/run/...) is a socket, too.
    quint16 port = 5432;
    QString user;
    QString database;
    QString secret; // never shown, never kept in the file
    HistoryTls tls = HistoryTls::Preferred;
    QString certificateAuthority; // file; empty: the system's

    // For people, without the secret.
    QString text() const;
    // Whether the server runs on this machine, so that nothing leaves it.
    bool isLocal() const;
};

struct ParsedStore {
    StoreAddress address;
    QString error; // empty: the address is good
};

//  sqlite:PATH   postgresql://USER@HOST[:PORT]/DATABASE   or empty for the user's own file
// A secret in it is an error.
ParsedStore parseStoreAddress(const QString& text);

// upsdesk/history.db in the user's data folder.
QString defaultStorePath();

#endif // STOREADDRESS_H
