#include "history/storeaddress.h"

#include <QCoreApplication>
#include <QDir>
#include <QHostAddress>
#include <QStandardPaths>
#include <QUrl>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(StoreAddress)
};

const QString kSqlite = QStringLiteral("sqlite:");
const QString kPostgres = QStringLiteral("postgresql");

ParsedStore parseServer(const QString& text)
{
    ParsedStore result;
    const QUrl url(text, QUrl::StrictMode);
    StoreAddress& address = result.address;
    address.kind = StoreAddress::Kind::Postgres;
    address.user = url.userName(QUrl::FullyDecoded);
    address.host = url.host();
    address.port = static_cast<quint16>(url.port(address.port));
    address.database = url.path(QUrl::FullyDecoded).mid(1);
    if (!url.isValid() || url.scheme() != kPostgres || address.user.isEmpty() ||
        address.host.isEmpty() || address.database.isEmpty() || url.hasQuery())
        result.error = Tr::tr("store is sqlite:PATH or postgresql://USER@HOST[:PORT]/DATABASE");
    if (!url.password().isEmpty())
        result.error = Tr::tr("a password does not belong in the store's address but in the "
                              "keychain, or in UPSDESK_HISTORY_SECRET");
    return result;
}

} // namespace

QString StoreAddress::text() const
{
    if (kind == Kind::Sqlite)
        return kSqlite + path;
    return QStringLiteral("postgresql://%1@%2:%3/%4").arg(user, host).arg(port).arg(database);
}

bool StoreAddress::isLocal() const
{
    return kind == Kind::Sqlite || host.isEmpty() || host.startsWith(QLatin1Char('/')) ||
           host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

ParsedStore parseStoreAddress(const QString& text)
{
    if (!text.isEmpty() && !text.startsWith(kSqlite))
        return parseServer(text);
    ParsedStore result;
    const QString path = text.mid(kSqlite.size());
    result.address.path = path.isEmpty() ? defaultStorePath() : path;
    if (!QDir::isAbsolutePath(result.address.path))
        result.error = Tr::tr("the path of the store begins with /: sqlite:/PATH");
    return result;
}

QString defaultStorePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/upsdesk/history.db");
}
