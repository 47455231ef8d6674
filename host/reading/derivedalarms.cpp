#include "reading/derivedalarms.h"

#include <algorithm>

namespace {

constexpr double kLowestMains = 80; // V; the lowest nominal voltage of a country is 100 V
constexpr double kLowestShare = 0.5;

struct DerivedAlarm {
    Alarm alarm;
    bool (*follows)(const UpsReading& reading);
};

constexpr DerivedAlarm kDerived[] = {
    {Alarm::OnBattery,
     [](const UpsReading& r) {
         return r.outputSource == OutputSource::Battery && !isBatteryTest(r);
     }},
    {Alarm::OnBypass, [](const UpsReading& r) { return r.outputSource == OutputSource::Bypass; }},
    {Alarm::OutputOff, [](const UpsReading& r) { return r.outputSource == OutputSource::None; }},
    {Alarm::LowBattery, [](const UpsReading& r) { return r.batteryState == BatteryState::Low; }},
    {Alarm::DepletedBattery,
     [](const UpsReading& r) { return r.batteryState == BatteryState::Depleted; }},
};

} // namespace

bool hasMains(const UpsReading& reading)
{
    const double lowest = reading.ratedInputVoltage.value_or(0) > 0
                              ? *reading.ratedInputVoltage * kLowestShare
                              : kLowestMains;
    const PhaseValues& lines = reading.input.voltage;
    const bool isMeasured =
        std::any_of(lines.begin(), lines.end(), [](const Value& v) { return v.has_value(); });
    return (isMeasured || reading.saysMains) &&
           std::all_of(lines.begin(), lines.end(),
                       [lowest](const Value& v) { return v.value_or(lowest) >= lowest; });
}

bool isBatteryTest(const UpsReading& reading)
{
    return reading.outputSource == OutputSource::Battery &&
           reading.alarms.contains(Alarm::TestInProgress) && hasMains(reading);
}

void addDerivedAlarms(UpsReading& reading)
{
    for (const DerivedAlarm& row : kDerived)
        if (row.follows(reading))
            reading.alarms.insert(row.alarm);
}
