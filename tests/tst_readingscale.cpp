// Correction factors of readings. Touches readings only.

#include "reading/readingscale.h"

#include <QtTest>

#include <limits>

namespace {

std::vector<Value*> valuesOf(UpsReading& reading)
{
    std::vector<Value*> values{&reading.runtime,
                               &reading.charge,
                               &reading.batteryVoltage,
                               &reading.batteryCurrent,
                               &reading.batteryTemperature,
                               &reading.ratedInputVoltage,
                               &reading.ratedInputFrequency,
                               &reading.ratedOutputVoltage,
                               &reading.ratedOutputFrequency,
                               &reading.ratedApparentPower,
                               &reading.ratedPower};
    for (LineReading* group : {&reading.input, &reading.output, &reading.bypass})
        for (PhaseValues* row :
             {&group->voltage, &group->current, &group->frequency, &group->power, &group->load})
            values.insert(values.end(), {&(*row)[0], &(*row)[1]}); // line 3 is not known
    return values;
}

} // namespace

class TestReadingScale : public QObject
{
    Q_OBJECT

private slots:
    // A name that scales nothing, or something of another name, changes the count.
    void everyNameScalesItsValues()
    {
        UpsReading all;
        for (Value* value : valuesOf(all))
            *value = 1.0;
        QMap<QString, double> scales;
        for (const QString& name : scaleNames()) {
            UpsReading reading = all;
            applyScales(reading, {{name, 11.0}});
            int scaled = 0;
            for (const Value* value : valuesOf(reading))
                scaled += *value == 11.0;
            const bool single =
                name.startsWith("battery") || (name.startsWith("rated") && name.endsWith("power"));
            QVERIFY2(scaled == (single ? 1 : 2), qPrintable(name));
            QVERIFY(!reading.input.voltage[2]);
            scales.insert(name, 11.0);
        }
        applyScales(all, scales);
        int left = 0;
        for (const Value* value : valuesOf(all))
            left += *value != 11.0;
        QCOMPARE(left, 4); // the load of input and bypass does not exist as a quantity
    }

    void factors()
    {
        const double most = std::numeric_limits<double>::max();
        const std::pair<double, double> rows[] = {{0.5, 50},     {0, 100},       {-1, 100},
                                                  {qInf(), 100}, {qQNaN(), 100}, {most, -1}};
        for (const auto& row : rows) {
            UpsReading reading;
            reading.charge = 100.0;
            applyScales(reading, {{"battery.charge", row.first}, {"battery.colour", 3.0}});
            QCOMPARE(reading.charge.value_or(-1.0), row.second); // -1: not known
        }
    }
};

QTEST_GUILESS_MAIN(TestReadingScale)
#include "tst_readingscale.moc"
