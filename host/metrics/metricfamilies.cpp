#include "metrics/metricfamilies.h"

#include <iterator>

namespace {

using Family = prometheus::MetricFamily;
using Metric = prometheus::ClientMetric;
using Labels = std::vector<Metric::Label>;

constexpr double kPerCent = 0.01;
constexpr double kMsPerSecond = 1000;

// One value of a device.
struct ScalarRow {
    const char* name;
    const char* help;
    Value (*value)(const UpsReading& reading);
    double factor;
};

double flag(bool is)
{
    return is ? 1 : 0;
}

constexpr ScalarRow kScalars[] = {
    {"ups_on_battery", "Whether the load runs on the battery.",
     [](const UpsReading& r) -> Value { return flag(r.outputSource == OutputSource::Battery); }, 1},
    {"ups_on_bypass", "Whether the load runs on the bypass.",
     [](const UpsReading& r) -> Value { return flag(r.outputSource == OutputSource::Bypass); }, 1},
    {"ups_output_off", "Whether the output is off.",
     [](const UpsReading& r) -> Value { return flag(r.outputSource == OutputSource::None); }, 1},
    {"ups_battery_charge_ratio", "Charge of the battery, 0 to 1.",
     [](const UpsReading& r) { return r.charge; }, kPerCent},
    {"ups_battery_runtime_seconds", "How long the battery will last.",
     [](const UpsReading& r) { return r.runtime; }, 1},
    {"ups_battery_voltage_volts", "Voltage of the battery.",
     [](const UpsReading& r) { return r.batteryVoltage; }, 1},
    {"ups_battery_current_amperes", "Current of the battery, signed as the device signs it.",
     [](const UpsReading& r) { return r.batteryCurrent; }, 1},
    {"ups_battery_temperature_celsius", "Temperature of the battery.",
     [](const UpsReading& r) { return r.batteryTemperature; }, 1},
    {"ups_on_battery_duration_seconds", "How long the load has run on the battery; 0 on mains.",
     [](const UpsReading& r) { return r.secondsOnBattery; }, 1},
    {"ups_rated_power_watts", "Rated active power.",
     [](const UpsReading& r) { return r.ratedPower; }, 1},
    {"ups_rated_apparent_power_voltamperes", "Rated apparent power.",
     [](const UpsReading& r) { return r.ratedApparentPower; }, 1},
};

// One value of each line.
struct PhaseRow {
    const char* name;
    const char* help;
    LineReading UpsReading::*group;
    PhaseValues LineReading::*values;
    double factor;
};

constexpr PhaseRow kPhaseRows[] = {
    {"ups_input_voltage_volts", "Voltage of the input.", &UpsReading::input, &LineReading::voltage,
     1},
    {"ups_input_current_amperes", "Current of the input.", &UpsReading::input,
     &LineReading::current, 1},
    {"ups_input_frequency_hertz", "Frequency of the input.", &UpsReading::input,
     &LineReading::frequency, 1},
    {"ups_input_power_watts", "True power of the input.", &UpsReading::input, &LineReading::power,
     1},
    {"ups_output_voltage_volts", "Voltage of the output.", &UpsReading::output,
     &LineReading::voltage, 1},
    {"ups_output_current_amperes", "Current of the output.", &UpsReading::output,
     &LineReading::current, 1},
    {"ups_output_frequency_hertz", "Frequency of the output.", &UpsReading::output,
     &LineReading::frequency, 1},
    {"ups_output_power_watts", "True power of the output.", &UpsReading::output,
     &LineReading::power, 1},
    {"ups_load_ratio", "Load as a part of the rating.", &UpsReading::output, &LineReading::load,
     kPerCent},
    {"ups_bypass_voltage_volts", "Voltage of the bypass.", &UpsReading::bypass,
     &LineReading::voltage, 1},
    {"ups_bypass_frequency_hertz", "Frequency of the bypass.", &UpsReading::bypass,
     &LineReading::frequency, 1},
};

constexpr const char* kPhaseNames[kPhases] = {"A", "B", "C"};

// By number of Alarm, from 1.
constexpr const char* kAlarmNames[] = {
    "battery_bad",
    "on_battery",
    "low_battery",
    "depleted_battery",
    "temperature_bad",
    "input_bad",
    "output_bad",
    "output_overload",
    "on_bypass",
    "bypass_bad",
    "output_off_as_requested",
    "ups_off_as_requested",
    "charger_failed",
    "output_off",
    "system_off",
    "fan_failure",
    "fuse_failure",
    "general_fault",
    "diagnostic_test_failed",
    "communications_lost",
    "awaiting_power",
    "shutdown_pending",
    "shutdown_imminent",
    "test_in_progress",
};
static_assert(std::size(kAlarmNames) == static_cast<int>(Alarm::TestInProgress));

Labels labelsOf(const DeviceMetrics& device)
{
    Labels labels{{"device", device.device.toStdString()}};
    if (!device.group.isEmpty())
        labels.push_back({"group", device.group.toStdString()});
    return labels;
}

Labels with(Labels labels, const char* name, const char* value)
{
    labels.push_back({name, value});
    return labels;
}

void append(Family& family, const Labels& labels, double value)
{
    Metric metric;
    metric.label = labels;
    metric.gauge.value = value;
    family.metric.push_back(std::move(metric));
}

Family familyOf(const char* name, const char* help)
{
    return {name, help, prometheus::MetricType::Gauge, {}};
}

bool isLive(const DeviceMetrics& device)
{
    return device.link == LinkState::Live && device.reading;
}

template <typename ValueOf>
Family familyOfAll(const char* name, const char* help, const std::vector<DeviceMetrics>& devices,
                   const ValueOf& valueOf)
{
    Family family = familyOf(name, help);
    for (const DeviceMetrics& device : devices)
        append(family, labelsOf(device), valueOf(device));
    return family;
}

Family ageFamily(const std::vector<DeviceMetrics>& devices, qint64 nowBootMs)
{
    Family family = familyOf("ups_reading_age_seconds", "Age of the last good reading.");
    for (const DeviceMetrics& device : devices)
        if (device.readAtBootMs >= 0)
            append(family, labelsOf(device),
                   static_cast<double>(nowBootMs - device.readAtBootMs) / kMsPerSecond);
    return family;
}

Family scalarFamily(const ScalarRow& row, const std::vector<DeviceMetrics>& devices)
{
    Family family = familyOf(row.name, row.help);
    for (const DeviceMetrics& device : devices) {
        if (!isLive(device))
            continue;
        if (const Value value = row.value(*device.reading))
            append(family, labelsOf(device), *value * row.factor);
    }
    return family;
}

Family phaseFamily(const PhaseRow& row, const std::vector<DeviceMetrics>& devices)
{
    Family family = familyOf(row.name, row.help);
    for (const DeviceMetrics& device : devices) {
        if (!isLive(device))
            continue;
        const PhaseValues& values = ((*device.reading).*row.group).*row.values;
        for (std::size_t line = 0; line < values.size(); ++line)
            if (values[line])
                append(family, with(labelsOf(device), "phase", kPhaseNames[line]),
                       *values[line] * row.factor);
    }
    return family;
}

Family alarmFamily(const std::vector<DeviceMetrics>& devices)
{
    Family family = familyOf("ups_alarm", "Alarms that are raised now.");
    for (const DeviceMetrics& device : devices) {
        if (!isLive(device))
            continue;
        for (std::size_t i = 0; i < std::size(kAlarmNames); ++i)
            if (device.reading->alarms.contains(static_cast<Alarm>(i + 1)))
                append(family, with(labelsOf(device), "alarm", kAlarmNames[i]), 1);
    }
    return family;
}

} // namespace

std::vector<Family> metricFamilies(const std::vector<DeviceMetrics>& devices, qint64 nowBootMs)
{
    std::vector<Family> families;
    families.push_back(familyOfAll("ups_up", "Whether the readings of the device are live.",
                                   devices,
                                   [](const DeviceMetrics& d) { return flag(isLive(d)); }));
    families.push_back(familyOfAll("ups_urgency",
                                   "How much the device needs somebody: 0 normal, 1 notice, "
                                   "2 warning, 3 alarm, 4 critical.",
                                   devices, [](const DeviceMetrics& d) { return d.urgency; }));
    families.push_back(ageFamily(devices, nowBootMs));
    for (const ScalarRow& row : kScalars)
        families.push_back(scalarFamily(row, devices));
    for (const PhaseRow& row : kPhaseRows)
        families.push_back(phaseFamily(row, devices));
    families.push_back(alarmFamily(devices));
    return families;
}
