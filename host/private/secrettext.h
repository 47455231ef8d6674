#ifndef SECRETTEXT_H
#define SECRETTEXT_H

// A password or key that is wiped from memory when it goes out of scope.
// May touch: Qt Core, libsodium. Deliberately knows no debug or data stream.

#include <QString>

#include <vector>

class SecretText
{
public:
    SecretText() = default;
    explicit SecretText(const QString& text);
    explicit SecretText(const QByteArray& utf8);
    SecretText(const SecretText& other) = default;
    SecretText(SecretText&& other) noexcept;
    SecretText& operator=(SecretText other) noexcept;
    ~SecretText();

    // UTF-8, not terminated; never null.
    const char* data() const { return m_bytes.empty() ? "" : m_bytes.data(); }
    size_t size() const { return m_bytes.size(); }
    bool isEmpty() const { return m_bytes.empty(); }
    // A copy that is not wiped, for interfaces that take nothing else.
    QString toString() const;

private:
    std::vector<char> m_bytes;
};

#endif // SECRETTEXT_H
