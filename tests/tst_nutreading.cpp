// The variables of a NUT device as a reading: names, units, what counts as unknown, and what may
// be taken for mains supply.

#include "connectors/nut/nutreading.h"
#include "support/readingtext.h"

#include <QFile>
#include <QtTest>

Q_DECLARE_METATYPE(OutputSource)
Q_DECLARE_METATYPE(BatteryState)
Q_DECLARE_METATYPE(QSet<Alarm>)

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

    void status_data()
    {
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<OutputSource>("source");
        QTest::addColumn<BatteryState>("battery");
        QTest::addColumn<QSet<Alarm>>("alarms");
        const auto row = [](const char* status, OutputSource source, BatteryState battery,
                            const QSet<Alarm>& alarms = {}) {
            QTest::newRow(*status ? status : "empty")
                << QByteArray(status) << source << battery << alarms;
        };
        using S = OutputSource;
        using B = BatteryState;
        row("OL", S::Utility, B::Normal);
        row("  ALARM   OL ", S::Utility, B::Normal, {A::GeneralFault});
        row("OB DISCHRG", S::Battery, B::Discharge, {A::OnBattery, A::InputBad});
        row("OB LB", S::Battery, B::Low, {A::OnBattery, A::InputBad, A::LowBattery});
        row("OL CAL", S::Battery, B::SelfTest, {A::TestInProgress});
        row("OB CAL", S::Battery, B::SelfTest, {A::OnBattery, A::TestInProgress});
        row("OL TEST", S::Utility, B::SelfTest, {A::TestInProgress});
        row("OL BYPASS OVER", S::Bypass, B::Normal, {A::OnBypass, A::OutputOverload});
        row("OL OFF", S::None, B::Normal, {A::OutputOff});
        row("FSD OB LB", S::Battery, B::Low,
            {A::OnBattery, A::InputBad, A::LowBattery, A::ShutdownImminent});
        row("", S::Other, B::Unknown);
        row("WAIT", S::Other, B::Unknown);
        row("ALARM RB", S::Other, B::Unknown, {A::GeneralFault, A::BatteryBad});
        row("ol", S::Other, B::Unknown);
    }
    void status()
    {
        QFETCH(QByteArray, status);
        const UpsReading r = readingFromNut({{"ups.status", status}});
        QTEST(r.outputSource, "source");
        QTEST(r.batteryState, "battery");
        QTEST(r.alarms, "alarms");
        QCOMPARE(r.notes.isEmpty(), r.outputSource != OutputSource::Other);
    }

    void conditions_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QSet<Alarm>>("alarms");
        const auto row = [](const char* variable, const char* value,
                            const QSet<Alarm>& alarms = {}) {
            QTest::addRow("%s %s", variable, value)
                << QByteArray(variable) << QByteArray(value) << alarms;
        };
        row("input.voltage.status", "good");
        row("input.voltage.status", "critical-low", {A::InputBad});
        row("input.L2.frequency.status", "out-of-range", {A::InputBad});
        row("ambient.temperature.status", "warning-high", {A::TemperatureBad});
        row("ambient.2.temperature.status", "critical-low", {A::TemperatureBad});
        row("ambient.2.temperature.status", "unknown");
        row("ups.timer.shutdown", "20", {A::ShutdownPending});
        row("ups.timer.shutdown", "-60");
        row("ups.test.result", "Done and error", {A::DiagnosticTestFailed});
        row("ups.test.result", "Test FAILED", {A::DiagnosticTestFailed});
        row("ups.test.result", "Done, no error");
        row("ups.test.result", "InvalidTest");
    }
    void conditions()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QByteArray, value);
        const UpsReading r = readingFromNut({{"ups.status", "OL"}, {variable, value}});
        QTEST(r.alarms, "alarms");
        const UpsReading absent =
            readingFromNut({{"ups.status", "OL"}, {"ambient.2.present", "no"}, {variable, value}});
        QCOMPARE(absent.alarms.contains(A::TemperatureBad),
                 r.alarms.contains(A::TemperatureBad) && !variable.startsWith("ambient.2."));
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
