#include "history/livetable.h"

#include "connectors/bootclock.h"
#include "reading/sanitize.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

const QString kNow = QStringLiteral("(extract(epoch FROM clock_timestamp()) * 1000)::bigint");
constexpr int kColumns = 14;
constexpr int kLongestInterval = 86400; // s

struct NumberKey {
    const char* key;
    int DeviceSettings::*value;
};
constexpr NumberKey kNumbers[] = {
    {"interval", &DeviceSettings::pollInterval},
    {"timeout", &DeviceSettings::timeout},
    {"retries", &DeviceSettings::retries},
};

QString text(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

template <typename T>
QVariant orNull(const T& value)
{
    return value.isNull() ? QVariant() : QVariant(value);
}

LinkState linkOf(int number)
{
    return number >= 0 && number <= static_cast<int>(LinkState::Refused)
               ? static_cast<LinkState>(number)
               : LinkState::Stale;
}

} // namespace

QString encodeLiveSettings(const DeviceSettings& settings)
{
    QJsonObject object{{"address", shownAddress(settings.address)}, {"group", settings.group}};
    for (const NumberKey& number : kNumbers)
        object.insert(QLatin1String(number.key), settings.*number.value);
    return text(object);
}

bool decodeLiveSettings(const QString& text, DeviceSettings& settings)
{
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    const ParsedAddress parsed = parseDeviceAddress(object.value("address").toString());
    if (!parsed.address)
        return false;
    settings.address = *parsed.address;
    settings.group = cleanDeviceText(object.value("group").toString());
    for (const NumberKey& number : kNumbers)
        settings.*number.value = std::min(
            std::max(object.value(QLatin1String(number.key)).toInt(), 0), kLongestInterval);
    settings.pollInterval = std::max(settings.pollInterval, 1);
    return true;
}

bool LiveTable::write(const QString& site, const QVector<LiveDevice>& devices, bool isAll)
{
    const QString name = site.isNull() ? QStringLiteral("") : site;
    if (!m_store.begin())
        return false;
    const qint64 boot = bootClockMs();
    // The clock in it lets numbers rise also where the tables were lost.
    QSqlQuery* query = m_store.run(
        QStringLiteral("INSERT INTO live_sites (site, number, heard) VALUES (?, %1, %1) ON "
                       "CONFLICT (site) DO UPDATE SET number = CASE WHEN ? THEN "
                       "greatest(live_sites.number + 1, excluded.number) ELSE live_sites.number "
                       "END, heard = excluded.heard RETURNING number, heard")
            .arg(kNow),
        {name, isAll || !devices.isEmpty()});
    bool done = query && query->next();
    if (done) {
        const qint64 number = query->value(0).toLongLong();
        const qint64 nowMinusBoot = query->value(1).toLongLong() - boot;
        query->finish();
        if (isAll)
            done = m_store.run(QStringLiteral("UPDATE live_devices SET gone = 1, number = ? WHERE "
                                              "site = ? AND gone = 0"),
                               {number, name});
        done = done && (devices.isEmpty() || writeDevices(devices, number, nowMinusBoot));
    }
    if (done && (isAll || !devices.isEmpty()))
        done =
            m_store.run(QStringLiteral("SELECT pg_notify(?, ?)"), {QLatin1String(kChannel), name});
    if (done && m_store.commit())
        return true;
    m_store.rollback();
    return false;
}

bool LiveTable::writeDevices(const QVector<LiveDevice>& devices, qint64 number, qint64 nowMinusBoot)
{
    QVariantList values;
    for (const LiveDevice& d : devices) {
        const bool hasReading = !d.reading.isNull();
        values << (d.site.isNull() ? QStringLiteral("") : d.site) << d.name << d.place
               << (d.isGone ? 1 : 0) << number << orNull(d.settings)
               << (d.settings.isNull() ? QVariant() : QVariant(number)) << orNull(d.info)
               << static_cast<int>(d.link) << (d.message.isNull() ? QStringLiteral("") : d.message)
               << orNull(d.reading)
               << (hasReading ? QVariant(d.askedBootMs + nowMinusBoot) : QVariant()) << d.condition
               << d.sinceBootMs + nowMinusBoot;
    }
    return m_store.insertRows(
        QStringLiteral("live_devices (site, name, place, gone, number, settings, settings_number, "
                       "info, link, message, data, asked, condition, since)"),
        QStringLiteral(
            "ON CONFLICT (site, name) DO UPDATE SET place = excluded.place, gone = excluded.gone, "
            "number = excluded.number, "
            "settings = coalesce(excluded.settings, live_devices.settings), "
            "settings_number = coalesce(excluded.settings_number, live_devices.settings_number), "
            "info = coalesce(excluded.info, live_devices.info), "
            "link = excluded.link, message = excluded.message, "
            "data = coalesce(excluded.data, live_devices.data), "
            "asked = coalesce(excluded.asked, live_devices.asked), "
            "condition = excluded.condition, since = excluded.since"),
        kColumns, values);
}

QVector<LiveSite> LiveTable::sites()
{
    QVector<LiveSite> sites;
    const qint64 boot = bootClockMs();
    QSqlQuery* query = m_store.run(
        QStringLiteral("SELECT site, number, %1 - heard FROM live_sites ORDER BY site").arg(kNow));
    m_failed = !query;
    while (query && query->next())
        sites += {query->value(0).toString(), query->value(1).toLongLong(),
                  boot - std::max<qint64>(query->value(2).toLongLong(), 0)};
    return sites;
}

QVector<LiveDevice> LiveTable::changedSince(const QVector<LiveSite>& known)
{
    QJsonArray list;
    for (const LiveSite& site : known)
        list += QJsonObject{{"site", site.site}, {"number", QString::number(site.number)}};
    const qint64 boot = bootClockMs();
    QSqlQuery* query = m_store.run(
        QStringLiteral(
            "SELECT d.site, d.name, d.place, d.gone, "
            "CASE WHEN d.settings_number > k.number::bigint THEN d.settings END, "
            "CASE WHEN d.settings_number > k.number::bigint THEN d.info END, "
            "d.link, d.message, d.data, %1 - d.asked, d.condition, %1 - d.since "
            "FROM json_to_recordset(?::json) AS k(site text, number text) JOIN live_devices d "
            "ON d.site = k.site AND d.number > k.number::bigint ORDER BY d.site, d.place")
            .arg(kNow),
        {QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact))});
    m_failed = !query;
    QVector<LiveDevice> devices;
    while (query && query->next()) {
        const auto value = [query](int column) { return query->value(column); };
        LiveDevice device;
        device.site = value(0).toString();
        device.name = value(1).toString();
        device.place = value(2).toInt();
        device.isGone = value(3).toInt() != 0;
        device.settings = value(4).toString();
        device.info = value(5).toByteArray();
        device.link = linkOf(value(6).toInt());
        device.message = value(7).toString();
        device.reading = value(8).toByteArray();
        device.askedBootMs = boot - std::max<qint64>(value(9).toLongLong(), 0);
        device.condition = value(10).toInt();
        device.sinceBootMs = boot - std::max<qint64>(value(11).toLongLong(), 0);
        devices += device;
    }
    return devices;
}
