// The real-time table: the text of every cell for a snapshot. Touches public operations and the
// table itself.

#include "globalvar.h"
#include "rtdataform.h"

#include <QTableWidget>
#include <QtTest>

#include <limits>

namespace
{

using Snapshot = QMap<int, QVariant>;

class Probe : public RTDataForm
{
public:
    using RTDataForm::currentName;
    using RTDataForm::isSinglePhase;

    QTableWidget* table() const { return findChild<QTableWidget*>(QStringLiteral("tableWidget")); }
    QString text(int row, int column) const
    {
        const QTableWidgetItem* item = table()->item(row, column);
        return item ? item->text() : QStringLiteral("(no item)");
    }
    QStringList column(int column, int firstRow, int lastRow) const
    {
        QStringList texts;
        for (int row = firstRow; row <= lastRow; ++row)
            texts << text(row, column);
        return texts;
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
    void frame();
    void emptySnapshot();
    void everyValueOfOnePhase();
    void everyValueOfThreePhases();
    void blocksDecideAlone_data();
    void blocksDecideAlone();
    void codes_data();
    void codes();
    void temperature_data();
    void temperature();
    void numbers_data();
    void numbers();
    void shortTableStaysShort();
};

void TestRTDataForm::frame()
{
    Probe form;
    QCOMPARE(form.size(), QSize(538, 434));
    QTableWidget* table = form.table();
    QCOMPARE(table->columnCount(), 3);
    QCOMPARE(table->rowCount(), 23);
    QVERIFY(form.isSinglePhase);
    QCOMPARE(form.text(0, 0), QStringLiteral("Real-time Info"));
    QCOMPARE(table->item(0, 2)->background().color(), QColor(250, 250, 250));

    const QMap<int, QPair<QString, int>> groups{{1, {QStringLiteral("Battery Info"), 7}},
                                                {8, {QStringLiteral("Input Info"), 5}},
                                                {13, {QStringLiteral("Output Info"), 6}},
                                                {19, {QStringLiteral("Bypass Info"), 4}}};
    for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
        QCOMPARE(form.text(group.key(), 0), group.value().first);
        QCOMPARE(table->rowSpan(group.key(), 0), group.value().second);
    }
    QCOMPARE(form.text(1, 1), QStringLiteral("Battery state"));
    QCOMPARE(form.text(22, 1), QStringLiteral("Bypass power(W)"));
    QCOMPARE(form.text(1, 2), QStringLiteral("(no item)"));
    form.setCurrentName(QStringLiteral("UPS 1"));
    QCOMPARE(form.currentName, QStringLiteral("UPS 1"));
}

void TestRTDataForm::emptySnapshot()
{
    Probe form;
    form.InitRTDataFormInfo();
    QCOMPARE(form.column(2, 1, 22),
             QStringList({"Normal",      "0",   "0",   "0",   "0.0", "0.0",
                          "0",           "0",   "0",   "0.0", "0.0", "0", // input
                          "None supply", "0.0", "0",   "0.0", "0",   "0", // output
                          "0.0",         "0",   "0.0", "0"}));
    QCOMPARE(form.text(9, 1), QStringLiteral("Input voltage(V)"));
}

void TestRTDataForm::everyValueOfOnePhase()
{
    Probe form;
    form.RefreshRTDataInfo(distinctValues(1));
    QCOMPARE(form.column(2, 1, 22), QStringList({"Low",
                                                 "1001",
                                                 "1002",
                                                 "1003",
                                                 "100.4",
                                                 "100.5",
                                                 "27",
                                                 "1007",
                                                 "1009",
                                                 "101.2",
                                                 "101.5",
                                                 "1018", // input
                                                 "Battery supply",
                                                 "102.5",
                                                 "1027",
                                                 "103.0",
                                                 "1033",
                                                 "1039",
                                                 "104.2",
                                                 "1044",
                                                 "104.7",
                                                 "1050"}));
    QVERIFY(form.isSinglePhase);
}

void TestRTDataForm::everyValueOfThreePhases()
{
    Probe form;
    form.RefreshRTDataInfo(distinctValues(3));
    QVERIFY(!form.isSinglePhase);
    QCOMPARE(form.column(1, 9, 12),
             QStringList({"Input voltage R/S/T(V)", "Input current R/S/T(A)",
                          "Input frequency R/S/T(Hz)", "Input power R/S/T(W)"}));
    QCOMPARE(form.column(2, 9, 12), QStringList({"1009/1010/1011", "101.2/101.3/101.4",
                                                 "101.5/101.6/101.7", "1018/1020/1022"}));
    QCOMPARE(form.column(1, 15, 18),
             QStringList({"Output voltage R/S/T(V)", "Output current R/S/T(A)",
                          "Output power R/S/T(W)", "Output load R/S/T(%)"}));
    QCOMPARE(form.column(2, 15, 18), QStringList({"1027/1028/1029", "103.0/103.1/103.2",
                                                  "1033/1035/1037", "1039/1040/1041"}));
    QCOMPARE(form.column(1, 20, 22),
             QStringList(
                 {"Bypass voltage R/S/T(V)", "Bypass current R/S/T(A)", "Bypass power R/S/T(W)"}));
    QCOMPARE(form.column(2, 20, 22),
             QStringList({"1044/1045/1046", "104.7/104.8/104.9", "1050/1052/1054"}));

    form.RefreshRTDataInfo(distinctValues(1));
    QCOMPARE(form.text(9, 1), QStringLiteral("Input voltage(V)"));
    QCOMPARE(form.text(18, 1), QStringLiteral("Output load(%)"));
    QCOMPARE(form.text(20, 2), QStringLiteral("1044"));
}

void TestRTDataForm::blocksDecideAlone_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("output");
    QTest::addColumn<int>("bypass");
    QTest::newRow("three in, one out") << 3 << 1 << 3;
    QTest::newRow("one in, three out") << 1 << 3 << 1;
    QTest::newRow("only exactly three counts") << 2 << 4 << 0;
}

void TestRTDataForm::blocksDecideAlone()
{
    QFETCH(int, input);
    QFETCH(int, output);
    QFETCH(int, bypass);
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

void TestRTDataForm::codes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("battery");
    QTest::addColumn<QString>("supply");
    const auto row = [](int code, const char* battery, const char* supply) {
        QTest::addRow("%d", code) << code << battery << supply;
    };
    row(-1, "Normal", "None supply");
    row(0, "Normal", "None supply");
    row(1, "Unknown", "Other supply");
    row(2, "Normal", "None supply");
    row(3, "Low", "Utility supply");
    row(4, "Depleted", "Bypass supply");
    row(5, "Normal", "Battery supply");
    row(6, "Normal", "Booster supply");
    row(7, "Normal", "Reducer supply");
    row(8, "Normal", "None supply");
    row(std::numeric_limits<int>::min(), "Normal", "None supply");
}

void TestRTDataForm::codes()
{
    QFETCH(int, code);
    Probe form;
    form.RefreshRTDataInfo({{realdata_BatteryStatus, code}, {realdata_OutputSource, code}});
    QTEST(form.text(1, 2), "battery");
    QTEST(form.text(13, 2), "supply");
}

void TestRTDataForm::temperature_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QString>("text");
    QTest::newRow("-1") << -1 << "--";
    QTest::newRow("0") << 0 << "0";
    QTest::newRow("100") << 100 << "100";
    QTest::newRow("101") << 101 << "--";
}

void TestRTDataForm::temperature()
{
    QFETCH(int, degrees);
    Probe form;
    form.RefreshRTDataInfo({{realdata_BatTemp, degrees}});
    QTEST(form.text(7, 2), "text");
}

void TestRTDataForm::numbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("whole");
    QTest::addColumn<QString>("tenths");
    QTest::newRow("negative") << QVariant(-5) << "-5"
                              << "-0.5";
    QTest::newRow("single precision") << QVariant(16777217) << "16777217"
                                      << "1677721.8";
    QTest::newRow("device text that is no number") << QVariant("<b>12</b>") << "0"
                                                   << "0.0";
    QTest::newRow("number as text") << QVariant("12") << "12"
                                    << "1.2";
}

void TestRTDataForm::numbers()
{
    QFETCH(QVariant, value);
    Probe form;
    form.RefreshRTDataInfo({{realdata_SecondsOnBat, value}, {realdata_BatVoltage, value}});
    QTEST(form.text(2, 2), "whole");
    QTEST(form.text(5, 2), "tenths");
}

void TestRTDataForm::shortTableStaysShort()
{
    Probe form;
    form.InitRTData();
    QCOMPARE(form.text(1, 2), QStringLiteral("Normal"));
    QCOMPARE(form.text(22, 2), QStringLiteral("0"));
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
