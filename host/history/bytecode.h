#ifndef BYTECODE_H
#define BYTECODE_H

// Variable-length integers and texts in a byte array.
// May touch: Qt Core.

#include <QByteArray>
#include <QString>

class ByteWriter
{
public:
    void number(quint64 value);
    void signedNumber(qint64 value); // small magnitudes are short, whatever their sign
    void text(const QString& text);
    void blob(const QByteArray& blob);
    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

// Reads nothing but zeros and empty texts once the bytes have run out, and says so.
class ByteReader
{
public:
    explicit ByteReader(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    quint64 number();
    qint64 signedNumber();
    QString text();
    QByteArray blob();
    bool failed() const { return m_failed; }

private:
    QByteArray m_bytes;
    int m_position = 0;
    bool m_failed = false;
};

#endif // BYTECODE_H
