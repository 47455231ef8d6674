#include "connectors/addressrange.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <optional>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(AddressRange)
};

constexpr int kBits = 32;
constexpr int kOctetBits = 8;
constexpr quint32 kLastOctet = 0xff;
constexpr int kLongestWithEnds = 30; // a longer prefix has no network and broadcast addresses

std::optional<quint32> parseHost(const QString& text)
{
    const QStringList octets = text.split(QLatin1Char('.'));
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,3}$"));
    constexpr int kOctetsOfAHost = 4;
    if (octets.size() != kOctetsOfAHost)
        return {};
    quint32 host = 0;
    for (const QString& octet : octets) {
        if (!digits.match(octet).hasMatch() || octet.toUInt() > kLastOctet)
            return {};
        host = host << kOctetBits | octet.toUInt();
    }
    return host;
}

QString hostText(quint32 host)
{
    QStringList octets;
    for (int shift = kBits - kOctetBits; shift >= 0; shift -= kOctetBits)
        octets << QString::number(host >> shift & kLastOctet);
    return octets.join(QLatin1Char('.'));
}

AddressRange wrong()
{
    return {{}, Tr::tr("Enter a range as 10.0.0.0/24, 10.0.0.5-10.0.0.60 or 10.0.0.5-60.")};
}

AddressRange between(quint64 first, quint64 last)
{
    if (last < first)
        return wrong();
    if (last - first >= AddressRange::kMostHosts)
        return {{},
                Tr::tr("The range has %1 addresses; at most %2 are asked at a time.")
                    .arg(last - first + 1)
                    .arg(AddressRange::kMostHosts)};
    AddressRange range;
    for (quint64 host = first; host <= last; ++host)
        range.hosts << hostText(static_cast<quint32>(host));
    return range;
}

AddressRange ofNetwork(quint32 host, const QString& prefix)
{
    bool ok = false;
    const int bits = prefix.toInt(&ok);
    if (!ok || bits < 0 || bits > kBits)
        return wrong();
    const quint64 size = quint64(1) << (kBits - bits);
    const quint64 first = host & ~(size - 1);
    const quint64 ends = bits <= kLongestWithEnds ? 1 : 0;
    return between(first + ends, first + size - 1 - ends);
}

} // namespace

AddressRange AddressRange::parse(const QString& text)
{
    const QString typed = text.simplified().remove(QLatin1Char(' '));
    const QStringList network = typed.split(QLatin1Char('/'));
    const QStringList ends = typed.split(QLatin1Char('-'));
    const auto first = parseHost(network.size() == 2 ? network.first() : ends.first());
    if (!first)
        return wrong();
    if (network.size() == 2)
        return ofNetwork(*first, network.last());
    if (ends.size() == 1)
        return between(*first, *first);
    // "10.0.0.5-60": the end has the beginning's first octets.
    const QString end =
        ends.last().contains(QLatin1Char('.'))
            ? ends.last()
            : ends.first().section(QLatin1Char('.'), 0, 2) + QLatin1Char('.') + ends.last();
    const auto last = parseHost(end);
    return last && ends.size() == 2 ? between(*first, *last) : wrong();
}
