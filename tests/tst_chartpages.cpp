// Both chart pages and their container: which key reaches which gauge, curve and legend entry, and
// what their legends say. Reads gauges and charts by what they tell assistive technology.

#include "chartform.h"
#include "datachart.h"
#include "dynamicchart.h"
#include "globalvar.h"
#include "rtsinglegraphform.h"
#include "rtthreegraphform.h"
#include "threedynamicchart.h"

#include <QLabel>
#include <QtTest>

namespace {

using Snapshot = QMap<int, QVariant>;

template <typename Chart>
struct Pens : Chart {
    using Chart::color_pen;
};

template <typename T>
T* child(const QWidget& page, const char* name)
{
    return page.findChild<T*>(QLatin1String(name));
}
QString told(const QWidget& page, const char* name)
{
    const QWidget* widget = child<QWidget>(page, name);
    return widget ? widget->accessibleDescription() : QStringLiteral("(missing)");
}
QString text(const QWidget& page, const char* name)
{
    const QLabel* label = child<QLabel>(page, name);
    return label ? label->text() : QStringLiteral("(missing)");
}
QString texts(const QWidget& page, const char* names)
{
    QStringList all;
    for (const QByteArray& name : QByteArray(names).split(' '))
        all << text(page, name);
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
    void zeroBecomesDashesAtOnce();
    void legendsAndCurves();
    void initialisation();
    void batteryVoltageScale();
    void oddReadings();
    void legendsHaveTheColoursOfTheCurves();
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
        const char* caption;
        double top;
        const char* told;
    } rows[] = {
        {single, "widget_load", "Remaining battery time(Min)", 100, "13 %"}, // shows the charge
        {single, "widget_outload", "Output load(%)", 160, "49 %"},
        {single, "widget_temp", "Battery temperature(C)", 100, "--"}, // never read
        {single, "widget_input_freq", "Input frequency(Hz)", 100, "2.5 Hz"},
        {single, "widget_out_freq", "Output frequency(Hz)", 100, "3.5 Hz"},
        {single, "widget_by_freq", "Bypass frequency(Hz)", 100, "5.2 Hz"},
        {three, "widget_load", "Remaining battery capacity(%)", 100, "13 %"},
        {three, "widget_outload", "Output load(%)", 160, "49 %"},
        {three, "widget_temp", "Battery temperature(C)", 100, "16 C"}, // whole degrees
        {three, "widget_batt_volt", "Battery voltage(V)", 600, "1.4 V"},
        {three, "widget_batt_curr", "Battery current(A)", 200, "1.5 A"},
    };
    for (const auto& row : rows) {
        auto* gauge = child<DataChart>(row.page, row.gauge);
        QCOMPARE(gauge->accessibleName(), QString(row.caption));
        QCOMPARE(gauge->getMaxValue(), row.top);
        QCOMPARE(gauge->accessibleDescription(), QString(row.told));
    }
}

// A gauge repaints only a new value, and "--" counts as 0.
void TestChartPages::zeroBecomesDashesAtOnce()
{
    struct PaintCounter : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint;
            return false;
        }
        int paints = 0;
    } counter;
    QWidget window;
    RTSingleGraphForm page(&window);
    window.resize(page.size());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* gauge = child<DataChart>(page, "widget_temp");
    QTRY_VERIFY(!gauge->findChild<QTimer*>()->isActive()); // its own first repaint
    QCoreApplication::processEvents();
    gauge->installEventFilter(&counter);
    page.RefreshRtSingleChartInfo({});
    QCoreApplication::processEvents();
    QVERIFY(counter.paints > 0);
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
    QCOMPARE(text(three, "inVol1"), QString("(Current value:19)"));
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
    three.InitRTChartFormInfo(true);
    QCOMPARE(texts(single, kSingleLegend), QString("(19) (37) (1.4) (54)"));
    QCOMPARE(told(three, "widget_load"), QString("13 %"));
    single.InitRTChartFormInfo(false);
    three.InitRTChartFormInfo(false);
    QCOMPARE(texts(single, kSingleLegend), QString("(0) (0) (0) (0)"));
    QCOMPARE(texts(three, kThreeLegend), QString("(0) (0) (0) (0.0) (0.0) (0.0) (0) (0) (0) (0) "
                                                 "(0) (0) (0) (0)"));
    for (const QWidget* page : {static_cast<QWidget*>(&single), static_cast<QWidget*>(&three)})
        QCOMPARE(told(*page, "widget_load"), QString("0 %"));
    QCOMPARE(told(single, "widget_single") + told(three, "widget_in"), QString());
}

void TestChartPages::batteryVoltageScale()
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
}

void TestChartPages::oddReadings()
{
    RTThreeGraphForm page;
    page.RefreshRtChartInfo({{realdata_BatTemp, -1}, {realdata_InputVoltage_A, -1}});
    QCOMPARE(told(page, "widget_temp"), QStringLiteral("--"));
    QCOMPARE(text(page, "inVol1"), QStringLiteral("(Current value:4294967295)"));
    QVERIFY(!page.grab().isNull());
    page.RefreshRtChartInfo({});
    QCOMPARE(told(page, "widget_temp"), QStringLiteral("0 C"));
    QCOMPARE(text(page, "inFre1"), QStringLiteral("(Current value:0)"));
}

void TestChartPages::legendsHaveTheColoursOfTheCurves()
{
    const RTSingleGraphForm single;
    const RTThreeGraphForm three;
    const auto singlePens = DynamicChart().*&Pens<DynamicChart>::color_pen;
    const auto threePens = ThreeDynamicChart().*&Pens<ThreeDynamicChart>::color_pen;
    int series = 0; // starts anew with each legend
    for (const QString& name : (QString(kSingleLegend) + ' ' + kThreeLegend).split(' ')) {
        series = name.endsWith("Vol1") ? 0 : series;
        const bool isSingle = name.startsWith("value");
        const QWidget& page = isSingle ? static_cast<const QWidget&>(single) : three;
        const QColor colour = (isSingle ? singlePens : threePens).at(series++).color();
        const auto rule = QString("color:rgb(%1,%2,%3);");
        const auto parts =
            child<QLabel>(page, qPrintable(name))->parentWidget()->findChildren<QFrame*>();
        QCOMPARE(parts.size(), 3); // line, caption and value
        for (const QFrame* part : parts) {
            QVERIFY(part->styleSheet().remove(' ').contains(
                rule.arg(colour.red()).arg(colour.green()).arg(colour.blue())));
        }
    }
}

void TestChartPages::containerRoutesToTheVisiblePage()
{
    ChartForm form;
    QCOMPARE(form.getCurrentIndex(), 1);
    auto* single = child<RTSingleGraphForm>(form, "page_single");
    auto* three = child<RTThreeGraphForm>(form, "page_three");
    QVERIFY(single && three);

    form.refreshFormInfo(distinctValues());
    QCOMPARE(text(*three, "inVol1"), QStringLiteral("(Current value:19)"));
    QCOMPARE(text(*single, "value_input"), QStringLiteral("(0)"));

    form.setCurrentIndex(0);
    form.refreshFormInfo({{realdata_InputVoltage_A, 7}});
    QCOMPARE(text(*single, "value_input"), QStringLiteral("(Current value:7)"));
    form.initFormInfo(false);
    QCOMPARE(text(*single, "value_input"), QStringLiteral("(0)"));
    QCOMPARE(text(*three, "inVol1"), QStringLiteral("(Current value:19)"));

    form.setCurrentIndex(7);
    QCOMPARE(form.getCurrentIndex(), 0); // no such page
}

QTEST_MAIN(TestChartPages)
#include "tst_chartpages.moc"
