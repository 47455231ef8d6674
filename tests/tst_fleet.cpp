// Polling plan, link state and age of the data, urgency, and the way of a command: with connectors
// that a test scripts and clocks that it sets.

#include "fleet/commanddesk.h"
#include "fleet/fleet.h"
#include "fleet/pollplan.h"
#include "support/scriptedconnector.h"

#include "globalvar.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

class TestClock : public FleetClock
{
public:
    qint64 monotonicMs() const override { return monotonic; }
    qint64 bootMs() const override { return monotonic + suspended; }
    QDateTime now() const override { return QDateTime::fromMSecsSinceEpoch(bootMs()); }

    qint64 monotonic = 1000000;
    qint64 suspended = 0;
};

UpsReading onMains()
{
    UpsReading reading;
    reading.outputSource = OutputSource::Utility;
    reading.batteryState = BatteryState::Normal;
    reading.charge = 80;
    return reading;
}

struct Desk {
    TestClock clock;
    QVector<ScriptedConnector*> connectors;
    Fleet fleet{[this](const DeviceSettings&) {
                    auto connector = std::make_unique<ScriptedConnector>();
                    connectors << connector.get();
                    return connector;
                },
                clock};
    EventLog log;
    CommandDesk::Operator who;
    CommandDesk commands{fleet, log, [this] { return who; }};
    QVector<CommandDesk::Question> questions;
    CommandDesk::Answer answer;

    // Keeps the question open until the test answers it.
    void waitWithTheAnswer()
    {
        commands.setConfirm(
            [this](const CommandDesk::Question& question, const CommandDesk::Answer& onAnswer) {
                questions << question;
                answer = onAnswer;
            });
    }
    void sayYes()
    {
        commands.setConfirm([](const CommandDesk::Question&, const CommandDesk::Answer& onAnswer) {
            onAnswer(true);
        });
    }

    Device* add(const QString& address)
    {
        DeviceSettings settings;
        settings.address = *parseDeviceAddress(address).address;
        settings.name = address;
        settings.shutdownDelay = 35;
        settings.restartDuration = 95;
        return fleet.add(settings);
    }
};

// Whether no two devices next to each other in the interval are further apart than twice the even
// spacing.
bool areSpread(QVector<qint64> placesMs)
{
    std::sort(placesMs.begin(), placesMs.end());
    const qint64 even = 5000 / placesMs.size();
    for (int i = 1; i < placesMs.size(); ++i)
        if (placesMs[i] - placesMs[i - 1] > 2 * even)
            return false;
    const qint64 width = placesMs.last() - placesMs.first();
    return width >= 5000 - 2 * even && width <= 5000;
}

void aTest(UpsReading& reading, double volts, double rated)
{
    reading.alarms = {Alarm::TestInProgress, Alarm::OnBattery};
    reading.ratedInputVoltage = rated;
    reading.input.voltage = {volts, 230, {}};
}

// What a live reading is called, and everything that is wrong beside it.
using S = OutputSource;
using A = Alarm;
using U = Urgency;
using R = UpsReading;
const struct {
    const char* name;
    S source;
    void (*fill)(R& reading);
    const char* text;
    U urgency;
    const char* alarms;
} kConditions[] = {
    {"on mains", S::Utility, [](R&) {}, "On mains", U::Normal, ""},
    {"boosting", S::Booster, [](R&) {}, "On mains, boosting", U::Notice, ""},
    {"off", S::None, [](R& r) { r.alarms = {A::OutputOff}; }, "Output off", U::Critical, ""},
    {"nobody says that it is on mains", S::Other, [](R&) {}, "Source unknown", U::Alarm, ""},
    {"an outage says it all", S::Battery,
     [](R& r) {
         r.alarms = {A::OnBattery, A::InputBad, A::BypassBad};
     },
     "On battery", U::Alarm, "Bypass fault"},
    {"no word twice", S::Battery,
     [](R& r) {
         r.alarms = {A::OnBattery, A::LowBattery};
     },
     "On battery, low", U::Critical, "Battery low"},
    {"overload on mains", S::Utility, [](R& r) { r.alarms = {A::OutputOverload}; },
     "On mains, Load overrun MAX-value", U::Critical, "Load overrun MAX-value"},
    {"an alarm without a name", S::Utility, [](R& r) { r.alarmTexts << "1.3.6.1.4.1.9.5"; },
     "On mains, Alarm 1.3.6.1.4.1.9.5", U::Warning, "Alarm 1.3.6.1.4.1.9.5"},
    {"its own words come first", S::Utility,
     [](R& r) {
         r.alarms = {A::GeneralFault, A::BatteryBad};
         r.alarmTexts << "Replace battery!";
     },
     "On mains, Replace battery!", U::Alarm, "Replace battery!|Battery fault|UPS fault"},
    {"and are told beside worse", S::Battery, [](R& r) { r.alarmTexts << "Door open"; },
     "On battery, Door open", U::Alarm, "Door open"},

    {"a test with mains", S::Battery, [](R& r) { aTest(r, 115, 230); }, "Battery test", U::Notice,
     ""},
    {"a test with one line missing", S::Battery, [](R& r) { aTest(r, 114, 230); }, "On battery",
     U::Alarm, "A test is in progress"},
    {"a test, rating not known", S::Battery, [](R& r) { aTest(r, 80, 0); }, "Battery test",
     U::Notice, ""},
    {"a test, voltage not known", S::Battery, [](R& r) { r.alarms = {A::TestInProgress}; },
     "On battery", U::Alarm, "A test is in progress"},

    {"just within every limit", S::Utility,
     [](R& r) {
         r.charge = 51;
         r.runtime = 60;
         r.output.load = {79, {}, 79};
         r.input.load[0] = 100;
         r.batteryTemperature = 39;
     },
     "On mains", U::Normal, ""},
    {"charge low", S::Utility, [](R& r) { r.charge = 50; }, "On mains, battery at 50 %", U::Warning,
     "Battery at 50 %"},
    {"charge critical", S::Battery, [](R& r) { r.charge = 20; }, "On battery, 20 % left",
     U::Critical, "Battery at 20 %"},
    {"time left", S::Battery, [](R& r) { r.runtime = 301; }, "On battery", U::Alarm, ""},
    {"little time left", S::Battery, [](R& r) { r.runtime = 300; }, "On battery, little time left",
     U::Critical, "Little time left"},
    {"load of one line", S::Utility,
     [](R& r) {
         r.output.load = {10, 80, {}};
     },
     "On mains, load 80 %", U::Warning, "Load 80 %"},
    {"battery hot", S::Utility, [](R& r) { r.batteryTemperature = 40; },
     "On mains, battery at 40 °C", U::Warning, "Battery at 40 °C"},
};

} // namespace

Q_DECLARE_METATYPE(LinkState)
Q_DECLARE_METATYPE(Urgency)

class TestFleet : public QObject
{
    Q_OBJECT

private slots:
    void backOff();
    void goodAnswersKeepTheirPlace();
    void pollsAreSpread();
    void stateAndAge();
    void oldReadingIsNeverLive();
    void suspendHurriesEveryDevice();
    void unansweredPollEnds();
    void ageCountsFromTheQuestion();
    void oneLostPollOfARareOneIsNoSilence();
    void staleDevicesKeepTheirRate();
    void onset();
    void endlessTestIsAnOutage();
    void thresholdsReachEveryDevice();
    void conditions_data();
    void conditions();
    void commandsAreChecked_data();
    void commandsAreChecked();
    void commandIsFollowedToItsResult();
    void commandInTheTermsOfItsDevice();
    void commandWaitsForTheAnswer();
    void removedDeviceLeavesNoCommandOpen();
};

void TestFleet::backOff()
{
    PollPlan plan(5000, 0);
    QVector<qint64> pauses;
    qint64 now = 0;
    for (int i = 0; i < 40; ++i) {
        plan.failed(now);
        pauses << plan.dueMs() - now;
        now = plan.dueMs();
    }
    QCOMPARE(pauses.mid(0, 6), QVector<qint64>({5000, 10000, 20000, 40000, 60000, 60000}));
    QCOMPARE(pauses.last(), qint64(60000)); // never gives up, never waits longer
    plan.succeeded(now);
    QVERIFY(plan.dueMs() - now <= 5000);

    PollPlan rare(3600 * 1000, 0);
    rare.failed(0);
    QCOMPARE(rare.dueMs(), qint64(5000));
    QVERIFY(!rare.isSilenceConfirmed());
    rare.failed(5000);
    QCOMPARE(rare.dueMs(), qint64(15000));
    QVERIFY(rare.isSilenceConfirmed());
    for (int i = 0; i < 40; ++i)
        rare.failed(0);
    QCOMPARE(rare.dueMs(), qint64(60000));
}

void TestFleet::goodAnswersKeepTheirPlace()
{
    PollPlan plan(5000, 1234);
    plan.succeeded(1300);
    QCOMPARE(plan.dueMs(), qint64(6234));
    plan.succeeded(6234 + 4999);
    QCOMPARE(plan.dueMs(), qint64(11234));
    plan.hurry(8000); // out of turn: the next place stays
    QCOMPARE(plan.dueMs(), qint64(8000));
    plan.succeeded(8100);
    QCOMPARE(plan.dueMs(), qint64(11234));
    plan.succeeded(11234); // in no time at all: not once more at once
    QCOMPARE(plan.dueMs(), qint64(16234));
}

void TestFleet::pollsAreSpread()
{
    Desk desk;
    QVector<qint64> offsets;
    for (int i = 0; i < 100; ++i)
        offsets << desk.add("nut://h/u")->dueMs() - desk.clock.monotonic;
    QCOMPARE(offsets.first(), qint64(0));
    QVERIFY(areSpread(offsets));

    // Many changed at once: the first is polled at once, and all keep or find places of their own.
    for (const int interval : {5, 10, 5}) {
        desk.clock.monotonic += 7777;
        QVector<qint64> firstPolls;
        QVector<qint64> places;
        for (int i = 0; i < desk.fleet.count(); ++i) {
            DeviceSettings settings = desk.fleet.at(i)->settings();
            settings.pollInterval = interval;
            const Device* device = desk.fleet.replace(i, settings);
            firstPolls << device->dueMs() - desk.clock.monotonic;
            places << device->placeAfter(desk.clock.monotonic) * 5 / interval;
        }
        QCOMPARE(firstPolls.first(), qint64(0));
        QVERIFY(*std::max_element(firstPolls.begin(), firstPolls.end()) <= 1000);
        QVERIFY2(areSpread(places), qPrintable(QString::number(interval)));
    }
}

void TestFleet::stateAndAge()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    QCOMPARE(device->link(), LinkState::Connecting);
    QCOMPARE(device->ageMs(), qint64(-1));
    QVERIFY(device->snapshot(SnapshotPage::Device).isEmpty());

    QTRY_COMPARE(desk.connectors[0]->polls, 1);
    desk.connectors[0]->answer(LinkState::Live, onMains());
    QCOMPARE(device->link(), LinkState::Live);
    QCOMPARE(device->snapshot(SnapshotPage::Device).value(alarm_CommunicationsLost).toInt(), 0);

    desk.clock.monotonic += 7000;
    QCOMPARE(device->ageMs(), qint64(7000));
    desk.connectors[0]->answer(LinkState::Lost, {}, "gone <b>away</b>\x07");
    QCOMPARE(device->link(), LinkState::Lost);
    QCOMPARE(device->message(), QStringLiteral("gone <b>away</b>"));
    // The last good values stay, and say that they are not live.
    QCOMPARE(device->snapshot(SnapshotPage::Device).value(realdata_ChargeRemaining).toInt(), 80);
    QCOMPARE(device->snapshot(SnapshotPage::Device).value(alarm_CommunicationsLost).toInt(), 1);
    QCOMPARE(device->ageMs(), qint64(7000));
}

void TestFleet::oldReadingIsNeverLive()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    desk.connectors[0]->answer(LinkState::Live, onMains());
    desk.clock.monotonic += 24000;
    QCOMPARE(device->link(), LinkState::Live);
    desk.clock.suspended += 3600 * 1000;
    QCOMPARE(device->link(), LinkState::Stale);
    QCOMPARE(device->snapshot(SnapshotPage::Device).value(alarm_CommunicationsLost).toInt(), 1);
    QVERIFY(!device->message().isEmpty());
    QCOMPARE(device->condition().urgency, Urgency::Alarm);
}

void TestFleet::suspendHurriesEveryDevice()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    QTRY_COMPARE(desk.connectors[0]->polls, 1);
    for (int i = 0; i < 6; ++i)
        desk.connectors[0]->answer(LinkState::Lost);
    QVERIFY(device->dueMs() - desk.clock.monotonic > 50000);
    desk.clock.suspended += 10000;
    QTRY_COMPARE(desk.connectors[0]->polls, 2);
    // A poll that the suspend cut in two fails, and does not cost the device its first try.
    desk.clock.suspended += 10000;
    QSignalSpy ticks(&desk.fleet, &Fleet::ticked);
    QVERIFY(ticks.wait());
    desk.connectors[0]->answer(LinkState::Lost);
    QTRY_COMPARE(desk.connectors[0]->polls, 3);
}

void TestFleet::unansweredPollEnds()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    QTRY_VERIFY(device->isPolling());
    desk.clock.monotonic += 60000;
    QTRY_COMPARE(device->link(), LinkState::Lost);
    QVERIFY(!device->isPolling());
}

// An answer in flight while the machine sleeps tells of the time before.
void TestFleet::ageCountsFromTheQuestion()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    QTRY_COMPARE(desk.connectors[0]->polls, 1);
    desk.clock.suspended += 8 * 3600 * 1000;
    desk.connectors[0]->answer(LinkState::Live, onMains());
    QCOMPARE(device->ageMs(), qint64(8 * 3600 * 1000));
    QCOMPARE(device->link(), LinkState::Stale);

    // The poll was given up, and the next one asked for, before its answer came.
    desk.clock.monotonic += 5000;
    desk.fleet.pollNow(device);
    QTRY_COMPARE(desk.connectors[0]->polls, 2);
    desk.clock.suspended += 8 * 3600 * 1000;
    QTRY_COMPARE(desk.connectors[0]->polls, 3);
    desk.connectors[0]->answer(LinkState::Live, onMains());
    QCOMPARE(device->ageMs(), qint64(8 * 3600 * 1000));
    QTRY_COMPARE(desk.connectors[0]->polls, 4); // the third went unheard
}

void TestFleet::oneLostPollOfARareOneIsNoSilence()
{
    Desk desk;
    DeviceSettings settings;
    settings.address = *parseDeviceAddress("nut://h/u").address;
    settings.pollInterval = 3600;
    settings.scales = {{"battery.charge", 0.5}};
    Device* device = desk.fleet.add(settings);
    desk.connectors[0]->answer(LinkState::Live, onMains());
    QCOMPARE(device->reading()->charge, Value(40)); // scaled
    desk.connectors[0]->answer(LinkState::Lost);
    QCOMPARE(device->link(), LinkState::Live);
    QCOMPARE(device->dueMs() - desk.clock.monotonic, qint64(5000));
    desk.connectors[0]->answer(LinkState::Lost);
    QCOMPARE(device->link(), LinkState::Lost);
}

void TestFleet::staleDevicesKeepTheirRate()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    for (int i = 0; i < 5; ++i)
        desk.connectors[0]->answer(LinkState::Stale);
    QVERIFY(device->dueMs() - desk.clock.monotonic <= 5000);
}

void TestFleet::onset()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    UpsReading reading = onMains();
    QDateTime before = device->conditionSince();
    // What comes after so many seconds, and whether it is a condition of its own.
    const auto changes = [&](int seconds, LinkState state) {
        desk.clock.monotonic += seconds * 1000;
        desk.connectors[0]->answer(state, reading);
        return std::exchange(before, device->conditionSince()) != before;
    };
    QVERIFY(changes(5, LinkState::Live));
    reading.charge = 45;
    QVERIFY(changes(5, LinkState::Live));
    reading.charge = 43; // another number
    QVERIFY(!changes(5, LinkState::Live));
    QVERIFY(device->condition().text.contains("43 %"));
    reading.charge = 51; // not clearly back
    QVERIFY(!changes(5, LinkState::Live));
    reading.charge = 53;
    QVERIFY(changes(5, LinkState::Live));
    reading.alarmTexts << "Fan 1 at 400/min";
    QVERIFY(changes(5, LinkState::Live));
    reading.alarmTexts = QStringList("Fan 1 at 300/min");
    QVERIFY(!changes(5, LinkState::Live));
    reading.alarms << Alarm::GeneralFault; // the same words, but now an alarm
    QVERIFY(changes(5, LinkState::Live));
    reading.outputSource = OutputSource::Battery;
    QVERIFY(changes(5, LinkState::Live));

    const QDateTime outage = before;
    QVERIFY(changes(5, LinkState::Lost));
    QVERIFY(changes(10, LinkState::Live));
    QCOMPARE(before, outage); // it went on meanwhile
    QVERIFY(changes(5, LinkState::Lost));
    QVERIFY(changes(600, LinkState::Live));
    QVERIFY(before > outage); // nobody knows
}

void TestFleet::endlessTestIsAnOutage()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    UpsReading reading = onMains();
    reading.outputSource = OutputSource::Battery;
    reading.alarms = {Alarm::TestInProgress};
    reading.input.voltage[0] = 230;
    const auto kindAfter = [&](int seconds) {
        desk.clock.monotonic += seconds * 1000;
        desk.connectors[0]->answer(LinkState::Live, reading);
        return device->condition().kind;
    };
    QCOMPARE(kindAfter(0), ConditionKind::BatteryTest);
    QCOMPARE(kindAfter(600), ConditionKind::BatteryTest);
    QCOMPARE(kindAfter(1), ConditionKind::Battery);
    QVERIFY(device->reading()->alarms.contains(Alarm::OnBattery));
    reading.alarms.clear();
    reading.outputSource = OutputSource::Utility;
    QCOMPARE(kindAfter(5), ConditionKind::Mains);
    reading.alarms = {Alarm::TestInProgress};
    reading.outputSource = OutputSource::Battery;
    QCOMPARE(kindAfter(5), ConditionKind::BatteryTest); // a test of its own
    reading.alarmAges = {{Alarm::TestInProgress, 601}};
    QCOMPARE(kindAfter(5), ConditionKind::Battery); // it began before the desk did
}

void TestFleet::thresholdsReachEveryDevice()
{
    Desk desk;
    Device* device = desk.add("nut://h/u");
    desk.connectors[0]->answer(LinkState::Live, onMains());
    QCOMPARE(device->condition().urgency, Urgency::Normal);
    Thresholds strict;
    strict.chargeLow = 90;
    desk.fleet.setThresholds(strict);
    QCOMPARE(device->condition().urgency, Urgency::Warning);
    Device* later = desk.add("nut://h/u");
    desk.connectors[1]->answer(LinkState::Live, onMains());
    QCOMPARE(later->condition().urgency, Urgency::Warning);
}

void TestFleet::conditions_data()
{
    QTest::addColumn<LinkState>("link");
    QTest::addColumn<UpsReading>("reading");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Urgency>("urgency");
    QTest::addColumn<QString>("alarms");
    for (const auto& row : kConditions) {
        UpsReading reading;
        reading.outputSource = row.source;
        row.fill(reading);
        QTest::newRow(row.name) << LinkState::Live << reading << QString::fromUtf8(row.text)
                                << row.urgency << QString::fromUtf8(row.alarms);
    }
    UpsReading before = onMains(); // what it was like while it was live
    before.alarms << Alarm::FanFailure;
    for (const auto& [link, text] : {std::pair(LinkState::Lost, "No answer"),
                                     {LinkState::Stale, "No new data"},
                                     {LinkState::Refused, "Refused"}})
        QTest::newRow(text) << link << before << QString(text) << Urgency::Alarm << QString();
}

void TestFleet::conditions()
{
    QFETCH(LinkState, link);
    QFETCH(UpsReading, reading);
    const Condition condition = conditionOf(link, &reading);
    QTEST(condition.text, "text");
    QTEST(condition.urgency, "urgency");
    QTEST(condition.alarms.join('|'), "alarms");
}

void TestFleet::commandsAreChecked_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("sent");
    QTest::newRow("operator, real device") << "nut://h/u" << 1 << 1003 << "" << true;
    QTest::newRow("nobody, real device") << "nut://h/u" << 0 << 1003 << "" << false;
    QTest::newRow("nobody, simulator") << "sim:" << 0 << 1003 << "" << true;
    QTest::newRow("standby of no minutes") << "sim:" << 1 << 1008 << "0" << false;
    QTest::newRow("unknown code") << "sim:" << 1 << 1040 << "" << false;
}

void TestFleet::commandsAreChecked()
{
    QFETCH(QString, address);
    QFETCH(int, level);
    QFETCH(int, code);
    QFETCH(QString, value);
    QFETCH(bool, sent);
    Desk desk;
    desk.who = {"anna", level};
    desk.sayYes();
    Device* device = desk.add(address);
    QSignalSpy finished(&desk.commands, &CommandDesk::finished);
    desk.commands.post(device, code, {{"controlValue", value}});
    QCOMPARE(desk.connectors[0]->sent.size(), sent ? 1 : 0);
    QCOMPARE(finished.size(), sent ? 0 : 1);
    QCOMPARE(desk.log.count(), 1);
    QCOMPARE(desk.log.at(0).isBad, !sent);
    QCOMPARE(desk.log.at(0).message.isEmpty(), sent);
    QCOMPARE(desk.log.at(0).operatorName, QStringLiteral("anna"));
    QCOMPARE(desk.log.at(0).value, value);
}

void TestFleet::commandIsFollowedToItsResult()
{
    Desk desk;
    desk.sayYes();
    Device* first = desk.add("sim:");
    Device* second = desk.add("sim:");
    QTRY_COMPARE(desk.connectors[0]->polls, 1);
    desk.connectors[0]->answer(LinkState::Live, onMains());
    QSignalSpy finished(&desk.commands, &CommandDesk::finished);
    desk.commands.post(first, 1008, {{"controlValue", "2"}});
    const UpsCommand command = desk.connectors[0]->sent.first();
    QCOMPARE(command.kind, CommandKind::Standby);
    QCOMPARE(command.standbyMinutes, 2);
    QCOMPARE(command.shutdownDelay, 35); // as configured
    QCOMPARE(command.restartDuration, 95);

    emit second->commandFinished({command.id, CommandOutcome::Done, {}}); // not its device
    QCOMPARE(finished.size(), 0);
    desk.connectors[0]->finish(command.id, CommandOutcome::Refused, "low battery");
    QCOMPARE(finished.size(), 1);
    QCOMPARE(desk.log.at(0).outcome, outcomeLabel(CommandOutcome::Refused));
    QCOMPARE(desk.log.at(0).message, QStringLiteral("low battery"));
    desk.connectors[0]->finish(command.id, CommandOutcome::Done); // a second result changes nothing
    QCOMPARE(finished.size(), 1);
    QTRY_COMPARE(desk.connectors[0]->polls, 2); // the effect is looked for at once
}

void TestFleet::commandInTheTermsOfItsDevice()
{
    const struct {
        const char* address;
        int code;
        const char* value;
        const char* text;
    } rows[] = {
        {"sim:", 1007, "12", "sim:: output off in 35 s; 1.5 kW of load lose power"},
        {"sim:", 1008, "60", "sim:: output off in 35 s for 60 min; 1.5 kW of load lose power"},
        {"sim:", 1008, "1",
         "sim:: restart, output off at once for 95 s; 1.5 kW of load lose power"},
        {"snmp://h", 1008, "5",
         "snmp://h: output off within 35 s for 5 min; 1.5 kW of load lose power"},
    };
    for (const auto& row : rows) {
        Desk desk;
        desk.who = {"anna", 1};
        Device* device = desk.add(row.address);
        desk.waitWithTheAnswer();
        UpsReading reading = onMains();
        reading.output.power = {};
        reading.output.power[0] = 900;
        reading.output.power[1] = 600;
        desk.connectors[0]->answer(LinkState::Live, reading);
        desk.commands.post(device, row.code, {{"controlValue", row.value}});
        QCOMPARE(desk.questions.value(0).text, QString(row.text));
        QVERIFY(desk.connectors[0]->sent.isEmpty());
        desk.connectors[0]->answer(LinkState::Lost); // what was measured may be gone
        desk.commands.post(device, row.code, {{"controlValue", row.value}});
        QVERIFY(desk.questions.value(1).text.endsWith("not known"));
    }
}

void TestFleet::commandWaitsForTheAnswer()
{
    Desk desk;
    desk.who = {"anna", 1};
    Device* device = desk.add("nut://h/a");
    const auto post = [&] { desk.commands.post(device, 1007, {{"controlValue", "12"}}); };
    const auto last = [&] { return desk.log.at(desk.log.count() - 1); };
    post();
    QCOMPARE(last().outcome, outcomeLabel(CommandOutcome::Refused)); // nobody to ask
    desk.waitWithTheAnswer();
    post();
    desk.answer(false);
    QCOMPARE(last().outcome, QString("cancelled"));
    post();
    desk.who = {}; // logged out while the question stood
    desk.answer(true);
    QCOMPARE(last().outcome, outcomeLabel(CommandOutcome::Refused));
    desk.who = {"anna", 1};
    post();
    QVERIFY(desk.connectors[0]->sent.isEmpty());
    QVERIFY(desk.commands.underWay().isEmpty());
    desk.answer(true);
    desk.answer(true); // sent once
    QCOMPARE(desk.connectors[0]->sent.size(), 1);
    QCOMPARE(desk.commands.underWay().value(0).device, QString("nut://h/a"));
    post();
    desk.fleet.remove(0);
    desk.answer(true);
    QCOMPARE(last().outcome, outcomeLabel(CommandOutcome::NoAnswer));
    QVERIFY(desk.commands.underWay().isEmpty());
}

void TestFleet::removedDeviceLeavesNoCommandOpen()
{
    Desk desk;
    Device* device = desk.add("sim:");
    desk.commands.post(device, 1003, {});
    desk.fleet.remove(0);
    QCOMPARE(desk.log.at(0).outcome, outcomeLabel(CommandOutcome::Unknown));
    QCOMPARE(desk.fleet.count(), 0);
}

QTEST_GUILESS_MAIN(TestFleet)
#include "tst_fleet.moc"
