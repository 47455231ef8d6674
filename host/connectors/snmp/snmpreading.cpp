#include "connectors/snmp/snmpreading.h"

#include "connectors/snmp/upsmib.h"

#include "reading/derivedalarms.h"
#include "reading/sanitize.h"

#include <QCoreApplication>

#include <cmath>
#include <set>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(SnmpReading)
};

enum class Unit { Whole, Tenths, Minutes };

double physical(double raw, Unit unit)
{
    switch (unit) {
    case Unit::Tenths:
        return raw / 10.0;
    case Unit::Minutes:
        return raw * 60.0;
    case Unit::Whole:
        break;
    }
    return raw;
}

struct NumberRow {
    quint32 group;
    quint32 object;
    Value UpsReading::*member;
    Unit unit;
};

constexpr NumberRow kNumbers[] = {
    {2, 3, &UpsReading::runtime, Unit::Minutes},
    {2, 4, &UpsReading::charge, Unit::Whole},
    {2, 5, &UpsReading::batteryVoltage, Unit::Tenths},
    {2, 6, &UpsReading::batteryCurrent, Unit::Tenths},
    {2, 7, &UpsReading::batteryTemperature, Unit::Whole},
    {3, 1, &UpsReading::inputLineBads, Unit::Whole},
    {9, 1, &UpsReading::ratedInputVoltage, Unit::Whole},
    {9, 2, &UpsReading::ratedInputFrequency, Unit::Tenths},
    {9, 3, &UpsReading::ratedOutputVoltage, Unit::Whole},
    {9, 4, &UpsReading::ratedOutputFrequency, Unit::Tenths},
    {9, 5, &UpsReading::ratedApparentPower, Unit::Whole},
    {9, 6, &UpsReading::ratedPower, Unit::Whole},
    {9, 7, &UpsReading::lowBatteryTime, Unit::Minutes},
    {9, 9, &UpsReading::lowTransferVoltage, Unit::Whole},
    {9, 10, &UpsReading::highTransferVoltage, Unit::Whole},
};

struct TextRow {
    quint32 object; // of upsIdent
    QString UpsReading::*member;
};

constexpr TextRow kTexts[] = {
    {1, &UpsReading::manufacturer}, {2, &UpsReading::model}, {3, &UpsReading::softwareVersion},
    {4, &UpsReading::agentVersion}, {5, &UpsReading::name},  {6, &UpsReading::attachedDevices},
};

struct ColumnRow {
    quint32 column;
    PhaseValues LineReading::*member;
    Unit unit;
};

// Input, output and bypass: how many lines, one frequency for all of them, and the table.
struct LineGroupRow {
    LineReading UpsReading::*member;
    quint32 group;
    quint32 countObject;
    quint32 frequencyObject; // 0: each line has its own
    quint32 table;
    std::vector<ColumnRow> columns;
};

const std::vector<LineGroupRow>& lineGroups()
{
    static const std::vector<LineGroupRow> rows{
        {&UpsReading::input,
         3,
         2,
         0,
         3,
         {{2, &LineReading::frequency, Unit::Tenths},
          {3, &LineReading::voltage, Unit::Whole},
          {4, &LineReading::current, Unit::Tenths},
          {5, &LineReading::power, Unit::Whole}}},
        {&UpsReading::output,
         4,
         3,
         2,
         4,
         {{2, &LineReading::voltage, Unit::Whole},
          {3, &LineReading::current, Unit::Tenths},
          {4, &LineReading::power, Unit::Whole},
          {5, &LineReading::load, Unit::Whole}}},
        {&UpsReading::bypass,
         5,
         2,
         1,
         3,
         {{2, &LineReading::voltage, Unit::Whole},
          {3, &LineReading::current, Unit::Tenths},
          {4, &LineReading::power, Unit::Whole}}},
    };
    return rows;
}

SnmpOid columnOid(const LineGroupRow& group, const ColumnRow& column)
{
    return UpsMib::objects + SnmpOid{group.group, group.table, 1, column.column};
}

const SnmpValue& valueOf(const SnmpValues& values, const SnmpOid& oid)
{
    static const SnmpValue absent;
    const auto found = values.find(oid);
    return found == values.end() ? absent : found->second;
}

Value numberOf(const SnmpValues& values, const SnmpOid& oid)
{
    return valueOf(values, oid).plausible();
}

// Enumerations: a whole number from first to last, else 0.
int codeOf(const SnmpValues& values, const SnmpOid& oid, int first, int last)
{
    const std::optional<qint64> code = valueOf(values, oid).raw();
    return code && *code >= first && *code <= last ? static_cast<int>(*code) : 0;
}

QString textOf(const SnmpValues& values, const SnmpOid& oid)
{
    const SnmpValue& value = valueOf(values, oid);
    return value.type == SnmpValue::Type::Text ? cleanDeviceText(value.octets) : QString();
}

// visit: what stands behind the column, at least one part, and the value.
template <typename Visit>
void forEachRow(const SnmpValues& values, const SnmpOid& column, Visit visit)
{
    for (auto it = values.upper_bound(column); it != values.end() && isBelow(it->first, column);
         ++it)
        visit(SnmpOid(it->first.begin() + static_cast<std::ptrdiff_t>(column.size()),
                      it->first.end()),
              it->second);
}

// How many lines the rows show when the agent does not count them. A row without any number is no
// line: some agents fill their tables with empty rows.
std::optional<int> linesOfRows(const LineReading& lines)
{
    int last = 0;
    for (const auto member : {&LineReading::voltage, &LineReading::current, &LineReading::frequency,
                              &LineReading::power, &LineReading::load})
        for (int i = 0; i < kPhases; ++i)
            if ((lines.*member)[i])
                last = std::max(last, i + 1);
    return last > 0 ? std::optional<int>(last) : std::nullopt;
}

bool hasCurrentOrVoltage(const LineReading& lines)
{
    const auto flows = [](const Value& value) { return value.value_or(0.0) != 0.0; };
    return std::any_of(lines.voltage.begin(), lines.voltage.end(), flows) ||
           std::any_of(lines.current.begin(), lines.current.end(), flows);
}

// The agent's own count; empty where it gives none, or says "no line" of lines that carry voltage.
std::optional<int> countedLines(const SnmpValues& values, const LineGroupRow& group,
                                const LineReading& lines)
{
    constexpr int kMostLines = 12;
    const Value count = numberOf(values, UpsMib::scalar(group.group, group.countObject));
    if (!count || *count < 0 || *count > kMostLines || *count != std::floor(*count) ||
        (*count == 0 && hasCurrentOrVoltage(lines)))
        return {};
    return static_cast<int>(*count);
}

LineReading rowsOf(const SnmpValues& values, const LineGroupRow& group)
{
    LineReading lines;
    for (const ColumnRow& column : group.columns) {
        PhaseValues& phases = lines.*column.member;
        // The first part behind the column is the line; some agents add a further ".0".
        forEachRow(values, columnOid(group, column),
                   [&](const SnmpOid& row, const SnmpValue& value) {
                       const quint32 line = row.front();
                       const Value raw = value.plausible();
                       if (line >= 1 && line <= kPhases && raw)
                           phases[line - 1] = physical(*raw, column.unit);
                   });
    }
    return lines;
}

LineReading linesOf(const SnmpValues& values, const LineGroupRow& group)
{
    LineReading lines = rowsOf(values, group);
    const std::optional<int> counted = countedLines(values, group, lines);
    lines.lines = counted ? counted : linesOfRows(lines);

    // Rows beyond the count are no lines of this device.
    const int last = lines.lines.value_or(0);
    for (const ColumnRow& column : group.columns)
        for (int i = last; i < kPhases; ++i)
            (lines.*column.member)[i].reset();

    if (group.frequencyObject != 0) {
        const Value raw = numberOf(values, UpsMib::scalar(group.group, group.frequencyObject));
        // Without rows there is still one frequency, unless the agent says "no line".
        const int carriers = lines.lines ? std::min(last, kPhases) : 1;
        for (int i = 0; raw && i < carriers; ++i)
            lines.frequency[i] = physical(*raw, Unit::Tenths);
    }
    return lines;
}

BatteryState batteryStateOf(int status, int testResult, OutputSource source)
{
    if (status == UpsMib::BatteryDepleted)
        return BatteryState::Depleted;
    if (status == UpsMib::BatteryLow)
        return BatteryState::Low;
    if (testResult == UpsMib::InProgress)
        return BatteryState::SelfTest;
    if (source == OutputSource::Battery)
        return BatteryState::Discharge;
    return status == UpsMib::BatteryNormal ? BatteryState::Normal : BatteryState::Unknown;
}

// s since the agent saw the alarm of this row begin; empty where it was there before the agent.
Value alarmAge(const SnmpValues& values, const SnmpOid& row)
{
    constexpr double kTicksPerSecond = 100;
    constexpr double kRaisedMeanwhile = 10; // s; the table is read after the agent's clock
    const auto raised = valueOf(values, UpsMib::alarmTime + row).raw();
    const auto now = valueOf(values, UpsMib::sysUpTime).raw();
    if (!raised || !now || *raised <= 0)
        return {};
    const double age = static_cast<double>(*now - *raised) / kTicksPerSecond;
    return age >= -kRaisedMeanwhile ? Value(std::max(age, 0.0)) : Value();
}

void noteAlarm(Alarm alarm, const Value& age, UpsReading& reading)
{
    reading.alarms.insert(alarm);
    if (age)
        reading.alarmAges[alarm] = std::max(*age, reading.alarmAges.value(alarm));
}

// The alarms that the agent lists, and how many it counts beyond them.
void readAlarms(const SnmpValues& values, UpsReading& reading)
{
    using namespace UpsMib;
    int listed = 0;
    forEachRow(values, alarmDescr, [&](const SnmpOid& row, const SnmpValue& value) {
        const SnmpOid oid = value.identifier();
        if (std::all_of(oid.begin(), oid.end(), [](quint32 part) { return part == 0; }))
            return; // an empty row of a table of fixed size
        ++listed;
        const quint32 number = isBelow(oid, wellKnownAlarms) ? oid[wellKnownAlarms.size()] : 0;
        const QString text = cleanDeviceText(toText(oid));
        if (number >= 1 && number <= kLastWellKnownAlarm)
            noteAlarm(static_cast<Alarm>(number), alarmAge(values, row), reading);
        else if (!reading.alarmTexts.contains(text))
            reading.alarmTexts << text;
    });
    const Value count = numberOf(values, alarmsPresent);
    if (!count || *count < 0 || *count >= 1e6)
        return;
    reading.alarmCount = static_cast<int>(*count);
    if (*reading.alarmCount > listed)
        reading.alarmTexts
            << Tr::tr("Alarms counted, but not named: %1").arg(*reading.alarmCount - listed);
}

void readTables(const SnmpValues& values, UpsReading& reading)
{
    for (const NumberRow& row : kNumbers)
        if (const Value raw = numberOf(values, UpsMib::scalar(row.group, row.object)))
            reading.*row.member = physical(*raw, row.unit);
    for (const TextRow& row : kTexts)
        reading.*row.member = textOf(values, UpsMib::scalar(1, row.object));
    for (const LineGroupRow& group : lineGroups())
        reading.*group.member = linesOf(values, group);
    reading.location = textOf(values, UpsMib::sysLocation);
    if (reading.name.isEmpty())
        reading.name = textOf(values, UpsMib::sysName);
}

void readStates(const SnmpValues& values, UpsReading& reading)
{
    using namespace UpsMib;
    if (const int source = codeOf(values, outputSource, 1, 7))
        reading.outputSource = static_cast<OutputSource>(source);
    if (const int beeper = codeOf(values, audibleStatus, 1, 3))
        reading.beeper = static_cast<Beeper>(beeper);

    const int status = codeOf(values, batteryStatus, 1, 4);
    const int testResult = codeOf(values, testResultsSummary, DonePass, NoTestsInitiated);
    readAlarms(values, reading);
    if (testResult == InProgress)
        reading.alarms.insert(Alarm::TestInProgress);
    // The alarm of this name says the same thing; agents without an alarm table have only this.
    if (testResult == DoneError)
        reading.alarms.insert(Alarm::DiagnosticTestFailed);
    reading.batteryState = batteryStateOf(status, testResult, reading.outputSource);
}

} // namespace

const std::vector<SnmpOid>& polledScalars()
{
    static const std::vector<SnmpOid> oids = [] {
        std::vector<SnmpOid> list{UpsMib::outputSource,  UpsMib::batteryStatus,
                                  UpsMib::sysUpTime,     UpsMib::secondsOnBattery,
                                  UpsMib::alarmsPresent, UpsMib::testResultsSummary,
                                  UpsMib::audibleStatus};
        for (const NumberRow& row : kNumbers)
            list.push_back(UpsMib::scalar(row.group, row.object));
        for (const LineGroupRow& group : lineGroups()) {
            list.push_back(UpsMib::scalar(group.group, group.countObject));
            if (group.frequencyObject != 0)
                list.push_back(UpsMib::scalar(group.group, group.frequencyObject));
        }
        for (const TextRow& row : kTexts)
            list.push_back(UpsMib::scalar(1, row.object));
        list.push_back(UpsMib::sysName);
        list.push_back(UpsMib::sysLocation);
        return list;
    }();
    return oids;
}

const std::vector<SnmpOid>& polledColumns()
{
    static const std::vector<SnmpOid> oids = [] {
        std::vector<SnmpOid> list;
        for (const LineGroupRow& group : lineGroups())
            for (const ColumnRow& column : group.columns)
                list.push_back(columnOid(group, column));
        list.push_back(UpsMib::alarmDescr);
        list.push_back(UpsMib::alarmTime);
        return list;
    }();
    return oids;
}

bool hasUpsObjects(const SnmpValues& values)
{
    for (auto it = values.upper_bound(UpsMib::objects);
         it != values.end() && isBelow(it->first, UpsMib::objects); ++it)
        if (it->second.type != SnmpValue::Type::Absent && it->second.type != SnmpValue::Type::Null)
            return true;
    return false;
}

UpsReading readingFromSnmp(const SnmpValues& values)
{
    UpsReading reading;
    readTables(values, reading);
    readStates(values, reading);
    addDerivedAlarms(reading);

    // Some agents keep the length of the last outage after it has ended.
    const bool onBattery =
        reading.outputSource == OutputSource::Battery || reading.alarms.contains(Alarm::OnBattery);
    reading.secondsOnBattery = onBattery ? numberOf(values, UpsMib::secondsOnBattery) : Value(0.0);
    // Agents seldom tell when a test began, but how long it has drawn on the battery.
    if (isBatteryTest(reading))
        noteAlarm(Alarm::TestInProgress, reading.secondsOnBattery, reading);
    return reading;
}
