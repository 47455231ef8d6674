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
    return placesMs.last() - placesMs.first() <= 5000;
}

} // namespace

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
    void urgency_data();
    void urgency();
    void thresholds_data();
    void thresholds();
    void commandsAreChecked_data();
    void commandsAreChecked();
    void commandIsFollowedToItsResult();
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
    device->checkPollLimit();
    QCOMPARE(device->link(), LinkState::Lost);
    QVERIFY(!device->isPolling());
}

void TestFleet::urgency_data()
{
    QTest::addColumn<int>("link");
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("alarm"); // 0: none
    QTest::addColumn<int>("urgency");
    const auto row = [](const char* name, LinkState link, OutputSource source, int alarm,
                        Urgency urgency) {
        QTest::newRow(name) << int(link) << int(source) << alarm << int(urgency);
    };
    const auto live = LinkState::Live;
    row("on mains", live, OutputSource::Utility, 0, Urgency::Normal);
    row("on battery", live, OutputSource::Battery, 2, Urgency::Alarm);
    row("battery low", live, OutputSource::Battery, 3, Urgency::Critical);
    row("overload on mains", live, OutputSource::Utility, 8, Urgency::Critical);
    row("output off", live, OutputSource::None, 0, Urgency::Critical);
    row("nobody says that it is on mains", live, OutputSource::Other, 0, Urgency::Alarm);
    row("silence is an alarm", LinkState::Lost, OutputSource::Utility, 0, Urgency::Alarm);
    row("stale is an alarm", LinkState::Stale, OutputSource::Utility, 0, Urgency::Alarm);
}

void TestFleet::urgency()
{
    QFETCH(int, link);
    QFETCH(int, source);
    QFETCH(int, alarm);
    QFETCH(int, urgency);
    UpsReading reading;
    reading.outputSource = static_cast<OutputSource>(source);
    if (alarm)
        reading.alarms << static_cast<Alarm>(alarm);
    const Condition condition = conditionOf(static_cast<LinkState>(link), &reading);
    QCOMPARE(int(condition.urgency), urgency);
    QCOMPARE(condition.text.contains("mains"),
             link == int(LinkState::Live) && source == int(OutputSource::Utility));
}

void TestFleet::thresholds_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<double>("charge");
    QTest::addColumn<double>("minutes");
    QTest::addColumn<double>("load");
    QTest::addColumn<int>("urgency");
    const int mains = int(OutputSource::Utility);
    const int battery = int(OutputSource::Battery);
    QTest::newRow("nothing conspicuous") << mains << 51.0 << 1.0 << 79.0 << int(Urgency::Normal);
    QTest::newRow("charge critical") << mains << 20.0 << 60.0 << 10.0 << int(Urgency::Critical);
    QTest::newRow("time left on battery") << battery << 90.0 << 6.0 << 10.0 << int(Urgency::Alarm);
    QTest::newRow("little time left") << battery << 90.0 << 5.0 << 10.0 << int(Urgency::Critical);
}

void TestFleet::thresholds()
{
    QFETCH(int, source);
    QFETCH(double, charge);
    QFETCH(double, minutes);
    QFETCH(double, load);
    QFETCH(int, urgency);
    UpsReading reading;
    reading.outputSource = static_cast<OutputSource>(source);
    reading.charge = charge;
    reading.runtime = minutes * 60;
    reading.output.load[2] = load;
    QCOMPARE(int(conditionOf(LinkState::Live, &reading).urgency), urgency);
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

void TestFleet::removedDeviceLeavesNoCommandOpen()
{
    Desk desk;
    Device* device = desk.add("sim:");
    desk.commands.post(device, 1003, {});
    desk.fleet.remove(0);
    QCOMPARE(desk.log.at(0).outcome, outcomeLabel(CommandOutcome::NoAnswer));
    QCOMPARE(desk.fleet.count(), 0);
}

QTEST_GUILESS_MAIN(TestFleet)
#include "tst_fleet.moc"
