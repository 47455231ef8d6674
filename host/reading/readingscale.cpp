#include "reading/readingscale.h"

#include <cmath>

namespace {

using Group = LineReading UpsReading::*;
using Lines = PhaseValues LineReading::*;
using Single = Value UpsReading::*;

// Either a quantity of all lines of one group, or one or two single values.
struct Scale {
    const char* name;
    Group group = nullptr;
    Lines lines = nullptr;
    Single first = nullptr;
    Single second = nullptr;
};

constexpr Scale lineScale(const char* name, Group group, Lines lines)
{
    return {name, group, lines, nullptr, nullptr};
}

constexpr Scale scale(const char* name, Single first, Single second = nullptr)
{
    return {name, nullptr, nullptr, first, second};
}

constexpr Scale kScales[] = {
    lineScale("input.voltage", &UpsReading::input, &LineReading::voltage),
    lineScale("input.current", &UpsReading::input, &LineReading::current),
    lineScale("input.frequency", &UpsReading::input, &LineReading::frequency),
    lineScale("input.power", &UpsReading::input, &LineReading::power),
    lineScale("bypass.voltage", &UpsReading::bypass, &LineReading::voltage),
    lineScale("bypass.current", &UpsReading::bypass, &LineReading::current),
    lineScale("bypass.frequency", &UpsReading::bypass, &LineReading::frequency),
    lineScale("bypass.power", &UpsReading::bypass, &LineReading::power),
    lineScale("output.voltage", &UpsReading::output, &LineReading::voltage),
    lineScale("output.current", &UpsReading::output, &LineReading::current),
    lineScale("output.frequency", &UpsReading::output, &LineReading::frequency),
    lineScale("output.power", &UpsReading::output, &LineReading::power),
    lineScale("output.load", &UpsReading::output, &LineReading::load),
    scale("battery.voltage", &UpsReading::batteryVoltage),
    scale("battery.current", &UpsReading::batteryCurrent),
    scale("battery.temperature", &UpsReading::batteryTemperature),
    scale("battery.runtime", &UpsReading::runtime),
    scale("battery.charge", &UpsReading::charge),
    scale("rated.voltage", &UpsReading::ratedInputVoltage, &UpsReading::ratedOutputVoltage),
    scale("rated.frequency", &UpsReading::ratedInputFrequency, &UpsReading::ratedOutputFrequency),
    scale("rated.power", &UpsReading::ratedPower),
    scale("rated.apparent-power", &UpsReading::ratedApparentPower),
};

void multiply(Value& value, double factor)
{
    if (!value)
        return;
    *value *= factor;
    if (!std::isfinite(*value))
        value.reset();
}

void multiply(UpsReading& reading, const Scale& scale, double factor)
{
    if (scale.group)
        for (Value& value : reading.*scale.group.*scale.lines)
            multiply(value, factor);
    for (Single single : {scale.first, scale.second})
        if (single)
            multiply(reading.*single, factor);
}

} // namespace

QStringList scaleNames()
{
    QStringList names;
    for (const Scale& scale : kScales)
        names += QLatin1String(scale.name);
    return names;
}

bool isScaleFactor(double factor)
{
    return std::isfinite(factor) && factor > 0;
}

void applyScales(UpsReading& reading, const QMap<QString, double>& scales)
{
    if (scales.isEmpty())
        return;
    for (const Scale& scale : kScales) {
        const double factor = scales.value(QLatin1String(scale.name), 1.0);
        if (isScaleFactor(factor))
            multiply(reading, scale, factor);
    }
}
