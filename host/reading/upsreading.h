#ifndef UPSREADING_H
#define UPSREADING_H

// What is known of one UPS at one moment, in physical units, every value optional.
// May touch: Qt Core. Knows no connector, no snapshot key and no widget.

#include <QMap>
#include <QMetaType>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// A value that the device did not give, or gave as "not known", is empty; it is never 0.
using Value = std::optional<double>;
constexpr int kPhases = 3; // of the mains: the most lines that a reading has
// Lines 1, 2, 3 (A, B, C). A single-phase quantity stands in line 1.
using PhaseValues = std::array<Value, kPhases>;

// Numbers as the device views read them.
enum class BatteryState {
    Unknown = 1,
    Low = 3,
    Depleted = 4,
    SelfTest = 5,
    BoostCharge = 6,
    FloatCharge = 7,
    Discharge = 8,
    Normal = 9
};

// Numbers of upsOutputSource in the UPS-MIB.
enum class OutputSource {
    Other = 1, // also: not known
    None = 2,
    Utility = 3,
    Bypass = 4,
    Battery = 5,
    Booster = 6,
    Reducer = 7
};

// Alarms by their meaning; numbers of upsWellKnownAlarms in the UPS-MIB.
enum class Alarm {
    BatteryBad = 1,
    OnBattery,
    LowBattery,
    DepletedBattery,
    TemperatureBad,
    InputBad,
    OutputBad,
    OutputOverload,
    OnBypass,
    BypassBad,
    OutputOffAsRequested,
    UpsOffAsRequested,
    ChargerFailed,
    OutputOff,
    SystemOff,
    FanFailure,
    FuseFailure,
    GeneralFault,
    DiagnosticTestFailed,
    CommunicationsLost,
    AwaitingPower,
    ShutdownPending,
    ShutdownImminent,
    TestInProgress
};
inline uint qHash(Alarm alarm, uint seed = 0)
{
    return ::qHash(static_cast<int>(alarm), seed);
}

enum class Beeper { Disabled = 1, Enabled = 2, Muted = 3 };

// One group of lines: input, output or bypass.
struct LineReading {
    std::optional<int> lines;  // as the device says, not normalised; empty: it does not say
    PhaseValues voltage;       // V RMS
    PhaseValues current;       // A RMS
    PhaseValues frequency;     // Hz; one frequency for all lines stands in each line
    PhaseValues power;         // W, true power
    PhaseValues load;          // % of rating; output only
    PhaseValues apparentPower; // VA; output only
};

struct UpsReading {
    // Battery
    BatteryState batteryState = BatteryState::Unknown;
    Value secondsOnBattery;   // s, 0 while not on battery
    Value runtime;            // s the battery will last
    Value charge;             // %
    Value batteryVoltage;     // V DC
    Value batteryCurrent;     // A DC, signed as the device signs it
    Value batteryTemperature; // degrees Celsius

    // Power path
    OutputSource outputSource = OutputSource::Other;
    bool saysMains = false; // the device itself says that mains are there, whatever feeds the load
    Value inputLineBads;    // count of mains failures
    LineReading input;
    LineReading output;
    LineReading bypass;

    // Ratings and settings
    Value ratedInputVoltage;    // V
    Value ratedInputFrequency;  // Hz
    Value ratedOutputVoltage;   // V
    Value ratedOutputFrequency; // Hz
    Value ratedApparentPower;   // VA
    Value ratedPower;           // W
    Value lowBatteryTime;       // s of remaining time at which the battery counts as low
    std::optional<Beeper> beeper;
    Value lowTransferVoltage;  // V
    Value highTransferVoltage; // V

    // Alarms that are active now, and those that have no well-known meaning: in the device's words,
    // by the maker's identifier ("1.3.6.1.4.1.99999.1.5"), or how many it does not name at all.
    QSet<Alarm> alarms;
    QStringList alarmTexts;
    std::optional<int> alarmCount; // as the device counts them
    // s since the device itself saw the alarm begin; not in it where it does not say.
    QMap<Alarm, double> alarmAges;

    // Identity; plain, bounded, without control characters (see cleanDeviceText).
    QString model;
    QString manufacturer;
    QString name;
    QString attachedDevices;
    QString softwareVersion;
    QString agentVersion;
    QString location;

    // Remarks for the operator on how the values came about ("line to line", "split phase").
    QStringList notes;
};
Q_DECLARE_METATYPE(UpsReading)

#endif // UPSREADING_H
