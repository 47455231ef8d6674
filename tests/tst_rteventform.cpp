// The alarm page: texts by key, onset times over a sequence of snapshots, the table's behaviour.
// Touches only the page; time is never waited for, known onsets are planted instead.

#include "globalvar.h"
#include "rteventform.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QtTest>

#include <cmath>

namespace {

class Page : public RTEventForm
{
public:
    using RTEventForm::alarmTable, RTEventForm::table_alarm_record;

    QStringList column(int column) const
    {
        QStringList texts;
        for (int row = 0; row < table_alarm_record->rowCount(); ++row)
            texts << table_alarm_record->item(row, column)->text();
        return texts;
    }
};

} // namespace

class TestRTEventForm : public QObject
{
    Q_OBJECT

private slots:
    void textOfKey();
    void onsetOverTime();
    void tableIsReadOnly();
};

void TestRTEventForm::textOfKey()
{
    const struct {
        int key;
        const char* text;
    } rows[] = {
        {2000, "Communication between agent and UPS fault"},
        {2019, "Last diagnostic test failed"}, // the last where name and text agree
        {alarm_TestFailed, "Communications between the agent and the UPS fault"},
        {alarm_InverterRun, "Battery Discharge"}, // has no clear text
        {alarm_BypassSwitch, nullptr},
        {alarm_TH4_Temp_Lo, "Temperature and humidity module 4 humidity is too low"},
        {1999, nullptr},
        {alarm_TH4_Hum_Hi, nullptr}, // the first beyond the list
    };
    for (const auto& [key, text] : rows) {
        Page page;
        page.RefreshRTEventInfo({{key, 1}});
        QCOMPARE(page.column(1), text ? QStringList(text) : QStringList());
        const bool listed = key >= 2000 && key < 2054;
        QCOMPARE(page.alarmTable.keys(), listed ? QList<int>{key - 2000} : QList<int>());
    }
    Page page;
    page.RefreshRTEventInfo({{2009, 1}, {2001, 1}, {2024, 1}, {2005, 0}});
    QCOMPARE(page.column(1), QStringList({"Battery fault", "Bypass powered"})); // in key order
}

void TestRTEventForm::onsetOverTime()
{
    const struct {
        QVariantList later; // states after the first pass, which is 1
        bool shown, keepsOnset;
    } rows[] = {
        {{1, 1}, true, true},
        {{0}, false, false},
        {{QVariant()}, false, false},
        {{"<b>1</b>"}, false, false},
        {{QVariantList{1}}, false, false},
        {{std::nan("")}, false, false},
        {{0, 1}, true, false},
        {{2}, false, true}, // hides only
        {{-1}, false, true},
        {{2, 1}, true, true},
        {{2, 0, 1}, true, false},
    };
    const QDateTime planted({2020, 2, 29}, {23, 59, 58});
    for (const auto& [later, shown, keepsOnset] : rows) {
        Page page;
        const QDateTime before = QDateTime::currentDateTime();
        page.RefreshRTEventInfo({{alarm_LowBattery, 1}});
        QVERIFY(page.alarmTable.value(3) >= before);
        page.alarmTable[3] = planted;
        for (const QVariant& state : later)
            page.RefreshRTEventInfo({{alarm_LowBattery, state}});
        QCOMPARE(page.alarmTable.value(3) == planted, keepsOnset);
        const QStringList times(page.alarmTable.value(3).toString("yyyy-MM-dd HH:mm:ss"));
        QCOMPARE(page.column(0), shown ? times : QStringList());
    }
}

void TestRTEventForm::tableIsReadOnly()
{
    Page page;
    QTableWidget* table = page.table_alarm_record;
    page.RefreshRTEventInfo({{alarm_OnBattery, 1}, {alarm_KVFLAG, 1}});
    page.resize(420, 660);
    page.grab(); // lays out
    const auto centre = [table](int row) {
        return table->visualItemRect(table->item(row, 1)).center();
    };
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, centre(0));
    QVERIFY(table->findChildren<QLineEdit*>().isEmpty());
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, centre(0));
    QCOMPARE(table->selectedItems().size(), 2); // both cells of one row
    page.setCurrentName(QStringLiteral("other"));
    page.InitRTEventFormInfo();
    QCOMPARE(table->rowCount(), 2); // a new name leaves the alarms as they are
    page.RefreshRTEventInfo({{2001, 1}, {2003, 1}});
    QVERIFY(table->selectedItems().isEmpty());
}

QTEST_MAIN(TestRTEventForm)
#include "tst_rteventform.moc"
