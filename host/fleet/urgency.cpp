#include "urgency.h"

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

Condition liveCondition(const UpsReading& reading)
{
    Condition condition = supplyCondition(reading.outputSource);
    if (reading.batteryState == BatteryState::SelfTest &&
        reading.outputSource == OutputSource::Battery)
        condition = {Urgency::Notice, Tr::tr("Battery test")};
    const auto worst = worstAlarm(reading.alarms);
    if (worst && urgencyOf(*worst) > condition.urgency) {
        condition.urgency = urgencyOf(*worst);
        condition.text += QStringLiteral(", ") + alarmText(*worst);
    } else if (worst && condition.urgency == Urgency::Normal) {
        condition.text += QStringLiteral(", ") + alarmText(*worst);
    }
    return condition;
}

} // namespace

Condition conditionOf(LinkState link, const UpsReading* reading)
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
    return reading ? liveCondition(*reading) : Condition{Urgency::Notice, Tr::tr("Connecting")};
}

QString linkStateName(LinkState link)
{
    switch (link) {
    case LinkState::Live:
        return QStringLiteral("live");
    case LinkState::Stale:
        return QStringLiteral("stale");
    case LinkState::Lost:
        return QStringLiteral("lost");
    case LinkState::Refused:
        return QStringLiteral("refused");
    case LinkState::Connecting:
        break;
    }
    return QStringLiteral("connecting");
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
