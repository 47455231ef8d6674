// The variables of a NUT device as a reading: names, units, what counts as unknown, and what may
// be taken for mains supply.

#include "connectors/nut/nutreading.h"

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

static const PhaseValues kNothing;

class TestNutReading : public QObject
{
    Q_OBJECT

private slots:
    void singlePhase()
    {
        const UpsReading r = readingFromNut(recording("single-phase.dev"), "Described", "unit1");
        QCOMPARE(r.outputSource, OutputSource::Utility);
        QCOMPARE(r.batteryState, BatteryState::FloatCharge);
        QVERIFY(!r.secondsOnBattery);
        QCOMPARE(r.runtime, Value(1860));
        QCOMPARE(r.charge, Value(100));
        QCOMPARE(r.batteryVoltage, Value(54.6));
        QCOMPARE(r.batteryCurrent, Value(-0.3));
        QCOMPARE(r.batteryTemperature, Value(24.6));
        QVERIFY(!r.input.lines);
        QCOMPARE(r.input.voltage, (PhaseValues{231.5}));
        QCOMPARE(r.input.current, (PhaseValues{1.9}));
        QCOMPARE(r.input.frequency, (PhaseValues{49.9}));
        QCOMPARE(r.input.power, (PhaseValues{391}));
        QCOMPARE(r.input.load, kNothing);
        QCOMPARE(r.output.voltage, (PhaseValues{230}));
        QCOMPARE(r.output.power, (PhaseValues{344}));
        QCOMPARE(r.output.load, (PhaseValues{38}));
        QCOMPARE(r.bypass.voltage, (PhaseValues{229.4}));
        QCOMPARE(r.bypass.frequency, (PhaseValues{50}));
        QCOMPARE(r.bypass.current, kNothing);
        QCOMPARE(r.ratedInputVoltage, Value(230));
        QCOMPARE(r.ratedInputFrequency, Value(50));
        QCOMPARE(r.ratedOutputVoltage, Value(230));
        QCOMPARE(r.ratedOutputFrequency, Value(50));
        QCOMPARE(r.ratedApparentPower, Value(1000));
        QCOMPARE(r.ratedPower, Value(900));
        QCOMPARE(r.lowBatteryTime, Value(180));
        QCOMPARE(r.lowTransferVoltage, Value(170));
        QCOMPARE(r.highTransferVoltage, Value(286));
        QVERIFY(r.beeper == Beeper::Muted);
        QCOMPARE(r.name, QString("Rack 3"));
        QCOMPARE(r.manufacturer, QString("Example Power"));
        QCOMPARE(r.model, QString("Line 1000"));
        QCOMPARE(r.softwareVersion, QString("2.08"));
        QCOMPARE(r.agentVersion, QString("1.4"));
        QCOMPARE(r.location, QString("Room 12"));
        QCOMPARE(r.alarms, QSet<Alarm>());
        QCOMPARE(r.alarmTexts + r.notes, QStringList());
    }

    void threePhase()
    {
        const UpsReading r = readingFromNut(recording("three-phase.dev"), "Described", "unit1");
        QVERIFY(r.input.lines == 3 && r.output.lines == 3);
        QVERIFY2(r.bypass.lines == 3, "counted by the names of its lines");
        QCOMPARE(r.input.voltage, (PhaseValues{231, 232, 233}));
        QCOMPARE(r.input.current, (PhaseValues{21.5, 22.5, 23.5}));
        QCOMPARE(r.input.frequency, (PhaseValues{50.1, 50.1, 50.1}));
        QCOMPARE(r.input.power, (PhaseValues{4800, 4900, 5000}));
        QCOMPARE(r.output.load, (PhaseValues{61, 62, 63}));
        QCOMPARE(r.output.power, (PhaseValues{4500, 4600, 4700}));
        QCOMPARE(r.bypass.voltage, (PhaseValues{228, 229, 230}));
        QCOMPARE(r.ratedApparentPower, Value(20000));
        QCOMPARE(r.ratedPower, Value(18000));
        QCOMPARE(r.model, QString("Tower 20"));
        QCOMPARE(r.name, QString("Described"));
        QCOMPARE(r.notes, QStringList());
    }

    void lineToLine()
    {
        const UpsReading r = readingFromNut(recording("line-to-line.dev"), {}, "unit1");
        QCOMPARE(r.input.voltage, (PhaseValues{398, 401, 399}));
        QCOMPARE(r.input.current, (PhaseValues{31}));
        QVERIFY(r.output.lines == 2);
        QCOMPARE(r.output.voltage, (PhaseValues{120, 121}));
        QCOMPARE(r.output.current, (PhaseValues{12.5}));
        QCOMPARE(r.output.load, (PhaseValues{55}));
        QCOMPARE(r.name, QString("unit1"));
        QCOMPARE(r.notes.size(), 3);
        QVERIFY(r.notes.at(0).contains("line to line"));
        QVERIFY(r.notes.at(1).contains("split phase"));
        QVERIFY(r.notes.at(2).contains("current, load"));
    }

    void oddValuesAreAbsent()
    {
        const UpsReading r = readingFromNut(recording("odd-values.dev"));
        for (const Value& value :
             {r.charge, r.batteryCurrent, r.runtime, r.batteryTemperature, r.batteryVoltage})
            QVERIFY(!value);
        QVERIFY(!r.input.lines);
        for (const PhaseValues& values :
             {r.input.voltage, r.input.frequency, r.output.voltage, r.output.load})
            QCOMPARE(values, kNothing);
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
        row("OL CHRG", S::Utility, B::BoostCharge);
        row("  ALARM   OL ", S::Utility, B::Normal, {A::GeneralFault});
        row("OL BOOST", S::Booster, B::Normal);
        row("OL TRIM", S::Reducer, B::Normal);
        row("OB DISCHRG", S::Battery, B::Discharge, {A::OnBattery, A::InputBad});
        row("OB LB", S::Battery, B::Low, {A::OnBattery, A::InputBad, A::LowBattery});
        row("OL CAL", S::Battery, B::SelfTest, {A::TestInProgress});
        row("OB CAL", S::Battery, B::SelfTest, {A::OnBattery, A::TestInProgress});
        row("OL TEST", S::Utility, B::SelfTest, {A::TestInProgress});
        row("OL BYPASS OVER", S::Bypass, B::Normal, {A::OnBypass, A::OutputOverload});
        row("OL OFF", S::None, B::Normal, {A::OutputOff});
        row("OFF", S::None, B::Unknown, {A::OutputOff});
        row("FSD OB LB", S::Battery, B::Low,
            {A::OnBattery, A::InputBad, A::LowBattery, A::ShutdownImminent});
        row("OL RB", S::Utility, B::Normal, {A::BatteryBad});
        row("", S::Other, B::Unknown);
        row("WAIT", S::Other, B::Unknown);
        row("ALARM RB", S::Other, B::Unknown, {A::GeneralFault, A::BatteryBad});
        row("CHRG", S::Other, B::Unknown);
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
        row("ups.timer.shutdown", "0");
        row("ups.timer.shutdown", "-60");
        row("ups.test.result", "Done and error", {A::DiagnosticTestFailed});
        row("ups.test.result", "BadTest", {A::DiagnosticTestFailed});
        row("ups.test.result", "NG", {A::DiagnosticTestFailed});
        row("ups.test.result", "Test FAILED", {A::DiagnosticTestFailed});
        row("ups.test.result", "Done, no error");
        row("ups.test.result", "In progress");
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
