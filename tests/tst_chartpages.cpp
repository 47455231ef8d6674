// Both chart pages and their container: which key reaches which gauge, curve and legend entry, and
// that the forms hold their texts. Reads gauges and charts by what they tell assistive technology.

#include "chartform.h"
#include "datachart.h"
#include "dynamicchart.h"
#include "globalvar.h"
#include "rtsinglegraphform.h"
#include "rtthreegraphform.h"
#include "threedynamicchart.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>
#include <QtTest>

namespace
{

using Snapshot = QMap<int, QVariant>;

template <typename Chart>
class Pens : public Chart
{
public:
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

// Every key has its own value within the scales of the gauges.
Snapshot distinctValues()
{
    Snapshot snapshot;
    for (int key = realdata_BatteryStatus; key <= realdata_Reserve5; ++key)
        snapshot[key] = 10 + key;
    return snapshot;
}

QColor colourOf(const QWidget* widget)
{
    static const QRegularExpression kRule(
        QStringLiteral("color: rgb\\( *(\\d+), *(\\d+), *(\\d+)\\);"));
    const QRegularExpressionMatch match = kRule.match(widget->styleSheet());
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
}

} // namespace

class TestChartPages : public QObject
{
    Q_OBJECT

private slots:
    void singleGauges_data();
    void singleGauges();
    void singleLegendAndCurves();
    void singleEmptySnapshot();
    void threeGauges_data();
    void threeGauges();
    void threeLegendsAndCurves();
    void batteryVoltageScale_data();
    void batteryVoltageScale();
    void batteryBandGoesOn();
    void negativeReadings();
    void initialisation();
    void legendsHaveTheColoursOfTheCurves();
    void namesOfTheForms();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void gaugesAndChartsGrow();
    void containerRoutesToTheVisiblePage();
};

void TestChartPages::singleGauges_data()
{
    QTest::addColumn<QString>("gauge");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<double>("top");
    QTest::addColumn<QString>("told");
    QTest::newRow("charge") << "widget_load"
                            << "label_load"
                            << "Remaining battery time(Min)" << 100.0 << "13 %";
    QTest::newRow("load") << "widget_outload"
                          << "label_outload"
                          << "Output load(%)" << 160.0 << "49 %";
    QTest::newRow("temperature, never read") << "widget_temp"
                                             << "label_temp"
                                             << "Battery temperature(C)" << 100.0 << "--";
    QTest::newRow("input frequency") << "widget_input_freq"
                                     << "label_input"
                                     << "Input frequency(Hz)" << 100.0 << "2.5 Hz";
    QTest::newRow("output frequency") << "widget_out_freq"
                                      << "label_output"
                                      << "Output frequency(Hz)" << 100.0 << "3.5 Hz";
    QTest::newRow("bypass frequency") << "widget_by_freq"
                                      << "label_bypass"
                                      << "Bypass frequency(Hz)" << 100.0 << "5.2 Hz";
}

void TestChartPages::singleGauges()
{
    QFETCH(QString, gauge);
    QFETCH(QString, label);
    QFETCH(QString, caption);
    RTSingleGraphForm page;
    page.RefreshRtSingleChartInfo(distinctValues());
    auto* chart = page.findChild<DataChart*>(gauge);
    QVERIFY(chart);
    QCOMPARE(page.findChild<QLabel*>(label)->text(), caption);
    QCOMPARE(chart->accessibleName(), caption);
    QTEST(chart->getMaxValue(), "top");
    QTEST(chart->accessibleDescription(), "told");
}

void TestChartPages::singleLegendAndCurves()
{
    RTSingleGraphForm page;
    Snapshot snapshot = distinctValues();
    snapshot[realdata_BatVoltage] = 545;
    page.RefreshRtSingleChartInfo(snapshot);
    QCOMPARE(text(page, "value_input"), QStringLiteral("(Current value:19)"));
    QCOMPARE(text(page, "value_output"), QStringLiteral("(Current value:37)"));
    QCOMPARE(text(page, "value_batt"), QStringLiteral("(Current value:54.5)"));
    QCOMPARE(text(page, "value_bypass"), QStringLiteral("(Current value:54)"));
    QCOMPARE(told(page, "widget_single"),
             QStringLiteral("Input voltage(V) 19, Output voltage(V) 37, Battery voltage(V) 54.5, "
                            "Bypass voltage(V) 54"));
}

void TestChartPages::singleEmptySnapshot()
{
    RTSingleGraphForm page;
    page.RefreshRtSingleChartInfo({});
    for (const char* gauge : {"widget_input_freq", "widget_out_freq", "widget_by_freq"})
        QCOMPARE(told(page, gauge), QStringLiteral("0 Hz"));
    QCOMPARE(told(page, "widget_temp"), QStringLiteral("--"));
    for (const char* value : {"value_input", "value_output", "value_batt", "value_bypass"})
        QCOMPARE(text(page, value), QStringLiteral("(Current value:0)"));
}

void TestChartPages::threeGauges_data()
{
    QTest::addColumn<QString>("gauge");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<double>("top");
    QTest::addColumn<QString>("told");
    QTest::newRow("charge") << "widget_load"
                            << "label_battload"
                            << "Remaining battery capacity(%)" << 100.0 << "13 %";
    QTest::newRow("load") << "widget_outload"
                          << "label_outload"
                          << "Output load(%)" << 160.0 << "49 %";
    QTest::newRow("temperature, whole degrees") << "widget_temp"
                                                << "label_temp"
                                                << "Battery temperature(C)" << 100.0 << "16 C";
    QTest::newRow("battery voltage") << "widget_batt_volt"
                                     << "label_battvol"
                                     << "Battery voltage(V)" << 600.0 << "1.4 V";
    QTest::newRow("battery current") << "widget_batt_curr"
                                     << "label_battcurr"
                                     << "Battery current(A)" << 200.0 << "1.5 A";
}

void TestChartPages::threeGauges()
{
    QFETCH(QString, gauge);
    QFETCH(QString, label);
    QFETCH(QString, caption);
    RTThreeGraphForm page;
    page.RefreshRtChartInfo(distinctValues());
    auto* chart = page.findChild<DataChart*>(gauge);
    QVERIFY(chart);
    QCOMPARE(page.findChild<QLabel*>(label)->text(), caption);
    QCOMPARE(chart->accessibleName(), caption);
    QTEST(chart->getMaxValue(), "top");
    QTEST(chart->accessibleDescription(), "told");
}

void TestChartPages::threeLegendsAndCurves()
{
    RTThreeGraphForm page;
    page.RefreshRtChartInfo(distinctValues());
    const QMap<const char*, const char*> legends{
        {"inVol1", "19"},  {"inVol2", "20"},  {"inVol3", "21"},  {"inFre1", "2.5"},
        {"inFre2", "2.6"}, {"inFre3", "2.7"}, {"outVol1", "37"}, {"outVol2", "38"},
        {"outVol3", "39"}, {"outFre", "3.5"}, {"byVol1", "54"},  {"byVol2", "55"},
        {"byVol3", "56"},  {"byFre", "5.2"}};
    for (auto legend = legends.cbegin(); legend != legends.cend(); ++legend) {
        QCOMPARE(text(page, legend.key()),
                 QStringLiteral("(Current value:%1)").arg(QLatin1String(legend.value())));
    }
    QCOMPARE(told(page, "widget_in"),
             QStringLiteral("Voltage R(V) 19, Voltage S(V) 20, Voltage T(V) 21, "
                            "Frequency R(Hz) 2.5, Frequency S(Hz) 2.6, Frequency T(Hz) 2.7"));
    QCOMPARE(told(page, "widget_out"),
             QStringLiteral("Voltage R(V) 37, Voltage S(V) 38, Voltage T(V) 39, "
                            "Frequency(Hz) 3.5"));
    // The third curve repeats phase S, and is called so; its legend shows phase T. Meant so.
    QCOMPARE(told(page, "widget_bypass"),
             QStringLiteral("Voltage R(V) 54, Voltage S(V) 55, Voltage S(V) 55, "
                            "Frequency(Hz) 5.2"));
}

void TestChartPages::batteryVoltageScale_data()
{
    QTest::addColumn<int>("tenths");
    QTest::addColumn<double>("top");
    QTest::addColumn<QString>("value");
    QTest::newRow("600.0 V") << 6000 << 600.0 << "600 V";
    QTest::newRow("600.9 V: between the two scales") << 6009 << 600.0 << "--";
    QTest::newRow("601.0 V") << 6010 << 1000.0 << "601 V";
    QTest::newRow("1000.0 V") << 10000 << 1000.0 << "1000 V";
    QTest::newRow("1001.0 V") << 10010 << 600.0 << "--";
    QTest::newRow("negative") << -10 << 600.0 << "--";
}

void TestChartPages::batteryVoltageScale()
{
    QFETCH(int, tenths);
    RTThreeGraphForm page;
    page.RefreshRtChartInfo({{realdata_BatVoltage, tenths}});
    QTEST(child<DataChart>(page, "widget_batt_volt")->getMaxValue(), "top");
    QTEST(told(page, "widget_batt_volt"), "value");
}

// These two gauges list one band only; above its limit they stay green.
void TestChartPages::batteryBandGoesOn()
{
    RTThreeGraphForm page;
    page.RefreshRtChartInfo({{realdata_BatVoltage, 5000}, {realdata_BatCurrent, 2000}});
    for (const char* name : {"widget_batt_volt", "widget_batt_curr"}) {
        const QImage gauge = child<DataChart>(page, name)->grab().toImage();
        const double pieRadius = 0.7 * qMin(gauge.height(), gauge.width() / 2);
        const QPointF centre(gauge.width() / 2, gauge.height() - 10);
        // Within the arc at 116 degrees, between two sector lines.
        const QColor seen =
            gauge.pixelColor((centre - 0.6 * pieRadius * QPointF(0.438, 0.899)).toPoint());
        QVERIFY2(seen.green() > seen.red() + 50, qPrintable(seen.name()));
    }
}

void TestChartPages::negativeReadings()
{
    RTThreeGraphForm page;
    page.RefreshRtChartInfo({{realdata_BatTemp, -1}, {realdata_InputVoltage_A, -1}});
    QCOMPARE(told(page, "widget_temp"), QStringLiteral("--"));
    QCOMPARE(text(page, "inVol1"), QStringLiteral("(Current value:4294967295)"));
    QVERIFY(!page.grab().isNull());
}

void TestChartPages::initialisation()
{
    RTThreeGraphForm three;
    three.RefreshRtChartInfo(distinctValues());
    three.InitRTChartFormInfo(true);
    QCOMPARE(told(three, "widget_load"), QStringLiteral("13 %"));
    three.InitRTChartFormInfo(false);
    QCOMPARE(told(three, "widget_load"), QStringLiteral("0 %"));
    QCOMPARE(told(three, "widget_in"), QString());
    QCOMPARE(text(three, "inVol1"), QStringLiteral("(0)"));
    QCOMPARE(text(three, "inFre3"), QStringLiteral("(0.0)"));
    QCOMPARE(text(three, "outFre"), QStringLiteral("(0)"));
    QCOMPARE(text(three, "byFre"), QStringLiteral("(0)"));

    RTSingleGraphForm single;
    single.RefreshRtSingleChartInfo(distinctValues());
    single.InitRTChartFormInfo(true);
    QCOMPARE(text(single, "value_input"), QStringLiteral("(Current value:19)"));
    single.InitRTChartFormInfo(false);
    QCOMPARE(text(single, "value_input"), QStringLiteral("(0)"));
    QCOMPARE(told(single, "widget_load"), QStringLiteral("0 %"));
    QCOMPARE(told(single, "widget_single"), QString());
}

void TestChartPages::legendsHaveTheColoursOfTheCurves()
{
    const Pens<DynamicChart> singlePens;
    const Pens<ThreeDynamicChart> threePens;
    const RTSingleGraphForm single;
    const RTThreeGraphForm three;
    const struct {
        const QWidget& page;
        const QList<QPen>& pens;
        QVector<const char*> values;
    } legends[] = {
        {single,
         singlePens.color_pen,
         {"value_input", "value_output", "value_batt", "value_bypass"}},
        {three, threePens.color_pen, {"inVol1", "inVol2", "inVol3", "inFre1", "inFre2", "inFre3"}},
        {three, threePens.color_pen, {"outVol1", "outVol2", "outVol3", "outFre"}},
        {three, threePens.color_pen, {"byVol1", "byVol2", "byVol3", "byFre"}},
    };
    for (const auto& legend : legends) {
        int series = 0;
        for (const char* name : legend.values) {
            const QWidget* entry = child<QLabel>(legend.page, name)->parentWidget();
            int coloured = 0; // line, caption and value
            for (const QFrame* part : entry->findChildren<QFrame*>()) {
                QCOMPARE(colourOf(part), legend.pens.at(series).color());
                ++coloured;
            }
            QCOMPARE(coloured, 3);
            ++series;
        }
    }
}

void TestChartPages::namesOfTheForms()
{
    const RTSingleGraphForm single;
    for (const char* name : {"label_10", "line_2", "label_table", "label_graphic", "line_3",
                             "line_4", "line_5", "line_6"})
        QVERIFY2(child<QFrame>(single, name), name);

    const RTThreeGraphForm three;
    for (int i = 3; i <= 21; ++i)
        QVERIFY2(three.findChild<QFrame*>(QStringLiteral("line_%1").arg(i)), QByteArray::number(i));
    for (const char* side : {"input", "output", "bypass"}) {
        for (const char* copy : {"", "_2", "_3", "_4", "_5", "_6"}) {
            const QByteArray name = QByteArray("label_") + side + "_vol" + copy;
            QVERIFY2(child<QLabel>(three, name), name);
        }
    }
    auto* tabs = child<QTabWidget>(three, "tabWidget");
    QCOMPARE(tabs->indexOf(child<QWidget>(three, "tab_3")), 2);
    QCOMPARE(three.palette().color(QPalette::Window), QColor(205, 240, 255));
}

void TestChartPages::nothingIsCutOff_data()
{
    QTest::addColumn<bool>("threePhase");
    QTest::addColumn<QSize>("size");
    QTest::newRow("single, own size") << false << QSize();
    QTest::newRow("single, 1024 x 768") << false << QSize(1024, 768);
    QTest::newRow("three, own size") << true << QSize();
    QTest::newRow("three, 1024 x 768") << true << QSize(1024, 768);
}

void TestChartPages::nothingIsCutOff()
{
    QFETCH(bool, threePhase);
    QFETCH(QSize, size);
    QWidget window; // a page that is no window cannot ask for more room than it gets
    RTSingleGraphForm single(&window);
    RTThreeGraphForm three(&window);
    QWidget& page = threePhase ? static_cast<QWidget&>(three) : single;
    if (size.isValid())
        page.resize(size);
    window.resize(page.size());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    Snapshot snapshot;
    for (int key = realdata_BatteryStatus; key <= realdata_Reserve5; ++key)
        snapshot[key] = 498; // wide texts: 498 V and 49.8 Hz
    single.RefreshRtSingleChartInfo(snapshot);
    three.RefreshRtChartInfo(snapshot);

    auto* tabs = child<QTabWidget>(three, "tabWidget");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        QVERIFY(page.minimumSizeHint().width() <= page.width());
        QVERIFY(page.minimumSizeHint().height() <= page.height());
        for (const QLabel* label : page.findChildren<QLabel*>()) {
            if (!label->isVisible())
                continue;
            const QSize room = label->contentsRect().size();
            const QRect needed = label->fontMetrics().boundingRect(
                QRect(QPoint(), room), label->wordWrap() ? int(Qt::TextWordWrap) : 0,
                label->text());
            QVERIFY2(needed.width() <= room.width() && needed.height() <= room.height(),
                     qPrintable(label->objectName()));
        }
    }
}

void TestChartPages::gaugesAndChartsGrow()
{
    QWidget window;
    RTSingleGraphForm page(&window);
    window.show();
    QCoreApplication::processEvents();
    const QSize gauge = child<DataChart>(page, "widget_load")->size();
    const QSize chart = child<DynamicChart>(page, "widget_single")->size();
    page.resize(page.size() * 2);
    QCoreApplication::processEvents();
    const QSize largeGauge = child<DataChart>(page, "widget_load")->size();
    const QSize largeChart = child<DynamicChart>(page, "widget_single")->size();
    QVERIFY(largeGauge.width() > gauge.width() && largeGauge.height() > gauge.height());
    QVERIFY(largeChart.width() > chart.width() && largeChart.height() > chart.height());
}

void TestChartPages::containerRoutesToTheVisiblePage()
{
    ChartForm form;
    QCOMPARE(form.size(), QSize(422, 316));
    QCOMPARE(form.getCurrentIndex(), 1);
    auto* single = child<RTSingleGraphForm>(form, "page_single");
    auto* three = child<RTThreeGraphForm>(form, "page_three");
    QVERIFY(single && three);

    form.refreshFormInfo(distinctValues());
    QCOMPARE(text(*three, "inVol1"), QStringLiteral("(Current value:19)"));
    QCOMPARE(text(*single, "value_input"), QStringLiteral("(0)"));

    form.setCurrentIndex(0);
    form.refreshFormInfo(distinctValues());
    QCOMPARE(text(*single, "value_input"), QStringLiteral("(Current value:19)"));
    form.initFormInfo(false);
    QCOMPARE(text(*single, "value_input"), QStringLiteral("(0)"));
    QCOMPARE(text(*three, "inVol1"), QStringLiteral("(Current value:19)"));

    form.setCurrentIndex(7);
    QCOMPARE(form.getCurrentIndex(), 0); // no such page
}

QTEST_MAIN(TestChartPages)
#include "tst_chartpages.moc"
