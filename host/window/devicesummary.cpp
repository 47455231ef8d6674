#include "window/devicesummary.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DeviceSummary)
};

constexpr qint64 kMinute = 60;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;

QString unknown()
{
    return QStringLiteral("--");
}

QString percent(const Value& value)
{
    return value ? Tr::tr("%1 %").arg(std::lround(std::clamp(*value, -9999.0, 9999.0))) : unknown();
}

QString lastDataText(qint64 ageMs)
{
    return ageMs < 0 ? Tr::tr("never any data") : Tr::tr("last data %1 ago").arg(ageText(ageMs));
}

} // namespace

QString ageText(qint64 ageMs)
{
    if (ageMs < 0)
        return {};
    const qint64 s = ageMs / 1000;
    if (s < 1)
        return Tr::tr("now");
    if (s < kMinute)
        return Tr::tr("%1 s").arg(s);
    if (s < kHour)
        return Tr::tr("%1 min").arg(s / kMinute);
    if (s < kDay)
        return Tr::tr("%1 h %2 min").arg(s / kHour).arg(s % kHour / kMinute);
    return Tr::tr("%1 days").arg(s / kDay);
}

QString linkText(LinkState link, qint64 ageMs)
{
    if (link == LinkState::Connecting)
        return Tr::tr("connecting");
    if (link == LinkState::Live)
        return ageMs < 1000 ? Tr::tr("live, now") : Tr::tr("live, %1 ago").arg(ageText(ageMs));
    static const QMap<LinkState, QString> words{{LinkState::Stale, Tr::tr("no new data")},
                                                {LinkState::Lost, Tr::tr("no answer")},
                                                {LinkState::Refused, Tr::tr("refused")}};
    return words.value(link) + QStringLiteral(", ") + lastDataText(ageMs);
}

QString dataText(const Device& device)
{
    if (device.link() == LinkState::Live)
        return linkText(LinkState::Live, device.ageMs());
    QStringList lines;
    if (!device.message().isEmpty())
        lines << device.message();
    if (device.link() != LinkState::Connecting)
        lines << lastDataText(device.ageMs());
    return lines.join(QLatin1Char('\n'));
}

QString sinceText(const QDateTime& since)
{
    const bool today = since.date() == QDate::currentDate();
    const QString format = today ? QStringLiteral("HH:mm:ss") : QStringLiteral("yyyy-MM-dd HH:mm");
    return Tr::tr("since %1").arg(since.toString(format));
}

QString momentText(const QDateTime& moment)
{
    const bool today = moment.date() == QDate::currentDate();
    return moment.toString(today ? QStringLiteral("HH:mm") : QStringLiteral("d MMM"));
}

std::array<DeviceFigure, 3> deviceFigures(const UpsReading* reading)
{
    return {{{Tr::tr("Battery"), chargeText(reading)},
             {Tr::tr("Lasts"), runtimeText(reading)},
             {Tr::tr("Load"), loadText(reading)}}};
}

QString chargeText(const UpsReading* reading)
{
    return reading ? percent(reading->charge) : unknown();
}

QString runtimeText(const UpsReading* reading)
{
    if (!reading || !reading->runtime)
        return unknown();
    const auto minutes = static_cast<qint64>(std::clamp(*reading->runtime, 0.0, 1e9)) / kMinute;
    constexpr qint64 kMinutesWorthCounting = 100;
    if (minutes < kMinutesWorthCounting)
        return Tr::tr("%1 min").arg(minutes);
    return Tr::tr("%1 h").arg(static_cast<double>(minutes) / 60, 0, 'f', 1);
}

QString loadText(const UpsReading* reading)
{
    if (!reading)
        return unknown();
    const PhaseValues& load = reading->output.load;
    return percent(*std::max_element(load.begin(), load.end())); // an absent value is the least
}

QString testResultText(const Device& device)
{
    const QString condition = device.condition().text;
    if (device.link() != LinkState::Live) {
        const QString cause = device.message();
        return cause.isEmpty() ? condition : condition + QStringLiteral(": ") + cause;
    }
    QStringList words{condition, Tr::tr("Battery %1").arg(chargeText(device.reading()))};
    if (!device.reading()->model.isEmpty())
        words.prepend(device.reading()->model);
    return Tr::tr("Live: %1").arg(words.join(QStringLiteral("  \u00b7  ")));
}
