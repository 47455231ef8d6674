#include "reading/sanitize.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double kUnknownMarks[] = {-1.0, 65535.0, 655350.0, 4294967295.0, -273.0};

// With the size given, Qt reads on behind a zero byte.
QString decoded(const QByteArray& raw)
{
    const QString utf8 = QString::fromUtf8(raw.constData(), raw.size());
    return utf8.toUtf8() == raw ? utf8 : QString::fromLatin1(raw.constData(), raw.size());
}

} // namespace

QString cleanDeviceText(const QByteArray& raw)
{
    return cleanDeviceText(decoded(raw));
}

QString cleanDeviceText(const QString& raw)
{
    QString clean;
    clean.reserve(std::min<int>(raw.size(), kMaxDeviceText));
    for (const QChar c : raw) {
        if (c.isSpace())
            clean += QLatin1Char(' ');
        else if (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format)
            clean += c;
        if (clean.size() >= 2 * kMaxDeviceText)
            break;
    }
    clean = clean.trimmed().left(kMaxDeviceText);
    if (!clean.isEmpty() && clean.at(clean.size() - 1).isHighSurrogate())
        clean.chop(1);
    return clean.trimmed(); // the cut may have bared a blank
}

Value plausible(double raw)
{
    const bool unknown = std::find(std::begin(kUnknownMarks), std::end(kUnknownMarks), raw) !=
                         std::end(kUnknownMarks);
    if (unknown || !std::isfinite(raw))
        return {};
    return raw;
}

Value plausibleNumber(const QByteArray& text)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok); // QByteArray always reads in the C locale
    return ok ? plausible(number) : Value{};
}
