#ifndef SNMPVALUE_H
#define SNMPVALUE_H

// One object of an SNMP agent as a value of our own, apart from the protocol library.
// May touch: Qt Core, the standard library, readings.

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

// Compares in the order in which agents walk.
using SnmpOid = std::vector<quint32>;

inline bool isBelow(const SnmpOid& oid, const SnmpOid& root)
{
    return oid.size() > root.size() && std::equal(root.begin(), root.end(), oid.begin());
}

inline SnmpOid operator+(SnmpOid root, const SnmpOid& rest)
{
    root.insert(root.end(), rest.begin(), rest.end());
    return root;
}

// "1.3.6.1"; empty text for an empty identifier.
QString toText(const SnmpOid& oid);
// Numeric text, a leading dot allowed; empty when it is none.
SnmpOid oidFromText(const QByteArray& text);

struct SnmpValue {
    enum class Type {
        Absent, // noSuchObject, noSuchInstance, endOfMibView
        Null,
        Number, // INTEGER, Counter32, Gauge32, TimeTicks, Counter64
        Text,   // OCTET STRING and whatever else is octets
        ObjectId
    };

    Type type = Type::Absent;
    qint64 integer = 0;
    QByteArray octets;
    SnmpOid oid;

    static SnmpValue absent() { return {}; }
    static SnmpValue null() { return {Type::Null, 0, {}, {}}; }
    static SnmpValue number(qint64 n) { return {Type::Number, n, {}, {}}; }
    static SnmpValue text(const QByteArray& t) { return {Type::Text, 0, t, {}}; }
    static SnmpValue objectId(const SnmpOid& o) { return {Type::ObjectId, 0, {}, o}; }

    // Numbers, and texts that are numbers; empty for all others and for marks of "not known".
    std::optional<double> plausible() const;
    // An integer as it stands, -1 and other marks included.
    std::optional<qint64> raw() const;
    // Identifiers, and texts that are one; else empty.
    SnmpOid identifier() const;
};

using SnmpValues = std::map<SnmpOid, SnmpValue>;

#endif // SNMPVALUE_H
