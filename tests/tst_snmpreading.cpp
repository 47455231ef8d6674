// What agents answer, and how polls and commands make the best of it, without a network.

#include "connectors/snmp/snmpcommand.h"
#include "connectors/snmp/snmppoll.h"
#include "connectors/snmp/snmpreading.h"
#include "connectors/snmp/upsmib.h"
#include "support/readingtext.h"
#include "support/snmptable.h"

#include <QTest>

using std::chrono::milliseconds;

namespace {

constexpr char kThreePhase[] = TEST_DATA "/snmp/three-phase.txt";

SnmpTable threePhase()
{
    SnmpTable table;
    table.loadFile(kThreePhase);
    return table;
}

SnmpPoll::Limits pollLimits(int version)
{
    SnmpPoll::Limits limits;
    limits.version = version;
    limits.timeout = milliseconds(4000);
    limits.retries = 1;
    limits.peer = QStringLiteral("ups:161");
    return limits;
}

PollResult pollOnce(SnmpTable& table, SnmpMemory& memory, int version = 1)
{
    SnmpPoll poll(pollLimits(version), memory);
    hold(poll, table, version);
    return poll.result();
}

// A UPS that does as told: tests begin, countdowns run.
void obey(SnmpTable& table)
{
    table.onSet = [&table](const SnmpVariable& variable) {
        if (variable.oid == UpsMib::testId)
            table.load(variable.value.oid.back() == UpsMib::AbortTest ? "7.3.0 i 4" : "7.3.0 i 5");
    };
}

const struct {
    const char* name;
    const char* remove; // subtree of the three-phase UPS
    const char* add;    // lines put in its place
    const char* what;
    const char* expected;
} kReadings[] = {
    {"unknown: -1", "2.3.0", "2.3.0 i -1", "runtime", "-"},
    {"unknown: 65535", "2.6.0", "2.6.0 i 65535", "batteryCurrent", "-"},
    {"null is absent", "2.7.0", "2.7.0 n", "temperature", "-"},
    {"digits in a text are a number", "2.3.0", "2.3.0 t  042 ", "runtime", "2520"},
    {"empty name: that of the system", "1.5.0", "1.5.0 t ", "names",
     "Example Power|Tower 60|card-1|4.2|1.0.7|racks 1-4|Hall 2"},
    {"control characters go", "1.1.0", "1.1.0 t A\x1b[1mB", "names",
     "A[1mB|Tower 60|UPS West|4.2|1.0.7|racks 1-4|Hall 2"},
    {"source is null", "4.1.0", "4.1.0 n", "source", "1"},
    {"low comes before a test", "2.1.0", "2.1.0 i 3\n7.3.0 i 5", "battery", "3"},
    {"a test comes before discharge", "7.3.0", "7.3.0 i 5\n4.1.0 i 5", "battery", "5"},
    {"on battery: seconds count", "4.1.0", "4.1.0 i 5\n2.2.0 i 12", "seconds", "12"},
    {"on mains: the last outage does not", "2.2.0", "2.2.0 i 12", "seconds", "0"},
    {"one line, phantom rows", "3.2.0", "3.2.0 i 1", "input",
     "1: 229/-/- V 6.5/-/- A 49.9/-/- Hz 1310/-/- W -/-/- %"},
    {"no bypass, rows of zeros", "5", "5.1.0 i 0\n5.2.0 i 0\n5.3.1.2.1 i 0\n5.3.1.2.2 i 0",
     "bypass", "0: -/-/- V -/-/- A -/-/- Hz -/-/- W -/-/- %"},
    {"lines without a count", "3.2.0", "", "input",
     "3: 229/230/231 V 6.5/6.6/6.7 A 49.9/50/50.1 Hz 1310/1320/1330 W -/-/- %"},
    {"longer index", "3", "3.2.0 i 1\n3.3.1.2.1.0 i 600\n3.3.1.3.1.0 i 224", "input",
     "1: 224/-/- V -/-/- A 60/-/- Hz -/-/- W -/-/- %"},
    {"rows of zero identifiers are empty", "6", "6.2.1.2.1 o 0.0\n6.2.1.2.2 o 0", "alarms", " "},
    {"alarm 24 and one beyond", "6.2",
     "6.2.1.2.1 o 1.3.6.1.2.1.33.1.6.3.24\n6.2.1.2.2 o 1.3.6.1.2.1.33.1.6.3.25", "alarms",
     "24 1.3.6.1.2.1.33.1.6.3.25"},
    {"a failed test is an alarm", "7.3.0", "7.3.0 i 3", "alarms", "16,19 1.3.6.1.4.1.99999.1.5"},
    {"no alarm table: states are alarms", "6", "4.1.0 i 5\n2.1.0 i 3", "alarms", "2,3 "},
    {"no alarm table: a test is no outage", "6", "4.1.0 i 5\n7.3.0 i 5", "alarms", "24 "},
    {"a test without mains is one", "6", "4.1.0 i 5\n7.3.0 i 5\n3.3.1.3.2 i 0", "alarms", "2,24 "},
    {"an empty alarm table hides no state", "6", "6.1.0 i 0\n4.1.0 i 4\n2.1.0 i 4", "alarms",
     "4,9 "},
    {"a served table only adds", "4.1.0", "4.1.0 i 2", "alarms", "14,16 1.3.6.1.4.1.99999.1.5"},
    {"more alarms than names", "6.1", "6.1.0 i 5", "alarms",
     "16 1.3.6.1.4.1.99999.1.5,Alarms counted, but not named: 3"},
    {"beeper out of range", "9.8.0", "9.8.0 i 0", "beeper", "-"},
    {"no line counted, but voltage", "5.2.0", "5.2.0 i 0", "bypass",
     "3: 232/233/234 V 0.1/0.2/0.3 A 49.8/49.8/49.8 Hz 10/20/30 W -/-/- %"},
    {"lines 0 and 4, and rows of null", "3",
     "3.3.1.3.0 i 1\n3.3.1.3.1 i 230\n3.3.1.3.2 n\n3.3.1.3.4 i 4", "input",
     "1: 230/-/- V -/-/- A -/-/- Hz -/-/- W -/-/- %"},
    {"an identifier as text, twice", "6.2",
     "6.2.1.2.1 t .1.3.6.1.2.1.33.1.6.3.2\n6.2.1.2.2 o 1.3.6.1.2.1.33.1.6.3.2", "alarms", "2 "},
};

using O = CommandOutcome;
using T = SnmpTable;
using Prepare = std::function<void(SnmpTable&)>;

void none(T&) {}

void silent(T& table)
{
    table.setSilent = true;
}

Prepare with(const char* lines)
{
    return [=](T& t) { t.load(lines); };
}

// What every SET does to the agent.
Prepare onSet(const char* lines)
{
    return [=](T& t) { t.onSet = [&t, lines](const SnmpVariable&) { t.load(lines); }; };
}

Prepare from(const char* before, const char* afterSet)
{
    return [=](T& t) {
        t.load(before);
        t.onSet = [&t, afterSet](const SnmpVariable&) { t.load(afterSet); };
    };
}

const struct {
    const char *title, *name, *value;
    Prepare prepare;
    O outcome;
    const char* message;
    int sets;
    const char* result = ""; // lines that the agent holds afterwards
    int delay = 20;          // s, as configured
} kCommands[] = {
    {"self-test", "self-test", "", none, O::Done, "begun", 1, "7.1.0 o 1.3.6.1.2.1.33.1.7.7.4"},
    {"test running", "self-test", "", with("7.3.0 i 5"), O::Refused, "already", 0},
    {"test fails at once", "self-test", "", onSet("7.3.0 i 3"), O::Refused, "failed", 1},
    {"without effect", "self-test", "", onSet(""), O::Unknown, "no effect", 1},
    {"no tests", "self-test", "", [](T& t) { t.removeBelow("7"); }, O::NotOffered,
     "no test objects", 0},
    {"cancel", "cancel-test", "", with("7.3.0 i 5"), O::Done, "ended", 1,
     "7.1.0 o 1.3.6.1.2.1.33.1.7.7.2"},
    {"shutdown of another type", "shutdown", "", with("8.1.0 i 2"), O::Done, "20 s", 2,
     "8.1.0 i 1\n8.2.0 i 20"},
    {"standby of minutes", "standby", "5", none, O::Done, "300 s", 1, "8.4.0 i 300"},
    {"standby of hours", "standby", "120", none, O::Done, "20 s", 2, "8.3.0 i 7200\n8.2.0 i 20"},
    {"standby as long as the delay", "standby", "1", [](T& t) { t.removeBelow("8.4"); }, O::Refused,
     "not shorter", 0, "", 60},
    {"wake-up", "wake-up", "", from("4.1.0 i 2", "4.1.0 i 3"), O::Done, "is on", 1, "8.3.0 i 0"},
    {"wake-up is only noted", "wake-up", "", with("4.1.0 i 2"), O::Unknown, "no effect", 1},
    {"wake-up of an output that is on", "wake-up", "", none, O::Unknown, "was on before", 1},
    {"restart of an output that is off", "restart", "", from("4.1.0 i 2\n8.4.0 i 0", "8.4.0 i 0"),
     O::Unknown, "was off before", 1},
    {"restart of an output that is off, only noted", "restart", "", with("4.1.0 i 2"), O::Unknown,
     "was off before", 1},
    {"restart brings the output on", "restart", "",
     from("4.1.0 i 2\n8.4.0 i 0", "4.1.0 i 3\n8.4.0 i 0"), O::Done, "is on", 1},
    {"countdown always reads 0", "shutdown", "", from("8.2.0 i 0", "8.2.0 i 0"), O::Unknown,
     "no effect", 1},
    {"countdown of another, unmoved", "shutdown", "", with("8.2.0 i 20"), O::Unknown, "no effect",
     1},
    {"countdown of another, taken over", "shutdown", "", with("8.2.0 i 300"), O::Done, "20 s", 1},
    {"off at once", "shutdown", "", onSet("4.1.0 i 2\n8.2.0 i -1"), O::Done, "off", 1},
    {"read-only community", "shutdown", "", [](T& t) { t.setError = SnmpNoAccess; }, O::Refused,
     "community needs write access", 1, "8.2.0 i -1"},
    {"error in the value only", "shutdown", "", [](T& t) { t.setSaysNoInstance = true; },
     O::Refused, "write access", 1},
    {"no answer, but carried out", "shutdown", "", silent, O::Done, "20 s", 1},
    {"no answer, no effect", "self-test", "", [](T& t) { t.setSilent = true, t.onSet = nullptr; },
     O::Unknown, "not sent again", 1},
    {"first of two steps", "standby", "120", silent, O::Unknown, "was not sent", 1},
    {"silent agent", "shutdown", "", [](T& t) { t.silent = true; }, O::NoAnswer, "nothing was set",
     0},
    {"user turned away after the order", "shutdown", "", [](T& t) { t.refusesAfter = 1; },
     O::Unknown, "Unknown user. The command was sent", 1},
    {"second step refused: the first is taken back", "standby", "120",
     [](T& t) { t.refusing = {UpsMib::shutdownAfterDelay}; }, O::Refused, "cannot do this now", 3,
     "8.3.0 i -1\n8.2.0 i -1"},
};

} // namespace

class tst_SnmpReading : public QObject
{
    Q_OBJECT

private slots:
    void readsEverything()
    {
        const QMap<QString, QString> r = describe(readingFromSnmp(threePhase().objects));
        const QMap<QString, QString> expected{
            {"battery", "9"},
            {"source", "3"},
            {"seconds", "0"},
            {"runtime", "2520"},
            {"charge", "97"},
            {"batteryVoltage", "272.8"},
            {"batteryCurrent", "-1.5"},
            {"temperature", "24"},
            {"lineBads", "7"},
            {"input", "3: 229/230/231 V 6.5/6.6/6.7 A 49.9/50/50.1 Hz 1310/1320/1330 W -/-/- %"},
            {"output", "3: 219/220/221 V 7.2/5.4/8.3 A 50/50/50 Hz 1316/1004/1728 W 24/18/28 %"},
            {"bypass", "3: 232/233/234 V 0.1/0.2/0.3 A 49.8/49.8/49.8 Hz 10/20/30 W -/-/- %"},
            {"ratings", "230 50 220 50 60000 54000 300 184 265"},
            {"beeper", "2"},
            {"alarms", "16 1.3.6.1.4.1.99999.1.5"},
            {"names", "Example Power|Tower 60|UPS West|4.2|1.0.7|racks 1-4|Hall 2"},
        };
        for (auto it = expected.begin(); it != expected.end(); ++it)
            QCOMPARE(it.key() + ' ' + r[it.key()], it.key() + ' ' + it.value());
    }

    void reads()
    {
        for (const auto& row : kReadings) {
            SnmpTable table = threePhase();
            table.removeBelow(row.remove);
            table.load(row.add);
            const QString found = describe(readingFromSnmp(table.objects))[row.what];
            QCOMPARE(row.name + (": " + found), row.name + QString(": ") + row.expected);
        }
    }

    void alarmAges()
    {
        const struct {
            const char* times; // agent's clock 100 s after its start
            double age;        // -1: not known
        } rows[] = {{"6.2.1.3.1 i 4000", 60},
                    {"6.2.1.3.1 i 0", -1},
                    {"6.2.1.3.1 i 10500", 0},
                    {"6.2.1.3.1 i 20000", -1},
                    {"6.2.1.3.2 i 4000", -1},
                    {"6.2.1.2.9 o 1.3.6.1.2.1.33.1.6.3.5\n6.2.1.3.9 i 1000\n6.2.1.3.1 i 4000", 90}};
        for (const auto& row : rows) {
            SnmpTable table;
            table.load("1.3.6.1.2.1.1.3.0 i 10000\n6.2.1.2.1 o 1.3.6.1.2.1.33.1.6.3.5");
            table.load(row.times);
            const UpsReading reading = readingFromSnmp(table.objects);
            QVERIFY2(reading.alarmAges.value(Alarm::TemperatureBad, -1) == row.age, row.times);
        }
        SnmpTable testing = threePhase(); // a test that draws on the battery is as old as that
        testing.load("4.1.0 i 5\n7.3.0 i 5\n2.2.0 i 3600");
        QCOMPARE(readingFromSnmp(testing.objects).alarmAges.value(Alarm::TestInProgress), 3600.0);
    }

    // Whatever the agent's habits: the same reading, within the time of a poll, and the next poll
    // does not try in vain again.
    void polls()
    {
        const struct {
            const char* name;
            int version;
            int silentAbove;
            int tooBigAbove;
            int answersFirst;
            bool bulkSilent;
            int largestLater; // objects in one request of the second poll
        } rows[] = {
            {"version 1", 1, 1000, 1000, 1000, false, 20},
            {"version 2c", 2, 1000, 1000, 1000, false, 20},
            {"one object at a time", 2, 1, 1000, 1000, false, 1},
            {"too big above 3", 2, 1000, 3, 1000, false, 2},
            {"answers the first only", 2, 1000, 1000, 1, false, 1},
            {"silent at GETBULK", 2, 1000, 1000, 1000, true, 20},
        };
        SnmpTable readable = threePhase();
        readable.removeBelow("2.7.0");
        const QMap<QString, QString> expected = describe(readingFromSnmp(readable.objects));
        for (const auto& row : rows) {
            SnmpTable table = threePhase();
            table.silentAbove = row.silentAbove;
            table.tooBigAbove = row.tooBigAbove;
            table.answersFirst = row.answersFirst;
            table.bulkSilent = row.bulkSilent;
            table.failing = {SnmpTable::oid("2.7.0")};
            table.circular = {SnmpTable::oid("4.4.1.5.3")};

            SnmpMemory memory;
            SnmpPoll first(pollLimits(row.version), memory);
            QVERIFY2(hold(first, table, row.version) <= milliseconds(8000), row.name);
            QVERIFY2(first.result().state == LinkState::Live, row.name);
            QVERIFY2(describe(first.result().reading) == expected, row.name);

            table.largest = 0;
            SnmpPoll second(pollLimits(row.version), memory);
            QVERIFY2(hold(second, table, row.version) == milliseconds(0), row.name);
            QVERIFY2(table.largest == row.largestLater, row.name);
            QVERIFY2(describe(second.result().reading) == expected, row.name);
        }
    }

    void remembersWhatIsMissing()
    {
        SnmpTable table = threePhase();
        for (const char* subtree : {"9", "4.1.0"})
            table.removeBelow(subtree);
        SnmpMemory memory;
        QCOMPARE(pollOnce(table, memory).state, LinkState::Live);
        table.load("4.1.0 i 5\n9.1.0 i 230"); // the agent has started up meanwhile
        const PollResult later = pollOnce(table, memory);
        QCOMPARE(later.reading.outputSource, OutputSource::Battery); // never given up
        QVERIFY(!later.reading.ratedInputVoltage); // asked for again after a while
        SnmpMemory restarted = memory;
        for (int i = 0; i < 61; ++i)
            pollOnce(table, memory);
        QVERIFY(pollOnce(table, memory).reading.ratedInputVoltage);

        table.load("1.3.6.1.2.1.1.3.0 i 100"); // or at once when the agent has restarted
        pollOnce(table, restarted, 1);
        // It may be another one now, which takes one object at a time.
        SnmpMemory weaker = restarted;
        table.silentAbove = 1;
        QCOMPARE(pollOnce(table, weaker).state, LinkState::Live);
        table.silentAbove = 1000;
        QVERIFY(pollOnce(table, restarted, 1).reading.ratedInputVoltage);
    }

    void tellsWhyThereIsNoReading()
    {
        const struct {
            const char* objects;
            bool silent;
            LinkState state;
            const char* message;
        } rows[] = {
            {"", true, LinkState::Lost, "nothing at ups:161"},
            {"4.1.0 i 3\n6.2.1.2.7 o 1.3.6.1.2.1.33.1.6.3.20", false, LinkState::Stale,
             "lost contact with its UPS"},
            {"1.3.6.1.2.1.1.5.0 t p", false, LinkState::Refused, "not a UPS"},
            {"2.4.0 i 50", false, LinkState::Live, ""},
        };
        for (const auto& row : rows) {
            SnmpTable table;
            table.load(row.objects);
            table.silent = row.silent;
            SnmpMemory memory;
            const PollResult result = pollOnce(table, memory);
            QCOMPARE(result.state, row.state);
            QVERIFY2(result.message.contains(row.message), qPrintable(result.message));
        }
    }

    void commands()
    {
        for (const auto& row : kCommands) {
            SnmpTable table = threePhase();
            obey(table);
            row.prepare(table);
            SnmpCommand::Limits limits;
            limits.account = QStringLiteral("community");
            UpsCommand command = *commandFromName(row.name, row.value).command;
            command.shutdownDelay = row.delay;
            SnmpCommand dialogue(command, limits);
            hold(dialogue, table);
            const CommandResult result = dialogue.result();
            QVERIFY2(result.message.contains(row.message), qPrintable(row.title + result.message));
            QVERIFY2(result.outcome == row.outcome, row.title);
            QVERIFY2(table.sets == row.sets, row.title);
            SnmpTable expected;
            expected.load(row.result);
            for (const auto& object : expected.objects) {
                QCOMPARE(table.objects[object.first].integer, object.second.integer);
                QCOMPARE(table.objects[object.first].oid, object.second.oid);
            }
        }
    }

    // Of two who start a test at once, the slower one looks again instead of giving up.
    void retriesTheTestLock()
    {
        SnmpTable table = threePhase();
        obey(table);
        table.setError = SnmpInconsistentValue;
        SnmpCommand dialogue(UpsCommand(), {});
        while (const std::optional<SnmpRequest> request = dialogue.next()) {
            dialogue.take(*table.answer(*request, 2));
            if (table.sets == 1) {
                table.setError = SnmpNoError;
                table.load("7.2.0 i 12");
            }
        }
        QCOMPARE(table.sets, 2);
        QCOMPARE(dialogue.result().outcome, CommandOutcome::Done);
    }
};

QTEST_APPLESS_MAIN(tst_SnmpReading)
#include "tst_snmpreading.moc"
