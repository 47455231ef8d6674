#include "connectors/snmp/snmpvalue.h"

#include "reading/sanitize.h"

#include <QStringList>

namespace {

constexpr int kMaxOidParts = 128; // limit of the protocol

} // namespace

QString toText(const SnmpOid& oid)
{
    QStringList parts;
    for (const quint32 part : oid)
        parts << QString::number(part);
    return parts.join(QLatin1Char('.'));
}

SnmpOid oidFromText(const QByteArray& text)
{
    QByteArray digits = text.trimmed();
    if (digits.startsWith('.'))
        digits.remove(0, 1);
    SnmpOid oid;
    for (const QByteArray& part : digits.split('.')) {
        bool ok = false;
        oid.push_back(part.toUInt(&ok));
        if (!ok || oid.size() > kMaxOidParts)
            return {};
    }
    return oid;
}

std::optional<double> SnmpValue::plausible() const
{
    switch (type) {
    case Type::Number:
        return ::plausible(static_cast<double>(integer));
    case Type::Text:
        return plausibleNumber(octets);
    case Type::Absent:
    case Type::Null:
    case Type::ObjectId:
        break;
    }
    return {};
}

std::optional<qint64> SnmpValue::raw() const
{
    if (type == Type::Number)
        return integer;
    bool ok = false;
    const qint64 number = type == Type::Text ? octets.trimmed().toLongLong(&ok) : 0;
    return ok ? std::optional<qint64>(number) : std::nullopt;
}

SnmpOid SnmpValue::identifier() const
{
    if (type == Type::ObjectId)
        return oid;
    return type == Type::Text ? oidFromText(octets) : SnmpOid{};
}
