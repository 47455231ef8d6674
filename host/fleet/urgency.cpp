#include "fleet/urgency.h"

#include "reading/derivedalarms.h"
#include "reading/devicesnapshot.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QVector>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(Urgency)
};

struct AlarmRank {
    Alarm alarm;
    Urgency urgency;
};

// Worst first; alarms of equal urgency in the order in which an operator would want to hear them.
constexpr AlarmRank kRanks[] = {
    {Alarm::DepletedBattery, Urgency::Critical},
    {Alarm::LowBattery, Urgency::Critical},
    {Alarm::ShutdownImminent, Urgency::Critical},
    {Alarm::SystemOff, Urgency::Critical},
    {Alarm::OutputOff, Urgency::Critical},
    {Alarm::OutputBad, Urgency::Critical},
    {Alarm::OutputOverload, Urgency::Critical},
    {Alarm::UpsOffAsRequested, Urgency::Alarm},
    {Alarm::OutputOffAsRequested, Urgency::Alarm},
    {Alarm::ShutdownPending, Urgency::Alarm},
    {Alarm::OnBattery, Urgency::Alarm},
    {Alarm::AwaitingPower, Urgency::Alarm},
    {Alarm::BatteryBad, Urgency::Alarm},
    {Alarm::ChargerFailed, Urgency::Alarm},
    {Alarm::FuseFailure, Urgency::Alarm},
    {Alarm::FanFailure, Urgency::Alarm},
    {Alarm::TemperatureBad, Urgency::Alarm},
    {Alarm::CommunicationsLost, Urgency::Alarm},
    {Alarm::InputBad, Urgency::Alarm},
    {Alarm::GeneralFault, Urgency::Alarm},
    {Alarm::OnBypass, Urgency::Warning},
    {Alarm::BypassBad, Urgency::Warning},
    {Alarm::DiagnosticTestFailed, Urgency::Warning},
    {Alarm::TestInProgress, Urgency::Notice},
};
static_assert(std::size(kRanks) == static_cast<int>(Alarm::TestInProgress));

struct StateRow {
    ConditionKind kind;
    Urgency urgency;
    const char* text;
};

constexpr StateRow kStates[] = {
    {ConditionKind::Connecting, Urgency::Notice, QT_TRANSLATE_NOOP("Urgency", "Connecting")},
    {ConditionKind::Mains, Urgency::Normal, QT_TRANSLATE_NOOP("Urgency", "On mains")},
    {ConditionKind::Boosting, Urgency::Notice, QT_TRANSLATE_NOOP("Urgency", "On mains, boosting")},
    {ConditionKind::Reducing, Urgency::Notice, QT_TRANSLATE_NOOP("Urgency", "On mains, reducing")},
    {ConditionKind::Battery, Urgency::Alarm, QT_TRANSLATE_NOOP("Urgency", "On battery")},
    {ConditionKind::BatteryTest, Urgency::Notice, QT_TRANSLATE_NOOP("Urgency", "Battery test")},
    {ConditionKind::Bypass, Urgency::Warning, QT_TRANSLATE_NOOP("Urgency", "On bypass")},
    {ConditionKind::OutputOff, Urgency::Critical, QT_TRANSLATE_NOOP("Urgency", "Output off")},
    {ConditionKind::SourceUnknown, Urgency::Alarm, QT_TRANSLATE_NOOP("Urgency", "Source unknown")},
    {ConditionKind::Stale, Urgency::Alarm, QT_TRANSLATE_NOOP("Urgency", "No new data")},
    {ConditionKind::Lost, Urgency::Alarm, QT_TRANSLATE_NOOP("Urgency", "No answer")},
    {ConditionKind::Refused, Urgency::Alarm, QT_TRANSLATE_NOOP("Urgency", "Refused")},
};
static_assert(std::size(kStates) == static_cast<int>(ConditionKind::Refused) + 1);

// By number of OutputSource.
constexpr ConditionKind kKindOfSource[] = {
    ConditionKind::SourceUnknown, ConditionKind::SourceUnknown, ConditionKind::OutputOff,
    ConditionKind::Mains,         ConditionKind::Bypass,        ConditionKind::Battery,
    ConditionKind::Boosting,      ConditionKind::Reducing,
};

// By number of LinkState; a live device is judged by its reading.
constexpr ConditionKind kKindOfLink[] = {ConditionKind::Connecting, ConditionKind::Connecting,
                                         ConditionKind::Stale, ConditionKind::Lost,
                                         ConditionKind::Refused};

// Alarms that a state says already.
constexpr std::pair<ConditionKind, Alarm> kSaidByState[] = {
    {ConditionKind::Battery, Alarm::OnBattery},
    {ConditionKind::Battery, Alarm::InputBad},
    {ConditionKind::BatteryTest, Alarm::OnBattery},
    {ConditionKind::BatteryTest, Alarm::TestInProgress},
    {ConditionKind::Bypass, Alarm::OnBypass},
    {ConditionKind::OutputOff, Alarm::OutputOff},
};

// What follows "On battery" in place of the alarm's text, which would say the word again.
constexpr std::pair<Alarm, const char*> kOfBattery[] = {
    {Alarm::LowBattery, QT_TRANSLATE_NOOP("Urgency", "low")},
    {Alarm::DepletedBattery, QT_TRANSLATE_NOOP("Urgency", "empty")},
};

struct LimitRow {
    Limit limit;
    Urgency urgency;
    Value (*value)(const UpsReading& reading);
    double (*bound)(const Thresholds& thresholds);
    bool isUpper;  // beyond at or above the bound, else at or below
    double margin; // by which a value has to be back
    const char* text;
    const char* after; // behind a state
    const char* afterBattery;
};

constexpr double kSecondsPerMinute = 60;

Value highestLoad(const UpsReading& reading)
{
    return *std::max_element(reading.output.load.begin(), reading.output.load.end());
}

// Worst first.
constexpr LimitRow kLimits[] = {
    {Limit::RuntimeLow, Urgency::Critical, [](const UpsReading& r) { return r.runtime; },
     [](const Thresholds& t) { return t.runtimeLow * kSecondsPerMinute; }, false, kSecondsPerMinute,
     QT_TRANSLATE_NOOP("Urgency", "Little time left"),
     QT_TRANSLATE_NOOP("Urgency", "little time left"),
     QT_TRANSLATE_NOOP("Urgency", "little time left")},
    {Limit::ChargeCritical, Urgency::Critical, [](const UpsReading& r) { return r.charge; },
     [](const Thresholds& t) { return double(t.chargeCritical); }, false, 2,
     QT_TRANSLATE_NOOP("Urgency", "Battery at %1 %"),
     QT_TRANSLATE_NOOP("Urgency", "battery at %1 %"), QT_TRANSLATE_NOOP("Urgency", "%1 % left")},
    {Limit::ChargeLow, Urgency::Warning, [](const UpsReading& r) { return r.charge; },
     [](const Thresholds& t) { return double(t.chargeLow); }, false, 2,
     QT_TRANSLATE_NOOP("Urgency", "Battery at %1 %"),
     QT_TRANSLATE_NOOP("Urgency", "battery at %1 %"), QT_TRANSLATE_NOOP("Urgency", "%1 % left")},
    {Limit::LoadHigh, Urgency::Warning, highestLoad,
     [](const Thresholds& t) { return double(t.loadHigh); }, true, 2,
     QT_TRANSLATE_NOOP("Urgency", "Load %1 %"), QT_TRANSLATE_NOOP("Urgency", "load %1 %"),
     QT_TRANSLATE_NOOP("Urgency", "load %1 %")},
    {Limit::TemperatureHigh, Urgency::Warning,
     [](const UpsReading& r) { return r.batteryTemperature; },
     [](const Thresholds& t) { return double(t.temperatureHigh); }, true, 1,
     QT_TRANSLATE_NOOP("Urgency", "Battery at %1 °C"),
     QT_TRANSLATE_NOOP("Urgency", "battery at %1 °C"),
     QT_TRANSLATE_NOOP("Urgency", "battery at %1 °C")},
};

// Subjects: alarms by their own number, and beyond these.
constexpr int kOwnWords = 100;
constexpr int kLimitSubjects = 200;

struct Finding {
    Urgency urgency;
    int subject;
    QString text;  // by itself
    QString after; // behind the state
};

// The device's own words. It has called them an alarm itself, or listed them without a rank.
void findOwnWords(const UpsReading& reading, QVector<Finding>& findings)
{
    static const QRegularExpression identifier(QStringLiteral("^[0-9.]+$"));
    const Urgency urgency =
        reading.alarms.contains(Alarm::GeneralFault) ? Urgency::Alarm : Urgency::Warning;
    for (const QString& words : reading.alarmTexts) {
        const QString text =
            identifier.match(words).hasMatch() ? Tr::tr("Alarm %1").arg(words) : words;
        findings.append({urgency, kOwnWords, text, text});
    }
}

void findAlarms(const UpsReading& reading, ConditionKind kind, QVector<Finding>& findings)
{
    const bool battery = kind == ConditionKind::Battery;
    for (const AlarmRank& rank : kRanks) {
        const auto said = std::make_pair(kind, rank.alarm);
        if (!reading.alarms.contains(rank.alarm) ||
            std::find(std::begin(kSaidByState), std::end(kSaidByState), said) !=
                std::end(kSaidByState))
            continue;
        Finding finding{rank.urgency, static_cast<int>(rank.alarm), alarmText(rank.alarm), {}};
        finding.after = finding.text;
        for (const auto& [alarm, after] : kOfBattery)
            if (battery && alarm == rank.alarm)
                finding.after = Tr::tr(after);
        findings.append(finding);
    }
}

void findLimits(const UpsReading& reading, ConditionKind kind, Limits limits,
                QVector<Finding>& findings)
{
    const bool battery = kind == ConditionKind::Battery;
    for (const LimitRow& row : kLimits) {
        const bool saidAlready =
            row.limit == Limit::ChargeLow && limits.testFlag(Limit::ChargeCritical);
        const bool matters =
            row.limit != Limit::RuntimeLow || battery; // what is left of the mains?
        if (!limits.testFlag(row.limit) || saidAlready || !matters)
            continue;
        const auto worded = [&](const char* text) {
            const QString words = Tr::tr(text);
            return words.contains(QLatin1String("%1"))
                       ? words.arg(row.value(reading).value_or(0), 0, 'f', 0)
                       : words;
        };
        findings.append({row.urgency, kLimitSubjects + static_cast<int>(row.limit),
                         worded(row.text), worded(battery ? row.afterBattery : row.after)});
    }
}

// Worst first; of equal urgency the device's own words, then alarms, then thresholds.
QVector<Finding> findingsOf(const UpsReading& reading, ConditionKind kind, Limits limits)
{
    QVector<Finding> findings;
    findOwnWords(reading, findings);
    findAlarms(reading, kind, findings);
    findLimits(reading, kind, limits, findings);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding& a, const Finding& b) { return a.urgency > b.urgency; });
    return findings;
}

Condition stateCondition(ConditionKind kind)
{
    const StateRow& row = kStates[static_cast<int>(kind)];
    Condition condition;
    condition.kind = kind;
    condition.urgency = row.urgency;
    condition.state = Tr::tr(row.text);
    condition.text = condition.state;
    return condition;
}

// One line has room for one finding: the worst unless the state is worse, and else what only the
// device can put into words.
void tellInOneLine(const QVector<Finding>& findings, Condition& condition)
{
    const auto* told = std::find_if(findings.begin(), findings.end(), [&](const Finding& f) {
        return f.urgency >= condition.urgency || f.subject == kOwnWords;
    });
    if (told == findings.end())
        return;
    condition.text = condition.state + QStringLiteral(", ") + told->after;
    condition.urgency = std::max(condition.urgency, told->urgency);
    condition.subject = told->subject;
}

Condition liveCondition(const UpsReading& reading, const Thresholds& thresholds,
                        const ConditionPast& past)
{
    ConditionKind kind = kKindOfSource[static_cast<int>(reading.outputSource)];
    if (isExcusedByTest(reading, past.testSeconds))
        kind = ConditionKind::BatteryTest;
    Condition condition = stateCondition(kind);
    const auto findings = findingsOf(reading, kind, limitsBeyond(reading, thresholds, past.limits));
    if (findings.isEmpty())
        return condition;
    for (const Finding& finding : findings)
        condition.alarms << finding.text;
    condition.alarmUrgency = findings.first().urgency;
    tellInOneLine(findings, condition);
    return condition;
}

} // namespace

bool isSameCondition(const Condition& a, const Condition& b)
{
    return a.kind == b.kind && a.urgency == b.urgency && a.subject == b.subject;
}

bool isOfLiveDevice(ConditionKind kind)
{
    return kind >= ConditionKind::Mains && kind <= ConditionKind::SourceUnknown;
}

Limits limitsBeyond(const UpsReading& reading, const Thresholds& thresholds, Limits before)
{
    Limits beyond;
    for (const LimitRow& row : kLimits) {
        const Value value = row.value(reading);
        const double margin = before.testFlag(row.limit) ? row.margin : 0;
        const double bound = row.bound(thresholds);
        if (value && (row.isUpper ? *value > bound - margin : *value < bound + margin))
            beyond |= row.limit;
        if (value == Value(bound))
            beyond |= row.limit;
    }
    return beyond;
}

bool isExcusedByTest(const UpsReading& reading, double testSeconds)
{
    return isBatteryTest(reading) && testSeconds <= kLongestTest;
}

Condition conditionOf(LinkState link, const UpsReading* reading, const Thresholds& thresholds,
                      const ConditionPast& past)
{
    return link == LinkState::Live && reading ? liveCondition(*reading, thresholds, past)
                                              : stateCondition(kKindOfLink[static_cast<int>(link)]);
}

std::optional<Alarm> worstAlarm(const QSet<Alarm>& alarms)
{
    for (const AlarmRank& rank : kRanks)
        if (alarms.contains(rank.alarm))
            return rank.alarm;
    return {};
}

Urgency urgencyOf(Alarm alarm)
{
    const auto* rank = std::find_if(std::begin(kRanks), std::end(kRanks),
                                    [alarm](const AlarmRank& r) { return r.alarm == alarm; });
    return rank != std::end(kRanks) ? rank->urgency : Urgency::Alarm;
}

QString urgencyName(const Condition& condition)
{
    static const char* const names[] = {"normal", "notice", "warning", "alarm", "critical"};
    return QLatin1String(condition.kind == ConditionKind::Connecting
                             ? "unknown"
                             : names[static_cast<int>(condition.urgency)]);
}
