// The built-in simulator: situations by name, numbers that agree with each other, commands. The
// model and the player run on virtual time; the connector gets a clock that the test turns.

#include "connectors/simulator/simulatorconnector.h"
#include "reading/devicesnapshot.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using Alarms = QSet<Alarm>;
using A = Alarm;
using B = BatteryState;
using K = CommandKind;
using S = OutputSource;

namespace {

constexpr int kSecond = 1000;
constexpr quint32 kSeed = 7;

ScenarioPlayer play(const QString& name)
{
    return ScenarioPlayer(findScenario(name).value(), kSeed);
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
    void situations()
    {
        const Alarms outage{A::OnBattery, A::InputBad, A::BypassBad};
        const struct {
            const char* name;
            S source;
            B battery;
            Alarms alarms;
        } rows[] = {
            {"mains", S::Utility, B::Normal, {}},
            {"outage", S::Battery, B::Discharge, outage},
            {"low-battery", S::Battery, B::Low, outage + Alarms{A::LowBattery}},
            {"return", S::Utility, B::BoostCharge, {}},
            {"bypass", S::Bypass, B::Normal, {A::OnBypass}},
            {"overload", S::Utility, B::Normal, {A::OutputOverload}},
            {"test", S::Battery, B::SelfTest, {A::TestInProgress}},
            {"silent", S::Utility, B::Normal, {}},
            {"flapping", S::Utility, B::Normal, {}},
        };
        for (const auto& row : rows) {
            for (const QString& unit : {QString(), QStringLiteral("three-phase-")}) {
                const UpsReading reading = play(unit + row.name).ups().reading();
                QVERIFY2(reading.outputSource == row.source, row.name);
                QVERIFY2(reading.batteryState == row.battery, row.name);
                QVERIFY2(reading.alarms == row.alarms, row.name);
            }
        }
    }

    void dayPassesThroughEverySituation()
    {
        constexpr int kDay = 24 * 60; // s, at 60x
        ScenarioPlayer player = play("");
        QSet<int> sources;
        Alarms alarms;
        for (int second = 0; second < kDay; ++second) {
            const UpsReading reading = after(player, 1);
            sources.insert(int(reading.outputSource));
            alarms += reading.alarms;
        }
        QCOMPARE(sources, QSet<int>({3, 4, 5}));
        QCOMPARE(alarms, Alarms({A::OnBattery, A::InputBad, A::BypassBad, A::LowBattery,
                                 A::OnBypass, A::OutputOverload, A::TestInProgress}));
        QVERIFY(player.reading().notes.join(' ').contains("Simulated day, 60x"));
        QVERIFY(play("mains").reading().notes.isEmpty());
    }

    // A full battery lasts long enough for "little time left" to mean something.
    void fullBatteryHolds()
    {
        for (const char* name : {"mains", "three-phase-mains", ""}) {
            const double minutes = *play(name).ups().reading().runtime / 60;
            QVERIFY2(minutes >= 15 && minutes <= 40, name);
        }
    }

    // Faster is the battery; what was ordered keeps its own time.
    void paceOfTheDay()
    {
        SimulatedUps ups(kSinglePhaseUps, 1.0, kSeed);
        ups.setPace(60);
        ups.setMains(false);
        const double before = *ups.reading().runtime;
        ups.advance(10 * kSecond);
        QVERIFY(near(before - *ups.reading().runtime, 600, 0.05));
        QCOMPARE(*ups.reading().secondsOnBattery, 600.0);
        QVERIFY(ups.carryOut(commandOf(K::Shutdown)).accepted);
        ups.advance(19 * kSecond);
        QCOMPARE(ups.reading().outputSource, S::Battery);
        ups.advance(2 * kSecond);
        QCOMPARE(ups.reading().outputSource, S::None);
    }

    // Power goes nowhere else: in, out, into the battery and out of it.
    void powerIsAccountedFor()
    {
        for (const char* name : {"mains", "outage", "return", "bypass", "three-phase-return"}) {
            const UpsReading now = play(name).ups().reading();
            double input = 0;
            double output = 0;
            for (int line = 0; line < findScenario(name)->profile->lines; ++line) {
                input += *now.input.power[line] + *now.bypass.power[line];
                output += *now.output.power[line];
            }
            const double battery = *now.batteryVoltage * *now.batteryCurrent;
            const double losses = input - output - battery;
            QVERIFY2(losses > 0 && losses < 0.25 * (output + std::max(0.0, battery)), name);
        }
    }

    void outageRunsDownAsForetold()
    {
        ScenarioPlayer player = play("low-battery");
        const int foretold = int(*player.ups().reading().runtime);
        UpsReading reading = after(player, foretold - 20);
        QCOMPARE(reading.outputSource, S::Battery);
        QVERIFY(reading.alarms.contains(A::ShutdownImminent));
        reading = after(player, 40);
        QCOMPARE(reading.batteryState, B::Depleted);
        QCOMPARE(reading.alarms, Alarms({A::DepletedBattery, A::InputBad, A::BypassBad,
                                         A::OutputOff, A::AwaitingPower}));
        QCOMPARE(*reading.output.voltage[0], 0.0);
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
            {"outage", none, K::SelfTest, "carries the load"},
            {"mains", K::Restart, K::SelfTest, "is off"},
            {"mains", K::Shutdown, K::SelfTest, "shutdown"},
            {"mains", K::Shutdown, K::Restart, "under way already"},
        };
        for (const auto& row : rows) {
            ScenarioPlayer player = play(row.scenario);
            if (row.first)
                QVERIFY(player.ups().carryOut(commandOf(*row.first)).accepted);
            const SimulatedUps::Reply reply = player.ups().carryOut(commandOf(row.kind));
            QVERIFY2(!reply.accepted, row.reason);
            QVERIFY2(reply.message.contains(row.reason), qPrintable(reply.message));
        }
    }

    void commandEffects()
    {
        const auto none = TestResult::None;
        const Alarms soon{A::ShutdownPending, A::ShutdownImminent};
        const Alarms off{A::OutputOffAsRequested, A::OutputOff};
        const struct {
            K kind;
            int seconds; // after the command
            S source;
            Alarms alarms;
            TestResult test;
        } rows[] = {
            {K::SelfTest, 9, S::Battery, {A::TestInProgress}, TestResult::InProgress},
            {K::SelfTest, 11, S::Utility, {}, TestResult::Passed},
            {K::Shutdown, 14, S::Utility, {A::ShutdownPending}, none},
            {K::Shutdown, 18, S::Utility, soon, none},
            {K::Shutdown, 21, S::None, off, none},
            {K::Shutdown, 3600, S::None, off, none},
            {K::Standby, 20 + 119, S::None, off, none},
            {K::Standby, 20 + 121, S::Utility, {}, none},
            {K::Restart, 1, S::None, off, none},
            {K::Restart, 61, S::Utility, {}, none},
        };
        for (const auto& row : rows) {
            ScenarioPlayer player = play("mains");
            QVERIFY(player.ups().carryOut(commandOf(row.kind)).accepted);
            const UpsReading reading = after(player, row.seconds);
            const QByteArray name = QByteArray::number(row.seconds) + " s";
            QVERIFY2(reading.outputSource == row.source, name);
            QVERIFY2(reading.alarms == row.alarms, name);
            QVERIFY2(player.ups().testResult() == row.test, name);
        }
    }

    void mainsFailDuringACommand()
    {
        SimulatedUps tested(kSinglePhaseUps, 1.0, kSeed);
        QVERIFY(tested.carryOut(commandOf(K::DischargeTest)).accepted);
        tested.setMains(false);
        QVERIFY(tested.reading().alarms.contains(A::OnBattery));
        QVERIFY(!tested.reading().alarms.contains(A::TestInProgress));
        QCOMPARE(tested.testResult(), TestResult::Aborted);

        SimulatedUps restarted(kSinglePhaseUps, 1.0, kSeed);
        QVERIFY(restarted.carryOut(commandOf(K::Restart)).accepted);
        restarted.setMains(false);
        restarted.advance(100 * kSecond);
        QCOMPARE(restarted.reading().outputSource, S::None);
        QVERIFY(restarted.reading().alarms.contains(A::AwaitingPower));
        QVERIFY(restarted.carryOut(commandOf(K::WakeUp)).accepted);
        QCOMPARE(restarted.reading().outputSource, S::Battery);
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
        const auto first = bench.finished.at(0).first().value<CommandResult>();
        QCOMPARE(first.id, quint64(41));
        QCOMPARE(first.outcome, CommandOutcome::Refused);
        const auto second = bench.finished.at(1).first().value<CommandResult>();
        QCOMPARE(second.id, quint64(42));
        QCOMPARE(second.outcome, CommandOutcome::Done);
    }

    void clockDrivesTheScenario()
    {
        Bench bench("silent");
        QCOMPARE(bench.poll().state, LinkState::Live);
        bench.now += 10 * kSecond;
        ScenarioPlayer player = play("silent");
        QCOMPARE(deviceSnapshot(bench.poll().reading, SnapshotPage::Device),
                 deviceSnapshot(after(player, 10), SnapshotPage::Device));
        bench.now += 20 * kSecond;
        QCOMPARE(bench.poll().state, LinkState::Stale);
        bench.now += 30 * kSecond;
        QCOMPARE(bench.poll().state, LinkState::Lost);
        bench.connector.send(commandOf(K::Restart));
        QVERIFY(bench.finished.wait());
        QCOMPARE(bench.finished.first().first().value<CommandResult>().outcome,
                 CommandOutcome::NoAnswer);
        bench.now += 55 * kSecond;
        const PollResult back = bench.poll();
        QCOMPARE(back.state, LinkState::Live);
        QCOMPARE(back.reading.outputSource, S::Utility); // the command was never carried out
    }
};

QTEST_GUILESS_MAIN(TestSimulator)
#include "tst_simulator.moc"
