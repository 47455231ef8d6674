#include "snmpagent.h"

#include <QTimer>

namespace {

enum Tag : quint8 {
    Integer = 0x02,
    OctetString = 0x04,
    Null = 0x05,
    ObjectId = 0x06,
    Sequence = 0x30,
    Counter64 = 0x46,
    NoSuchInstance = 0x81,
    EndOfMibView = 0x82,
    GetPdu = 0xa0,
    GetNextPdu = 0xa1,
    ResponsePdu = 0xa2,
    SetPdu = 0xa3,
    GetBulkPdu = 0xa5
};

// Reads one element after another; anything that does not fit reads as empty.
class BerReader
{
public:
    explicit BerReader(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    bool atEnd() const { return m_at >= m_bytes.size(); }
    quint8 tag() const { return atEnd() ? 0 : static_cast<quint8>(m_bytes[m_at]); }

    QByteArray content()
    {
        ++m_at;
        int length = octet();
        if (length > 0x80) {
            int more = length & 0x7f;
            for (length = 0; more > 0 && length < 0x10000; --more)
                length = length * 256 + octet();
        }
        const QByteArray inside = m_bytes.mid(m_at, length);
        m_at += length;
        return inside;
    }

    qint64 integer()
    {
        const QByteArray bytes = content();
        qint64 value = !bytes.isEmpty() && (bytes[0] & 0x80) ? -1 : 0;
        for (const char byte : bytes)
            value = static_cast<qint64>(static_cast<quint64>(value) << 8) | quint8(byte);
        return value;
    }

    SnmpOid oid()
    {
        SnmpOid parts;
        quint32 part = 0;
        for (const char byte : content()) {
            part = part << 7 | (byte & 0x7f);
            if (byte & 0x80)
                continue;
            if (parts.empty()) {
                parts = {part / 40, part % 40};
            } else {
                parts.push_back(part);
            }
            part = 0;
        }
        return parts;
    }

private:
    int octet() { return atEnd() ? 0 : static_cast<quint8>(m_bytes[m_at++]); }

    QByteArray m_bytes;
    int m_at = 0;
};

QByteArray ber(quint8 tag, const QByteArray& content)
{
    QByteArray bytes(1, static_cast<char>(tag));
    if (content.size() >= 0x80) {
        bytes += static_cast<char>(0x82);
        bytes += static_cast<char>(content.size() >> 8);
    }
    bytes += static_cast<char>(content.size());
    return bytes + content;
}

QByteArray ber(qint64 number, quint8 tag = Integer)
{
    QByteArray bytes;
    do {
        bytes.prepend(static_cast<char>(number));
        number >>= 8;
    } while (bytes.size() < 8 && !(number == 0 && !(bytes[0] & 0x80)) &&
             !(number == -1 && (bytes[0] & 0x80)));
    return ber(tag, bytes);
}

QByteArray ber(const SnmpOid& oid)
{
    QByteArray bytes;
    for (std::size_t i = 1; i < oid.size(); ++i) {
        quint32 part = i == 1 ? oid[0] * 40 + oid[1] : oid[i];
        QByteArray coded(1, static_cast<char>(part & 0x7f));
        while (part >>= 7)
            coded.prepend(static_cast<char>(0x80 | (part & 0x7f)));
        bytes += coded;
    }
    return ber(ObjectId, bytes);
}

QByteArray ber(const SnmpValue& value, bool walking)
{
    switch (value.type) {
    case SnmpValue::Type::Number:
        return ber(value.integer, value.integer == qint32(value.integer) ? Integer : Counter64);
    case SnmpValue::Type::Text:
        return ber(OctetString, value.octets);
    case SnmpValue::Type::ObjectId:
        return ber(value.oid);
    case SnmpValue::Type::Absent:
        return ber(walking ? EndOfMibView : NoSuchInstance, QByteArray());
    case SnmpValue::Type::Null:
        break;
    }
    return ber(Null, QByteArray());
}

std::vector<SnmpVariable> readVariables(const QByteArray& list)
{
    std::vector<SnmpVariable> variables;
    BerReader rows(list);
    while (!rows.atEnd()) {
        BerReader row(rows.content());
        SnmpVariable variable{row.oid(), SnmpValue::null()};
        if (row.tag() == Integer)
            variable.value = SnmpValue::number(row.integer());
        else if (row.tag() == ObjectId)
            variable.value = SnmpValue::objectId(row.oid());
        variables.push_back(variable);
    }
    return variables;
}

} // namespace

SnmpAgent::SnmpAgent(QObject* parent, quint16 port)
    : QObject(parent)
    , m_socket(this)
{
    m_socket.bind(QHostAddress(QHostAddress::LocalHost), port);
    connect(&m_socket, &QUdpSocket::readyRead, this, &SnmpAgent::receive);
}

void SnmpAgent::receive()
{
    while (m_socket.hasPendingDatagrams()) {
        Packet packet;
        packet.bytes.resize(static_cast<int>(m_socket.pendingDatagramSize()));
        m_socket.readDatagram(packet.bytes.data(), packet.bytes.size(), &packet.from, &packet.port);
        if (frozen)
            m_kept.push_back(packet);
        else if (answerAfter > 0)
            QTimer::singleShot(answerAfter, this,
                               [this, packet] { answer(packet.bytes, packet.from, packet.port); });
        else
            answer(packet.bytes, packet.from, packet.port);
    }
}

void SnmpAgent::thaw()
{
    frozen = false;
    for (const Packet& packet : m_kept)
        answer(packet.bytes, packet.from, packet.port);
    m_kept.clear();
}

void SnmpAgent::answer(const QByteArray& packet, const QHostAddress& from, quint16 port)
{
    BerReader message(BerReader(packet).content());
    const qint64 version = message.integer();
    if (version > 1 || message.content() != community)
        return;

    SnmpRequest request;
    const quint8 tag = message.tag();
    request.kind = tag == GetPdu       ? SnmpRequest::Kind::Get
                   : tag == GetNextPdu ? SnmpRequest::Kind::GetNext
                   : tag == GetBulkPdu ? SnmpRequest::Kind::GetBulk
                                       : SnmpRequest::Kind::Set;
    BerReader pdu(message.content());
    const qint64 id = pdu.integer();
    pdu.integer();
    request.repetitions = static_cast<int>(pdu.integer());
    request.variables = readVariables(pdu.content());

    const std::optional<SnmpReply> reply = table.answer(request, version == 0 ? 1 : 2);
    if (!reply)
        return;
    const bool error = reply->errorStatus != SnmpNoError;
    const bool walking = tag == GetNextPdu || tag == GetBulkPdu;
    QByteArray list;
    for (const SnmpVariable& variable : error ? request.variables : reply->variables)
        list += ber(Sequence, ber(variable.oid) + ber(variable.value, walking));
    const QByteArray good = ber(
        Sequence, ber(version) + ber(OctetString, community) +
                      ber(ResponsePdu, ber(id) + ber(qint64(reply->errorStatus)) +
                                           ber(qint64(reply->errorIndex)) + ber(Sequence, list)));
    for (const QByteArray& datagram : spoil ? spoil(good) : QByteArrayList{good})
        m_socket.writeDatagram(datagram, from, port);
}
