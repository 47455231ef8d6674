// The real-time table: the text of every cell for a snapshot. Touches public operations and the
// table itself.

#include "globalvar.h"
#include "rtdataform.h"

#include <QTableWidget>
#include <QtTest>

namespace
{

using Snapshot = QMap<int, QVariant>;

class Probe : public RTDataForm
{
public:
    using RTDataForm::isSinglePhase;

    QTableWidget* table() const { return findChild<QTableWidget*>(QStringLiteral("tableWidget")); }
    QString text(int row, int column) const
    {
        const QTableWidgetItem* item = table()->item(row, column);
        return item ? item->text() : QStringLiteral("(no item)");
    }
    // Of the rows 1 to 22.
    QString column(int column) const
    {
        QStringList texts;
        for (int row = 1; row < table()->rowCount(); ++row)
            texts << text(row, column);
        return texts.join(QStringLiteral(", "));
    }
};

// Each of the 73 keys has a value of its own, so that a mixed-up key shows.
Snapshot distinctValues(int lines)
{
    Snapshot snapshot;
    for (int key = realdata_BatteryStatus; key <= realdata_Reserve5; ++key)
        snapshot[key] = 1000 + key;
    snapshot[realdata_BatteryStatus] = 3;
    snapshot[realdata_OutputSource] = 5;
    snapshot[realdata_BatTemp] = 27;
    for (int key : {realdata_InputNumLines, realdata_OutputNumLines, realdata_BypNumLines})
        snapshot[key] = lines;
    return snapshot;
}

} // namespace

class TestRTDataForm : public QObject
{
    Q_OBJECT

private slots:
    void everyValue_data();
    void everyValue();
    void labelsFollowThePhases();
    void blocksDecideAlone();
    void codes();
    void numbers_data();
    void numbers();
    void groupsAndColumns();
    void shortTableStaysShort();
};

void TestRTDataForm::everyValue_data()
{
    QTest::addColumn<Snapshot>("snapshot");
    QTest::addColumn<QString>("values");
    QTest::newRow("none") << Snapshot{}
                          << "Normal, 0, 0, 0, 0.0, 0.0, 0, "
                             "0, 0, 0.0, 0.0, 0, "
                             "None supply, 0.0, 0, 0.0, 0, 0, "
                             "0.0, 0, 0.0, 0";
    QTest::newRow("one phase") << distinctValues(1)
                               << "Low, 1001, 1002, 1003, 100.4, 100.5, 27, "
                                  "1007, 1009, 101.2, 101.5, 1018, "
                                  "Battery supply, 102.5, 1027, 103.0, 1033, 1039, "
                                  "104.2, 1044, 104.7, 1050";
    QTest::newRow("three phases")
        << distinctValues(3)
        << "Low, 1001, 1002, 1003, 100.4, 100.5, 27, "
           "1007, 1009/1010/1011, 101.2/101.3/101.4, 101.5/101.6/101.7, 1018/1020/1022, "
           "Battery supply, 102.5, 1027/1028/1029, 103.0/103.1/103.2, 1033/1035/1037, "
           "1039/1040/1041, "
           "104.2, 1044/1045/1046, 104.7/104.8/104.9, 1050/1052/1054";
}

void TestRTDataForm::everyValue()
{
    QFETCH(Snapshot, snapshot);
    Probe form;
    form.RefreshRTDataInfo(snapshot);
    QTEST(form.column(2), "values");
}

void TestRTDataForm::labelsFollowThePhases()
{
    Probe form;
    const QString initial = form.column(1);
    form.RefreshRTDataInfo(distinctValues(3));
    const QStringList three = form.column(1).split(QStringLiteral(", "));
    QCOMPARE(three.filter(QStringLiteral("R/S/T")).size(), 11);
    QCOMPARE(three.at(8), QStringLiteral("Input voltage R/S/T(V)"));
    QCOMPARE(three.at(21), QStringLiteral("Bypass power R/S/T(W)"));
    form.RefreshRTDataInfo(distinctValues(1));
    QCOMPARE(form.column(1), initial);
}

void TestRTDataForm::blocksDecideAlone()
{
    const int lines[][3] = {{3, 1, 3}, {1, 3, 1}, {2, 4, 0}}; // only exactly three counts
    for (const auto& [input, output, bypass] : lines) {
        Snapshot snapshot = distinctValues(0);
        snapshot[realdata_InputNumLines] = input;
        snapshot[realdata_OutputNumLines] = output;
        snapshot[realdata_BypNumLines] = bypass;
        Probe form;
        form.RefreshRTDataInfo(snapshot);
        QCOMPARE(form.isSinglePhase, input != 3);
        QCOMPARE(form.text(9, 2).contains(QLatin1Char('/')), input == 3);
        QCOMPARE(form.text(15, 2).contains(QLatin1Char('/')), output == 3);
        QCOMPARE(form.text(20, 2).contains(QLatin1Char('/')), bypass == 3);
        QCOMPARE(form.table()->columnCount(), 3); // marking columns 3 and 4 adds none
    }
}

void TestRTDataForm::codes()
{
    const struct {
        int code;
        const char* texts; // battery state and output mode
    } rows[] = {{-1, "Normal, None supply"},    {0, "Normal, None supply"},
                {1, "Unknown, Other supply"},   {3, "Low, Utility supply"},
                {4, "Depleted, Bypass supply"}, {5, "Normal, Battery supply"},
                {7, "Normal, Reducer supply"},  {8, "Normal, None supply"}};
    Probe form;
    for (const auto& row : rows) {
        form.RefreshRTDataInfo(
            {{realdata_BatteryStatus, row.code}, {realdata_OutputSource, row.code}});
        QCOMPARE(form.text(1, 2) + ", " + form.text(13, 2), QString(row.texts));
    }
}

void TestRTDataForm::numbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("whole");
    QTest::addColumn<QString>("tenths");
    QTest::addColumn<QString>("degrees");
    const auto row = [](const char* name, const QVariant& value, const char* whole,
                        const char* tenths, const char* degrees) {
        QTest::newRow(name) << value << whole << tenths << degrees;
    };
    row("below all temperatures", -1, "-1", "-0.1", "--");
    row("highest temperature", 100, "100", "10.0", "100");
    row("above all temperatures", 101, "101", "10.1", "--");
    row("single precision", 16777217, "16777217", "1677721.8", "--");
    row("text that is no number", "<b>12</b>", "0", "0.0", "0");
}

void TestRTDataForm::numbers()
{
    QFETCH(QVariant, value);
    Probe form;
    form.RefreshRTDataInfo(
        {{realdata_SecondsOnBat, value}, {realdata_BatVoltage, value}, {realdata_BatTemp, value}});
    QTEST(form.text(2, 2), "whole");
    QTEST(form.text(5, 2), "tenths");
    QTEST(form.text(7, 2), "degrees");
}

void TestRTDataForm::groupsAndColumns()
{
    Probe form;
    QTableWidget* table = form.table();
    QStringList groups;
    for (int row = 1; row < table->rowCount(); row += table->rowSpan(row, 0))
        groups << QStringLiteral("%1 %2").arg(row).arg(form.text(row, 0));
    QCOMPARE(groups,
             QStringList({"1 Battery Info", "8 Input Info", "13 Output Info", "19 Bypass Info"}));

    // In a narrow window the table scrolls, and no value is cut.
    form.resize(200, 434);
    form.RefreshRTDataInfo(distinctValues(3));
    form.grab(); // lays out
    const int needed = table->fontMetrics().horizontalAdvance(form.text(11, 2));
    QVERIFY(table->columnWidth(2) > needed);
}

void TestRTDataForm::shortTableStaysShort()
{
    Probe form;
    form.InitRTData();
    QVERIFY(form.column(2).startsWith(QStringLiteral("Normal, 0, 0")));
    form.RefreshRTDataInfo(distinctValues(3)); // a refresh does not bring the rows back
    QVector<int> hidden;
    for (int row = 0; row < form.table()->rowCount(); ++row) {
        if (form.table()->isRowHidden(row))
            hidden << row;
    }
    QCOMPARE(hidden, QVector<int>({2, 3, 6, 10, 12, 16, 17, 21, 22}));
}

QTEST_MAIN(TestRTDataForm)
#include "tst_rtdataform.moc"
