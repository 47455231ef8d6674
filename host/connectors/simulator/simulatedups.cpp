#include "connectors/simulator/simulatedups.h"

#include <algorithm>
#include <cmath>

namespace {

// Supply and conversion
constexpr double kNominalVoltage = 230;  // V, each line
constexpr double kMainsVoltage = 231;    // V, mean of the mains
constexpr double kMainsWander = 1.2;     // V per unit of drift
constexpr double kInverterWander = 0.15; // V per unit of drift
constexpr double kNominalFrequency = 50; // Hz
constexpr double kFrequencyWander = 0.015;
constexpr double kLoadWander = 0.015; // of the load, per unit of drift
constexpr double kInputPowerFactor = 0.98;
constexpr double kRectifierEfficiency = 0.96;
constexpr double kInverterEfficiency = 0.92;
constexpr double kLowTransferVoltage = 176;
constexpr double kHighTransferVoltage = 276;
// Shares of the load on lines 1 to 3 of a three-phase unit, mean 1.
constexpr double kLineShares[] = {1.05, 0.98, 0.97};

// Battery: lead-acid, volts of one cell
constexpr double kCellEmpty = 1.97;
constexpr double kCellFull = 2.13;
constexpr double kCellBoost = 2.35;
constexpr double kCellFloat = 2.27;
constexpr double kCellKnee = 0.12;    // lost on top when the last charge goes
constexpr double kKneeCharge = 0.10;  // where that begins
constexpr double kFloatCharge = 0.90; // charger goes from boost to float
constexpr double kFullCharge = 0.9995;
constexpr double kRechargeBelow = 0.98;
constexpr double kLeastFloatPower = 0.08;  // of the charger's power
constexpr double kChargeAcceptance = 0.95; // stored, of what goes in
constexpr double kRoomTemperature = 24;    // degrees Celsius
constexpr double kHeating = 9;             // K above the room at rated power
constexpr double kWarmingTime = 90;        // s
constexpr double kLeastDemand = 0.02;      // for the estimate of the time left

// Times, s
constexpr double kTickSeconds = SimulatedUps::kTick / 1000.0;
constexpr int kTicksPerSecond = 1000 / SimulatedUps::kTick;
constexpr double kLowBatteryTime = 300;
constexpr double kImminentTime = 5;     // from here a planned shutdown counts as imminent
constexpr double kImminentRuntime = 30; // and from here one for want of energy
constexpr int kSelfTestTime = 10;

constexpr int kEarlierFailures = 3; // of the mains, in its life before

constexpr qint64 ticks(int seconds)
{
    return qint64{std::max(seconds, 0)} * kTicksPerSecond;
}

constexpr unsigned bit(CommandKind kind)
{
    return 1u << static_cast<unsigned>(kind);
}
constexpr unsigned kTests = bit(CommandKind::SelfTest) | bit(CommandKind::DischargeTest);
constexpr unsigned kShutdowns =
    bit(CommandKind::Shutdown) | bit(CommandKind::Standby) | bit(CommandKind::Restart);

} // namespace

SimulatedUps::SimulatedUps(const UpsProfile& profile, double charge, quint32 seed)
    : m_profile(profile)
    , m_engine(seed)
    , m_stored(std::clamp(charge, 0.0, 1.0) * profile.capacity)
    , m_recharge(charge < kRechargeBelow)
    , m_temperature(kRoomTemperature + 1)
    , m_lineBads(kEarlierFailures)
{}

void SimulatedUps::setMains(bool present)
{
    if (m_mains == present)
        return;
    m_mains = present;
    if (present)
        return;
    ++m_lineBads;
    endTest(TestResult::Aborted);
}

void SimulatedUps::setBypass(bool on)
{
    if (m_bypass == on)
        return;
    m_bypass = on;
    if (on)
        endTest(TestResult::Aborted);
}

void SimulatedUps::setDemand(double fraction)
{
    m_demand = std::max(fraction, 0.0);
}

void SimulatedUps::setPace(int pace)
{
    m_pace = std::max(pace, 1);
}

void SimulatedUps::advance(qint64 milliseconds)
{
    m_pending += std::max<qint64>(milliseconds, 0);
    for (; m_pending >= kTick; m_pending -= kTick)
        tick();
}

void SimulatedUps::tick()
{
    for (Line& line : m_lines)
        for (Drift* drift : {&line.mains, &line.inverter, &line.load})
            drift->step(m_engine);
    m_frequency.step(m_engine);

    countDown();
    moveEnergy();
    watchTest();
    warmUp();
    m_ticksOnBattery = onBattery() ? m_ticksOnBattery + pace() : 0;
}

void SimulatedUps::countDown()
{
    if (m_shutdownIn && --*m_shutdownIn <= 0)
        switchOff(true, m_offAfterShutdown);
    if (m_wakeIn && *m_wakeIn > 0)
        --*m_wakeIn;
    // By itself it comes back on mains only: a host that starts on the rest of a battery would
    // lose its power again.
    if (m_wakeIn && *m_wakeIn == 0 && m_mains)
        switchOn();
}

void SimulatedUps::moveEnergy()
{
    const double energy = batteryPower() * kTickSeconds * pace();
    m_stored += energy > 0 ? energy * kChargeAcceptance : energy;
    m_stored = std::clamp(m_stored, 0.0, m_profile.capacity);
    if (stateOfCharge() >= kFullCharge)
        m_recharge = false;
    else if (onBattery() || stateOfCharge() < kRechargeBelow)
        m_recharge = true;

    if (onBattery() && m_stored <= 0) {
        if (m_shutdownIn)
            switchOff(true, m_offAfterShutdown);
        else
            switchOff(false, 0);
    }
}

void SimulatedUps::watchTest()
{
    if (!m_test)
        return;
    ++m_testTicks;
    if (*m_test == CommandKind::DischargeTest) {
        if (batteryLow())
            endTest(TestResult::Passed);
    } else if (batteryLow()) {
        endTest(TestResult::Failed);
    } else if (m_testTicks >= ticks(kSelfTestTime)) {
        endTest(TestResult::Passed);
    }
}

void SimulatedUps::warmUp()
{
    const double share = std::abs(batteryPower()) / m_profile.ratedPower;
    const double target = kRoomTemperature + 1 + kHeating * share;
    m_temperature += (target - m_temperature) * kTickSeconds / kWarmingTime;
}

SimulatedUps::Reply SimulatedUps::carryOut(const UpsCommand& command)
{
    const QString reason = refusal(command);
    if (!reason.isEmpty())
        return {false, reason};

    switch (command.kind) {
    case CommandKind::SelfTest:
        beginTest(command.kind);
        return {true, tr("The battery is being tested for %1 s").arg(kSelfTestTime)};
    case CommandKind::DischargeTest:
        beginTest(command.kind);
        return {true, tr("The battery is being discharged until it is low")};
    case CommandKind::CancelTest:
        endTest(TestResult::Aborted);
        return {true, tr("The test has ended")};
    case CommandKind::Shutdown:
        planShutdown(command.shutdownDelay, std::nullopt);
        return {true, tr("The output goes off in %1 s").arg(command.shutdownDelay)};
    case CommandKind::Standby:
        planShutdown(command.shutdownDelay, command.standbyMinutes * 60);
        return {true, tr("The output goes off in %1 s, for %2 min")
                          .arg(command.shutdownDelay)
                          .arg(command.standbyMinutes)};
    case CommandKind::Restart:
        switchOff(true, ticks(command.restartDuration));
        return {true, tr("The output is off for %1 s").arg(command.restartDuration)};
    case CommandKind::WakeUp:
        switchOn();
        return {true, tr("The output is on")};
    }
    return {false, tr("This unit does not know the command")};
}

// The first rule that applies is the answer. Empty: accepted.
QString SimulatedUps::refusal(const UpsCommand& command) const
{
    const bool badDelay = command.shutdownDelay < 0;
    const bool badMinutes =
        command.standbyMinutes < 1 || command.standbyMinutes > kMaxStandbyMinutes;
    const bool badDuration = command.restartDuration < 1;
    const struct {
        unsigned kinds;
        bool applies;
        const char* reason;
    } rules[] = {
        {bit(CommandKind::Shutdown), badDelay, QT_TR_NOOP("The delay is out of range")},
        {bit(CommandKind::Standby), badDelay || badMinutes,
         QT_TR_NOOP("The time of standby is out of range")},
        {bit(CommandKind::Restart), badDuration, QT_TR_NOOP("The duration is out of range")},
        {bit(CommandKind::CancelTest), !m_test, QT_TR_NOOP("No test is running")},
        {bit(CommandKind::WakeUp), m_outputOn, QT_TR_NOOP("The output is on already")},
        {bit(CommandKind::WakeUp), !m_mains && batteryLow(),
         QT_TR_NOOP("There are no mains and the battery is low")},
        {kShutdowns, !m_outputOn, QT_TR_NOOP("The output is off already")},
        {kShutdowns, m_shutdownIn.has_value(), QT_TR_NOOP("A shutdown is under way already")},
        {kTests, !m_outputOn, QT_TR_NOOP("The output is off")},
        {kTests, m_test.has_value(), QT_TR_NOOP("A test is running already")},
        {kTests, onBattery(), QT_TR_NOOP("The battery carries the load")},
        {kTests, source() == OutputSource::Bypass, QT_TR_NOOP("The load is on bypass")},
        {kTests, m_shutdownIn.has_value(), QT_TR_NOOP("A shutdown is under way")},
        {kTests, overloaded(), QT_TR_NOOP("The output is overloaded")},
        {kTests, batteryLow(), QT_TR_NOOP("The battery is not charged enough")},
    };
    for (const auto& rule : rules)
        if ((rule.kinds & bit(command.kind)) && rule.applies)
            return tr(rule.reason);
    return {};
}

void SimulatedUps::beginTest(CommandKind kind)
{
    m_test = kind;
    m_testTicks = 0;
    m_testResult = TestResult::InProgress;
}

void SimulatedUps::endTest(TestResult result)
{
    if (!m_test)
        return;
    m_test.reset();
    m_testResult = result;
}

void SimulatedUps::planShutdown(int delaySeconds, std::optional<int> offSeconds)
{
    m_offAfterShutdown.reset();
    if (offSeconds)
        m_offAfterShutdown = ticks(*offSeconds);
    if (delaySeconds > 0)
        m_shutdownIn = ticks(delaySeconds);
    else
        switchOff(true, m_offAfterShutdown);
}

void SimulatedUps::switchOff(bool requested, std::optional<qint64> offTicks)
{
    endTest(TestResult::Aborted);
    m_outputOn = false;
    m_offByRequest = requested;
    m_wakeIn = offTicks;
    m_shutdownIn.reset();
}

void SimulatedUps::switchOn()
{
    m_outputOn = true;
    m_wakeIn.reset();
}

OutputSource SimulatedUps::source() const
{
    if (!m_outputOn)
        return OutputSource::None;
    if (m_test || !m_mains)
        return OutputSource::Battery;
    return m_bypass ? OutputSource::Bypass : OutputSource::Utility;
}

bool SimulatedUps::batteryLow() const
{
    return runtime() <= kLowBatteryTime;
}

bool SimulatedUps::shutdownImminent() const
{
    if (m_shutdownIn && *m_shutdownIn <= kImminentTime * kTicksPerSecond)
        return true;
    return onBattery() && runtime() <= kImminentRuntime;
}

bool SimulatedUps::overloaded() const
{
    for (int line = 0; line < m_profile.lines; ++line)
        if (lineLoad(line) > 1)
            return true;
    return false;
}

// From the mean load: an estimate that followed each wobble of the load would jump.
double SimulatedUps::runtime() const
{
    const double load = std::max(m_demand, kLeastDemand) * m_profile.ratedPower;
    return m_stored * kInverterEfficiency / load;
}

double SimulatedUps::lineLoad(int line) const
{
    if (!m_outputOn)
        return 0;
    const double share = m_profile.lines == 1 ? 1 : kLineShares[line];
    return m_demand * share * (1 + kLoadWander * m_lines[line].load.value());
}

double SimulatedUps::mainsVoltage(int line) const
{
    return m_mains ? kMainsVoltage + kMainsWander * m_lines[line].mains.value() : 0;
}

double SimulatedUps::outputPower() const
{
    double sum = 0;
    for (int line = 0; line < m_profile.lines; ++line)
        sum += lineLoad(line);
    return sum * m_profile.ratedPower / m_profile.lines;
}

double SimulatedUps::batteryPower() const
{
    if (onBattery())
        return m_stored > 0 ? -outputPower() / kInverterEfficiency : 0;
    if (!charging())
        return 0;
    const double taper = (1 - stateOfCharge()) / (1 - kFloatCharge);
    return m_profile.chargerPower * std::clamp(taper, kLeastFloatPower, 1.0);
}

double SimulatedUps::batteryVoltage() const
{
    const double charge = stateOfCharge();
    if (charging()) {
        const double boost = kCellFull + (kCellBoost - kCellFull) * charge / kFloatCharge;
        return m_profile.cells * (charge < kFloatCharge ? boost : kCellFloat);
    }
    const double knee = std::max(0.0, 1 - charge / kKneeCharge);
    const double open =
        m_profile.cells * (kCellEmpty + (kCellFull - kCellEmpty) * charge - kCellKnee * knee);
    // The terminal voltage U at which (open - U) / resistance * U is the power drawn.
    const double drawn = std::max(0.0, -batteryPower());
    const double root = std::max(0.0, open * open - 4 * m_profile.resistance * drawn);
    return (open + std::sqrt(root)) / 2;
}

BatteryState SimulatedUps::batteryState() const
{
    if (charging())
        return stateOfCharge() < kFloatCharge ? BatteryState::BoostCharge
                                              : BatteryState::FloatCharge;
    if (m_stored <= 0)
        return BatteryState::Depleted;
    if (!m_mains && batteryLow())
        return BatteryState::Low;
    if (m_test)
        return BatteryState::SelfTest;
    return onBattery() ? BatteryState::Discharge : BatteryState::Normal;
}

UpsReading SimulatedUps::reading() const
{
    UpsReading reading;
    readBattery(reading);
    readPowerPath(reading);
    readAlarms(reading);
    readPlate(reading);
    return reading;
}

void SimulatedUps::readBattery(UpsReading& reading) const
{
    reading.batteryState = batteryState();
    reading.secondsOnBattery = std::floor(m_ticksOnBattery * kTickSeconds);
    reading.runtime = runtime();
    reading.charge = stateOfCharge() * 100;
    reading.batteryVoltage = batteryVoltage();
    reading.batteryCurrent = batteryPower() / batteryVoltage();
    reading.batteryTemperature = m_temperature;
}

double SimulatedUps::mainsFrequency() const
{
    return m_mains ? kNominalFrequency + kFrequencyWander * m_frequency.value() : 0;
}

double SimulatedUps::inputPower() const
{
    double rectified = std::max(0.0, batteryPower());
    if (source() == OutputSource::Utility)
        rectified += outputPower() / kInverterEfficiency;
    return m_mains ? rectified / kRectifierEfficiency + m_profile.idlePower : 0;
}

void SimulatedUps::readPowerPath(UpsReading& reading) const
{
    reading.outputSource = source();
    reading.inputLineBads = m_lineBads;
    for (LineReading* group : {&reading.input, &reading.output, &reading.bypass})
        group->lines = m_profile.lines;
    for (int line = 0; line < m_profile.lines; ++line) {
        readInput(line, reading.input);
        readOutput(line, reading.output);
        readBypass(line, reading.output, reading.bypass);
    }
}

void SimulatedUps::readInput(int line, LineReading& input) const
{
    const double mains = mainsVoltage(line);
    const double power = inputPower() / m_profile.lines;
    input.voltage[line] = mains;
    input.frequency[line] = mainsFrequency();
    input.power[line] = power;
    input.current[line] = m_mains ? power / (mains * kInputPowerFactor) : 0;
}

void SimulatedUps::readOutput(int line, LineReading& output) const
{
    const bool bypassed = source() == OutputSource::Bypass;
    const double inverter = kNominalVoltage + kInverterWander * m_lines[line].inverter.value();
    const double voltage = !m_outputOn ? 0 : bypassed ? mainsVoltage(line) : inverter;
    // The inverter follows the mains while there are any.
    const double frequency = m_mains ? mainsFrequency() : kNominalFrequency;
    const double power = lineLoad(line) * m_profile.ratedPower / m_profile.lines;
    const double powerFactor = m_profile.ratedPower / m_profile.ratedApparentPower;
    output.voltage[line] = voltage;
    output.frequency[line] = m_outputOn ? frequency : 0;
    output.power[line] = power;
    output.current[line] = m_outputOn ? power / (voltage * powerFactor) : 0;
    output.load[line] = lineLoad(line) * 100;
}

void SimulatedUps::readBypass(int line, const LineReading& output, LineReading& bypass) const
{
    const bool carries = source() == OutputSource::Bypass;
    bypass.voltage[line] = mainsVoltage(line);
    bypass.frequency[line] = mainsFrequency();
    bypass.power[line] = carries ? output.power[line] : Value(0);
    bypass.current[line] = carries ? output.current[line] : Value(0);
}

void SimulatedUps::readAlarms(UpsReading& reading) const
{
    // A test is no power failure: it raises its own alarm and not the battery's.
    const bool carries = onBattery() && !m_test;
    const struct {
        Alarm alarm;
        bool active;
    } rows[] = {
        {Alarm::OnBattery, carries},
        {Alarm::LowBattery, carries && batteryLow()},
        {Alarm::DepletedBattery, !m_mains && m_stored <= 0},
        {Alarm::InputBad, !m_mains},
        {Alarm::BypassBad, !m_mains},
        {Alarm::OutputOverload, overloaded()},
        {Alarm::OnBypass, source() == OutputSource::Bypass},
        {Alarm::OutputOffAsRequested, !m_outputOn && m_offByRequest},
        {Alarm::OutputOff, !m_outputOn},
        {Alarm::AwaitingPower, !m_outputOn && !m_mains && m_wakeIn && *m_wakeIn == 0},
        {Alarm::ShutdownPending, m_shutdownIn.has_value()},
        {Alarm::ShutdownImminent, shutdownImminent()},
        {Alarm::TestInProgress, m_test.has_value()},
        {Alarm::DiagnosticTestFailed, m_testResult == TestResult::Failed},
    };
    for (const auto& row : rows)
        if (row.active)
            reading.alarms.insert(row.alarm);
    reading.alarmCount = reading.alarms.size();
}

void SimulatedUps::readPlate(UpsReading& reading) const
{
    reading.ratedInputVoltage = kNominalVoltage;
    reading.ratedInputFrequency = kNominalFrequency;
    reading.ratedOutputVoltage = kNominalVoltage;
    reading.ratedOutputFrequency = kNominalFrequency;
    reading.ratedApparentPower = m_profile.ratedApparentPower;
    reading.ratedPower = m_profile.ratedPower;
    reading.lowBatteryTime = kLowBatteryTime;
    reading.beeper = Beeper::Enabled;
    reading.lowTransferVoltage = kLowTransferVoltage;
    reading.highTransferVoltage = kHighTransferVoltage;

    reading.model = QLatin1String(m_profile.model);
    reading.manufacturer = QStringLiteral("upsdesk simulator");
    reading.name = QLatin1String(m_profile.name);
    reading.attachedDevices = QStringLiteral("Server rack, switches");
    reading.softwareVersion = QStringLiteral("1.4.2");
    reading.agentVersion = QStringLiteral("2.0");
    reading.location = QStringLiteral("Simulated plant room");
}
