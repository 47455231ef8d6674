#include "history/historytext.h"

#include "history/tiers.h"
#include "reading/devicesnapshot.h"
#include "reading/sanitize.h"

#include <QDateTime>
#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr double kMsPerSecond = 1000;
constexpr int kDecimals = 3;

template <typename T>
struct Word {
    T value;
    const char* word;
};
constexpr Word<OutputSource> kSources[] = {
    {OutputSource::None, "none"},       {OutputSource::Utility, "utility"},
    {OutputSource::Bypass, "bypass"},   {OutputSource::Battery, "battery"},
    {OutputSource::Booster, "booster"}, {OutputSource::Reducer, "reducer"}};
constexpr Word<BatteryState> kBatteries[] = {{BatteryState::Low, "low"},
                                             {BatteryState::Depleted, "depleted"},
                                             {BatteryState::SelfTest, "self-test"},
                                             {BatteryState::BoostCharge, "boost-charge"},
                                             {BatteryState::FloatCharge, "float-charge"},
                                             {BatteryState::Discharge, "discharge"},
                                             {BatteryState::Normal, "normal"}};
constexpr Word<qint64> kAges[] = {
    {kMsPerMinute, "m"}, {kMsPerHour, "h"}, {kMsPerDay, "d"}, {7 * kMsPerDay, "w"}};

template <typename T, size_t N>
QString wordOf(const Word<T> (&words)[N], T value)
{
    for (const Word<T>& row : words)
        if (row.value == value)
            return QLatin1String(row.word);
    return QStringLiteral("unknown");
}

QStringList alarmWords(quint32 bits)
{
    QList<Alarm> alarms = alarmsOfBits(bits).values();
    std::sort(alarms.begin(), alarms.end());
    QStringList words;
    for (Alarm alarm : qAsConst(alarms))
        words += alarmText(alarm);
    return words;
}

QString number(double value)
{
    QString text = QString::number(value, 'f', kDecimals);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

// Device text was cleaned when it was stored; the store is another's file by now.
QString plain(const QString& text)
{
    return cleanDeviceText(text);
}

QString isoOrEmpty(const std::optional<qint64>& time)
{
    return time ? isoTime(*time) : QString();
}

QJsonValue isoOrNull(const std::optional<qint64>& time)
{
    return time ? QJsonValue(isoTime(*time)) : QJsonValue();
}

} // namespace

QString isoTime(qint64 timeMs)
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(timeMs);
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

std::optional<qint64> timeOf(const QString& text, qint64 nowMs)
{
    static const QRegularExpression age(QStringLiteral("^(\\d{1,6})([mhdw])$"));
    if (const auto match = age.match(text); match.hasMatch()) {
        for (const auto& row : kAges)
            if (match.captured(2) == QLatin1String(row.word))
                return nowMs - match.captured(1).toLongLong() * row.value;
    }
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    return time.isValid() ? std::optional<qint64>(time.toMSecsSinceEpoch()) : std::nullopt;
}

QString csvLine(const QStringList& fields)
{
    static const QString dangerous = QStringLiteral("=+-@\t\r");
    QStringList cells;
    for (QString field : fields) {
        bool isNumber = false;
        field.toDouble(&isNumber);
        if (!field.isEmpty() && !isNumber && dangerous.contains(field.at(0)))
            field.prepend(QLatin1Char('\''));
        const bool quoted = std::any_of(field.begin(), field.end(), [](QChar c) {
            return QStringLiteral(",\"\r\n").contains(c);
        });
        if (quoted)
            field = '"' + field.replace('"', "\"\"") + '"';
        cells += field;
    }
    return cells.join(QLatin1Char(',')) + QStringLiteral("\r\n");
}

QString sourceName(OutputSource source)
{
    return wordOf(kSources, source);
}

// Samples

QStringList sampleTitles()
{
    QStringList titles{"time", "span (s)", "link", "source", "battery", "alarms"};
    for (const Quantity& quantity : quantities())
        titles += quantityTitle(quantity);
    return titles;
}

QStringList sampleFields(qint64 timeMs, qint64 spanMs, const Bucket& bucket)
{
    QStringList fields{isoTime(timeMs),
                       number(static_cast<double>(spanMs) / kMsPerSecond),
                       linkStateName(bucket.state.link),
                       sourceName(bucket.state.source),
                       wordOf(kBatteries, bucket.state.battery),
                       alarmWords(bucket.state.alarms).join(QStringLiteral("; "))};
    for (std::size_t i = 0; i < quantities().size(); ++i) {
        const bool isKnown = i < bucket.parts.size() && bucket.parts[i].range.isKnown();
        fields += isKnown ? number(bucket.parts[i].range.mean) : QString();
    }
    return fields;
}

QJsonObject sampleObject(qint64 timeMs, qint64 spanMs, const Bucket& bucket)
{
    const QStringList titles = sampleTitles();
    const QStringList fields = sampleFields(timeMs, spanMs, bucket);
    QJsonObject object;
    for (int i = 0; i < titles.size(); ++i) {
        bool isNumber = false;
        const double value = fields.at(i).toDouble(&isNumber);
        if (!fields.at(i).isEmpty())
            object.insert(titles.at(i), isNumber ? QJsonValue(value) : QJsonValue(fields.at(i)));
    }
    object.insert(QStringLiteral("alarms"),
                  QJsonArray::fromStringList(alarmWords(bucket.state.alarms)));
    return object;
}

// Journal

QStringList journalTitles()
{
    return {"onset",
            "end",
            "duration (s)",
            "device",
            "site",
            "kind",
            "severity",
            "text",
            "message",
            "operator",
            "lowest charge (%)",
            "acknowledged",
            "acknowledged by",
            "note"};
}

QStringList journalFields(const JournalEntry& entry)
{
    return {isoTime(entry.onsetMs),
            isoOrEmpty(entry.endMs),
            entry.endMs ? number(static_cast<double>(*entry.endMs - entry.onsetMs) / kMsPerSecond)
                        : QString(),
            plain(entry.device),
            plain(entry.site),
            journalKindName(entry.kind),
            urgencyName(entry.severity),
            plain(entry.text),
            plain(entry.message),
            plain(entry.operatorName),
            entry.lowestCharge ? number(*entry.lowestCharge) : QString(),
            isoOrEmpty(entry.acknowledgedMs),
            plain(entry.acknowledgedBy),
            plain(entry.acknowledgeNote)};
}

QJsonObject journalObject(const JournalEntry& entry)
{
    QJsonObject object{{"device", plain(entry.device)},
                       {"site", plain(entry.site)},
                       {"kind", journalKindName(entry.kind)},
                       {"severity", urgencyName(entry.severity)},
                       {"text", plain(entry.text)},
                       {"message", plain(entry.message)},
                       {"onset", isoTime(entry.onsetMs)},
                       {"end", isoOrNull(entry.endMs)},
                       {"operator", plain(entry.operatorName)},
                       {"acknowledged", isoOrNull(entry.acknowledgedMs)},
                       {"acknowledgedBy", plain(entry.acknowledgedBy)},
                       {"note", plain(entry.acknowledgeNote)}};
    if (entry.lowestCharge)
        object.insert(QStringLiteral("lowestCharge"), *entry.lowestCharge);
    return object;
}
