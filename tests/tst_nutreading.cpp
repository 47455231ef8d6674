// The variables of a NUT device as a reading: names, units, what counts as unknown, and what may
// be taken for mains supply.

#include "connectors/nut/nutreading.h"
#include "support/readingtext.h"

#include <QFile>
#include <QtTest>

using A = Alarm;

static NutVariables recording(const QString& name)
{
    QFile file(QStringLiteral(TEST_DATA "/nut/") + name);
    NutVariables variables;
    if (!file.open(QIODevice::ReadOnly))
        return variables;
    const auto lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const int colon = line.indexOf(':');
        if (colon > 0 && !line.startsWith('#'))
            variables.insert(line.left(colon), line.mid(colon + 1));
    }
    return variables;
}

using Texts = QMap<QString, QString>;

// Those of the expected texts that a reading does not have.
static Texts missing(const UpsReading& reading, Texts expected)
{
    const Texts found = describe(reading);
    for (auto it = found.begin(); it != found.end(); ++it)
        if (expected.value(it.key()) == it.value())
            expected.remove(it.key());
    return expected;
}

class TestNutReading : public QObject
{
    Q_OBJECT

private slots:
    void recordings()
    {
        const UpsReading one = readingFromNut(recording("single-phase.dev"), "Described", "unit1");
        const Texts single{
            {"source", "3"},
            {"battery", "7"},
            {"seconds", "-"},
            {"runtime", "1860"},
            {"charge", "100"},
            {"batteryVoltage", "54.6"},
            {"batteryCurrent", "-0.3"},
            {"temperature", "24.6"},
            {"input", "-: 231.5/-/- V 1.9/-/- A 49.9/-/- Hz 391/-/- W -/-/- %"},
            {"output", "-: 230/-/- V 1.7/-/- A 50/-/- Hz 344/-/- W 38/-/- %"},
            {"bypass", "-: 229.4/-/- V -/-/- A 50/-/- Hz -/-/- W -/-/- %"},
            {"ratings", "230 50 230 50 1000 900 180 170 286"},
            {"beeper", "3"},
            {"names", "Example Power|Line 1000|Rack 3|2.08|1.4||Room 12"},
            {"alarms", " "},
        };
        QCOMPARE(missing(one, single), Texts());
        QCOMPARE(one.notes, QStringList());

        const UpsReading three = readingFromNut(recording("three-phase.dev"), "Described", "unit1");
        const Texts tower{
            {"input",
             "3: 231/232/233 V 21.5/22.5/23.5 A 50.1/50.1/50.1 Hz 4800/4900/5000 W -/-/- %"},
            {"output", "3: 230/230/229 V 20/21/22 A 50/50/50 Hz 4500/4600/4700 W 61/62/63 %"},
            {"bypass", "3: 228/229/230 V -/-/- A 50/50/50 Hz -/-/- W -/-/- %"},
            {"ratings", "- - - - 20000 18000 - - -"},
            {"names", "Example Power|Tower 20|Described||||"},
        };
        QCOMPARE(missing(three, tower), Texts());
        QCOMPARE(three.notes, QStringList());

        const UpsReading odd = readingFromNut(recording("line-to-line.dev"), {}, "unit1");
        const Texts lineToLine{
            {"input", "3: 398/401/399 V 31/-/- A -/-/- Hz -/-/- W -/-/- %"},
            {"output", "2: 120/121/- V 12.5/-/- A -/-/- Hz -/-/- W 55/-/- %"},
        };
        QCOMPARE(missing(odd, lineToLine), Texts());
        QCOMPARE(odd.name, QString("unit1"));
        QCOMPARE(odd.notes.size(), 2);
        QVERIFY(odd.notes.at(0).contains("line to line"));
        QVERIFY(odd.notes.at(1).contains("current, load"));
    }

    void oddValuesAreAbsent()
    {
        const UpsReading r = readingFromNut(recording("odd-values.dev"));
        const Texts expected{
            {"charge", "-"},
            {"batteryCurrent", "-"},
            {"runtime", "-"},
            {"temperature", "-"},
            {"batteryVoltage", "-"},
            {"input", "-: -/-/- V -/-/- A -/-/- Hz -/-/- W -/-/- %"},
            {"output", "-: -/-/- V -/-/- A -/-/- Hz -/-/- W -/-/- %"},
        };
        QCOMPARE(missing(r, expected), Texts());
        QCOMPARE(r.model, QString("Fallback"));
        QVERIFY(r.manufacturer.isEmpty());
        QVERIFY(!r.alarms.contains(A::ShutdownPending));
    }

    void hostileTextStaysText()
    {
        const UpsReading r = readingFromNut(recording("hostile.dev"));
        QCOMPARE(r.model, QString("<img src=x onerror=alert(1)> %s%n ../../etc/passwd"));
        QCOMPARE(r.alarmTexts, QStringList("'); DROP TABLE samples; --"));
        QCOMPARE(r.outputSource, OutputSource::Utility);
        QCOMPARE(r.batteryState, BatteryState::Normal);
        QCOMPARE(r.alarms, QSet<Alarm>{A::GeneralFault});
        QVERIFY(isPrivateNutVariable("driver.parameter.password"));
        QVERIFY(!isPrivateNutVariable("driver.name"));
    }

    void status()
    {
        using S = OutputSource;
        using B = BatteryState;
        const struct {
            const char* status;
            S source;
            B battery;
            QSet<Alarm> alarms;
        } rows[] = {
            {"  ALARM   OL ", S::Utility, B::Normal, {A::GeneralFault}},
            {"OB DISCHRG", S::Battery, B::Discharge, {A::OnBattery, A::InputBad}},
            {"OL CAL", S::Battery, B::SelfTest, {A::TestInProgress}},
            {"OB CAL", S::Battery, B::SelfTest, {A::OnBattery, A::TestInProgress}},
            {"OL TEST", S::Utility, B::SelfTest, {A::TestInProgress}},
            {"OL BYPASS OVER", S::Bypass, B::Normal, {A::OnBypass, A::OutputOverload}},
            {"OL BOOST", S::Booster, B::Normal, {}},
            {"TRIM", S::Reducer, B::Unknown, {}},
            {"BOOST", S::Booster, B::Unknown, {}},
            {"OL OFF", S::None, B::Normal, {A::OutputOff}},
            {"FSD OB LB",
             S::Battery,
             B::Low,
             {A::OnBattery, A::InputBad, A::LowBattery, A::ShutdownImminent}},
            {"", S::Other, B::Unknown, {}},
            {"WAIT", S::Other, B::Unknown, {}},
            {"ALARM RB", S::Other, B::Unknown, {A::GeneralFault, A::BatteryBad}},
            {"ol", S::Other, B::Unknown, {}},
        };
        for (const auto& row : rows) {
            const UpsReading r = readingFromNut({{"ups.status", row.status}});
            QVERIFY2(r.outputSource == row.source, row.status);
            QVERIFY2(r.batteryState == row.battery, row.status);
            QVERIFY2(r.alarms == row.alarms, row.status);
            QCOMPARE(r.notes.isEmpty(), r.outputSource != S::Other);
        }
    }

    // Without a count of lines: what a name gives, where, and that it betrays the line.
    void namesPerLine()
    {
        const struct {
            const char* name;
            const char* output;
            const char* apparent;
        } rows[] = {
            {"ups.L1.realpower", "-: -/-/- V -/-/- A -/-/- Hz 7/-/- W -/-/- %", "-/-/-"},
            {"ups.L2.load", "2: -/-/- V -/-/- A -/-/- Hz -/-/- W -/7/- %", "-/-/-"},
            {"ups.L3.power", "3: -/-/- V -/-/- A -/-/- Hz -/-/- W -/-/- %", "-/-/7"},
            {"output.L3.realpower", "3: -/-/- V -/-/- A -/-/- Hz -/-/7 W -/-/- %", "-/-/-"},
            {"output.L2.power.percent", "2: -/-/- V -/-/- A -/-/- Hz -/-/- W -/7/- %", "-/-/-"},
            {"output.L1.power", "-: -/-/- V -/-/- A -/-/- Hz -/-/- W -/-/- %", "7/-/-"},
            {"ups.power", "-: -/-/- V -/-/- A -/-/- Hz -/-/- W -/-/- %", "7/-/-"},
        };
        for (const auto& row : rows) {
            const UpsReading r = readingFromNut({{row.name, "7"}});
            QCOMPARE(row.name + text(r.output), QString(row.name) + row.output);
            QCOMPARE(row.name + text(r.output.apparentPower), QString(row.name) + row.apparent);
        }
    }

    void conditions()
    {
        const struct {
            const char* variable;
            const char* value;
            QSet<Alarm> alarms;
        } rows[] = {
            {"input.voltage.status", "good", {}},
            {"input.L2.frequency.status", "out-of-range", {A::InputBad}},
            {"ambient.2.temperature.status", "critical-low", {A::TemperatureBad}},
            {"ambient.2.temperature.status", "unknown", {}},
            {"ups.timer.shutdown", "20", {A::ShutdownPending}},
            {"ups.timer.shutdown", "-60", {}},
            {"ups.test.result", "Test FAILED", {A::DiagnosticTestFailed}},
            {"ups.test.result", "Done, no error", {}},
        };
        for (const auto& row : rows) {
            NutVariables variables{{"ups.status", "OL"}, {row.variable, row.value}};
            QVERIFY2(readingFromNut(variables).alarms == row.alarms, row.value);
            variables["ambient.2.present"] = "no";
            QVERIFY(!readingFromNut(variables).alarms.contains(A::TemperatureBad));
        }
    }

    void chargerAndChargeCompleteTheStatus()
    {
        const NutVariables mains{{"ups.status", "OL"}, {"battery.charger.status", "charging"}};
        QCOMPARE(readingFromNut(mains).batteryState, BatteryState::BoostCharge);
        const NutVariables empty{{"ups.status", "OB LB"}, {"battery.charge", "0"}};
        const UpsReading depleted = readingFromNut(empty);
        QCOMPARE(depleted.batteryState, BatteryState::Depleted);
        QCOMPARE(depleted.notes.size(), 1);
        const NutVariables wrong{{"ups.status", "OL"}, {"battery.charge", "0"}};
        QCOMPARE(readingFromNut(wrong).batteryState, BatteryState::Normal);
    }
};

QTEST_GUILESS_MAIN(TestNutReading)
#include "tst_nutreading.moc"
