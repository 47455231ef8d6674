#ifndef SIMULATEDUPS_H
#define SIMULATEDUPS_H

// A double-conversion UPS with its battery, as a model of its energy and its switches.
// May touch: readings and commands. It has no clock and no event loop: time is what advance() says.

#include "connectors/simulator/drift.h"
#include "connectors/simulator/upsprofile.h"
#include "connectors/upscommand.h"
#include "reading/upsreading.h"

#include <QCoreApplication>

#include <array>
#include <optional>

enum class TestResult { None, InProgress, Passed, Failed, Aborted };

class SimulatedUps
{
    Q_DECLARE_TR_FUNCTIONS(SimulatedUps)

public:
    static constexpr int kTick = 100; // ms; the model moves in whole ticks

    struct Reply {
        bool accepted = false;
        QString message; // the reason, or what happens now
    };

    // charge: 0 to 1. The same seed and the same calls give the same readings.
    SimulatedUps(const UpsProfile& profile, double charge, quint32 seed);

    // The world around it. The bypass line hangs on the same mains as the input.
    void setMains(bool present);
    void setBypass(bool on);         // output by the bypass while there are mains
    void setDemand(double fraction); // mean load, of the rating
    // Seconds of the battery's life in one second. What somebody has ordered (a test, a shutdown
    // and what follows it) takes its own time nevertheless.
    void setPace(int pace);

    // Negative times count as 0; what is left of a tick is kept for the next call.
    void advance(qint64 milliseconds);

    Reply carryOut(const UpsCommand& command);

    // Every field that such a unit measures or has configured; battery current is negative while
    // discharging.
    UpsReading reading() const;

    TestResult testResult() const { return m_testResult; }

private:
    struct Line {
        Drift mains;
        Drift inverter;
        Drift load;
    };

    void tick();
    void countDown();
    void moveEnergy();
    void watchTest();
    void warmUp();

    int pace() const { return m_test || m_shutdownIn || m_wakeIn ? 1 : m_pace; }
    QString refusal(const UpsCommand& command) const;
    void beginTest(CommandKind kind);
    void endTest(TestResult result);
    void planShutdown(int delaySeconds, std::optional<int> offSeconds);
    void switchOff(bool requested, std::optional<qint64> offTicks);
    void switchOn();

    OutputSource source() const;
    bool onBattery() const { return source() == OutputSource::Battery; }
    bool charging() const { return m_mains && m_recharge && !m_test; }
    bool batteryLow() const;
    bool shutdownImminent() const;
    bool overloaded() const;
    double stateOfCharge() const { return m_stored / m_profile.capacity; }
    double runtime() const;
    double lineLoad(int line) const;     // of the line's rating, as drawn from the output
    double mainsVoltage(int line) const; // V
    double mainsFrequency() const;
    double inputPower() const;   // W
    double outputPower() const;  // W, all lines
    double batteryPower() const; // W at the terminals, negative while discharging
    double batteryVoltage() const;
    BatteryState batteryState() const;

    void readBattery(UpsReading& reading) const;
    void readPowerPath(UpsReading& reading) const;
    void readInput(int line, LineReading& input) const;
    void readOutput(int line, LineReading& output) const;
    void readBypass(int line, const LineReading& output, LineReading& bypass) const;
    void readAlarms(UpsReading& reading) const;
    void readPlate(UpsReading& reading) const;

    const UpsProfile& m_profile;
    std::mt19937 m_engine;
    std::array<Line, kPhases> m_lines;
    Drift m_frequency;
    qint64 m_pending = 0; // ms not yet a tick

    bool m_mains = true;
    bool m_bypass = false;
    double m_demand = 0.5;
    int m_pace = 1;

    double m_stored; // J
    bool m_recharge; // until the battery is full again
    double m_temperature;
    qint64 m_ticksOnBattery = 0;
    int m_lineBads;

    bool m_outputOn = true;
    bool m_offByRequest = false;
    std::optional<qint64> m_shutdownIn;       // ticks; a countdown is under way
    std::optional<qint64> m_offAfterShutdown; // ticks that countdown's end is followed by
    std::optional<qint64> m_wakeIn;           // ticks; 0: due, waits for the mains

    std::optional<CommandKind> m_test;
    qint64 m_testTicks = 0;
    TestResult m_testResult = TestResult::None;
};

#endif // SIMULATEDUPS_H
