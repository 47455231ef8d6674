#include "history/bytecode.h"

namespace {

constexpr int kBitsPerByte = 7;
constexpr quint64 kMore = 0x80; // another byte follows
constexpr int kMostBits = 64;

} // namespace

void ByteWriter::number(quint64 value)
{
    for (; value >= kMore; value >>= kBitsPerByte)
        m_bytes.append(static_cast<char>(value | kMore));
    m_bytes.append(static_cast<char>(value));
}

void ByteWriter::signedNumber(qint64 value)
{
    const auto bits = static_cast<quint64>(value);
    number(value < 0 ? ~(bits << 1) : bits << 1);
}

void ByteWriter::text(const QString& text)
{
    blob(text.toUtf8());
}

void ByteWriter::blob(const QByteArray& blob)
{
    number(static_cast<quint64>(blob.size()));
    m_bytes.append(blob);
}

quint64 ByteReader::number()
{
    quint64 value = 0;
    for (int shift = 0; shift < kMostBits && m_position < m_bytes.size(); shift += kBitsPerByte) {
        const auto byte = static_cast<quint8>(m_bytes.at(m_position++));
        value |= (byte & (kMore - 1)) << shift;
        if (!(byte & kMore))
            return value;
    }
    m_failed = true;
    return 0;
}

qint64 ByteReader::signedNumber()
{
    const quint64 bits = number();
    return static_cast<qint64>(bits & 1 ? ~(bits >> 1) : bits >> 1);
}

QString ByteReader::text()
{
    return QString::fromUtf8(blob());
}

QByteArray ByteReader::blob()
{
    const quint64 size = number();
    if (m_failed || size > static_cast<quint64>(m_bytes.size() - m_position)) {
        m_failed = true;
        return {};
    }
    const QByteArray blob = m_bytes.mid(m_position, static_cast<int>(size));
    m_position += static_cast<int>(size);
    return blob;
}
