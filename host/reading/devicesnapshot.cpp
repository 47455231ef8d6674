#include "reading/devicesnapshot.h"

#include "globalvar.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DeviceSnapshot)
};

constexpr int kNoKey = -1;
constexpr int kSecondsPerMinute = 60;
constexpr int kFullCharge = 100;

struct AlarmRow {
    Alarm alarm;
    int key;
    const char* text;
};

constexpr AlarmRow kAlarms[] = {
    {Alarm::BatteryBad, alarm_BatteryBad, QT_TRANSLATE_NOOP("DeviceSnapshot", "Battery fault")},
    {Alarm::OnBattery, alarm_OnBattery, QT_TRANSLATE_NOOP("DeviceSnapshot", "Battery powered")},
    {Alarm::LowBattery, alarm_LowBattery, QT_TRANSLATE_NOOP("DeviceSnapshot", "Battery low")},
    {Alarm::DepletedBattery, alarm_DepletedBattery,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "Battery EOD")},
    {Alarm::TemperatureBad, alarm_TempBad,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "Temperature overrun MAX-value")},
    {Alarm::InputBad, alarm_InputBad, QT_TRANSLATE_NOOP("DeviceSnapshot", "Input fault")},
    {Alarm::OutputBad, alarm_OutputBad, QT_TRANSLATE_NOOP("DeviceSnapshot", "Output fault")},
    {Alarm::OutputOverload, alarm_OutputOverload,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "Load overrun MAX-value")},
    {Alarm::OnBypass, alarm_OnBypass, QT_TRANSLATE_NOOP("DeviceSnapshot", "Bypass powered")},
    {Alarm::BypassBad, alarm_BypassBad, QT_TRANSLATE_NOOP("DeviceSnapshot", "Bypass fault")},
    {Alarm::OutputOffAsRequested, alarm_OutputOffAsRequested,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "The UPS output has shutdown as requested")},
    {Alarm::UpsOffAsRequested, alarm_UpsOffAsRequested,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "The entire UPS has shutdown as commanded")},
    {Alarm::ChargerFailed, alarm_ChargerFailed,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "Charger subsystem fault")},
    {Alarm::OutputOff, alarm_UpsOutputOff,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "The output of the UPS is in the off state")},
    {Alarm::SystemOff, alarm_UpsSystemOff,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "The UPS system is in the off state")},
    {Alarm::FanFailure, alarm_FanFailure, QT_TRANSLATE_NOOP("DeviceSnapshot", "Fan fault")},
    {Alarm::FuseFailure, alarm_FuseFailure, QT_TRANSLATE_NOOP("DeviceSnapshot", "Fuse fault")},
    {Alarm::GeneralFault, alarm_GeneralFault, QT_TRANSLATE_NOOP("DeviceSnapshot", "UPS fault")},
    {Alarm::DiagnosticTestFailed, alarm_DiagnosticTestFailed,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "Last diagnostic test failed")},
    {Alarm::CommunicationsLost, alarm_CommunicationsLost,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "Communication between agent and UPS fault")},
    {Alarm::AwaitingPower, kNoKey,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "UPS is awaiting the return of input power")},
    {Alarm::ShutdownPending, alarm_AwaitingPower,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "UPS shutdown after delay countdown is underway")},
    {Alarm::ShutdownImminent, alarm_ShutdownPending,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "The UPS will turn off power to the load")},
    {Alarm::TestInProgress, alarm_ShutdownImminent,
     QT_TRANSLATE_NOOP("DeviceSnapshot", "A test is in progress")},
};
static_assert(std::size(kAlarms) == static_cast<int>(Alarm::TestInProgress));

// Alarm keys that no alarm feeds: the page has another text there, or none.
constexpr int kSilentAlarmKeys[] = {alarm_TestFailed, alarm_TestInProgress};

const AlarmRow& rowOf(Alarm alarm)
{
    const auto* row = std::find_if(std::begin(kAlarms), std::end(kAlarms),
                                   [alarm](const AlarmRow& r) { return r.alarm == alarm; });
    return row != std::end(kAlarms) ? *row : kAlarms[static_cast<int>(Alarm::GeneralFault) - 1];
}

int saturated(double number)
{
    if (std::isnan(number))
        return 0;
    constexpr double kLimit = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(number, -kLimit, kLimit));
}

// Nearest integer, halves away from zero. A decimal half such as 0.35 x 10 may sit a hair below
// its half in binary; it still counts as a half.
int nearest(double number)
{
    constexpr double kHair = 1e-9;
    return saturated(std::round(number + std::copysign(kHair, number)));
}

// Values that are nothing but scaled and rounded: stored = nearest(value x scale).
struct ScalarRow {
    int key;
    Value UpsReading::*value;
    double scale;
    const char* unit; // of the value
};

constexpr double kWhole = 1.0;
constexpr double kTenths = 10.0;
constexpr double kKilowatts = 0.001;
// The detail page doubles the apparent power it reads.
constexpr double kHalved = 0.5;

// Where the pages disagree; all else has one unit on every page.
struct PageUnits {
    double linePower; // scales; the rated powers stay in watts
    double batteryTemperature;
    bool hasCurrentSign; // of the battery current; else its magnitude
};

// By SnapshotPage.
constexpr PageUnits kPageUnits[] = {
    {kKilowatts, kTenths, true}, // EnergyFlow
    {kWhole, kTenths, true},     // Device
    {kWhole, kWhole, false},     // Chart
};
static_assert(std::size(kPageUnits) == static_cast<int>(SnapshotPage::Chart) + 1);

constexpr ScalarRow kScalars[] = {
    {realdata_SecondsOnBat, &UpsReading::secondsOnBattery, kWhole, "s"},
    {realdata_BatVoltage, &UpsReading::batteryVoltage, kTenths, "V"},
    {realdata_BatCurrent, &UpsReading::batteryCurrent, kTenths, "A"},
    {realdata_BatTemp, &UpsReading::batteryTemperature, kTenths, "°C"},
    {realdata_InputLineBads, &UpsReading::inputLineBads, kWhole, ""},
    {realdata_ConfigIPVol, &UpsReading::ratedInputVoltage, kWhole, "V"},
    {realdata_ConfigIPFre, &UpsReading::ratedInputFrequency, kTenths, "Hz"},
    {realdata_ConfigOPVol, &UpsReading::ratedOutputVoltage, kWhole, "V"},
    {realdata_ConfigOPFre, &UpsReading::ratedOutputFrequency, kTenths, "Hz"},
    {realdata_ConfigOPVA_Hi, &UpsReading::ratedApparentPower, kHalved, "VA"},
    {realdata_ConfigOPW_Hi, &UpsReading::ratedPower, kWhole, "W"},
    {realdata_ConfigLowVol, &UpsReading::lowTransferVoltage, kWhole, "V"},
    {realdata_ConfigHighVol, &UpsReading::highTransferVoltage, kWhole, "V"},
};

// Quantities of a group of lines; keys of the three lines lie `stride` apart.
struct LineRow {
    int keyA;
    int stride;
    LineReading UpsReading::*group;
    PhaseValues LineReading::*values;
    double scale;
    const char* unit; // of the values
};

constexpr int kTriple = 1;
constexpr int kWords = 2; // _Hi words, each followed by its _Lo word

constexpr LineRow kLines[] = {
    {realdata_InputVoltage_A, kTriple, &UpsReading::input, &LineReading::voltage, kWhole, "V"},
    {realdata_InputCurrent_A, kTriple, &UpsReading::input, &LineReading::current, kTenths, "A"},
    {realdata_InputFre_A, kTriple, &UpsReading::input, &LineReading::frequency, kTenths, "Hz"},
    {realdata_InputPower_A_Hi, kWords, &UpsReading::input, &LineReading::power, kWhole, "W"},
    {realdata_OutputVoltage_A, kTriple, &UpsReading::output, &LineReading::voltage, kWhole, "V"},
    {realdata_OutputCurrent_A, kTriple, &UpsReading::output, &LineReading::current, kTenths, "A"},
    {realdata_OutputPower_A_Hi, kWords, &UpsReading::output, &LineReading::power, kWhole, "W"},
    {realdata_OutputLoad_A, kTriple, &UpsReading::output, &LineReading::load, kWhole, "%"},
    {realdata_BypVoltage_A, kTriple, &UpsReading::bypass, &LineReading::voltage, kWhole, "V"},
    {realdata_BypCurrent_A, kTriple, &UpsReading::bypass, &LineReading::current, kTenths, "A"},
    {realdata_BypPower_A_Hi, kWords, &UpsReading::bypass, &LineReading::power, kWhole, "W"},
};

struct GroupRow {
    int linesKey;
    int trueLinesKey;
    int frequencyKey; // one frequency for the whole group; kNoKey where each line has its own
    LineReading UpsReading::*group;
};

constexpr GroupRow kGroups[] = {
    {realdata_InputNumLines, info_innum, kNoKey, &UpsReading::input},
    {realdata_OutputNumLines, info_outnum, realdata_OutputFre, &UpsReading::output},
    {realdata_BypNumLines, info_bypnum, realdata_BypFre, &UpsReading::bypass},
};

struct TextRow {
    int key;
    QString UpsReading::*text;
};

constexpr TextRow kTexts[] = {
    {info_ups_type, &UpsReading::model},
    {info_copo_name, &UpsReading::manufacturer},
    {info_quenta_name, &UpsReading::name},
    {info_ups_description, &UpsReading::attachedDevices},
    {info_ups_soft_ver, &UpsReading::softwareVersion},
    {info_quenta_soft_ver, &UpsReading::agentVersion},
    {info_quenta_location, &UpsReading::location},
};

// Values that the views show as 0 when the device does not give them.
struct ShownValue {
    const char* label;
    bool (*isGiven)(const UpsReading& reading);
};

constexpr ShownValue kShownValues[] = {
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "battery charge"),
     [](const UpsReading& r) { return r.charge.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "remaining time"),
     [](const UpsReading& r) { return r.runtime.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "battery voltage"),
     [](const UpsReading& r) { return r.batteryVoltage.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "battery current"),
     [](const UpsReading& r) { return r.batteryCurrent.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "battery temperature"),
     [](const UpsReading& r) { return r.batteryTemperature.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "time on battery"),
     [](const UpsReading& r) { return r.secondsOnBattery.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "number of mains failures"),
     [](const UpsReading& r) { return r.inputLineBads.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "rated input voltage"),
     [](const UpsReading& r) { return r.ratedInputVoltage.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "rated input frequency"),
     [](const UpsReading& r) { return r.ratedInputFrequency.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "rated output voltage"),
     [](const UpsReading& r) { return r.ratedOutputVoltage.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "rated output frequency"),
     [](const UpsReading& r) { return r.ratedOutputFrequency.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "rated apparent power"),
     [](const UpsReading& r) { return r.ratedApparentPower.has_value(); }},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "rated active power"),
     [](const UpsReading& r) { return r.ratedPower.has_value(); }},
};

// The same of values that each line shows its own of.
struct ShownLineValue {
    const char* label;
    LineReading UpsReading::*group;
    PhaseValues LineReading::*values;
    bool isCommon = false; // one for all lines
};

constexpr ShownLineValue kShownLineValues[] = {
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "input voltage"), &UpsReading::input,
     &LineReading::voltage},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "input current"), &UpsReading::input,
     &LineReading::current},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "input frequency"), &UpsReading::input,
     &LineReading::frequency, true},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "input power"), &UpsReading::input, &LineReading::power},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "output voltage"), &UpsReading::output,
     &LineReading::voltage},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "output current"), &UpsReading::output,
     &LineReading::current},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "output frequency"), &UpsReading::output,
     &LineReading::frequency, true},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "output power"), &UpsReading::output, &LineReading::power},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "load"), &UpsReading::output, &LineReading::load},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "bypass voltage"), &UpsReading::bypass,
     &LineReading::voltage},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "bypass current"), &UpsReading::bypass,
     &LineReading::current},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "bypass frequency"), &UpsReading::bypass,
     &LineReading::frequency, true},
    {QT_TRANSLATE_NOOP("DeviceSnapshot", "bypass power"), &UpsReading::bypass, &LineReading::power},
};

// Empty where all lines that are shown are given.
QString unreportedLines(const ShownLineValue& row, const UpsReading& reading)
{
    const LineReading& group = reading.*row.group;
    const int lines = row.isCommon ? 1 : shownLines(group);
    QStringList missing;
    for (int line = 0; line < lines; ++line)
        if (!(group.*row.values)[static_cast<std::size_t>(line)])
            missing << QString::number(line + 1);
    if (missing.isEmpty())
        return {};
    const QString label = Tr::tr(row.label);
    return missing.size() == lines
               ? label
               : Tr::tr("%1 of line %2").arg(label, missing.join(Tr::tr(" and ")));
}

QString unreportedNote(const UpsReading& reading)
{
    QStringList labels;
    for (const ShownValue& value : kShownValues)
        if (!value.isGiven(reading))
            labels << Tr::tr(value.label);
    for (const ShownLineValue& row : kShownLineValues)
        if (const QString label = unreportedLines(row, reading); !label.isEmpty())
            labels << label;
    return labels.isEmpty()
               ? QString()
               : Tr::tr("Not reported, shown as 0: %1.").arg(labels.join(QStringLiteral(", ")));
}

// Powers travel in their _Hi word; the _Lo word that follows it is always 0.
bool isPowerWord(int key)
{
    return (key >= realdata_InputPower_A_Hi && key <= realdata_InputPower_C_Lo) ||
           (key >= realdata_OutputPower_A_Hi && key <= realdata_OutputPower_C_Lo) ||
           (key >= realdata_BypPower_A_Hi && key <= realdata_BypPower_C_Lo) ||
           key == realdata_ConfigOPVA_Hi || key == realdata_ConfigOPW_Hi;
}

class SnapshotWriter
{
public:
    SnapshotWriter(const UpsReading& reading, SnapshotPage page)
        : m_reading(reading)
        , m_units(kPageUnits[static_cast<int>(page)])
    {}

    QMap<int, QVariant> write()
    {
        writeStates();
        writeNumbers();
        for (const GroupRow& row : kGroups)
            writeGroup(row);
        for (const LineRow& row : kLines)
            writeLines(row);
        writeAlarms();
        for (const TextRow& row : kTexts)
            if (!(m_reading.*row.text).isEmpty())
                m_map.insert(row.key, m_reading.*row.text);
        return m_map;
    }

private:
    void writeStates()
    {
        m_map.insert(realdata_BatteryStatus, static_cast<int>(m_reading.batteryState));
        m_map.insert(realdata_OutputSource, static_cast<int>(m_reading.outputSource));
        if (m_reading.beeper)
            m_map.insert(realdata_ConfigAudibleStatus, static_cast<int>(*m_reading.beeper));
    }

    void writeNumbers()
    {
        writeMinutes(realdata_MinutesRemaining, m_reading.runtime);
        writeMinutes(realdata_ConfigLowBattTime, m_reading.lowBatteryTime);
        if (m_reading.charge)
            m_map.insert(realdata_ChargeRemaining,
                         std::clamp(nearest(*m_reading.charge), 0, kFullCharge));
        for (const ScalarRow& row : kScalars)
            writeNumber(row.key, m_reading.*row.value, row.scale);
        writeNumber(realdata_BatTemp, m_reading.batteryTemperature, m_units.batteryTemperature);
        if (m_reading.batteryCurrent && !m_units.hasCurrentSign)
            writeNumber(realdata_BatCurrent, std::abs(*m_reading.batteryCurrent), kTenths);
    }

    void writeAlarms()
    {
        for (const AlarmRow& row : kAlarms)
            if (row.key != kNoKey)
                m_map.insert(row.key, m_reading.alarms.contains(row.alarm) ? 1 : 0);
        for (int key : kSilentAlarmKeys)
            m_map.insert(key, 0);
        if (m_reading.alarmCount)
            m_map.insert(info_alanum, *m_reading.alarmCount);
    }

    void writeNumber(int key, const Value& value, double scale)
    {
        if (!value)
            return;
        m_map.insert(key, nearest(*value * scale));
        if (isPowerWord(key))
            m_map.insert(key + 1, 0);
    }

    void writeMinutes(int key, const Value& seconds)
    {
        if (seconds)
            m_map.insert(key, saturated(std::floor(*seconds / kSecondsPerMinute)));
    }

    void writeGroup(const GroupRow& row)
    {
        const LineReading& group = m_reading.*row.group;
        m_map.insert(row.linesKey, shownLines(group));
        if (group.lines)
            m_map.insert(row.trueLinesKey, *group.lines);
        if (row.frequencyKey != kNoKey)
            writeNumber(row.frequencyKey, group.frequency[0], kTenths);
    }

    void writeLines(const LineRow& row)
    {
        const LineReading& group = m_reading.*row.group;
        const int lines = shownLines(group);
        const double scale = row.values == &LineReading::power ? m_units.linePower : row.scale;
        for (int line = 0; line < lines; ++line)
            writeNumber(row.keyA + line * row.stride,
                        (group.*row.values)[static_cast<std::size_t>(line)], scale);
    }

    const UpsReading& m_reading;
    const PageUnits& m_units;
    QMap<int, QVariant> m_map;
};

} // namespace

QMap<int, QVariant> deviceSnapshot(const UpsReading& reading, SnapshotPage page,
                                   const SnapshotLink& link)
{
    QMap<int, QVariant> map = SnapshotWriter(reading, page).write();
    if (link.communicationsLost)
        map.insert(alarm_CommunicationsLost, 1);
    map.insert(info_failCount, link.failedPolls);
    const std::pair<int, const QString&> texts[] = {
        {info_polltype, link.protocol}, {info_state, link.state}, {info_ipAddr, link.address}};
    for (const auto& [key, text] : texts)
        if (!text.isEmpty())
            map.insert(key, text);
    return map;
}

QMap<int, PhysicalValue> physicalValues(const UpsReading& reading)
{
    QMap<int, PhysicalValue> map;
    const auto add = [&map](int key, const Value& value, const char* unit) {
        if (value)
            map.insert(key, {*value, QString::fromUtf8(unit)});
    };
    const auto addMinutes = [&map](int key, const Value& seconds) {
        if (seconds)
            map.insert(key, {*seconds / kSecondsPerMinute, QStringLiteral("min")});
    };
    addMinutes(realdata_MinutesRemaining, reading.runtime);
    addMinutes(realdata_ConfigLowBattTime, reading.lowBatteryTime);
    add(realdata_ChargeRemaining, reading.charge, "%");
    for (const ScalarRow& row : kScalars)
        add(row.key, reading.*row.value, row.unit);
    for (const GroupRow& row : kGroups)
        if (row.frequencyKey != kNoKey)
            add(row.frequencyKey, (reading.*row.group).frequency[0], "Hz");
    for (const LineRow& row : kLines)
        for (int line = 0; line < shownLines(reading.*row.group); ++line)
            add(row.keyA + line * row.stride,
                ((reading.*row.group).*row.values)[static_cast<std::size_t>(line)], row.unit);
    return map;
}

QString alarmText(Alarm alarm)
{
    return Tr::tr(rowOf(alarm).text);
}

int alarmKey(Alarm alarm)
{
    return rowOf(alarm).key;
}

int shownLines(const LineReading& group)
{
    return group.lines == kPhases ? kPhases : 1;
}

QStringList readingNotes(const UpsReading& reading)
{
    constexpr int kSplitPhase = 2;
    QStringList notes = reading.notes;
    for (const GroupRow& row : kGroups) {
        if ((reading.*row.group).lines == kSplitPhase) {
            notes << Tr::tr("Split phase: line 1 of 2 is shown.");
            break;
        }
    }
    if (const QString note = unreportedNote(reading); !note.isEmpty())
        notes << note;
    return notes;
}
