#include "history/quantities.h"

namespace {

struct SingleRow {
    const char* name;
    const char* unit;
    Value UpsReading::*value;
};
struct LineRow {
    const char* name;
    const char* unit;
    LineReading UpsReading::*group;
    PhaseValues LineReading::*lines;
};

constexpr SingleRow kSingles[] = {
    {"battery.charge", "%", &UpsReading::charge},
    {"battery.runtime", "s", &UpsReading::runtime},
    {"battery.voltage", "V", &UpsReading::batteryVoltage},
    {"battery.current", "A", &UpsReading::batteryCurrent},
    {"battery.temperature", "°C", &UpsReading::batteryTemperature},
    {"battery.seconds-on", "s", &UpsReading::secondsOnBattery},
    {"input.line-bads", "", &UpsReading::inputLineBads},
};

constexpr LineRow kLines[] = {
    {"input.voltage", "V", &UpsReading::input, &LineReading::voltage},
    {"input.current", "A", &UpsReading::input, &LineReading::current},
    {"input.frequency", "Hz", &UpsReading::input, &LineReading::frequency},
    {"input.power", "W", &UpsReading::input, &LineReading::power},
    {"output.voltage", "V", &UpsReading::output, &LineReading::voltage},
    {"output.current", "A", &UpsReading::output, &LineReading::current},
    {"output.frequency", "Hz", &UpsReading::output, &LineReading::frequency},
    {"output.power", "W", &UpsReading::output, &LineReading::power},
    {"output.load", "%", &UpsReading::output, &LineReading::load},
    {"bypass.voltage", "V", &UpsReading::bypass, &LineReading::voltage},
    {"bypass.current", "A", &UpsReading::bypass, &LineReading::current},
    {"bypass.frequency", "Hz", &UpsReading::bypass, &LineReading::frequency},
    {"bypass.power", "W", &UpsReading::bypass, &LineReading::power},
    {"output.apparent-power", "VA", &UpsReading::output, &LineReading::apparentPower},
};

std::vector<Quantity> makeQuantities()
{
    std::vector<Quantity> all;
    for (const SingleRow& row : kSingles)
        all.push_back({QLatin1String(row.name), QString::fromUtf8(row.unit), row.value, {}, {}, 0});
    for (const LineRow& row : kLines)
        for (std::size_t line = 0; line < std::tuple_size<PhaseValues>::value; ++line)
            all.push_back({QStringLiteral("%1.%2").arg(QLatin1String(row.name)).arg(line + 1),
                           QString::fromUtf8(row.unit), nullptr, row.group, row.lines, line});
    return all;
}

} // namespace

const std::vector<Quantity>& quantities()
{
    static const std::vector<Quantity> all = makeQuantities();
    return all;
}

int quantityIndex(const QString& name)
{
    const auto& all = quantities();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].name == name)
            return static_cast<int>(i);
    return -1;
}

QString quantityTitle(const Quantity& quantity)
{
    return quantity.unit.isEmpty() ? quantity.name
                                   : QStringLiteral("%1 (%2)").arg(quantity.name, quantity.unit);
}

Value quantityOf(const UpsReading& reading, const Quantity& quantity)
{
    return quantity.value ? reading.*quantity.value
                          : (reading.*quantity.group.*quantity.lines)[quantity.line];
}

void setQuantity(UpsReading& reading, const Quantity& quantity, Value value)
{
    if (quantity.value)
        reading.*quantity.value = value;
    else
        (reading.*quantity.group.*quantity.lines)[quantity.line] = value;
}
