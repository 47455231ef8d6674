#include "history/devicefacts.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DeviceFacts)
};

struct BatteryRow {
    BatteryState state;
    const char* fact;
    Urgency severity;
    const char* text;
};
constexpr BatteryRow kBatteryRows[] = {
    {BatteryState::SelfTest, "battery:test", Urgency::Notice,
     QT_TRANSLATE_NOOP("DeviceFacts", "Battery test")},
    {BatteryState::Discharge, "battery:discharge", Urgency::Notice,
     QT_TRANSLATE_NOOP("DeviceFacts", "Battery discharging")},
    {BatteryState::Low, "battery:low", Urgency::Critical,
     QT_TRANSLATE_NOOP("DeviceFacts", "Battery low")},
    {BatteryState::Depleted, "battery:depleted", Urgency::Critical,
     QT_TRANSLATE_NOOP("DeviceFacts", "Battery depleted")},
};

constexpr int kMostAlarmTexts = 50; // of one device that are followed

void addPowerPath(const UpsReading& reading, const Condition& condition, QVector<DeviceFact>& facts)
{
    // A test lets the battery work while the mains are there: no outage.
    if (condition.kind == ConditionKind::Battery)
        facts += {QStringLiteral("outage"),
                  JournalKind::Outage,
                  std::max(condition.urgency, Urgency::Alarm),
                  Tr::tr("Mains lost, on battery"),
                  {},
                  reading.secondsOnBattery.value_or(0)};
    if (reading.outputSource == OutputSource::Bypass)
        facts += {QStringLiteral("bypass"),
                  JournalKind::Bypass,
                  Urgency::Warning,
                  Tr::tr("On bypass"),
                  {},
                  0};
    for (const BatteryRow& row : kBatteryRows)
        if (reading.batteryState == row.state)
            facts += {QLatin1String(row.fact),
                      JournalKind::Battery,
                      row.severity,
                      Tr::tr(row.text),
                      {},
                      0};
}

void addAlarms(const UpsReading& reading, QVector<DeviceFact>& facts)
{
    QList<Alarm> alarms = reading.alarms.values();
    std::sort(alarms.begin(), alarms.end());
    for (Alarm alarm : qAsConst(alarms))
        facts += {QStringLiteral("alarm:%1").arg(static_cast<int>(alarm)),
                  JournalKind::Alarm,
                  urgencyOf(alarm),
                  alarmText(alarm),
                  {},
                  reading.alarmAges.value(alarm)};
    for (const QString& text : reading.alarmTexts.mid(0, kMostAlarmTexts))
        facts +=
            {QStringLiteral("alarmtext:") + text, JournalKind::Alarm, Urgency::Alarm, text, {}, 0};
}

// Tells one condition from another whatever figures their texts have.
QString conditionFact(const Condition& condition)
{
    return QStringLiteral("condition:%1:%2:%3")
        .arg(static_cast<int>(condition.kind))
        .arg(static_cast<int>(condition.urgency))
        .arg(condition.subject);
}

} // namespace

QString storedName(const Device& device)
{
    const DeviceSettings& settings = device.settings();
    return nameAtSite(settings.site, settings.name.isEmpty() ? device.address() : settings.name);
}

bool isSeenWithoutReading(JournalKind kind)
{
    return kind == JournalKind::Condition || kind == JournalKind::Link;
}

QVector<DeviceFact> factsOf(const Device& device)
{
    const LinkState link = device.link();
    const Condition condition = device.condition();
    if (link == LinkState::Connecting)
        return {};
    QVector<DeviceFact> facts{{conditionFact(condition),
                               JournalKind::Condition,
                               condition.urgency,
                               condition.text,
                               {},
                               0}};
    if (link != LinkState::Live)
        facts += {QStringLiteral("link:") + linkStateName(link),
                  JournalKind::Link,
                  condition.urgency,
                  condition.text,
                  device.message(),
                  0};
    else if (const UpsReading* reading = device.reading()) {
        addPowerPath(*reading, condition, facts);
        addAlarms(*reading, facts);
    }
    return facts;
}
