#include "connectors/nut/nutreading.h"

#include "reading/derivedalarms.h"
#include "reading/sanitize.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <cmath>
#include <iterator>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(NutReading)
};

using Tokens = QSet<QByteArray>;

// The first name that holds a usable value wins.
struct NumberRow {
    Value UpsReading::*target;
    const char* names[2];
};

constexpr NumberRow kNumbers[] = {
    {&UpsReading::runtime, {"battery.runtime"}},
    {&UpsReading::charge, {"battery.charge"}},
    {&UpsReading::batteryVoltage, {"battery.voltage"}},
    {&UpsReading::batteryCurrent, {"battery.current"}},
    {&UpsReading::batteryTemperature, {"battery.temperature"}},
    {&UpsReading::ratedInputVoltage, {"input.voltage.nominal"}},
    {&UpsReading::ratedInputFrequency, {"input.frequency.nominal"}},
    {&UpsReading::ratedOutputVoltage, {"output.voltage.nominal"}},
    {&UpsReading::ratedOutputFrequency, {"output.frequency.nominal"}},
    {&UpsReading::ratedApparentPower, {"ups.power.nominal", "output.power.nominal"}},
    {&UpsReading::ratedPower, {"ups.realpower.nominal", "output.realpower.nominal"}},
    {&UpsReading::lowBatteryTime, {"battery.runtime.low"}},
    {&UpsReading::lowTransferVoltage, {"input.transfer.low"}},
    {&UpsReading::highTransferVoltage, {"input.transfer.high"}},
};

struct TextRow {
    QString UpsReading::*target;
    const char* names[2];
};

constexpr TextRow kTexts[] = {
    {&UpsReading::model, {"device.model", "ups.model"}},
    {&UpsReading::manufacturer, {"device.mfr", "ups.mfr"}},
    {&UpsReading::name, {"ups.id"}},
    {&UpsReading::softwareVersion, {"ups.firmware"}},
    {&UpsReading::agentVersion, {"ups.firmware.aux"}},
    {&UpsReading::location, {"device.location"}},
};

// Input, output and bypass name their quantities alike, behind a prefix of their own.
struct GroupRow {
    LineReading UpsReading::*target;
    const char* prefix;
    const char* unitPrefix; // many drivers name what leaves the unit after the unit itself
    const char* caption;
};

constexpr GroupRow kGroups[] = {
    {&UpsReading::input, "input.", nullptr, QT_TRANSLATE_NOOP("NutReading", "Input")},
    {&UpsReading::output, "output.", "ups.", QT_TRANSLATE_NOOP("NutReading", "Output")},
    {&UpsReading::bypass, "input.bypass.", nullptr, QT_TRANSLATE_NOOP("NutReading", "Bypass")},
};

constexpr const char* kLineToNeutral[kPhases] = {"L1-N.voltage", "L2-N.voltage", "L3-N.voltage"};
constexpr const char* kLineToLine[kPhases] = {"L1-L2.voltage", "L2-L3.voltage", "L3-L1.voltage"};
// What betrays a line when the device gives no count.
constexpr const char* kSignsOfLine2[] = {"L2-N.voltage", "L2-L3.voltage",    "L2.current",
                                         "L2.realpower", "L2.power.percent", "L2.power"};
constexpr const char* kSignsOfLine3[] = {"L3-N.voltage", "L3-L1.voltage",    "L3.current",
                                         "L3.realpower", "L3.power.percent", "L3.power"};
constexpr const char* kUnitSignsOfLine2[] = {"L2.realpower", "L2.load", "L2.power"};
constexpr const char* kUnitSignsOfLine3[] = {"L3.realpower", "L3.load", "L3.power"};

struct SourceRow {
    OutputSource source;
    const char* tokens[2];
};

// The first match wins.
constexpr SourceRow kSources[] = {
    {OutputSource::None, {"OFF"}},          {OutputSource::Bypass, {"BYPASS"}},
    {OutputSource::Battery, {"OB", "CAL"}}, {OutputSource::Booster, {"BOOST"}},
    {OutputSource::Reducer, {"TRIM"}},      {OutputSource::Utility, {"OL"}},
};
// Without one of these nothing is known of the power path, whatever else the status says.
constexpr const char* kPathTokens[] = {"OL", "OB", "OFF", "BYPASS", "TRIM", "BOOST"};

struct BatteryRow {
    BatteryState state;
    const char* tokens[2];
    const char* charger; // battery.charger.status
};

// The first match wins.
constexpr BatteryRow kBattery[] = {
    {BatteryState::Low, {"LB"}, nullptr},
    {BatteryState::SelfTest, {"CAL", "TEST"}, nullptr},
    {BatteryState::Discharge, {"OB", "DISCHRG"}, "discharging"},
    {BatteryState::BoostCharge, {"CHRG"}, "charging"},
    {BatteryState::FloatCharge, {}, "floating"},
    {BatteryState::Normal, {"OL"}, "resting"},
};

struct AlarmRow {
    Alarm alarm;
    const char* tokens[2];
};

constexpr AlarmRow kAlarms[] = {
    {Alarm::BatteryBad, {"RB"}},
    {Alarm::OnBattery, {"OB"}},
    {Alarm::LowBattery, {"LB"}},
    {Alarm::OutputOverload, {"OVER"}},
    {Alarm::OnBypass, {"BYPASS"}},
    {Alarm::OutputOff, {"OFF"}},
    {Alarm::GeneralFault, {"ALARM"}},
    {Alarm::ShutdownImminent, {"FSD"}},
    {Alarm::TestInProgress, {"CAL", "TEST"}},
};

struct BeeperRow {
    const char* text;
    Beeper beeper;
};

constexpr BeeperRow kBeepers[] = {
    {"disabled", Beeper::Disabled}, {"enabled", Beeper::Enabled}, {"muted", Beeper::Muted}};

template <size_t N>
bool hasAny(const Tokens& tokens, const char* const (&names)[N])
{
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char* name) { return name && tokens.contains(name); });
}

// Reads variables of one group, or of none when the prefix is empty.
class Variables
{
public:
    Variables(const NutVariables& all, const char* prefix)
        : m_all(all)
        , m_prefix(prefix)
    {}

    bool has(const char* name) const { return m_all.contains(m_prefix + name); }
    QByteArray text(const char* name) const { return m_all.value(m_prefix + name).trimmed(); }
    Value number(const char* name) const
    {
        return name ? plausibleNumber(m_all.value(m_prefix + name)) : Value();
    }
    // "L2.current" for "current" of line 2 (index 1)
    Value ofLine(int index, const char* quantity) const
    {
        return number((QByteArray("L") + char('1' + index) + '.' + quantity).constData());
    }
    template <size_t N>
    bool hasOneOf(const char* const (&names)[N]) const
    {
        return std::any_of(std::begin(names), std::end(names),
                           [this](const char* name) { return has(name); });
    }

private:
    const NutVariables& m_all;
    const QByteArray m_prefix;
};

// What is known of one group: by its own names, by those of the unit (of none for input and
// bypass).
struct GroupVariables {
    Variables own;
    Variables unit;
};

std::optional<int> lineCount(const GroupVariables& variables)
{
    constexpr double kMostLines = 12;
    const Variables& group = variables.own;
    const Value count = group.number("phases");
    if (count && *count >= 0 && *count <= kMostLines && *count == std::floor(*count))
        return static_cast<int>(*count);
    if (group.hasOneOf(kSignsOfLine3) || variables.unit.hasOneOf(kUnitSignsOfLine3))
        return kPhases;
    if (group.hasOneOf(kSignsOfLine2) || variables.unit.hasOneOf(kUnitSignsOfLine2))
        return 2;
    return std::nullopt;
}

bool isEmpty(const PhaseValues& values)
{
    return std::none_of(values.begin(), values.end(), [](const Value& v) { return v.has_value(); });
}

Value firstOf(const Value& first, const Value& second)
{
    return first ? first : second;
}

// Quantities of several lines, each under the name of its line. "power" is apparent power.
void readLines(const GroupVariables& variables, int lines, LineReading& reading)
{
    const auto& [own, unit] = variables;
    for (int i = 0; i < lines; ++i) {
        reading.voltage[i] = own.number(kLineToNeutral[i]);
        reading.current[i] = own.ofLine(i, "current");
        reading.frequency[i] = own.ofLine(i, "frequency");
        reading.power[i] = firstOf(own.ofLine(i, "realpower"), unit.ofLine(i, "realpower"));
        reading.load[i] = firstOf(own.ofLine(i, "power.percent"), unit.ofLine(i, "load"));
        reading.apparentPower[i] = firstOf(own.ofLine(i, "power"), unit.ofLine(i, "power"));
    }
}

// The names without a line: all of a single-phase group, and what remains when a group of several
// lines does not tell them apart.
void readTotals(const GroupVariables& variables, LineReading& reading, QStringList& totals)
{
    const auto& [own, unit] = variables;
    struct Total {
        PhaseValues& values;
        Value value;
        const char* caption;
    };
    const Total rows[] = {
        {reading.voltage, own.number("voltage"), QT_TRANSLATE_NOOP("NutReading", "voltage")},
        {reading.current, own.number("current"), QT_TRANSLATE_NOOP("NutReading", "current")},
        {reading.power, firstOf(unit.number("realpower"), own.number("realpower")),
         QT_TRANSLATE_NOOP("NutReading", "power")},
        {reading.load, unit.number("load"), QT_TRANSLATE_NOOP("NutReading", "load")},
    };
    for (const Total& total : rows) {
        if (!total.value || !isEmpty(total.values))
            continue;
        total.values[0] = total.value;
        totals << Tr::tr(total.caption);
    }
}

// With one line the total is the line.
void readOneLine(const GroupVariables& names, LineReading& lines)
{
    QStringList totals;
    readTotals(names, lines, totals);
    LineReading named;
    readLines(names, 1, named);
    for (PhaseValues LineReading::*quantity :
         {&LineReading::voltage, &LineReading::current, &LineReading::power, &LineReading::load})
        if (isEmpty(lines.*quantity))
            lines.*quantity = named.*quantity;
    lines.frequency = named.frequency;
    const Value total = firstOf(names.unit.number("power"), names.own.number("power"));
    lines.apparentPower[0] = firstOf(total, named.apparentPower[0]);
}

void readSeveralLines(const GroupVariables& names, int count, const QString& caption,
                      LineReading& lines, QStringList& notes)
{
    readLines(names, count, lines);
    if (isEmpty(lines.voltage)) {
        for (int i = 0; i < count; ++i)
            lines.voltage[i] = names.own.number(kLineToLine[i]);
        if (!isEmpty(lines.voltage))
            notes << Tr::tr("%1 voltages are line to line.").arg(caption);
    }
    QStringList totals;
    readTotals(names, lines, totals);
    if (!totals.isEmpty())
        notes << Tr::tr("%1: one value for all lines (%2), shown in the first.")
                     .arg(caption, totals.join(QStringLiteral(", ")));
}

void readGroup(const NutVariables& variables, const GroupRow& row, UpsReading& reading)
{
    static const NutVariables none;
    const GroupVariables names{Variables(variables, row.prefix),
                               row.unitPrefix ? Variables(variables, row.unitPrefix)
                                              : Variables(none, "")};
    LineReading& lines = reading.*row.target;
    lines.lines = lineCount(names);
    const int count = std::min(std::max(lines.lines.value_or(1), 1), kPhases);
    if (count == 1)
        readOneLine(names, lines);
    else
        readSeveralLines(names, count, Tr::tr(row.caption), lines, reading.notes);
    const Value frequency = names.own.number("frequency");
    for (int i = 0; i < count; ++i)
        if (!lines.frequency[i])
            lines.frequency[i] = frequency;
}

void readPowerPath(const Tokens& tokens, const QByteArray& charger, UpsReading& reading)
{
    reading.saysMains = tokens.contains("OL");
    for (const SourceRow& row : kSources) {
        if (hasAny(tokens, row.tokens)) {
            reading.outputSource = row.source;
            break;
        }
    }
    for (const BatteryRow& row : kBattery) {
        if (hasAny(tokens, row.tokens) || (row.charger && charger == row.charger)) {
            reading.batteryState = row.state;
            break;
        }
    }
    if (tokens.contains("OB") && reading.charge && *reading.charge <= 0) {
        reading.batteryState = BatteryState::Depleted;
        reading.notes << Tr::tr("Battery depleted: derived from a charge of 0 %.");
    }
}

void readStatus(const NutVariables& variables, UpsReading& reading)
{
    const auto words = variables.value("ups.status").simplified().split(' ');
    const Tokens tokens(words.begin(), words.end());

    for (const AlarmRow& row : kAlarms)
        if (hasAny(tokens, row.tokens))
            reading.alarms.insert(row.alarm);
    if (tokens.contains("OB") && !tokens.contains("CAL"))
        reading.alarms.insert(Alarm::InputBad);

    if (!hasAny(tokens, kPathTokens)) {
        reading.notes << (tokens.contains("WAIT")
                              ? Tr::tr("The driver has just started and has no data yet; the "
                                       "source of power is unknown.")
                              : Tr::tr("The UPS does not say where its power comes from."));
        return;
    }
    readPowerPath(tokens, variables.value("battery.charger.status").trimmed(), reading);
}

bool isGood(const QByteArray& status)
{
    return status.isEmpty() || status == "good";
}

// The status words of measured quantities: "good", "warning-low", "critical-high" ...
void readConditions(const NutVariables& variables, UpsReading& reading)
{
    static const QRegularExpression inputStatus(
        QStringLiteral("^input\\.(L[123](-N)?\\.)?(voltage|frequency)\\.status$"));
    static const QRegularExpression ambientStatus(
        QStringLiteral("^(ambient\\.(?:\\d+\\.)?)(temperature|humidity)\\.status$"));
    for (auto it = variables.begin(); it != variables.end(); ++it) {
        const QByteArray status = it.value().trimmed();
        if (!it.key().endsWith(".status") || isGood(status))
            continue;
        const QString name = QString::fromLatin1(it.key());
        if (inputStatus.match(name).hasMatch()) {
            reading.alarms.insert(Alarm::InputBad);
            continue;
        }
        const auto ambient = ambientStatus.match(name);
        const bool isPresent = variables.value(ambient.captured(1).toLatin1() + "present") != "no";
        const bool isAlarm = status.startsWith("warning") || status.startsWith("critical");
        if (!ambient.hasMatch() || !isPresent || !isAlarm)
            continue;
        if (ambient.captured(2) == QLatin1String("temperature"))
            reading.alarms.insert(Alarm::TemperatureBad);
        else
            reading.alarmTexts << Tr::tr("Humidity %1").arg(cleanDeviceText(status));
    }
}

void readEvents(const NutVariables& variables, UpsReading& reading)
{
    const Value shutdownTimer = plausibleNumber(variables.value("ups.timer.shutdown"));
    if (shutdownTimer && *shutdownTimer > 0)
        reading.alarms.insert(Alarm::ShutdownPending);

    // Free text with a dozen dialects; only what plainly tells of a failure counts.
    static const QRegularExpression failed(
        QStringLiteral("(?<!no )(?<!not )(?<!without )\\b(fail|error|bad|ng\\b)"),
        QRegularExpression::CaseInsensitiveOption);
    if (failed.match(cleanDeviceText(variables.value("ups.test.result"))).hasMatch())
        reading.alarms.insert(Alarm::DiagnosticTestFailed);

    const QString text = cleanDeviceText(variables.value("ups.alarm"));
    if (!text.isEmpty())
        reading.alarmTexts << text;
}

void readIdentity(const NutVariables& variables, const QByteArray& description,
                  const QString& upsName, UpsReading& reading)
{
    for (const TextRow& row : kTexts)
        for (const char* name : row.names)
            if (name && (reading.*row.target).isEmpty())
                reading.*row.target = cleanDeviceText(variables.value(name));
    if (reading.name.isEmpty())
        reading.name = cleanDeviceText(description);
    if (reading.name.isEmpty())
        reading.name = cleanDeviceText(upsName);
}

} // namespace

bool isPrivateNutVariable(const QByteArray& name)
{
    return name.startsWith("driver.parameter.");
}

UpsReading readingFromNut(const NutVariables& variables, const QByteArray& description,
                          const QString& upsName)
{
    UpsReading reading;
    for (const NumberRow& row : kNumbers)
        for (const char* name : row.names)
            if (name && !(reading.*row.target))
                reading.*row.target = plausibleNumber(variables.value(name));
    readIdentity(variables, description, upsName, reading);
    const QByteArray beeper = variables.value("ups.beeper.status").trimmed();
    for (const BeeperRow& row : kBeepers)
        if (beeper == row.text)
            reading.beeper = row.beeper;

    for (const GroupRow& row : kGroups)
        readGroup(variables, row, reading);
    readStatus(variables, reading);
    readConditions(variables, reading);
    readEvents(variables, reading);
    addDerivedAlarms(reading);
    return reading;
}
