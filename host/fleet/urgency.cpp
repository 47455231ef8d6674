#include "fleet/urgency.h"

#include "reading/devicesnapshot.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

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

Condition supplyCondition(OutputSource source)
{
    switch (source) {
    case OutputSource::Utility:
        return {Urgency::Normal, Tr::tr("On mains")};
    case OutputSource::Booster:
        return {Urgency::Notice, Tr::tr("On mains, boosting")};
    case OutputSource::Reducer:
        return {Urgency::Notice, Tr::tr("On mains, reducing")};
    case OutputSource::Battery:
        return {Urgency::Alarm, Tr::tr("On battery")};
    case OutputSource::Bypass:
        return {Urgency::Warning, Tr::tr("On bypass")};
    case OutputSource::None:
        return {Urgency::Critical, Tr::tr("Output off")};
    case OutputSource::Other:
        break;
    }
    return {Urgency::Alarm, Tr::tr("Source unknown")};
}

// The worst finding beside the supply: an alarm, or a value beyond its threshold.
std::optional<Condition> worstFinding(const UpsReading& reading, const Thresholds& limits)
{
    constexpr double secondsPerMinute = 60;
    std::optional<Condition> worst;
    const auto find = [&worst](Urgency urgency, const QString& text) {
        if (!worst || urgency > worst->urgency)
            worst = Condition{urgency, text};
    };
    if (const auto alarm = worstAlarm(reading.alarms))
        find(urgencyOf(*alarm), alarmText(*alarm));
    if (reading.charge && *reading.charge <= limits.chargeLow)
        find(*reading.charge <= limits.chargeCritical ? Urgency::Critical : Urgency::Warning,
             Tr::tr("battery at %1 %").arg(*reading.charge, 0, 'f', 0));
    const bool isTest = reading.alarms.contains(Alarm::TestInProgress); // the mains are there
    if (reading.outputSource == OutputSource::Battery && !isTest && reading.runtime &&
        *reading.runtime <= limits.runtimeLow * secondsPerMinute)
        find(Urgency::Critical, Tr::tr("little time left"));
    for (const Value& load : reading.output.load)
        if (load && *load >= limits.loadHigh)
            find(Urgency::Warning, Tr::tr("load %1 %").arg(*load, 0, 'f', 0));
    if (reading.batteryTemperature && *reading.batteryTemperature >= limits.temperatureHigh)
        find(Urgency::Warning,
             Tr::tr("battery at %1 \u00b0C").arg(*reading.batteryTemperature, 0, 'f', 0));
    return worst;
}

Condition liveCondition(const UpsReading& reading, const Thresholds& thresholds)
{
    Condition condition = supplyCondition(reading.outputSource);
    const bool test = reading.batteryState == BatteryState::SelfTest &&
                      reading.outputSource == OutputSource::Battery;
    if (test)
        condition = {Urgency::Notice, Tr::tr("Battery test")};
    const auto finding = worstFinding(reading, thresholds);
    if (!finding)
        return condition;
    // What the supply says already is not said twice.
    if (finding->urgency > condition.urgency)
        condition = {finding->urgency, condition.text + QStringLiteral(", ") + finding->text};
    return condition;
}

} // namespace

Condition conditionOf(LinkState link, const UpsReading* reading, const Thresholds& thresholds)
{
    switch (link) {
    case LinkState::Connecting:
        return {Urgency::Notice, Tr::tr("Connecting")};
    case LinkState::Stale:
        return {Urgency::Alarm, Tr::tr("No new data")};
    case LinkState::Lost:
        return {Urgency::Alarm, Tr::tr("No answer")};
    case LinkState::Refused:
        return {Urgency::Alarm, Tr::tr("Refused")};
    case LinkState::Live:
        break;
    }
    return reading ? liveCondition(*reading, thresholds)
                   : Condition{Urgency::Notice, Tr::tr("Connecting")};
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
