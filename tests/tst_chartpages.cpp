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
    void gauges_data();
    void gauges();
    void zeroBecomesDashesAtOnce();
    void singleLegendAndCurves();
    void threeLegendsAndCurves();
    void batteryVoltageScale_data();
    void batteryVoltageScale();
    void negativeReadings();
    void initialisation();
    void legendsHaveTheColoursOfTheCurves();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void gaugesAndChartsGrow();
    void containerRoutesToTheVisiblePage();
};

void TestChartPages::gauges_data()
{
    QTest::addColumn<bool>("threePhase");
    QTest::addColumn<QString>("gauge");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<double>("top");
    QTest::addColumn<QString>("told");
    const auto row = [](bool threePhase, const char* gauge, const char* caption, double top,
                        const char* told) {
        QTest::addRow("%s, %s", threePhase ? "three" : "single", gauge)
            << threePhase << gauge << caption << top << told;
    };
    row(false, "widget_load", "Remaining battery time(Min)", 100, "13 %"); // shows the charge
    row(false, "widget_outload", "Output load(%)", 160, "49 %");
    row(false, "widget_temp", "Battery temperature(C)", 100, "--"); // never read
    row(false, "widget_input_freq", "Input frequency(Hz)", 100, "2.5 Hz");
    row(false, "widget_out_freq", "Output frequency(Hz)", 100, "3.5 Hz");
    row(false, "widget_by_freq", "Bypass frequency(Hz)", 100, "5.2 Hz");
    row(true, "widget_load", "Remaining battery capacity(%)", 100, "13 %");
    row(true, "widget_outload", "Output load(%)", 160, "49 %");
    row(true, "widget_temp", "Battery temperature(C)", 100, "16 C"); // whole degrees
    row(true, "widget_batt_volt", "Battery voltage(V)", 600, "1.4 V");
    row(true, "widget_batt_curr", "Battery current(A)", 200, "1.5 A");
}

void TestChartPages::gauges()
{
    QFETCH(bool, threePhase);
    QFETCH(QString, gauge);
    RTSingleGraphForm single;
    RTThreeGraphForm three;
    single.RefreshRtSingleChartInfo(distinctValues());
    three.RefreshRtChartInfo(distinctValues());
    const QWidget& page = threePhase ? static_cast<QWidget&>(three) : single;
    auto* chart = page.findChild<DataChart*>(gauge);
    QVERIFY(chart);
    QTEST(chart->accessibleName(), "caption");
    QTEST(chart->getMaxValue(), "top");
    QTEST(chart->accessibleDescription(), "told");
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
    const QVector<const char*> names{"widget_load", "widget_single"};
    QVector<QSize> before;
    for (const char* name : names)
        before << child<QWidget>(page, name)->size();
    page.resize(page.size() * 2);
    QCoreApplication::processEvents();
    for (int i = 0; i < names.size(); ++i) {
        const QSize after = child<QWidget>(page, names.at(i))->size();
        QVERIFY(after.width() > before.at(i).width() && after.height() > before.at(i).height());
    }
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
