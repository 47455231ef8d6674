#include "private/passwordhash.h"

#include <QRegularExpression>

#include <sodium.h>

namespace {

constexpr quint64 kKibi = 1024;
constexpr quint64 kMaxMemory = 1024 * 1024; // KiB
constexpr quint64 kMaxPasses = 20;
constexpr quint64 kMaxLanes = 16;

bool ready()
{
    static const bool ok = sodium_init() >= 0;
    return ok;
}

} // namespace

HashLimits HashLimits::standard()
{
    return {crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE};
}

HashLimits HashLimits::minimal()
{
    return {crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN};
}

QString hashPassword(const SecretText& password, const HashLimits& limits)
{
    char hash[crypto_pwhash_STRBYTES];
    if (!ready() || crypto_pwhash_str_alg(hash, password.data(), password.size(), limits.passes,
                                          static_cast<size_t>(limits.memory),
                                          crypto_pwhash_ALG_ARGON2ID13) != 0)
        return {};
    return QString::fromLatin1(hash);
}

bool verifyPassword(const QString& hash, const SecretText& password)
{
    const QByteArray bytes = hash.toLatin1();
    return ready() && isPasswordHash(hash) &&
           crypto_pwhash_str_verify(bytes.constData(), password.data(), password.size()) == 0;
}

bool isPasswordHash(const QString& hash)
{
    static const QRegularExpression form(
        QStringLiteral("\\A\\$argon2id\\$v=19\\$m=([0-9]{1,9}),t=([0-9]{1,9}),p=([0-9]{1,3})"
                       "\\$[A-Za-z0-9+/]{11,64}\\$[A-Za-z0-9+/]{22,64}\\z"));
    const auto match = form.match(hash);
    const auto within = [&match](int group, quint64 maximum) {
        const quint64 number = match.captured(group).toULongLong();
        return number >= 1 && number <= maximum;
    };
    return match.hasMatch() && hash.size() < int(crypto_pwhash_STRBYTES) && within(1, kMaxMemory) &&
           within(2, kMaxPasses) && within(3, kMaxLanes);
}

QString impossibleHash(const HashLimits& limits)
{
    // 16 bytes of salt and a result of 32 zero bytes, in base 64 without padding.
    return QStringLiteral("$argon2id$v=19$m=%1,t=%2,p=1$%3$%4")
        .arg(limits.memory / kKibi)
        .arg(limits.passes)
        .arg(QString(22, QLatin1Char('A')), QString(43, QLatin1Char('A')));
}
