// Both chart pages and their container: which key reaches which gauge, curve and legend entry, and
// what their legends say. Reads gauges and charts by what they tell assistive technology.

#include "chartform.h"
#include "datachart.h"
#include "globalvar.h"
#include "rtsinglegraphform.h"
#include "rtthreegraphform.h"
#include "support/recordingdevice.h"

#include <QLabel>
#include <QtTest>

namespace {

using Snapshot = QMap<int, QVariant>;

template <typename T>
T* child(const QWidget& page, const char* name)
{
    return page.findChild<T*>(QLatin1String(name));
}
QString told(const QWidget& page, const char* name)
{
    const QWidget* widget = child<QWidget>(page, name);
    return widget ? widget->accessibleName().section(": ", 1) : QStringLiteral("(missing)");
}
QString texts(const QWidget& page, const char* names)
{
    QStringList all;
    for (const QByteArray& name : QByteArray(names).split(' ')) {
        const QLabel* label = child<QLabel>(page, name);
        all << (label ? label->text() : QStringLiteral("(missing)"));
    }
    return all.join(' ').remove(QStringLiteral("Current value:"));
}

// Every key has its own value within the scales of the gauges.
Snapshot distinctValues()
{
    Snapshot snapshot;
    for (int key = realdata_BatteryStatus; key <= realdata_Reserve5; ++key)
        snapshot[key] = 10 + key;
    return snapshot;
}

const char kSingleLegend[] = "value_input value_output value_batt value_bypass";
const char kThreeLegend[] = "inVol1 inVol2 inVol3 inFre1 inFre2 inFre3 outVol1 outVol2 outVol3 "
                            "outFre byVol1 byVol2 byVol3 byFre";

} // namespace

class TestChartPages : public QObject
{
    Q_OBJECT

private slots:
    void gauges();
    void bands();
    void unfedPageKeepsTheGaugesDefaults();
    void legendsAndCurves();
    void initialisation();
    void oddReadings();
    void containerRoutesToTheVisiblePage();
};

void TestChartPages::gauges()
{
    RTSingleGraphForm single;
    RTThreeGraphForm three;
    single.RefreshRtSingleChartInfo(distinctValues());
    three.RefreshRtChartInfo(distinctValues());
    const struct {
        const QWidget& page;
        const char* gauge;
        double top;
        const char* told;
    } rows[] = {
        {single, "widget_load", 100, "13 %"}, // shows the charge
        {single, "widget_outload", 160, "49 %"},
        {single, "widget_temp", 100, "--"}, // never read
        {single, "widget_input_freq", 100, "2.5 Hz"},
        {single, "widget_out_freq", 100, "3.5 Hz"},
        {single, "widget_by_freq", 100, "5.2 Hz"},
        {three, "widget_load", 100, "13 %"},
        {three, "widget_outload", 160, "49 %"},
        {three, "widget_temp", 100, "16 C"}, // whole degrees
        {three, "widget_batt_volt", 600, "1.4 V"},
        {three, "widget_batt_curr", 200, "1.5 A"},
    };
    for (const auto& row : rows) {
        QCOMPARE(child<DataChart>(row.page, row.gauge)->getMaxValue(), row.top);
        QCOMPARE(told(row.page, row.gauge), QString(row.told));
    }
}

// The colours of the bands at, below and above their limits: green, yellow, red.
void TestChartPages::bands()
{
    RTSingleGraphForm single;
    RTThreeGraphForm three;
    const auto bandOf = [](QWidget& page, const char* gauge) {
        auto* chart = child<DataChart>(page, gauge);
        chart->resize(200, 150);
        RecordingDevice recorder(chart->size());
        chart->render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
        for (const PaintStep& step : recorder.stepsOf(PaintStep::Path)) {
            const QGradient* gradient = step.brush.gradient();
            const QColor colour = gradient ? gradient->stops().first().second : QColor();
            for (const auto& [name, first] : {std::pair('g', QColor(138, 226, 52)),
                                              {'y', QColor(255, 235, 69)},
                                              {'r', QColor(238, 119, 34)}})
                if (colour == first)
                    return name;
        }
        return '-';
    };
    const struct {
        QWidget& page;
        const char* gauge;
        int key;
        QVector<int> values; // as stored
        const char* bands;
    } rows[] = {
        {single, "widget_load", realdata_ChargeRemaining, {0, 29, 30, 60, 61, 100}, "rryygg"},
        {three, "widget_load", realdata_ChargeRemaining, {29, 30, 60, 61}, "ryyg"},
        {single, "widget_outload", realdata_OutputLoad_A, {99, 100, 120, 121, 160}, "gyyrr"},
        {three, "widget_outload", realdata_OutputLoad_A, {99, 100, 120, 121}, "gyyr"},
        {single, "widget_input_freq", realdata_InputFre_A, {399, 400, 600, 601}, "rggr"},
        {single, "widget_out_freq", realdata_OutputFre, {399, 400, 600, 601}, "rggr"},
        {single, "widget_by_freq", realdata_BypFre, {399, 400, 600, 601}, "rggr"},
        {three, "widget_temp", realdata_BatTemp, {99, 100}, "gr"},
        {three, "widget_batt_volt", realdata_BatVoltage, {3999, 4000}, "gg"},
        {three, "widget_batt_curr", realdata_BatCurrent, {1999, 2000}, "gg"},
    };
    for (const auto& row : rows) {
        QString bands;
        for (const int value : row.values) {
            single.RefreshRtSingleChartInfo({{row.key, value}});
            three.RefreshRtChartInfo({{row.key, value}});
            bands += bandOf(row.page, row.gauge);
        }
        QCOMPARE(row.gauge + bands, row.gauge + QString(row.bands));
    }
}

void TestChartPages::unfedPageKeepsTheGaugesDefaults()
{
    DataChart gauge;
    RTThreeGraphForm page;
    for (const char* name :
         {"widget_load", "widget_outload", "widget_temp", "widget_batt_volt", "widget_batt_curr"})
        QCOMPARE(child<DataChart>(page, name)->getMaxValue(), gauge.getMaxValue());
    page.RefreshRtChartInfo({});
    QCOMPARE(child<DataChart>(page, "widget_load")->getMaxValue(), 100.0);
}

void TestChartPages::legendsAndCurves()
{
    RTSingleGraphForm single;
    Snapshot snapshot = distinctValues();
    snapshot[realdata_BatVoltage] = 545;
    single.RefreshRtSingleChartInfo(snapshot);
    QCOMPARE(texts(single, kSingleLegend), QString("(19) (37) (54.5) (54)"));
    QCOMPARE(told(single, "widget_single"),
             QStringLiteral("Input voltage(V) 19, Output voltage(V) 37, Battery voltage(V) 54.5, "
                            "Bypass voltage(V) 54"));

    RTThreeGraphForm three;
    three.RefreshRtChartInfo(distinctValues());
    QCOMPARE(child<QLabel>(three, "inVol1")->text(), QString("(Current value:19)"));
    QCOMPARE(texts(three, kThreeLegend), QString("(19) (20) (21) (2.5) (2.6) (2.7) (37) (38) (39) "
                                                 "(3.5) (54) (55) (56) (5.2)"));
    QCOMPARE(told(three, "widget_in"),
             QStringLiteral("Voltage R(V) 19, Voltage S(V) 20, Voltage T(V) 21, "
                            "Frequency R(Hz) 2.5, Frequency S(Hz) 2.6, Frequency T(Hz) 2.7"));
    QCOMPARE(told(three, "widget_out"), QStringLiteral("Voltage R(V) 37, Voltage S(V) 38, "
                                                       "Voltage T(V) 39, Frequency(Hz) 3.5"));
    // The third curve repeats phase S, and is called so; its legend shows phase T. Meant so.
    QCOMPARE(told(three, "widget_bypass"), QStringLiteral("Voltage R(V) 54, Voltage S(V) 55, "
                                                          "Voltage S(V) 55, Frequency(Hz) 5.2"));
}

void TestChartPages::initialisation()
{
    RTSingleGraphForm single;
    RTThreeGraphForm three;
    single.RefreshRtSingleChartInfo(distinctValues());
    three.RefreshRtChartInfo(distinctValues());
    single.InitRTChartFormInfo(true);
    QCOMPARE(texts(single, kSingleLegend), QString("(19) (37) (1.4) (54)"));
    single.InitRTChartFormInfo(false);
    three.InitRTChartFormInfo(false);
    QCOMPARE(texts(single, kSingleLegend), QString("(0) (0) (0) (0)"));
    QCOMPARE(texts(three, kThreeLegend), QString("(0) (0) (0) (0.0) (0.0) (0.0) (0) (0) (0) (0) "
                                                 "(0) (0) (0) (0)"));
    QCOMPARE(told(single, "widget_load") + told(three, "widget_load"), QString("0 %0 %"));
    QCOMPARE(told(single, "widget_single") + told(three, "widget_in"), QString());
}

void TestChartPages::oddReadings()
{
    const std::tuple<int, double, const char*> rows[] = {
        {6000, 600, "600 V"},    {6009, 600, "--"},  {6010, 1000, "601 V"},
        {10000, 1000, "1000 V"}, {10010, 600, "--"}, {-10, 600, "--"}};
    RTThreeGraphForm page;
    for (const auto& [tenths, top, value] : rows) {
        page.RefreshRtChartInfo({{realdata_BatVoltage, tenths}});
        QCOMPARE(child<DataChart>(page, "widget_batt_volt")->getMaxValue(), top);
        QCOMPARE(told(page, "widget_batt_volt"), QString(value));
    }
    page.RefreshRtChartInfo({{realdata_BatTemp, -1}, {realdata_InputVoltage_A, -1}});
    QCOMPARE(told(page, "widget_temp"), QStringLiteral("--"));
    QCOMPARE(texts(page, "inVol1"), QStringLiteral("(4294967295)"));
    page.RefreshRtChartInfo({});
    QCOMPARE(told(page, "widget_temp"), QStringLiteral("0 C"));
}

void TestChartPages::containerRoutesToTheVisiblePage()
{
    ChartForm form;
    QCOMPARE(form.getCurrentIndex(), 1);
    auto* single = child<RTSingleGraphForm>(form, "page_single");
    auto* three = child<RTThreeGraphForm>(form, "page_three");
    QVERIFY(single && three);

    form.refreshFormInfo(distinctValues());
    QCOMPARE(texts(*three, "inVol1"), QStringLiteral("(19)"));
    QCOMPARE(texts(*single, "value_input"), QStringLiteral("(0)"));

    form.setCurrentIndex(0);
    form.refreshFormInfo({{realdata_InputVoltage_A, 7}});
    QCOMPARE(texts(*single, "value_input"), QStringLiteral("(7)"));
    form.initFormInfo(false);
    QCOMPARE(texts(*single, "value_input"), QStringLiteral("(0)"));
    QCOMPARE(texts(*three, "inVol1"), QStringLiteral("(19)"));

    form.setCurrentIndex(7);
    QCOMPARE(form.getCurrentIndex(), 0); // no such page
}

QTEST_MAIN(TestChartPages)
#include "tst_chartpages.moc"
