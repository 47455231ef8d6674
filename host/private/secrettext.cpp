#include "private/secrettext.h"

#include <sodium.h>

#include <utility>

SecretText::SecretText(const QString& text)
{
    QByteArray utf8 = text.toUtf8();
    m_bytes.assign(utf8.cbegin(), utf8.cend());
    sodium_memzero(utf8.data(), static_cast<size_t>(utf8.size()));
}

SecretText::SecretText(const QByteArray& utf8)
    : m_bytes(utf8.cbegin(), utf8.cend())
{}

SecretText::SecretText(SecretText&& other) noexcept
    : m_bytes(std::move(other.m_bytes))
{}

SecretText& SecretText::operator=(SecretText other) noexcept
{
    m_bytes.swap(other.m_bytes);
    return *this;
}

SecretText::~SecretText()
{
    if (!m_bytes.empty())
        sodium_memzero(m_bytes.data(), m_bytes.size());
}

QString SecretText::toString() const
{
    return QString::fromUtf8(m_bytes.data(), static_cast<int>(m_bytes.size()));
}
