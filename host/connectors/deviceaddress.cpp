#include "connectors/deviceaddress.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>
#include <QUrlQuery>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DeviceAddress)
};

const QLatin1String kSimulatorPrefix("sim:");

ParsedAddress failure(const QString& error)
{
    return {std::nullopt, error};
}

// Fills `target` with the query's value in its canonical spelling; an unknown value is an error.
bool readChoice(const QUrlQuery& query, const QString& key, const QStringList& choices,
                QString& target, QString& error)
{
    if (!query.hasQueryItem(key))
        return true;
    const QString given = query.queryItemValue(key, QUrl::FullyDecoded);
    const int index = choices.indexOf(
        QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(given) + QLatin1Char('$'),
                           QRegularExpression::CaseInsensitiveOption));
    if (index < 0) {
        error = Tr::tr("\"%1\" is not one of %2 for %3")
                    .arg(given.left(40), choices.join(QStringLiteral(", ")), key);
        return false;
    }
    target = choices.at(index);
    return true;
}

ParsedAddress parseNut(const QUrl& url, DeviceAddress address)
{
    if (!url.userInfo().isEmpty())
        return failure(Tr::tr("user and password of a NUT server belong in the configuration, "
                              "not in the address"));
    address.scheme = DeviceAddress::Scheme::Nut;
    address.port = static_cast<quint16>(url.port(DeviceAddress::kNutPort));
    address.ups = url.path(QUrl::FullyDecoded).mid(1);
    static const QRegularExpression name(QStringLiteral("^[^/\\s\"\\\\]*$"));
    if (!name.match(address.ups).hasMatch())
        return failure(Tr::tr("a NUT address looks like nut://HOST[:PORT]/UPS"));
    return {address, {}};
}

// What is wrong; empty: all are known.
QString unknownOption(const QUrlQuery& query)
{
    const QStringList known{"version", "level", "auth", "priv", "context"};
    const auto items = query.queryItems();
    for (const auto& item : items)
        if (!known.contains(item.first))
            return Tr::tr("unknown option \"%1\"; known are %2")
                .arg(item.first.left(40), known.join(QStringLiteral(", ")));
    return {};
}

// What is wrong in the options; empty: they are read.
QString readSnmpOptions(const QUrlQuery& query, DeviceAddress& address)
{
    QString version = QStringLiteral("2c");
    QString error = unknownOption(query);
    if (!error.isEmpty() || !readChoice(query, "version", {"1", "2", "2c", "3"}, version, error) ||
        !readChoice(query, "level", DeviceAddress::securityLevels(), address.securityLevel,
                    error) ||
        !readChoice(query, "auth", DeviceAddress::authProtocols(), address.authProtocol, error) ||
        !readChoice(query, "priv", DeviceAddress::privProtocols(), address.privProtocol, error))
        return error;
    address.snmpVersion = version.left(1).toInt();
    address.context = query.queryItemValue(QStringLiteral("context"), QUrl::FullyDecoded);
    return {};
}

void setUnlessGiven(QString& text, const char* usual)
{
    if (text.isEmpty())
        text = QLatin1String(usual);
}

ParsedAddress parseSnmp(const QUrl& url, DeviceAddress address)
{
    if (!url.password().isEmpty())
        return failure(Tr::tr("SNMP secrets belong in the configuration, not in the address"));
    address.scheme = DeviceAddress::Scheme::Snmp;
    address.port = static_cast<quint16>(url.port(DeviceAddress::kSnmpPort));
    if (const QString wrong = readSnmpOptions(QUrlQuery(url), address); !wrong.isEmpty())
        return failure(wrong);

    const QString name = url.userName(QUrl::FullyDecoded);
    if (address.snmpVersion < 3) {
        address.community = name.isEmpty() ? QStringLiteral("public") : name;
        return {address, {}};
    }
    if (name.isEmpty())
        return failure(Tr::tr("SNMPv3 needs a user: snmp://USER@HOST?version=3"));
    address.user = name;
    setUnlessGiven(address.securityLevel, "authPriv");
    setUnlessGiven(address.authProtocol, "SHA");
    setUnlessGiven(address.privProtocol, "AES");
    return {address, {}};
}

// The query of an SNMP address, with its question mark; empty for version 2c.
QString snmpQuery(const DeviceAddress& address)
{
    if (address.snmpVersion == 1)
        return QStringLiteral("?version=1");
    if (address.snmpVersion < 3)
        return {};
    QString query = QStringLiteral("?version=3&level=") + address.securityLevel;
    if (address.securityLevel != DeviceAddress::securityLevels().first())
        query += QStringLiteral("&auth=") + address.authProtocol;
    if (address.securityLevel == DeviceAddress::securityLevels().last())
        query += QStringLiteral("&priv=") + address.privProtocol;
    if (!address.context.isEmpty())
        query += QStringLiteral("&context=") +
                 QString::fromLatin1(QUrl::toPercentEncoding(address.context));
    return query;
}

} // namespace

QStringList DeviceAddress::securityLevels()
{
    return {"noAuthNoPriv", "authNoPriv", "authPriv"};
}

QStringList DeviceAddress::authProtocols()
{
    return {"MD5", "SHA", "SHA-224", "SHA-256", "SHA-384", "SHA-512"};
}

QStringList DeviceAddress::privProtocols()
{
    return {"DES", "AES", "AES-192", "AES-256"};
}

QString deviceAddressText(const DeviceAddress& address)
{
    if (address.scheme == DeviceAddress::Scheme::Simulator)
        return kSimulatorPrefix + address.scenario;
    const bool nut = address.scheme == DeviceAddress::Scheme::Nut;
    QUrl url;
    url.setScheme(nut ? QStringLiteral("nut") : QStringLiteral("snmp"));
    url.setHost(address.host);
    if (address.port != (nut ? DeviceAddress::kNutPort : DeviceAddress::kSnmpPort))
        url.setPort(address.port);
    if (nut) {
        url.setPath(QLatin1Char('/') + address.ups, QUrl::DecodedMode);
        return url.toString(QUrl::FullyEncoded);
    }
    const QString user = address.snmpVersion < 3 ? address.community : address.user;
    if (!user.isEmpty() && (address.snmpVersion >= 3 || user != QLatin1String("public")))
        url.setUserName(user, QUrl::DecodedMode);
    return url.toString(QUrl::FullyEncoded) + snmpQuery(address);
}

bool isMadeUpHost(const QString& host, const QString& text)
{
    return QHostAddress(host).protocol() == QAbstractSocket::IPv4Protocol && !text.contains(host);
}

ParsedAddress parseDeviceAddress(const QString& text)
{
    DeviceAddress address;
    address.text = text.trimmed();
    if (address.text.startsWith(kSimulatorPrefix)) {
        address.scenario = address.text.mid(kSimulatorPrefix.size());
        return {address, {}};
    }

    const QUrl url(address.text, QUrl::StrictMode);
    const bool nut = url.scheme() == QLatin1String("nut");
    const bool snmp = url.scheme() == QLatin1String("snmp");
    if (!nut && !snmp)
        return failure(Tr::tr("an address starts with sim:, nut:// or snmp://"));
    if (!url.isValid() || url.host().isEmpty() || isMadeUpHost(url.host(), address.text))
        return failure(Tr::tr("no valid host or port in the address")); // it may hold a community
    if (url.port(1) < 1)
        return failure(Tr::tr("a port lies between 1 and 65535"));
    address.host = url.host();
    return nut ? parseNut(url, address) : parseSnmp(url, address);
}

QString shownAddress(const DeviceAddress& address)
{
    if (address.scheme != DeviceAddress::Scheme::Snmp || address.snmpVersion == 3)
        return address.text;
    QUrl url(address.text, QUrl::StrictMode);
    url.setUserInfo(QString());
    return url.toString();
}
