// The real-time table: the text of every cell for a snapshot. Touches public operations and the
// table itself.

#include "globalvar.h"
#include "rtdataform.h"
#include "support/quietplatform.h"

#include <QTableWidget>
#include <QtTest>

namespace {

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
    // Each text anew, one by one, as the table's own way is.
    void writePlainly(const Probe& other)
    {
        for (int row = 1; row < table()->rowCount(); ++row)
            for (int column : {1, 2})
                table()->setItem(row, column, new QTableWidgetItem(other.text(row, column)));
    }
    QVector<int> widths() const
    {
        return {table()->columnWidth(0), table()->columnWidth(1), table()->columnWidth(2)};
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
    void initTestCase() { dropRemarksOfThePlatform(); }
    void everyValue();
    void everyLabel();
    void blocksDecideAlone();
    void codesAndNumbers();
    void shortTableStaysShort();
    void columnsFollowTheTexts();
};

void TestRTDataForm::everyValue()
{
    const std::pair<Snapshot, const char*> rows[] = {
        {{},
         "Normal, 0, 0, 0, 0.0, 0.0, 0, 0, 0, 0.0, 0.0, 0, "
         "None supply, 0.0, 0, 0.0, 0, 0, 0.0, 0, 0.0, 0"},
        {distinctValues(1),
         "Low, 1001, 1002, 1003, 100.4, 100.5, 27, 1007, 1009, 101.2, 101.5, 1018, "
         "Battery supply, 102.5, 1027, 103.0, 1033, 1039, 104.2, 1044, 104.7, 1050"},
        {distinctValues(3),
         "Low, 1001, 1002, 1003, 100.4, 100.5, 27, "
         "1007, 1009/1010/1011, 101.2/101.3/101.4, 101.5/101.6/101.7, 1018/1020/1022, "
         "Battery supply, 102.5, 1027/1028/1029, 103.0/103.1/103.2, 1033/1035/1037, "
         "1039/1040/1041, 104.2, 1044/1045/1046, 104.7/104.8/104.9, 1050/1052/1054"}};
    Probe form;
    for (const auto& [snapshot, values] : rows) {
        form.RefreshRTDataInfo(snapshot);
        QCOMPARE(form.column(2), QString(values));
    }
}

void TestRTDataForm::everyLabel()
{
    const QString battery =
        QStringLiteral("Battery state, Time on battery(s), Remaining battery time(Min), "
                       "Remaining battery capacity(%), Battery voltage(V), Battery current(A), "
                       "Battery temperature(C), Number of mains failure, ");
    const QString lines = QStringLiteral(
        "Input voltage%1(V), Input current%1(A), Input frequency%1(Hz), Input power%1(W), "
        "Output mode, Output frequency(Hz), "
        "Output voltage%1(V), Output current%1(A), Output power%1(W), Output load%1(%), "
        "Bypass frequency(Hz), Bypass voltage%1(V), Bypass current%1(A), Bypass power%1(W)");
    Probe form;
    form.RefreshRTDataInfo(distinctValues(1));
    QCOMPARE(form.column(1), battery + lines.arg(QString()));
    form.RefreshRTDataInfo(distinctValues(3));
    QCOMPARE(form.column(1), battery + lines.arg(" R/S/T"));
}

void TestRTDataForm::blocksDecideAlone()
{
    Probe form;
    // Only exactly three counts.
    const int lines[][3] = {{3, 1, 3}, {1, 3, 1}, {2, 4, 0}};
    for (const auto& [input, output, bypass] : lines) {
        Snapshot snapshot = distinctValues(0);
        snapshot[realdata_InputNumLines] = input;
        snapshot[realdata_OutputNumLines] = output;
        snapshot[realdata_BypNumLines] = bypass;
        form.RefreshRTDataInfo(snapshot);
        QCOMPARE(form.isSinglePhase, input != 3);
        for (auto [first, last, count] :
             {std::tuple(9, 12, input), std::tuple(15, 18, output), std::tuple(20, 22, bypass)}) {
            for (int row = first; row <= last; ++row) {
                QCOMPARE(form.text(row, 1).contains("R/S/T"), count == 3);
                QCOMPARE(form.text(row, 2).contains('/'), count == 3);
            }
        }
        QCOMPARE(form.table()->columnCount(), 3); // marking columns 3 and 4 adds none
    }
}

void TestRTDataForm::codesAndNumbers()
{
    const struct {
        QVariant value;
        const char* texts; // as battery state, output mode, whole number, tenths and degrees
    } rows[] = {{-1, "Normal, None supply, -1, -0.1, --"},
                {4, "Depleted, Bypass supply, 4, 0.4, 4"},
                {5, "Normal, Battery supply, 5, 0.5, 5"},
                {7, "Normal, Reducer supply, 7, 0.7, 7"},
                {8, "Normal, None supply, 8, 0.8, 8"},
                {100, "Normal, None supply, 100, 10.0, 100"},
                {101, "Normal, None supply, 101, 10.1, --"},
                {16777217, "Normal, None supply, 16777217, 1677721.8, --"}, // single precision
                {"<b>12</b>", "Normal, None supply, 0, 0.0, 0"}};
    Probe form;
    for (const auto& [value, texts] : rows) {
        Snapshot snapshot;
        for (int key : {realdata_BatteryStatus, realdata_OutputSource, realdata_SecondsOnBat,
                        realdata_BatVoltage, realdata_BatTemp})
            snapshot[key] = value;
        form.RefreshRTDataInfo(snapshot);
        const QStringList shown{form.text(1, 2), form.text(13, 2), form.text(2, 2), form.text(5, 2),
                                form.text(7, 2)};
        QCOMPARE(shown.join(", "), QString(texts));
    }
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

void TestRTDataForm::columnsFollowTheTexts()
{
    Snapshot lengthy = distinctValues(3);
    lengthy[realdata_OutputVoltage_A] = lengthy[realdata_OutputVoltage_B] = 2000000000;
    for (int kind = 0; kind < 4; ++kind) { // shown or hidden, with all rows or the short table
        Probe form, plain;
        for (Probe* each : {&form, &plain}) {
            if (kind & 1)
                each->InitRTData();
            each->setVisible(kind & 2);
        }
        QSet<int> valueWidths;
        for (const Snapshot& snapshot : {distinctValues(3), lengthy, distinctValues(1)}) {
            form.RefreshRTDataInfo(snapshot);
            plain.writePlainly(form);
            QCoreApplication::processEvents();
            QCOMPARE(form.widths(), plain.widths());
            valueWidths << form.widths().at(2);
        }
        QCOMPARE(valueWidths.size(), 3);
    }
}

QTEST_MAIN(TestRTDataForm)
#include "tst_rtdataform.moc"
