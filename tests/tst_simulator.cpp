// The built-in simulator: situations by name, numbers that agree with each other, commands. The
// model and the player run on virtual time; the connector gets a clock that the test turns.

#include "connectors/simulator/simulatorconnector.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using Alarms = QSet<Alarm>;
using A = Alarm;
using B = BatteryState;
using K = CommandKind;
using S = OutputSource;
Q_DECLARE_METATYPE(Alarms)
Q_DECLARE_METATYPE(B)
Q_DECLARE_METATYPE(S)

namespace {

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

UpsCommand commandOf(K kind, quint64 id = 0)
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
    {}
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
    {}
    PollResult poll()
    {
        connector.poll();
        return polled.wait() ? polled.last().first().value<PollResult>() : PollResult{};
    }
    CommandResult send(K kind, quint64 id = 0)
    {
        connector.send(commandOf(kind, id));
        return finished.wait() ? finished.last().first().value<CommandResult>() : CommandResult{};
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
    void beginsInItsSituation_data()
    {
        QTest::addColumn<S>("source");
        QTest::addColumn<B>("battery");
        QTest::addColumn<Alarms>("alarms");
        const auto row = [](const char* situation, S source, B battery, const Alarms& alarms) {
            QTest::newRow(situation) << source << battery << alarms;
        };
        const Alarms outage{A::OnBattery, A::InputBad, A::BypassBad};
        row("mains", S::Utility, B::Normal, {});
        row("outage", S::Battery, B::Discharge, outage);
        row("low-battery", S::Battery, B::Low, outage + Alarms{A::LowBattery});
        row("return", S::Utility, B::BoostCharge, {});
        row("bypass", S::Bypass, B::Normal, {A::OnBypass});
        row("overload", S::Utility, B::Normal, {A::OutputOverload});
        row("test", S::Battery, B::SelfTest, {A::TestInProgress});
        row("silent", S::Utility, B::Normal, {});
        row("flapping", S::Utility, B::Normal, {});
    }
    void beginsInItsSituation()
    {
        for (const QString& unit : {QString(), QStringLiteral("three-phase-")}) {
            const ScenarioPlayer player = play(unit + QTest::currentDataTag());
            const UpsReading reading = player.ups().reading();
            QCOMPARE(player.link(), LinkState::Live);
            QTEST(reading.outputSource, "source");
            QTEST(reading.batteryState, "battery");
            QTEST(reading.alarms, "alarms");
            QCOMPARE(reading.alarmCount.value(), reading.alarms.size());
            const int lines = unit.isEmpty() ? 1 : 3;
            for (const LineReading* group : {&reading.input, &reading.output, &reading.bypass})
                QCOMPARE(group->lines.value(), lines);

            const bool onBattery = reading.outputSource == S::Battery;
            QCOMPARE(*reading.input.voltage[lines - 1] > 200,
                     !reading.alarms.contains(A::InputBad));
            QCOMPARE(*reading.secondsOnBattery > 0, onBattery);
            QCOMPARE(*reading.batteryCurrent < 0, onBattery);
            QCOMPARE(*reading.output.load[lines - 1] > 100,
                     reading.alarms.contains(A::OutputOverload));
        }
    }

    void numbersAgree_data()
    {
        QTest::addColumn<QString>("name");
        for (const ScenarioInfo& info : simulatorScenarios())
            QTest::newRow(info.name.isEmpty() ? "the day" : qPrintable(info.name)) << info.name;
    }
    // Through two rounds of each scenario, second by second.
    void numbersAgree()
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
                const double share = power / (*now.ratedPower / plate.lines) * 100;
                QVERIFY(
                    near(*now.output.voltage[line] * *now.output.current[line] * 0.9, power, 1e-9));
                QVERIFY(near(*now.output.load[line], share, 1e-9));
                const double drawn = *now.input.voltage[line] * *now.input.current[line];
                QVERIFY(*now.input.power[line] <= drawn && drawn <= *now.input.power[line] * 1.05);
                QVERIFY(power >= 0 && share < 160);
                for (const LineReading* group : {&now.input, &now.output, &now.bypass}) {
                    const double voltage = *group->voltage[line];
                    const double frequency = *group->frequency[line];
                    QCOMPARE(voltage == 0, frequency == 0);
                    QVERIFY(voltage == 0 || near(voltage, 230, 0.03));
                    QVERIFY(frequency == 0 || near(frequency, 50, 0.002));
                }
                input += *now.input.power[line];
                output += power;
            }

            // Energy through the unit
            const double battery = *now.batteryVoltage * *now.batteryCurrent;
            switch (now.outputSource) {
            case S::Utility:
                QVERIFY(battery >= 0);
                QVERIFY(input > output + battery && input < (output + battery) * 1.25);
                break;
            case S::Battery:
                QVERIFY(near(-battery, output / 0.92, 1e-6));
                QVERIFY(near(*now.runtime, *now.charge / 100 * plate.capacity / -battery, 0.1));
                break;
            case S::Bypass:
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
            const bool same =
                now.outputSource == before.outputSource && now.batteryState == before.batteryState;
            if (same && now.batteryState == B::Discharge) {
                QVERIFY(*now.charge < *before.charge);
                QVERIFY(*now.runtime < *before.runtime);
                QVERIFY(*now.secondsOnBattery == *before.secondsOnBattery + 1);
            } else if (same && *now.batteryCurrent > 0) {
                QVERIFY(*now.charge >= *before.charge);
            }
            before = now;
        }
    }

    void sameSeedSameReadings()
    {
        ScenarioPlayer slow = play("three-phase");
        ScenarioPlayer fast = play("three-phase");
        ScenarioPlayer other = play("three-phase", kSeed + 1);
        bool differs = false;
        for (int round = 0; round < 120; ++round) {
            slow.advance(5 * kSecond);
            other.advance(5 * kSecond);
            for (int part : {0, 37, 1963, 250, 1250, 1500, -900})
                fast.advance(part);
            const std::vector<double> values = measuredValues(slow.ups().reading());
            QCOMPARE(measuredValues(fast.ups().reading()), values);
            QCOMPARE(fast.ups().reading().alarms, slow.ups().reading().alarms);
            differs |= measuredValues(other.ups().reading()) != values;
        }
        QVERIFY(differs);
    }

    void dayPassesThroughEverySituation()
    {
        int length = 0;
        const std::vector<ScenarioStep> steps = findScenario("")->steps;
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
            QCOMPARE(alarms, Alarms({A::OnBattery, A::InputBad, A::BypassBad, A::LowBattery,
                                     A::OnBypass, A::OutputOverload, A::TestInProgress}));
            QCOMPARE(*player.ups().reading().inputLineBads, failures + 1);
            QVERIFY(*player.ups().reading().charge > 95);
        }
    }

    void outageRunsDownAsForetold()
    {
        ScenarioPlayer player = play("low-battery");
        const int foretold = int(*player.ups().reading().runtime);
        QVERIFY(foretold > 10 && foretold <= 57);
        UpsReading reading = after(player, foretold - 4);
        QCOMPARE(reading.outputSource, S::Battery);
        QVERIFY(reading.alarms.contains(A::ShutdownImminent));
        reading = after(player, 8);
        QCOMPARE(reading.batteryState, B::Depleted);
        QCOMPARE(reading.alarms, Alarms({A::DepletedBattery, A::InputBad, A::BypassBad,
                                         A::OutputOff, A::AwaitingPower}));
        QCOMPARE(*reading.output.voltage[0], 0.0);
        QCOMPARE(*reading.secondsOnBattery, 0.0);
        reading = after(player, 71 - foretold); // the mains are back
        QCOMPARE(reading.outputSource, S::Utility);
        QCOMPARE(reading.batteryState, B::BoostCharge);
        QVERIFY(reading.alarms.isEmpty());
    }

    void rechargeEndsAtRest()
    {
        ScenarioPlayer player = play("return");
        QVector<B> order;
        for (int second = 0; second < 140; ++second) {
            const B state = after(player, 1).batteryState;
            if (order.isEmpty() || order.last() != state)
                order << state;
        }
        QCOMPARE(order, QVector<B>({B::BoostCharge, B::FloatCharge, B::Normal}));
        QCOMPARE(*player.ups().reading().batteryCurrent, 0.0);
    }

    void refusals()
    {
        const std::optional<K> none;
        const struct {
            const char* scenario;
            std::optional<K> first; // a command given before
            K kind;
            const char* reason;
        } rows[] = {
            {"mains", none, K::CancelTest, "No test"},
            {"mains", none, K::WakeUp, "on already"},
            {"mains", K::SelfTest, K::DischargeTest, "running already"},
            {"outage", none, K::SelfTest, "carries the load"},
            {"bypass", none, K::SelfTest, "on bypass"},
            {"overload", none, K::SelfTest, "overloaded"},
            {"mains", K::Restart, K::SelfTest, "is off"},
            {"mains", K::Shutdown, K::SelfTest, "shutdown"},
            {"mains", K::Restart, K::Shutdown, "off already"},
            {"mains", K::Shutdown, K::Restart, "under way already"},
        };
        for (const auto& row : rows) {
            ScenarioPlayer player = play(row.scenario);
            if (row.first)
                QVERIFY(player.ups().carryOut(commandOf(*row.first)).accepted);
            const Alarms before = player.ups().reading().alarms;
            const SimulatedUps::Reply reply = player.ups().carryOut(commandOf(row.kind));
            QVERIFY2(!reply.accepted, row.reason);
            QVERIFY2(reply.message.contains(row.reason), qPrintable(reply.message));
            QCOMPARE(player.ups().reading().alarms, before);
        }
    }

    void selfTestLastsTenSeconds()
    {
        ScenarioPlayer player = play("mains");
        QVERIFY(player.ups().carryOut(commandOf(K::SelfTest)).accepted);
        QCOMPARE(player.ups().testResult(), TestResult::InProgress);
        UpsReading reading = after(player, 9);
        QCOMPARE(reading.batteryState, B::SelfTest);
        QVERIFY(*reading.input.voltage[0] > 200);
        QVERIFY(*reading.charge < 97);
        reading = after(player, 2);
        QCOMPARE(reading.outputSource, S::Utility);
        QVERIFY(reading.alarms.isEmpty());
        QCOMPARE(player.ups().testResult(), TestResult::Passed);
    }

    void dischargeTestEndsAtLow()
    {
        SimulatedUps ups(kSinglePhaseUps, 1.0, kSeed);
        QVERIFY(ups.carryOut(commandOf(K::DischargeTest)).accepted);
        int ticks = 0;
        for (; ups.testResult() == TestResult::InProgress && ticks < 4000; ++ticks)
            ups.advance(SimulatedUps::kTick);
        const UpsReading reading = ups.reading();
        QVERIFY(ticks > 600);
        QCOMPARE(ups.testResult(), TestResult::Passed);
        QCOMPARE(reading.batteryState, B::BoostCharge);
        QVERIFY(near(*reading.runtime, *reading.lowBatteryTime, 0.01));
        QVERIFY(reading.alarms.isEmpty());
    }

    void testEndsEarly()
    {
        struct Cause {
            std::function<void(SimulatedUps&)> happens;
            S source;
        };
        const Cause causes[] = {
            {[](SimulatedUps& ups) { ups.carryOut(commandOf(K::CancelTest)); }, S::Utility},
            {[](SimulatedUps& ups) { ups.setMains(false); }, S::Battery},
            {[](SimulatedUps& ups) { ups.setBypass(true); }, S::Bypass},
            {[](SimulatedUps& ups) { ups.carryOut(commandOf(K::Restart)); }, S::None},
        };
        for (const Cause& cause : causes) {
            SimulatedUps ups(kSinglePhaseUps, 1.0, kSeed);
            QVERIFY(ups.carryOut(commandOf(K::DischargeTest)).accepted);
            ups.advance(5 * kSecond);
            cause.happens(ups);
            const UpsReading reading = ups.reading();
            QCOMPARE(reading.outputSource, cause.source);
            QVERIFY(!reading.alarms.contains(A::TestInProgress));
            QCOMPARE(reading.alarms.contains(A::OnBattery), cause.source == S::Battery);
            QCOMPARE(ups.testResult(), TestResult::Aborted);
        }
    }

    void failedSelfTestIsRemembered()
    {
        SimulatedUps ups(kSinglePhaseUps, 0.45, kSeed);
        ups.setDemand(0.5);
        QVERIFY(ups.carryOut(commandOf(K::SelfTest)).accepted);
        ups.setDemand(0.9); // more than this charge can carry for a minute
        ups.advance(2 * kSecond);
        QCOMPARE(ups.testResult(), TestResult::Failed);
        QVERIFY(ups.reading().alarms.contains(A::DiagnosticTestFailed));
        QVERIFY(!ups.carryOut(commandOf(K::SelfTest)).accepted); // not charged enough
        ups.setDemand(0.3);
        QVERIFY(ups.carryOut(commandOf(K::SelfTest)).accepted);
        ups.advance(11 * kSecond);
        QVERIFY(ups.reading().alarms.isEmpty());
    }

    void shutdownCountsDownAndStaysOff()
    {
        ScenarioPlayer player = play("mains");
        QVERIFY(player.ups().carryOut(commandOf(K::Shutdown)).accepted);
        QCOMPARE(after(player, 14).alarms, Alarms{A::ShutdownPending});
        QCOMPARE(after(player, 4).alarms, Alarms({A::ShutdownPending, A::ShutdownImminent}));
        for (int seconds : {3, 3600}) {
            const UpsReading reading = after(player, seconds);
            QCOMPARE(reading.alarms, Alarms({A::OutputOffAsRequested, A::OutputOff}));
            QCOMPARE(reading.outputSource, S::None);
            QVERIFY(*reading.input.voltage[0] > 200);
        }
        QVERIFY(player.ups().carryOut(commandOf(K::WakeUp)).accepted);
        QCOMPARE(player.ups().reading().outputSource, S::Utility);
        QVERIFY(player.ups().reading().alarms.isEmpty());
    }

    void standbyAndRestartComeBack()
    {
        UpsCommand command = commandOf(K::Standby);
        command.shutdownDelay = 0;
        command.restartDuration = 15;
        for (int seconds : {2 * 60, command.restartDuration}) {
            ScenarioPlayer player = play("mains");
            QVERIFY(player.ups().carryOut(command).accepted);
            QCOMPARE(player.ups().reading().outputSource, S::None);
            QCOMPARE(after(player, seconds - 1).outputSource, S::None);
            QCOMPARE(after(player, 2).outputSource, S::Utility);
            command.kind = K::Restart;
        }
        command.kind = K::Standby;
        for (int minutes : {0, kMaxStandbyMinutes + 1}) {
            command.standbyMinutes = minutes;
            QVERIFY(!play("mains").ups().carryOut(command).accepted);
        }
    }

    void wakeUpWaitsForTheMains()
    {
        SimulatedUps ups(kSinglePhaseUps, 1.0, kSeed);
        QVERIFY(ups.carryOut(commandOf(K::Restart)).accepted);
        ups.setMains(false);
        ups.advance(100 * kSecond);
        QCOMPARE(ups.reading().outputSource, S::None);
        QVERIFY(ups.reading().alarms.contains(A::AwaitingPower));
        QCOMPARE(*ups.reading().charge, 100.0);

        SimulatedUps told = ups;
        QVERIFY(told.carryOut(commandOf(K::WakeUp)).accepted);
        QCOMPARE(told.reading().outputSource, S::Battery);

        ups.setMains(true);
        ups.advance(kSecond);
        QCOMPARE(ups.reading().outputSource, S::Utility);

        SimulatedUps empty(kSinglePhaseUps, 0.02, kSeed);
        empty.setMains(false);
        empty.advance(30 * kSecond);
        QVERIFY(empty.carryOut(commandOf(K::WakeUp)).message.contains("low"));
    }

    void answersOnceFromTheEventLoop()
    {
        Bench bench("mains");
        bench.connector.poll();
        bench.connector.poll();
        bench.connector.send(commandOf(K::CancelTest, 41));
        QCOMPARE(bench.polled.count() + bench.finished.count(), 0);
        bench.connector.send(commandOf(K::SelfTest, 42));
        QTRY_COMPARE(bench.finished.count(), 2);
        QCOMPARE(bench.polled.count(), 1);
        QCOMPARE(bench.finished.at(0).first().value<CommandResult>().id, quint64(41));
        QCOMPARE(bench.finished.at(0).first().value<CommandResult>().outcome,
                 CommandOutcome::Refused);
        QCOMPARE(bench.finished.at(1).first().value<CommandResult>().id, quint64(42));
        QCOMPARE(bench.finished.at(1).first().value<CommandResult>().outcome, CommandOutcome::Done);
        QCOMPARE(bench.poll().reading.batteryState, B::SelfTest);
        QCOMPARE(bench.polled.count(), 2);
    }

    void clockDrivesTheScenario()
    {
        Bench bench("outage");
        const UpsReading first = bench.poll().reading;
        QCOMPARE(measuredValues(bench.poll().reading), measuredValues(first));
        bench.now += 20 * kSecond;
        const UpsReading later = bench.poll().reading;
        QCOMPARE(*later.secondsOnBattery, *first.secondsOnBattery + 20);
        ScenarioPlayer player = play("outage");
        QCOMPARE(measuredValues(later), measuredValues(after(player, 20)));
        bench.now += 400LL * 24 * 3600 * kSecond; // a gap is not lived through in full
        QCOMPARE(bench.poll().state, LinkState::Live);
    }

    void unknownScenarioIsRefused()
    {
        QVERIFY(findScenario("OUTAGE"));
        for (const QString& name : {QString("outtage"), QString("out\nage"), QString(5000, 'x')}) {
            Bench bench(name);
            const PollResult result = bench.poll();
            QCOMPARE(result.state, LinkState::Refused);
            QVERIFY(!result.message.contains('\n') && result.message.size() < 600);
            QVERIFY(result.message.contains("three-phase-outage")); // tells what there is
            QCOMPARE(bench.send(K::SelfTest).outcome, CommandOutcome::Refused);
        }
    }

    void silentDeviceTakesNoCommand()
    {
        Bench bench("silent");
        QCOMPARE(bench.poll().state, LinkState::Live);
        bench.now += 30 * kSecond;
        QCOMPARE(bench.poll().state, LinkState::Stale);
        bench.now += 30 * kSecond;
        QCOMPARE(bench.poll().state, LinkState::Lost);
        QCOMPARE(bench.send(K::Restart).outcome, CommandOutcome::NoAnswer);
        bench.now += 55 * kSecond;
        const PollResult back = bench.poll();
        QCOMPARE(back.state, LinkState::Live);
        QCOMPARE(back.reading.outputSource, S::Utility);
    }

    void deletedWhileAnswersAreDue()
    {
        auto connector = std::make_unique<SimulatorConnector>(settingsOf("mains"));
        connector->poll();
        connector->send(commandOf(K::SelfTest));
        connector.reset();
        QTest::qWait(350);
    }
};

QTEST_GUILESS_MAIN(TestSimulator)
#include "tst_simulator.moc"
