// The built-in simulator: situations by name, numbers that agree with each other, commands. The
// model and the player run on virtual time; the connector gets a clock that the test turns.

#include "connectors/simulator/simulatorconnector.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using Alarms = QSet<Alarm>;
Q_DECLARE_METATYPE(Alarms)
Q_DECLARE_METATYPE(BatteryState)
Q_DECLARE_METATYPE(OutputSource)
Q_DECLARE_METATYPE(CommandKind)

namespace
{

constexpr int kSecond = 1000;
constexpr quint32 kSeed = 7;

ScenarioPlayer play(const QString& name, quint32 seed = kSeed)
{
    return ScenarioPlayer(findScenario(name).value(), seed);
}

UpsReading after(ScenarioPlayer& player, int seconds)
{
    player.advance(qint64{seconds} * kSecond);
    return player.ups().reading();
}

UpsCommand commandOf(CommandKind kind, quint64 id = 0)
{
    UpsCommand command;
    command.id = id;
    command.kind = kind;
    command.standbyMinutes = 2;
    return command;
}

bool near(double value, double expected, double relative)
{
    return std::abs(value - expected) <= relative * std::max(1.0, std::abs(expected));
}

// Everything that a unit of this kind measures; empty values are left out, so count them too.
std::vector<double> measuredValues(const UpsReading& reading)
{
    std::vector<double> values;
    const auto add = [&values](const Value& value) {
        if (value)
            values.push_back(*value);
    };
    for (const Value& value :
         {reading.secondsOnBattery, reading.runtime, reading.charge, reading.batteryVoltage,
          reading.batteryCurrent, reading.batteryTemperature, reading.inputLineBads})
        add(value);
    for (const LineReading* group : {&reading.input, &reading.output, &reading.bypass})
        for (const PhaseValues* row :
             {&group->voltage, &group->current, &group->frequency, &group->power, &group->load})
            for (const Value& value : *row)
                add(value);
    return values;
}

class ProbeConnector : public SimulatorConnector
{
public:
    ProbeConnector(const DeviceSettings& settings, Clock clock)
        : SimulatorConnector(settings, std::move(clock))
    {
    }
};

DeviceSettings settingsOf(const QString& scenario)
{
    DeviceSettings settings;
    settings.address.scenario = scenario;
    settings.seed = kSeed;
    return settings;
}

// One connector, its clock and what it has said.
struct Bench {
    explicit Bench(const QString& scenario)
        : connector(settingsOf(scenario), [this] { return now; })
    {
    }
    PollResult poll()
    {
        connector.poll();
        return polled.wait() ? polled.last().first().value<PollResult>() : PollResult{};
    }

    qint64 now = 1234567;
    ProbeConnector connector;
    QSignalSpy polled{&connector, &Connector::polled};
    QSignalSpy finished{&connector, &Connector::commandFinished};
};

} // namespace

class TestSimulator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void beginsInItsSituation_data();
    void beginsInItsSituation();
    void namesAreSystematic();
    void numbersAgree_data();
    void numbersAgree();
    void sameSeedSameReadings_data();
    void sameSeedSameReadings();
    void dayPassesThroughEverySituation();
    void outageRunsDownAsForetold();
    void emptyBatteryAwaitsTheMains();
    void rechargeEndsAtRest();

    void refusals_data();
    void refusals();
    void selfTestLastsTenSeconds();
    void dischargeTestEndsAtLow();
    void testEndsEarly_data();
    void testEndsEarly();
    void failedSelfTestIsRemembered();
    void shutdownCountsDownAndStaysOff();
    void standbyWakesByItself();
    void wakeUpWaitsForTheMains();
    void restartSwitchesOffAndOn();

    void pollAnswersOnce();
    void sendAnswersOnceById();
    void clockDrivesTheScenario();
    void unknownScenarioIsRefused_data();
    void unknownScenarioIsRefused();
    void silentDeviceTakesNoCommand();
    void deletedWhileAnswersAreDue();
};

void TestSimulator::initTestCase()
{
    qRegisterMetaType<PollResult>();
    qRegisterMetaType<CommandResult>();
}

void TestSimulator::beginsInItsSituation_data()
{
    QTest::addColumn<QString>("situation");
    QTest::addColumn<OutputSource>("source");
    QTest::addColumn<BatteryState>("battery");
    QTest::addColumn<Alarms>("alarms");

    const Alarms outage{Alarm::OnBattery, Alarm::InputBad, Alarm::BypassBad};
    QTest::newRow("mains") << "mains" << OutputSource::Utility << BatteryState::Normal << Alarms{};
    QTest::newRow("outage") << "outage" << OutputSource::Battery << BatteryState::Discharge
                            << outage;
    QTest::newRow("low battery") << "low-battery" << OutputSource::Battery << BatteryState::Low
                                 << outage + Alarms{Alarm::LowBattery};
    QTest::newRow("return") << "return" << OutputSource::Utility << BatteryState::BoostCharge
                            << Alarms{};
    QTest::newRow("bypass") << "bypass" << OutputSource::Bypass << BatteryState::Normal
                            << Alarms{Alarm::OnBypass};
    QTest::newRow("overload") << "overload" << OutputSource::Utility << BatteryState::Normal
                              << Alarms{Alarm::OutputOverload};
    QTest::newRow("test") << "test" << OutputSource::Battery << BatteryState::SelfTest
                          << Alarms{Alarm::TestInProgress};
    QTest::newRow("silent: answers first")
        << "silent" << OutputSource::Utility << BatteryState::Normal << Alarms{};
    QTest::newRow("flapping: answers first")
        << "flapping" << OutputSource::Utility << BatteryState::Normal << Alarms{};
}

void TestSimulator::beginsInItsSituation()
{
    QFETCH(QString, situation);
    for (const QString& unit : {QString(), QStringLiteral("three-phase-")}) {
        const ScenarioPlayer player = play(unit + situation);
        const UpsReading reading = player.ups().reading();
        QCOMPARE(player.link(), LinkState::Live);
        QTEST(reading.outputSource, "source");
        QTEST(reading.batteryState, "battery");
        QTEST(reading.alarms, "alarms");
        QCOMPARE(reading.alarmCount.value(), reading.alarms.size());
        const int lines = unit.isEmpty() ? 1 : 3;
        QCOMPARE(reading.input.lines.value(), lines);
        QCOMPARE(reading.output.lines.value(), lines);
        QCOMPARE(reading.bypass.lines.value(), lines);

        const bool mains = !reading.alarms.contains(Alarm::InputBad);
        const bool onBattery = reading.outputSource == OutputSource::Battery;
        QCOMPARE(*reading.input.voltage[lines - 1] > 200, mains);
        QCOMPARE(*reading.secondsOnBattery > 0, onBattery);
        QCOMPARE(*reading.batteryCurrent < 0, onBattery);
        QCOMPARE(*reading.output.load[lines - 1] > 100,
                 reading.alarms.contains(Alarm::OutputOverload));
    }
}

void TestSimulator::namesAreSystematic()
{
    QSet<QString> names;
    for (const ScenarioInfo& info : simulatorScenarios()) {
        QVERIFY2(!names.contains(info.name), qPrintable(info.name));
        names.insert(info.name);
        QVERIFY(!info.description.isEmpty() && !info.description.contains('\n'));
        const auto scenario = findScenario(info.name);
        QVERIFY(scenario);
        QVERIFY(size_t(scenario->repeatFrom) < scenario->steps.size());
        for (const ScenarioStep& step : scenario->steps)
            QVERIFY(step.seconds > 0 && step.load > 0);
    }
    QVERIFY(names.contains("") && names.contains("three-phase"));
    for (const QString& name : qAsConst(names))
        if (!name.isEmpty() && !name.startsWith("three-phase"))
            QVERIFY2(names.contains("three-phase-" + name), qPrintable(name));
    QVERIFY(findScenario("OUTAGE") && !findScenario("outages") && !findScenario(" "));
}

void TestSimulator::numbersAgree_data()
{
    QTest::addColumn<QString>("name");
    for (const ScenarioInfo& info : simulatorScenarios())
        QTest::newRow(info.name.isEmpty() ? "the day" : qPrintable(info.name)) << info.name;
}

// Through two rounds of each scenario, second by second.
void TestSimulator::numbersAgree()
{
    QFETCH(QString, name);
    ScenarioPlayer player = play(name);
    const UpsProfile& plate = *findScenario(name)->profile;
    const int measured = 7 + plate.lines * (5 + 4 + 4);
    UpsReading before = player.ups().reading();

    for (int second = 0; second < 900; ++second) {
        const UpsReading now = after(player, 1);
        const std::vector<double> values = measuredValues(now);
        QCOMPARE(int(values.size()), measured);
        for (double value : values)
            QVERIFY(std::isfinite(value));

        // Power of each line, and its share of the rating
        double input = 0;
        double output = 0;
        for (int line = 0; line < plate.lines; ++line) {
            const double power = *now.output.power[line];
            QVERIFY(near(*now.output.voltage[line] * *now.output.current[line] * 0.9, power, 1e-9));
            QVERIFY(
                near(*now.output.load[line], power / (*now.ratedPower / plate.lines) * 100, 1e-9));
            const double drawn = *now.input.voltage[line] * *now.input.current[line];
            QVERIFY(*now.input.power[line] <= drawn && drawn <= *now.input.power[line] * 1.05);
            QVERIFY(*now.output.power[line] >= 0 && *now.output.load[line] < 160);
            for (const LineReading* group : {&now.input, &now.output, &now.bypass}) {
                QVERIFY(*group->voltage[line] == 0 || near(*group->voltage[line], 230, 0.03));
                QVERIFY(*group->frequency[line] == 0 || near(*group->frequency[line], 50, 0.002));
                QCOMPARE(*group->voltage[line] == 0, *group->frequency[line] == 0);
            }
            input += *now.input.power[line];
            output += power;
        }

        // Energy through the unit
        const double battery = *now.batteryVoltage * *now.batteryCurrent;
        switch (now.outputSource) {
        case OutputSource::Utility:
            QVERIFY(battery >= 0);
            QVERIFY(input > output + battery && input < (output + battery) * 1.25);
            break;
        case OutputSource::Battery:
            QVERIFY2(near(-battery, output / 0.92, 1e-6), qPrintable(QString::number(battery)));
            QVERIFY(near(*now.runtime, *now.charge / 100 * plate.capacity / -battery, 0.1));
            break;
        case OutputSource::Bypass:
            QCOMPARE(*now.bypass.power[0], *now.output.power[0]);
            QCOMPARE(*now.output.voltage[0], *now.bypass.voltage[0]);
            QVERIFY(input >= battery);
            break;
        default:
            QCOMPARE(output, 0.0);
        }

        // Battery
        const double cell = *now.batteryVoltage / plate.cells;
        QVERIFY2(cell > 1.65 && cell < 2.4, qPrintable(QString::number(cell)));
        QVERIFY(*now.charge >= 0 && *now.charge <= 100);
        QVERIFY(*now.batteryTemperature > 20 && *now.batteryTemperature < 45);
        const bool sameSource =
            now.outputSource == before.outputSource && now.batteryState == before.batteryState;
        if (sameSource && now.batteryState == BatteryState::Discharge) {
            QVERIFY(*now.charge < *before.charge);
            QVERIFY(*now.runtime < *before.runtime);
            QVERIFY(*now.secondsOnBattery == *before.secondsOnBattery + 1);
        } else if (sameSource && *now.batteryCurrent > 0) {
            QVERIFY(*now.charge >= *before.charge);
        }
        before = now;
    }
}

void TestSimulator::sameSeedSameReadings_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("single phase") << "";
    QTest::newRow("three-phase") << "three-phase";
}

void TestSimulator::sameSeedSameReadings()
{
    QFETCH(QString, name);
    ScenarioPlayer slow = play(name);
    ScenarioPlayer fast = play(name);
    ScenarioPlayer other = play(name, kSeed + 1);
    bool differs = false;
    for (int round = 0; round < 120; ++round) {
        slow.advance(5 * kSecond);
        other.advance(5 * kSecond);
        for (int part : {0, 37, 1963, 250, 1250, 1500, -900})
            fast.advance(part);
        QCOMPARE(measuredValues(fast.ups().reading()), measuredValues(slow.ups().reading()));
        QCOMPARE(fast.ups().reading().alarms, slow.ups().reading().alarms);
        differs |= measuredValues(other.ups().reading()) != measuredValues(slow.ups().reading());
    }
    QVERIFY(differs);
}

void TestSimulator::dayPassesThroughEverySituation()
{
    const std::vector<ScenarioStep> steps = findScenario("")->steps;
    int length = 0;
    for (const ScenarioStep& step : steps)
        length += step.seconds;
    QVERIFY(length >= 6 * 60 && length <= 8 * 60);

    ScenarioPlayer player = play("");
    for (int day = 0; day < 3; ++day) {
        const double failures = *player.ups().reading().inputLineBads;
        QSet<int> sources;
        QSet<int> states;
        Alarms alarms;
        for (int second = 0; second < length; ++second) {
            const UpsReading reading = after(player, 1);
            sources.insert(int(reading.outputSource));
            states.insert(int(reading.batteryState));
            alarms += reading.alarms;
        }
        QCOMPARE(sources, QSet<int>({3, 4, 5}));
        QCOMPARE(states, QSet<int>({3, 5, 6, 7, 8, 9}));
        QCOMPARE(alarms,
                 Alarms({Alarm::OnBattery, Alarm::InputBad, Alarm::BypassBad, Alarm::LowBattery,
                         Alarm::OnBypass, Alarm::OutputOverload, Alarm::TestInProgress}));
        QCOMPARE(*player.ups().reading().inputLineBads, failures + 1);
        QVERIFY(*player.ups().reading().charge > 95);
    }
}

void TestSimulator::outageRunsDownAsForetold()
{
    ScenarioPlayer player = play("low-battery");
    const int foretold = int(*player.ups().reading().runtime);
    QVERIFY(foretold > 10 && foretold <= 60);
    UpsReading reading = after(player, foretold - 4);
    QCOMPARE(reading.outputSource, OutputSource::Battery);
    QVERIFY(reading.alarms.contains(Alarm::ShutdownImminent));
    QCOMPARE(after(player, 8).outputSource, OutputSource::None);
}

void TestSimulator::emptyBatteryAwaitsTheMains()
{
    ScenarioPlayer player = play("low-battery");
    UpsReading reading = after(player, 65);
    QCOMPARE(reading.batteryState, BatteryState::Depleted);
    QCOMPARE(reading.alarms, Alarms({Alarm::DepletedBattery, Alarm::InputBad, Alarm::BypassBad,
                                     Alarm::OutputOff, Alarm::AwaitingPower}));
    QCOMPARE(*reading.output.voltage[0], 0.0);
    QCOMPARE(*reading.secondsOnBattery, 0.0);
    reading = after(player, 10);
    QCOMPARE(reading.outputSource, OutputSource::Utility);
    QCOMPARE(reading.batteryState, BatteryState::BoostCharge);
    QVERIFY(reading.alarms.isEmpty());
}

void TestSimulator::rechargeEndsAtRest()
{
    ScenarioPlayer player = play("return");
    QVector<BatteryState> order;
    for (int second = 0; second < 140; ++second) {
        const BatteryState state = after(player, 1).batteryState;
        if (order.isEmpty() || order.last() != state)
            order << state;
    }
    QCOMPARE(order, QVector<BatteryState>({BatteryState::BoostCharge, BatteryState::FloatCharge,
                                           BatteryState::Normal}));
    QCOMPARE(*player.ups().reading().batteryCurrent, 0.0);
}

void TestSimulator::refusals_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("first"); // a command given before, -1: none
    QTest::addColumn<CommandKind>("kind");
    QTest::addColumn<QString>("reason");

    const int none = -1;
    const int off = int(CommandKind::Restart);
    const int test = int(CommandKind::SelfTest);
    const int pending = int(CommandKind::Shutdown);
    QTest::newRow("cancel without a test")
        << "mains" << none << CommandKind::CancelTest << "No test is running";
    QTest::newRow("wake up while on")
        << "mains" << none << CommandKind::WakeUp << "The output is on already";
    QTest::newRow("test while testing")
        << "mains" << test << CommandKind::DischargeTest << "A test is running already";
    QTest::newRow("test on battery")
        << "outage" << none << CommandKind::SelfTest << "The battery carries the load";
    QTest::newRow("test on bypass")
        << "bypass" << none << CommandKind::SelfTest << "The load is on bypass";
    QTest::newRow("test while overloaded")
        << "overload" << none << CommandKind::SelfTest << "The output is overloaded";
    QTest::newRow("test while off")
        << "mains" << off << CommandKind::SelfTest << "The output is off";
    QTest::newRow("test before a shutdown")
        << "mains" << pending << CommandKind::SelfTest << "A shutdown is under way";
    QTest::newRow("shutdown while off")
        << "mains" << off << CommandKind::Shutdown << "The output is off already";
    QTest::newRow("restart before a shutdown")
        << "mains" << pending << CommandKind::Restart << "A shutdown is under way already";
}

void TestSimulator::refusals()
{
    QFETCH(QString, name);
    QFETCH(int, first);
    QFETCH(CommandKind, kind);
    ScenarioPlayer player = play(name);
    if (first >= 0)
        QVERIFY(player.ups().carryOut(commandOf(CommandKind(first))).accepted);
    const UpsReading before = player.ups().reading();
    const SimulatedUps::Reply reply = player.ups().carryOut(commandOf(kind));
    QVERIFY(!reply.accepted);
    QTEST(reply.message, "reason");
    QCOMPARE(player.ups().reading().alarms, before.alarms);

    UpsCommand odd = commandOf(CommandKind::Standby);
    for (int minutes : {0, -1, kMaxStandbyMinutes + 1}) {
        odd.standbyMinutes = minutes;
        QVERIFY(!player.ups().carryOut(odd).accepted);
    }
}

void TestSimulator::selfTestLastsTenSeconds()
{
    ScenarioPlayer player = play("mains");
    QVERIFY(player.ups().carryOut(commandOf(CommandKind::SelfTest)).accepted);
    QCOMPARE(player.ups().testResult(), TestResult::InProgress);
    UpsReading reading = after(player, 9);
    QCOMPARE(reading.outputSource, OutputSource::Battery);
    QCOMPARE(reading.batteryState, BatteryState::SelfTest);
    QVERIFY(*reading.input.voltage[0] > 200);
    QVERIFY(*reading.charge < 97);
    reading = after(player, 2);
    QCOMPARE(reading.outputSource, OutputSource::Utility);
    QVERIFY(reading.alarms.isEmpty());
    QCOMPARE(player.ups().testResult(), TestResult::Passed);
}

void TestSimulator::dischargeTestEndsAtLow()
{
    SimulatedUps ups(kSinglePhaseUps, 1.0, kSeed);
    QVERIFY(ups.carryOut(commandOf(CommandKind::DischargeTest)).accepted);
    int ticks = 0;
    for (; ups.testResult() == TestResult::InProgress && ticks < 4000; ++ticks)
        ups.advance(SimulatedUps::kTick);
    const UpsReading reading = ups.reading();
    QVERIFY(ticks > 600);
    QCOMPARE(ups.testResult(), TestResult::Passed);
    QCOMPARE(reading.outputSource, OutputSource::Utility);
    QCOMPARE(reading.batteryState, BatteryState::BoostCharge);
    QVERIFY(near(*reading.runtime, *reading.lowBatteryTime, 0.01));
    QVERIFY(reading.alarms.isEmpty());
    QCOMPARE(ups.carryOut(commandOf(CommandKind::CancelTest)).message,
             QStringLiteral("No test is running"));
}

void TestSimulator::testEndsEarly_data()
{
    QTest::addColumn<int>("cause"); // 0 cancel, 1 mains fail, 2 bypass, 3 shutdown
    QTest::addColumn<OutputSource>("source");
    QTest::newRow("cancelled") << 0 << OutputSource::Utility;
    QTest::newRow("mains fail") << 1 << OutputSource::Battery;
    QTest::newRow("transfer to bypass") << 2 << OutputSource::Bypass;
    QTest::newRow("restart") << 3 << OutputSource::None;
}

void TestSimulator::testEndsEarly()
{
    QFETCH(int, cause);
    SimulatedUps ups(kSinglePhaseUps, 1.0, kSeed);
    QVERIFY(ups.carryOut(commandOf(CommandKind::DischargeTest)).accepted);
    ups.advance(5 * kSecond);
    if (cause == 0)
        QVERIFY(ups.carryOut(commandOf(CommandKind::CancelTest)).accepted);
    else if (cause == 1)
        ups.setMains(false);
    else if (cause == 2)
        ups.setBypass(true);
    else
        QVERIFY(ups.carryOut(commandOf(CommandKind::Restart)).accepted);
    const UpsReading reading = ups.reading();
    QTEST(reading.outputSource, "source");
    QVERIFY(!reading.alarms.contains(Alarm::TestInProgress));
    QCOMPARE(reading.alarms.contains(Alarm::OnBattery), cause == 1);
    QCOMPARE(ups.testResult(), TestResult::Aborted);
}

void TestSimulator::failedSelfTestIsRemembered()
{
    SimulatedUps ups(kSinglePhaseUps, 0.45, kSeed);
    ups.setDemand(0.5);
    QVERIFY(ups.carryOut(commandOf(CommandKind::SelfTest)).accepted);
    ups.setDemand(0.9); // more than this charge can carry for a minute
    ups.advance(2 * kSecond);
    QCOMPARE(ups.testResult(), TestResult::Failed);
    QCOMPARE(ups.reading().outputSource, OutputSource::Utility);
    QVERIFY(ups.reading().alarms.contains(Alarm::DiagnosticTestFailed));

    QCOMPARE(ups.carryOut(commandOf(CommandKind::SelfTest)).message,
             QStringLiteral("The battery is not charged enough"));
    ups.setDemand(0.3);
    QVERIFY(ups.carryOut(commandOf(CommandKind::SelfTest)).accepted);
    ups.advance(11 * kSecond);
    QVERIFY(ups.reading().alarms.isEmpty());
}

void TestSimulator::shutdownCountsDownAndStaysOff()
{
    ScenarioPlayer player = play("mains");
    QVERIFY(player.ups().carryOut(commandOf(CommandKind::Shutdown)).accepted);
    QCOMPARE(after(player, 14).alarms, Alarms{Alarm::ShutdownPending});
    QCOMPARE(after(player, 4).alarms, Alarms({Alarm::ShutdownPending, Alarm::ShutdownImminent}));
    const Alarms off{Alarm::OutputOffAsRequested, Alarm::OutputOff};
    QCOMPARE(after(player, 3).alarms, off);
    const UpsReading reading = after(player, 3600);
    QCOMPARE(reading.alarms, off);
    QCOMPARE(reading.outputSource, OutputSource::None);
    QCOMPARE(*reading.output.power[0], 0.0);
    QVERIFY(*reading.input.voltage[0] > 200);

    QVERIFY(player.ups().carryOut(commandOf(CommandKind::WakeUp)).accepted);
    QCOMPARE(player.ups().reading().outputSource, OutputSource::Utility);
    QVERIFY(player.ups().reading().alarms.isEmpty());
}

void TestSimulator::standbyWakesByItself()
{
    ScenarioPlayer player = play("mains");
    UpsCommand command = commandOf(CommandKind::Standby);
    command.shutdownDelay = 0;
    QVERIFY(player.ups().carryOut(command).accepted);
    QCOMPARE(player.ups().reading().outputSource, OutputSource::None);
    QCOMPARE(after(player, 2 * 60 - 1).outputSource, OutputSource::None);
    QCOMPARE(after(player, 2).outputSource, OutputSource::Utility);
}

void TestSimulator::wakeUpWaitsForTheMains()
{
    SimulatedUps ups(kSinglePhaseUps, 1.0, kSeed);
    QVERIFY(ups.carryOut(commandOf(CommandKind::Restart)).accepted);
    ups.setMains(false);
    ups.advance(100 * kSecond);
    QCOMPARE(ups.reading().outputSource, OutputSource::None);
    QVERIFY(ups.reading().alarms.contains(Alarm::AwaitingPower));
    QCOMPARE(*ups.reading().charge, 100.0);

    SimulatedUps told = ups;
    QVERIFY(told.carryOut(commandOf(CommandKind::WakeUp)).accepted);
    QCOMPARE(told.reading().outputSource, OutputSource::Battery);

    ups.setMains(true);
    ups.advance(kSecond);
    QCOMPARE(ups.reading().outputSource, OutputSource::Utility);

    SimulatedUps empty(kSinglePhaseUps, 0.02, kSeed);
    empty.setMains(false);
    empty.advance(30 * kSecond);
    QCOMPARE(empty.carryOut(commandOf(CommandKind::WakeUp)).message,
             QStringLiteral("There are no mains and the battery is low"));
}

void TestSimulator::restartSwitchesOffAndOn()
{
    ScenarioPlayer player = play("mains");
    UpsCommand command = commandOf(CommandKind::Restart);
    command.restartDuration = 15;
    QVERIFY(player.ups().carryOut(command).accepted);
    QCOMPARE(player.ups().reading().outputSource, OutputSource::None);
    QCOMPARE(after(player, 14).outputSource, OutputSource::None);
    QCOMPARE(after(player, 2).outputSource, OutputSource::Utility);
}

void TestSimulator::pollAnswersOnce()
{
    Bench bench("outage");
    bench.connector.poll();
    bench.connector.poll();
    QCOMPARE(bench.polled.count(), 0); // from the event loop, never from within the call
    QVERIFY(bench.polled.wait());
    QTest::qWait(20);
    QCOMPARE(bench.polled.count(), 1);
    const PollResult result = bench.polled.first().first().value<PollResult>();
    QCOMPARE(result.state, LinkState::Live);
    QVERIFY(result.reading.alarms.contains(Alarm::OnBattery));
    for (const QString& text :
         {result.reading.model, result.reading.manufacturer, result.reading.name,
          result.reading.attachedDevices, result.reading.softwareVersion,
          result.reading.agentVersion, result.reading.location})
        QVERIFY(!text.isEmpty());
    bench.poll();
    QCOMPARE(bench.polled.count(), 2);
}

void TestSimulator::sendAnswersOnceById()
{
    Bench bench("mains");
    bench.connector.send(commandOf(CommandKind::CancelTest, 41));
    bench.connector.send(commandOf(CommandKind::SelfTest, 42));
    QCOMPARE(bench.finished.count(), 0);
    QTRY_COMPARE(bench.finished.count(), 2);
    const auto refused = bench.finished.at(0).first().value<CommandResult>();
    QCOMPARE(refused.id, quint64(41));
    QCOMPARE(refused.outcome, CommandOutcome::Refused);
    QCOMPARE(refused.message, QStringLiteral("No test is running"));
    const auto done = bench.finished.at(1).first().value<CommandResult>();
    QCOMPARE(done.id, quint64(42));
    QCOMPARE(done.outcome, CommandOutcome::Done);
    QCOMPARE(bench.poll().reading.batteryState, BatteryState::SelfTest);
    QCOMPARE(bench.finished.count(), 2);
}

void TestSimulator::clockDrivesTheScenario()
{
    Bench bench("outage");
    const UpsReading first = bench.poll().reading;
    const UpsReading again = bench.poll().reading;
    QCOMPARE(measuredValues(again), measuredValues(first));
    bench.now += 20 * kSecond;
    const UpsReading later = bench.poll().reading;
    QCOMPARE(*later.secondsOnBattery, *first.secondsOnBattery + 20);
    QVERIFY(*later.charge < *first.charge);

    ScenarioPlayer player = play("outage");
    QCOMPARE(measuredValues(later), measuredValues(after(player, 20)));
    bench.now += 400LL * 24 * 3600 * kSecond; // a gap is not lived through in full
    QCOMPARE(bench.poll().state, LinkState::Live);
}

void TestSimulator::unknownScenarioIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("misspelt") << "outtage";
    QTest::newRow("more than one line") << "out\nage";
    QTest::newRow("long") << QString(5000, 'x');
    QTest::newRow("place marker") << "%2";
}

void TestSimulator::unknownScenarioIsRefused()
{
    QFETCH(QString, name);
    Bench bench(name);
    const PollResult result = bench.poll();
    QCOMPARE(result.state, LinkState::Refused);
    QVERIFY(!result.message.contains('\n') && result.message.size() < 600);
    for (const ScenarioInfo& info : simulatorScenarios())
        QVERIFY2(result.message.contains(info.name), qPrintable(result.message));

    bench.connector.send(commandOf(CommandKind::SelfTest, 3));
    QVERIFY(bench.finished.wait());
    QCOMPARE(bench.finished.first().first().value<CommandResult>().outcome,
             CommandOutcome::Refused);
}

void TestSimulator::silentDeviceTakesNoCommand()
{
    Bench bench("silent");
    QCOMPARE(bench.poll().state, LinkState::Live);
    bench.now += 30 * kSecond;
    QCOMPARE(bench.poll().state, LinkState::Stale);
    bench.now += 30 * kSecond;
    const PollResult lost = bench.poll();
    QCOMPARE(lost.state, LinkState::Lost);
    QVERIFY(!lost.message.isEmpty());

    bench.connector.send(commandOf(CommandKind::Restart, 9));
    QVERIFY(bench.finished.wait());
    QCOMPARE(bench.finished.first().first().value<CommandResult>().outcome,
             CommandOutcome::NoAnswer);
    bench.now += 55 * kSecond;
    const PollResult back = bench.poll();
    QCOMPARE(back.state, LinkState::Live);
    QCOMPARE(back.reading.outputSource, OutputSource::Utility);
}

void TestSimulator::deletedWhileAnswersAreDue()
{
    auto connector = std::make_unique<SimulatorConnector>(settingsOf("mains"));
    connector->poll();
    connector->send(commandOf(CommandKind::SelfTest));
    connector.reset();
    QTest::qWait(350);
}

QTEST_GUILESS_MAIN(TestSimulator)
#include "tst_simulator.moc"
