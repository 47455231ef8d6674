// Correction factors of readings. Touches readings only.

#include "reading/readingscale.h"

#include <QtTest>

#include <limits>

class TestReadingScale : public QObject
{
    Q_OBJECT

private slots:
    void everyNameScalesItsValues();
    void oneNameLeavesTheOthers();
    void factors_data();
    void factors();
};

namespace
{

UpsReading fullReading()
{
    UpsReading reading;
    for (LineReading* group : {&reading.input, &reading.output, &reading.bypass})
        for (PhaseValues* values :
             {&group->voltage, &group->current, &group->frequency, &group->power, &group->load})
            *values = {1.0, 2.0, std::nullopt};
    for (Value* value :
         {&reading.runtime, &reading.charge, &reading.batteryVoltage, &reading.batteryCurrent,
          &reading.batteryTemperature, &reading.ratedInputVoltage, &reading.ratedInputFrequency,
          &reading.ratedOutputVoltage, &reading.ratedOutputFrequency, &reading.ratedApparentPower,
          &reading.ratedPower})
        *value = 1.0;
    return reading;
}

// Sum of all values: a name that scales nothing, or something twice, changes it wrongly.
double sum(const UpsReading& reading)
{
    double result = 0;
    for (const LineReading* group : {&reading.input, &reading.output, &reading.bypass})
        for (const PhaseValues* values :
             {&group->voltage, &group->current, &group->frequency, &group->power, &group->load})
            for (const Value& value : *values)
                result += value.value_or(0);
    for (const Value& value :
         {reading.runtime, reading.charge, reading.batteryVoltage, reading.batteryCurrent,
          reading.batteryTemperature, reading.ratedInputVoltage, reading.ratedInputFrequency,
          reading.ratedOutputVoltage, reading.ratedOutputFrequency, reading.ratedApparentPower,
          reading.ratedPower})
        result += value.value_or(0);
    return result;
}

} // namespace

void TestReadingScale::everyNameScalesItsValues()
{
    QCOMPARE(scaleNames().size(), 22);
    QMap<QString, double> all;
    for (const QString& name : scaleNames()) {
        UpsReading reading = fullReading();
        applyScales(reading, {{name, 11.0}});
        const double difference = sum(reading) - sum(fullReading());
        if (name.startsWith("battery") || (name.startsWith("rated") && name.endsWith("power")))
            QCOMPARE(difference, 10.0); // one value
        else if (name.startsWith("rated"))
            QCOMPARE(difference, 20.0); // input and output
        else
            QCOMPARE(difference, 30.0); // lines of 1 and 2
        all.insert(name, 2.0);
    }
    UpsReading reading = fullReading();
    applyScales(reading, all);
    // The load of input and bypass does not exist as a quantity.
    QCOMPARE(sum(reading), 2 * sum(fullReading()) - 6.0);
}

void TestReadingScale::oneNameLeavesTheOthers()
{
    UpsReading reading = fullReading();
    applyScales(reading, {{"input.voltage", 0.1}, {"battery.charge", 10.0}});
    QCOMPARE(*reading.input.voltage[1], 0.2);
    QVERIFY(!reading.input.voltage[2]); // not known stays not known
    QCOMPARE(*reading.output.voltage[1], 2.0);
    QCOMPARE(*reading.input.current[1], 2.0);
    QCOMPARE(*reading.charge, 10.0);
    QCOMPARE(*reading.runtime, 1.0);
}

void TestReadingScale::factors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("charge"); // -1: not known
    QTest::newRow("valid") << "battery.charge" << 0.5 << 50.0;
    QTest::newRow("zero") << "battery.charge" << 0.0 << 100.0;
    QTest::newRow("negative") << "battery.charge" << -1.0 << 100.0;
    QTest::newRow("infinite") << "battery.charge" << qInf() << 100.0;
    QTest::newRow("not a number") << "battery.charge" << qQNaN() << 100.0;
    QTest::newRow("overflow") << "battery.charge" << std::numeric_limits<double>::max() << -1.0;
    QTest::newRow("unknown name") << "battery.colour" << 0.5 << 100.0;
}

void TestReadingScale::factors()
{
    QFETCH(QString, name);
    QFETCH(double, factor);
    QFETCH(double, charge);
    UpsReading reading;
    reading.charge = 100.0;
    applyScales(reading, {{name, factor}});
    QCOMPARE(reading.charge.value_or(-1.0), charge);
}

QTEST_GUILESS_MAIN(TestReadingScale)
#include "tst_readingscale.moc"
