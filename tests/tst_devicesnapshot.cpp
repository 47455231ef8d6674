// From a reading to data keys: rounding, halves, tenths, phases, alarms by their text, and the
// difference between the pages. Also that the host's alarm texts are what the alarm page shows.

#include "reading/devicesnapshot.h"
#include "reading/keynames.h"
#include "reading/sanitize.h"

#include "globalvar.h"
#include "rteventform.h"

#include <QTableWidget>
#include <QtTest>

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(SnapshotPage)

class TestDeviceSnapshot : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyOfItsOwn();
    void everyUnit();
    void numbers_data();
    void numbers();
    void absentStaysAbsent();
    void phases_data();
    void phases();
    void alarmKeysAlwaysComplete();
    void alarmTextIsWhatThePageShows_data();
    void alarmTextIsWhatThePageShows();
    void deviceText_data();
    void deviceText();
    void deviceNumber_data();
    void deviceNumber();
};

namespace {

using Fill = std::function<void(UpsReading&)>;

int valueOf(const Fill& fill, SnapshotPage page, int key)
{
    UpsReading reading;
    fill(reading);
    const auto map = deviceSnapshot(reading, page);
    return map.contains(key) ? map.value(key).toInt() : std::numeric_limits<int>::min();
}

// Every quantity has a value of its own: what is stored as a plain number is stored as 100 + its
// key.
UpsReading distinctReading()
{
    UpsReading r;
    r.batteryState = BatteryState::Low;
    r.secondsOnBattery = 101;
    r.runtime = 102 * 60;
    r.charge = 98;
    r.batteryVoltage = 10.4;
    r.batteryCurrent = 10.5;
    r.batteryTemperature = 10.6;
    r.outputSource = OutputSource::Booster;
    r.inputLineBads = 107;
    r.input = {3, {109, 110, 111}, {11.2, 11.3, 11.4}, {11.5, 11.6, 11.7}, {118, 120, 122}, {}, {}};
    r.output = {3,
                {127, 128, 129},
                {13.0, 13.1, 13.2},
                {12.5, 1, 2},
                {133, 135, 137},
                {139, 140, 141},
                {3, 4, 5}};
    r.bypass = {3, {144, 145, 146}, {14.7, 14.8, 14.9}, {14.2, 6, 7}, {150, 152, 154}, {}, {}};
    r.ratedInputVoltage = 156;
    r.ratedInputFrequency = 15.7;
    r.ratedOutputVoltage = 158;
    r.ratedOutputFrequency = 15.9;
    r.ratedApparentPower = 320;
    r.ratedPower = 162;
    r.lowBatteryTime = 164 * 60;
    r.beeper = Beeper::Muted;
    r.lowTransferVoltage = 166;
    r.highTransferVoltage = 167;
    r.alarmCount = 4;
    const std::pair<QString UpsReading::*, const char*> texts[] = {
        {&UpsReading::model, "model"},
        {&UpsReading::manufacturer, "maker"},
        {&UpsReading::name, "name"},
        {&UpsReading::attachedDevices, "attached"},
        {&UpsReading::softwareVersion, "software"},
        {&UpsReading::agentVersion, "agent"},
        {&UpsReading::location, "location"}};
    for (const auto& [member, text] : texts)
        r.*member = QString::fromLatin1(text);
    return r;
}

} // namespace

Q_DECLARE_METATYPE(Fill)

void TestDeviceSnapshot::everyKeyOfItsOwn()
{
    const QMap<int, int> others{{realdata_BatteryStatus, 3},      {realdata_ChargeRemaining, 98},
                                {realdata_InputNumLines, 3},      {realdata_OutputSource, 6},
                                {realdata_OutputNumLines, 3},     {realdata_BypNumLines, 3},
                                {realdata_ConfigAudibleStatus, 3}};
    const auto map = deviceSnapshot(distinctReading(), SnapshotPage::Device);
    for (int key = realdata_BatteryStatus; key <= realdata_ConfigHighVol; ++key) {
        const int plain = keyName(key).endsWith(QLatin1String("_Lo")) ? 0 : 100 + key;
        QVERIFY2(map.contains(key), qPrintable(keyName(key)));
        QCOMPARE(keyName(key) + map[key].toString(),
                 keyName(key) + QString::number(others.value(key, plain)));
    }
    QStringList texts;
    for (int key = info_ups_type; key <= info_quenta_location; ++key)
        texts << map.value(key).toString();
    QCOMPARE(texts.join('|'), QString("model|maker|name|attached|software|agent|location"));
    QCOMPARE(map.value(info_alanum).toInt(), 4);
}

// The unit by the name of the key; the number is the page's, by one of its scales.
void TestDeviceSnapshot::everyUnit()
{
    const std::pair<const char*, const char*> units[] = {
        {"Vol", "V"},        {"Current", "A"},   {"Fre", "Hz"},       {"VA", "VA"},
        {"Power", "W"},      {"OPW", "W"},       {"Load", "%"},       {"Charge", "%"},
        {"Temp", "\u00b0C"}, {"Minutes", "min"}, {"BattTime", "min"}, {"Seconds", "s"}};
    const auto page = deviceSnapshot(distinctReading(), SnapshotPage::Device);
    const auto physical = physicalValues(distinctReading());
    QCOMPARE(physical.size(), 51);
    for (auto it = physical.begin(); it != physical.end(); ++it) {
        const QString name = keyName(it.key());
        QString unit;
        for (const auto& [word, of] : units)
            if (unit.isEmpty() && name.contains(QLatin1String(word)))
                unit = QString::fromUtf8(of);
        QCOMPARE(name + ' ' + it->unit, name + ' ' + unit);
        const double scale = page.value(it.key()).toInt() / it->value;
        QVERIFY2(qFuzzyCompare(scale, 1) || qFuzzyCompare(scale, 10) || qFuzzyCompare(scale, 0.5),
                 qPrintable(name));
    }
}

void TestDeviceSnapshot::numbers_data()
{
    QTest::addColumn<Fill>("fill");
    QTest::addColumn<SnapshotPage>("page");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("expected");

    const auto row = [](const char* name, Fill fill, SnapshotPage page, int key, int expected) {
        QTest::newRow(name) << fill << page << key << expected;
    };
    const auto device = SnapshotPage::Device;
    const auto energy = SnapshotPage::EnergyFlow;
    const auto chart = SnapshotPage::Chart;
    row(
        "whole minutes, rounded down", [](UpsReading& r) { r.runtime = 119.9; }, device,
        realdata_MinutesRemaining, 1);
    row(
        "charge above 100 is cut", [](UpsReading& r) { r.charge = 104; }, device,
        realdata_ChargeRemaining, 100);
    row(
        "half of a tenth, away from zero", [](UpsReading& r) { r.batteryVoltage = 1.15; }, device,
        realdata_BatVoltage, 12);
    row(
        "discharge keeps its sign", [](UpsReading& r) { r.batteryCurrent = -12.4; }, device,
        realdata_BatCurrent, -124);
    row(
        "charts get its magnitude", [](UpsReading& r) { r.batteryCurrent = -12.4; }, chart,
        realdata_BatCurrent, 124);
    row(
        "charts get whole degrees", [](UpsReading& r) { r.batteryTemperature = 23.5; }, chart,
        realdata_BatTemp, 24);
    row(
        "power in watts", [](UpsReading& r) { r.output.power[0] = 1499.6; }, device,
        realdata_OutputPower_A_Hi, 1500);
    row(
        "energy flow in kilowatts", [](UpsReading& r) { r.output.power[0] = 1500; }, energy,
        realdata_OutputPower_A_Hi, 2);
    row(
        "half a kilowatt", [](UpsReading& r) { r.output.power[0] = 500; }, energy,
        realdata_OutputPower_A_Hi, 1);
    row(
        "below half a kilowatt", [](UpsReading& r) { r.output.power[0] = 499.6; }, energy,
        realdata_OutputPower_A_Hi, 0);
    row(
        "rating stays in watts", [](UpsReading& r) { r.ratedPower = 18000; }, energy,
        realdata_ConfigOPW_Hi, 18000);
    row(
        "counter beyond an int", [](UpsReading& r) { r.inputLineBads = 4.2e9; }, device,
        realdata_InputLineBads, INT_MAX);
    row(
        "source of an empty reading", [](UpsReading&) {}, device, realdata_OutputSource, 1);
}

void TestDeviceSnapshot::numbers()
{
    QFETCH(Fill, fill);
    QFETCH(SnapshotPage, page);
    QFETCH(int, key);
    QFETCH(int, expected);
    QCOMPARE(valueOf(fill, page, key), expected);
}

void TestDeviceSnapshot::absentStaysAbsent()
{
    const auto map = deviceSnapshot({}, SnapshotPage::Device);
    for (int key : {realdata_BatVoltage, realdata_MinutesRemaining, realdata_InputVoltage_A,
                    realdata_OutputLoad_A, realdata_BypFre, info_ups_type, info_innum})
        QVERIFY2(!map.contains(key), qPrintable(keyName(key)));
}

void TestDeviceSnapshot::phases_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("shown");
    QTest::addColumn<bool>("phaseB");
    QTest::newRow("not said") << -1 << 1 << false;
    QTest::newRow("single, phantom rows left out") << 1 << 1 << false;
    QTest::newRow("split phase") << 2 << 1 << false;
    QTest::newRow("three") << 3 << 3 << true;
}

void TestDeviceSnapshot::phases()
{
    QFETCH(int, lines);
    QFETCH(int, shown);
    QFETCH(bool, phaseB);
    UpsReading reading;
    if (lines >= 0)
        reading.bypass.lines = lines;
    reading.bypass.voltage = {230.4, 231.5, 229.0};
    const auto map = deviceSnapshot(reading, SnapshotPage::Device);
    QCOMPARE(map.value(realdata_BypNumLines).toInt(), shown);
    QCOMPARE(map.value(realdata_BypVoltage_A).toInt(), 230);
    QCOMPARE(map.contains(realdata_BypVoltage_B), phaseB);
    QCOMPARE(map.contains(info_bypnum), lines >= 0);
    const QStringList notes = readingNotes(reading);
    QCOMPARE(notes.size(), lines == 2 ? 2 : 1);
    QVERIFY(notes.last().contains("battery voltage")); // not given, and so shown as 0
    QVERIFY(notes.last().contains("rated active power"));
    QVERIFY(!notes.last().contains("bypass voltage"));
    reading.bypass.voltage[1] = {};
    QCOMPARE(readingNotes(reading).last().contains("bypass voltage of line 2"), shown == 3);
    QVERIFY(notes.last().contains("bypass frequency"));
}

void TestDeviceSnapshot::alarmKeysAlwaysComplete()
{
    UpsReading reading;
    reading.alarms = {Alarm::OnBattery, Alarm::AwaitingPower};
    const auto map = deviceSnapshot(reading, SnapshotPage::Device);
    int raised = 0;
    for (int key = alarm_CommunicationsLost; key <= alarm_TestInProgress; ++key) {
        QVERIFY(map.contains(key));
        raised += map.value(key).toInt();
    }
    QCOMPARE(raised, 1);
    QCOMPARE(map.value(alarm_OnBattery).toInt(), 1);
}

void TestDeviceSnapshot::alarmTextIsWhatThePageShows_data()
{
    QTest::addColumn<int>("number");
    for (int number = 1; number <= static_cast<int>(Alarm::TestInProgress); ++number)
        QTest::addRow("alarm %d", number) << number;
}

void TestDeviceSnapshot::alarmTextIsWhatThePageShows()
{
    QFETCH(int, number);
    const auto alarm = static_cast<Alarm>(number);
    UpsReading reading;
    reading.alarms = {alarm};
    RTEventForm page(nullptr);
    page.RefreshRTEventInfo(deviceSnapshot(reading, SnapshotPage::Device));
    auto* table = page.findChild<QTableWidget*>();
    QVERIFY(table);
    if (alarm == Alarm::AwaitingPower) {
        QCOMPARE(table->rowCount(), 0);
        QVERIFY(!alarmText(alarm).isEmpty());
        return;
    }
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 1)->text(), alarmText(alarm));
}

void TestDeviceSnapshot::deviceText_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QString>("clean");
    QTest::newRow("UTF-8") << QByteArray("K\xc3\xb6ln") << QString::fromUtf8("K\xc3\xb6ln");
    QTest::newRow("Latin-1") << QByteArray("K\xf6ln") << QString::fromUtf8("K\xc3\xb6ln");
    QTest::newRow("control characters") << QByteArray("a\x1b[31mb\x07\0c", 10) << "a[31mbc";
    QTest::newRow("text direction override")
        << QString(QChar(0x202e)).append("abc").toUtf8() << "abc";
    QTest::newRow("cut at a blank")
        << QByteArray(kMaxDeviceText - 1, 'x') + " y" << QString(kMaxDeviceText - 1, 'x');
    QTest::newRow("too long") << QByteArray(1000, 'x') << QString(kMaxDeviceText, 'x');
}

void TestDeviceSnapshot::deviceText()
{
    QFETCH(QByteArray, raw);
    QTEST(cleanDeviceText(raw), "clean");
}

void TestDeviceSnapshot::deviceNumber_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("number"); // NaN: absent
    const double absent = std::nan("");
    QTest::newRow("decimal") << QByteArray("227.50") << 227.5;
    QTest::newRow("not known, -1") << QByteArray("-1.00") << absent;
    QTest::newRow("not known, 65535") << QByteArray("65535") << absent;
    QTest::newRow("not known, 655350") << QByteArray("655350") << absent;
    QTest::newRow("not known, 4294967295") << QByteArray("4294967295") << absent;
    QTest::newRow("not known, -273") << QByteArray("-273") << absent;
    QTest::newRow("negative but real") << QByteArray("-12.5") << -12.5;
}

void TestDeviceSnapshot::deviceNumber()
{
    QFETCH(QByteArray, text);
    QFETCH(double, number);
    const Value value = plausibleNumber(text);
    QCOMPARE(value.has_value(), !std::isnan(number));
    if (value)
        QCOMPARE(*value, number);
}

QTEST_MAIN(TestDeviceSnapshot)
#include "tst_devicesnapshot.moc"
