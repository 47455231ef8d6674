// The energy-flow page: what a snapshot becomes, what a click does, and the diagram as numbers.

#include "energyline.h"
#include "globalvar.h"
#include "support/recordingdevice.h"

#include <QLinearGradient>
#include <QTimer>
#include <QtTest>

#include <limits>

namespace
{

using Snapshot = QMap<int, QVariant>;
constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

class Page : public Energyline
{
public:
    using Energyline::ac_ACur, Energyline::ac_AVolt, Energyline::ac_Frenq, Energyline::byp_Volt,
        Energyline::byp_Frenq, Energyline::ups_Type, Energyline::ups_Name,
        Energyline::ups_Manufacturer, Energyline::ld_Volt, Energyline::ld_Cur,
        Energyline::ld_ActPower, Energyline::ld_Percent, Energyline::ld_Freq, Energyline::ld_State,
        Energyline::bat_Volt, Energyline::bat_Temp, Energyline::bat_Min, Energyline::bat_Cap,
        Energyline::bat_State;
    using Energyline::advanceFlow, Energyline::timer, Energyline::m_offset, Energyline::bat_fault;
    using Energyline::drawBase, Energyline::drawBattery, Energyline::drawdate, Energyline::drawflow;
    using Energyline::input_rec_Flag, Energyline::rec_bat_Flag, Energyline::bat_inv_Flag,
        Energyline::rec_inv_Flag, Energyline::inv_load_Flag, Energyline::byp_load_Flag;
    using Energyline::INPUT_view_Flag, Energyline::BYPASS_view_Flag, Energyline::UPS_view_Flag,
        Energyline::LOAD_view_Flag, Energyline::BATTERY_view_Flag, Energyline::RECINV_view_Flag;
    using Layer = void (Page::*)(QPainter*);

    // The flows that are on, in the order of their drawing.
    QString flows() const
    {
        QString on;
        for (auto [flag, name] :
             {std::pair(input_rec_Flag, "input-rec "), std::pair(rec_bat_Flag, "rec-bat "),
              std::pair(bat_inv_Flag, "bat-inv "), std::pair(rec_inv_Flag, "rec-inv "),
              std::pair(inv_load_Flag, "inv-load "), std::pair(byp_load_Flag, "byp-load ")})
            on += QLatin1String(flag ? name : "");
        return on.trimmed();
    }
    void setFlows(bool on)
    {
        input_rec_Flag = rec_bat_Flag = bat_inv_Flag = on;
        rec_inv_Flag = inv_load_Flag = byp_load_Flag = on;
    }
    QString openPanels() const
    {
        QString open;
        for (auto [flag, name] :
             {std::pair(BYPASS_view_Flag, "bypass "), std::pair(INPUT_view_Flag, "input "),
              std::pair(UPS_view_Flag, "ups "), std::pair(LOAD_view_Flag, "load "),
              std::pair(BATTERY_view_Flag, "battery ")})
            open += QLatin1String(flag ? name : "");
        return open.trimmed();
    }
    void closePanels()
    {
        INPUT_view_Flag = BYPASS_view_Flag = UPS_view_Flag = false;
        LOAD_view_Flag = BATTERY_view_Flag = false;
    }

    QPointF middle() const { return QPoint(width() / 2, height() / 2); }

    // The whole page, or one layer of it, as primitives.
    void recordTo(RecordingDevice& device, Layer layer = nullptr)
    {
        if (!layer)
            return render(&device, QPoint(), QRegion(), RenderFlags());
        QPainter painter(&device);
        (this->*layer)(&painter);
    }

    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        Energyline::paintEvent(event);
    }
};

QPolygonF translated(std::initializer_list<QPointF> points, QPointF by)
{
    return QPolygonF(QVector<QPointF>(points)).translated(by);
}

QGradientStops stopsOf(const PaintStep& step)
{
    return step.brush.gradient() ? step.brush.gradient()->stops() : QGradientStops();
}

QLineF gradientLine(const PaintStep& step)
{
    const auto* gradient = static_cast<const QLinearGradient*>(step.brush.gradient());
    return {gradient->start(), gradient->finalStop()};
}

// Where a text run is on the device, from its start to its end on the baseline.
QLineF extentOf(const PaintStep& text)
{
    const QPointF start = text.points[0];
    return text.transform.map(QLineF(start, start + QPointF(text.width, 0.0)));
}

void addSizes()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("even") << QSize(900, 700);
    QTest::newRow("odd: the centre is rounded down") << QSize(741, 643);
}

} // namespace

class TestEnergyline : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void startsOpenAndStill();
    void textsByPhaseCount_data();
    void textsByPhaseCount();
    void deviceTexts();
    void batteryTemperature_data();
    void batteryTemperature();
    void batteryStatus_data();
    void batteryStatus();
    void flowsBySource_data();
    void flowsBySource();
    void allOffSparesRectifierToInverter();

    void clicks_data();
    void clicks();
    void animation();

    void diagram_data();
    void diagram();
    void captions();
    void flowLines_data();
    void flowLines();
    void batterySymbol_data() { addSizes(); }
    void batterySymbol();
    void batteryCharge_data();
    void batteryCharge();
    void panels_data();
    void panels();
    void chargeAndLoadStayWithoutPanels();
    void textsStayInTheirRectangles_data();
    void textsStayInTheirRectangles();
    void layersInOrderLeaveThePainterAlone();

    void hostImagesWin();
};

void TestEnergyline::initTestCase()
{
    // Only hostImagesWin() has a host that supplies images.
    Q_CLEANUP_RESOURCE(hostimages);
}

void TestEnergyline::startsOpenAndStill()
{
    const Page page;
    QCOMPARE(page.openPanels(), QString("bypass input ups load battery"));
    QVERIFY(page.RECINV_view_Flag);
    QCOMPARE(page.flows(), QString());
    QCOMPARE(page.bat_fault, (QVector<QString>{"Unknown", "Normal", "Low", "Depleted"}));
    QCOMPARE(page.bat_Cap, QString());
}

void TestEnergyline::textsByPhaseCount_data()
{
    QTest::addColumn<QVariant>("lines");
    QTest::addColumn<QStringList>("texts");

    const QStringList one{"230 V", "5.2 A", "231 V", "232 V", "14.8 A", "3 KW", "45 %"};
    const QStringList three{"230/240/250 V",    "5.2/6.2/7.2 A", "231/241/251 V", "232/242/252 V",
                            "14.8/15.8/16.8 A", "3/13/23 KW",    "45/55/65 %"};
    QTest::newRow("1") << QVariant(1) << one;
    QTest::newRow("3") << QVariant(3) << three;
    QTest::newRow("2: everything but 1 is three") << QVariant(2) << three;
    QTest::newRow("missing") << QVariant() << three;
}

void TestEnergyline::textsByPhaseCount()
{
    QFETCH(QVariant, lines);
    Snapshot map{{realdata_InputFre_A, 499},      {realdata_BypFre, 501},
                 {realdata_OutputFre, 500},       {realdata_BatVoltage, 2713},
                 {realdata_MinutesRemaining, 42}, {realdata_ChargeRemaining, 95},
                 {realdata_OutputPower_A_Lo, 777}};
    for (int phase = 0; phase < 3; ++phase) {
        const int step = 10 * phase;
        map[realdata_InputVoltage_A + phase] = 230 + step;
        map[realdata_InputCurrent_A + phase] = 52 + step;
        map[realdata_BypVoltage_A + phase] = 231 + step;
        map[realdata_OutputVoltage_A + phase] = 232 + step;
        map[realdata_OutputCurrent_A + phase] = 148 + step;
        map[realdata_OutputPower_A_Hi + 2 * phase] = 3 + step;
        map[realdata_OutputLoad_A + phase] = 45 + step;
    }
    for (int key : {realdata_InputNumLines, realdata_BypNumLines, realdata_OutputNumLines}) {
        if (lines.isValid())
            map[key] = lines;
    }

    Page page;
    page.flushData(map);
    QTEST(QStringList({page.ac_AVolt, page.ac_ACur, page.byp_Volt, page.ld_Volt, page.ld_Cur,
                       page.ld_ActPower, page.ld_Percent}),
          "texts");
    QCOMPARE(page.ac_Frenq, QString("49.9"));
    QCOMPARE(page.byp_Frenq, QString("50.1"));
    QCOMPARE(page.ld_Freq, QString("50.0 Hz"));
    QCOMPARE(page.bat_Volt, QString("271.3"));
    QCOMPARE(page.bat_Min, QString("42"));
    QCOMPARE(page.bat_Cap, QString("95"));

    page.flushData({{realdata_BypNumLines, 1}}); // each group follows its own count
    QCOMPARE(page.ac_AVolt, QString("0/0/0 V"));
    QCOMPARE(page.byp_Volt, QString("0 V"));
    QCOMPARE(page.ld_Percent, QString("0/0/0 %"));
}

void TestEnergyline::deviceTexts()
{
    Page page;
    page.flushData({{info_ups_type, "  On-line\n 10 kVA "},
                    {info_copo_name, "Maker"},
                    {info_quenta_name, " as  it is "}});
    QCOMPARE(page.ups_Type, QString("On-line 10 kVA"));
    QCOMPARE(page.ups_Manufacturer, QString("Maker"));
    QCOMPARE(page.ups_Name, QString(" as  it is "));
    page.flushData({});
    QCOMPARE(page.ups_Type + page.ups_Manufacturer + page.ups_Name, QString());
}

void TestEnergyline::batteryTemperature_data()
{
    QTest::addColumn<int>("tenths");
    QTest::addColumn<QString>("text");
    QTest::newRow("hottest shown") << 1000 << "100.0";
    QTest::newRow("too hot") << 1001 << "--";
    QTest::newRow("coldest shown") << 0 << "0.0";
    QTest::newRow("too cold") << -5 << "--";
    QTest::newRow("lowest") << kLowest << "--";
}

void TestEnergyline::batteryTemperature()
{
    QFETCH(int, tenths);
    Page page;
    page.flushData({{realdata_BatTemp, tenths}});
    QTEST(page.bat_Temp, "text");
}

void TestEnergyline::batteryStatus_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    const QStringList texts{"Normal",   "Unknown", "Normal",   "Low",       "Depleted",
                            "Selftest", "Boost",   "Floating", "Discharge", "Normal"};
    for (int status = 0; status < texts.size(); ++status)
        QTest::addRow("%d", status) << status << texts[status];
    for (int status : {-1, 10, kLowest, kHighest})
        QTest::addRow("%d is outside", status) << status << QString();
}

void TestEnergyline::batteryStatus()
{
    QFETCH(int, status);
    Page page;
    page.flushData({{realdata_BatteryStatus, status}});
    QTEST(page.bat_State, "text");
}

void TestEnergyline::flowsBySource_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("flows");         // battery neither in boost nor in float charge
    QTest::addColumn<QString>("chargingFlows"); // in boost or float charge
    const QString utility = "input-rec rec-inv inv-load";
    QTest::newRow("3: the battery's line shows while not charging")
        << 3 << "Utility supply"
        << "input-rec rec-bat rec-inv inv-load" << utility;
    QTest::newRow("4") << 4 << "Bypass supply"
                       << "byp-load"
                       << "input-rec rec-bat byp-load";
    QTest::newRow("5") << 5 << "Battery supply"
                       << "bat-inv inv-load"
                       << "bat-inv inv-load";
    for (auto [source, text] :
         {std::pair(0, "None supply"), std::pair(1, "Other supply"), std::pair(2, "None supply"),
          std::pair(6, "Booster supply"), std::pair(7, "Reducer supply"), std::pair(8, ""),
          std::pair(-1, ""), std::pair(kLowest, ""), std::pair(kHighest, "")})
        QTest::addRow("%d", source) << source << text << ""
                                    << "";
}

void TestEnergyline::flowsBySource()
{
    QFETCH(int, source);
    Page page;
    for (int status : {0, 2, 5, 8, 99, kLowest}) {
        page.setFlows(true); // nothing of the last snapshot stays
        page.flushData({{realdata_OutputSource, source}, {realdata_BatteryStatus, status}});
        QTEST(page.flows(), "flows");
        QTEST(page.ld_State, "text");
    }
    for (int status : {6, 7}) {
        page.flushData({{realdata_OutputSource, source}, {realdata_BatteryStatus, status}});
        QTEST(page.flows(), "chargingFlows");
    }
    page.flushData({});
    QCOMPARE(page.flows(), QString());
    QCOMPARE(page.ld_State, QString("None supply"));
}

void TestEnergyline::allOffSparesRectifierToInverter()
{
    Page page;
    page.setFlows(true);
    page.set_all_off_Flow();
    QCOMPARE(page.flows(), QString("rec-inv"));
    page.setFlows(false);
    page.set_all_off_Flow();
    QCOMPARE(page.flows(), QString());
}

void TestEnergyline::clicks_data()
{
    QTest::addColumn<QRect>("inside"); // the whole pixels of the area, relative to the centre
    QTest::addColumn<QString>("left"); // the panels still open after one click
    const auto area = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    const QString all = "bypass input ups load battery";
    QTest::newRow("input") << area(-300, -37, -225, 37) << "bypass ups load battery";
    QTest::newRow("bypass") << area(-300, -187, -225, -113) << "input ups load battery";
    QTest::newRow("load") << area(225, -37, 300, 37) << "bypass input ups battery";
    QTest::newRow("battery, and the device with it")
        << area(-25, 80, 25, 155) << "bypass input load";
    QTest::newRow("rectifier: none") << area(-130, -37, -55, 37) << all;
    QTest::newRow("inverter: none") << area(55, -37, 130, 37) << all;
}

void TestEnergyline::clicks()
{
    QFETCH(QRect, inside);
    QFETCH(QString, left);
    Page page;
    const QString all = page.openPanels();
    for (const QSize& size : {QSize(900, 700), QSize(741, 643)}) {
        page.resize(size);
        const QRect area = inside.translated(page.middle().toPoint());
        const QPoint mid = area.center();
        const QPoint edges[] = {area.topLeft(),         area.bottomRight(),
                                {area.left(), mid.y()}, {area.right(), mid.y()},
                                {mid.x(), area.top()},  {mid.x(), area.bottom()}};
        for (const QPoint& point : edges) {
            QTest::mouseClick(&page, Qt::LeftButton, {}, point);
            QCOMPARE(page.openPanels(), left);
            QTest::mouseClick(&page, Qt::LeftButton, {}, point);
            QCOMPARE(page.openPanels(), all);
        }
        const QPoint outside[] = {{area.left() - 1, mid.y()},
                                  {area.right() + 1, mid.y()},
                                  {mid.x(), area.top() - 1},
                                  {mid.x(), area.bottom() + 1}};
        for (const QPoint& point : outside) {
            QTest::mouseClick(&page, Qt::LeftButton, {}, point);
            QCOMPARE(page.openPanels(), all);
        }
    }
    QTest::mouseClick(&page, Qt::LeftButton, {}, inside.center() + page.middle().toPoint());
    page.flushData({{realdata_OutputSource, 3}});
    QCOMPARE(page.openPanels(), left); // a refresh opens nothing
}

void TestEnergyline::animation()
{
    Page page;
    QCOMPARE(page.timer->interval(), 100);
    page.show();
    const int before = page.paints;
    QTRY_VERIFY(page.paints > before + 1); // the timer repaints without any new data
    QVERIFY(page.m_offset < 0.0F);

    page.timer->stop();
    page.m_offset = 0.0F;
    page.advanceFlow();
    QCOMPARE(page.m_offset, -0.4F);
    for (int step = 2; step < 2500; ++step)
        page.advanceFlow();
    QVERIFY(page.m_offset > -1000.0F && page.m_offset < -999.0F);
    page.advanceFlow();
    QCOMPARE(page.m_offset, 0.0F);
}

void TestEnergyline::diagram_data()
{
    addSizes();
}

void TestEnergyline::diagram()
{
    QFETCH(QSize, size);
    Page page;
    page.resize(size);
    const QPointF c = page.middle();
    RecordingDevice device(size);
    page.recordTo(device, &Page::drawBase);

    const QVector<PaintStep> lines = device.stepsOf(PaintStep::Polyline);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(
        lines[0].points,
        translated(
            {{-225, 0}, {0, 0}, {0, 70}, {0, 0}, {225, 0}, {175, 0}, {175, -150}, {-225, -150}},
            c));
    QCOMPARE(lines[0].pen,
             QPen(QColor(245, 246, 250), 10, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));

    // Halves of a pixel are cut off.
    const QPointF boxes[] = {{-300, -38}, {-300, -188}, {225, -38}, {-130, -38}, {55, -38}};
    const QRectF images[] = {{-279, -5, 30, 10},
                             {-279, -155, 30, 10},
                             {227, -28, 70, 55},
                             {-129, -28, 70, 55},
                             {57, -28, 70, 55}};
    const QVector<PaintStep> rects = device.stepsOf(PaintStep::RoundedRect);
    const QVector<PaintStep> pixmaps = device.stepsOf(PaintStep::Pixmap);
    QCOMPARE(rects.size(), 5);
    QCOMPARE(pixmaps.size(), 5);
    for (int i = 0; i < 5; ++i) {
        const QRectF box(c + boxes[i], QSizeF(75, 75));
        QCOMPARE(rects[i].rect, box);
        QCOMPARE(rects[i].radii, QSizeF(75, 75) * 0.25 / 2);
        QCOMPARE(gradientLine(rects[i]), QLineF(box.topLeft(), box.bottomLeft()));
        QCOMPARE(stopsOf(rects[i]),
                 (QGradientStops{{0, QColor(157, 172, 255)}, {1, QColor(41, 71, 198)}}));
        QCOMPARE(pixmaps[i].rect, images[i].translated(c));
        QVERIFY(!pixmaps[i].pixmap.isNull());
    }
    QCOMPARE(pixmaps[0].pixmap.toImage(), pixmaps[1].pixmap.toImage());
    QVERIFY(pixmaps[3].pixmap.toImage() != pixmaps[4].pixmap.toImage());
}

void TestEnergyline::captions()
{
    Page page;
    page.resize(900, 700);
    RecordingDevice device(page.size());
    page.recordTo(device, &Page::drawBase);
    QCOMPARE(device.texts(), (QStringList{"INPUT", "BYPASS", "LOAD", "REC", "INV", "BATTERY"}));
    // LOAD leaves the right third of its line to the load percentage.
    const struct {
        const char* text;
        bool centred;
        QRectF room;
    } rows[] = {{"INPUT", true, {-300, -63, 75, 25}}, {"BYPASS", true, {-300, -213, 75, 25}},
                {"LOAD", false, {225, -63, 50, 25}},  {"REC", true, {-130, -63, 75, 25}},
                {"INV", true, {55, -63, 75, 25}},     {"BATTERY", false, {-45, 160, 70, 50}}};
    for (const auto& row : rows) {
        const PaintStep step = device.textsOf(row.text).value(0);
        QCOMPARE(step.pen.color(), QColor(153, 153, 153));
        QCOMPARE(step.font.family(), QString("Microsoft YaHei"));
        QCOMPARE(step.font.pointSize(), 13);
        QVERIFY(step.font.bold());
        const QRectF room = row.room.translated(page.middle());
        const QLineF extent = extentOf(step);
        QVERIFY(room.contains(extent.p1()) && room.contains(extent.p2()));
        if (row.centred)
            QVERIFY(qAbs(extent.center().x() - room.center().x()) <= 1.0);
        else
            QCOMPARE(extent.x1(), room.left());
    }
}

void TestEnergyline::flowLines_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<QPolygonF>("points");
    const auto row = [](const char* name, int flag, std::initializer_list<QPointF> points) {
        QTest::newRow(name) << flag << translated(points, {});
    };
    row("input to rectifier", 0, {{-225, 0}, {-130, 0}});
    row("rectifier to battery", 1, {{-55, 0}, {0, 0}, {0, 75}});
    row("battery to inverter", 2, {{0, 75}, {0, 0}, {55, 0}});
    row("rectifier to inverter", 3, {{-55, 0}, {55, 0}});
    row("inverter to load", 4, {{130, 0}, {225, 0}});
    row("bypass to load", 5, {{-225, -150}, {175, -150}, {175, 0}, {225, 0}});
    row("none", -1, {});
}

void TestEnergyline::flowLines()
{
    QFETCH(int, flag);
    QFETCH(QPolygonF, points);
    Page page;
    bool* const flags[] = {&page.input_rec_Flag, &page.rec_bat_Flag,  &page.bat_inv_Flag,
                           &page.rec_inv_Flag,   &page.inv_load_Flag, &page.byp_load_Flag};
    if (flag >= 0)
        *flags[flag] = true;
    page.m_offset = -1.2F;
    for (const QSize& size : {QSize(900, 700), QSize(741, 643)}) {
        page.resize(size);
        RecordingDevice device(size);
        page.recordTo(device, &Page::drawflow);
        QCOMPARE(device.steps().size(), flag >= 0 ? 1 : 0);
        if (flag < 0)
            continue;
        const PaintStep line = device.steps()[0];
        QCOMPARE(line.kind, PaintStep::Polyline);
        QCOMPARE(line.points, points.translated(page.middle()));
        QCOMPARE(line.pen.color(), QColor(157, 172, 255));
        QCOMPARE(line.pen.widthF(), 5.0);
        QCOMPARE(line.pen.dashPattern(), (QVector<qreal>{2.0, 1.5, 2.0, 1.5}));
        QCOMPARE(line.pen.dashOffset(), qreal(-1.2F));
        QCOMPARE(line.pen.capStyle(), Qt::RoundCap);
        QCOMPARE(line.pen.joinStyle(), Qt::RoundJoin);
    }
}

void TestEnergyline::batterySymbol()
{
    QFETCH(QSize, size);
    Page page;
    page.resize(size);
    page.bat_Cap = "50";
    RecordingDevice device(size);
    page.recordTo(device, &Page::drawBattery);
    QCOMPARE(device.steps().size(), 3);
    const QPointF c = page.middle();

    const PaintStep outline = device.steps()[0];
    QCOMPARE(outline.rect, QRectF(-25, 80, 50, 75).translated(c));
    QCOMPARE(outline.radii, QSizeF(8, 8));
    QCOMPARE(outline.pen, QPen(Qt::darkGray, 5, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    QCOMPARE(outline.brush.style(), Qt::NoBrush);

    const PaintStep fill = device.steps()[1];
    QCOMPARE(fill.radii, QSizeF(5, 5));
    QCOMPARE(fill.pen.style(), Qt::NoPen);
    QCOMPARE(gradientLine(fill), QLineF(0, 0, 0, 50)); // not where the battery is
    QCOMPARE(fill.brush.gradient()->spread(), QGradient::PadSpread);

    const PaintStep cap = device.steps()[2];
    const QRectF capRect = QRectF(-25 + 50 / 3.0, 70, 50 / 3.0, 10).translated(c);
    QCOMPARE(cap.rect, capRect);
    QCOMPARE(cap.radii, QSizeF(2, 2));
    QCOMPARE(cap.pen.style(), Qt::NoPen);
    QCOMPARE(gradientLine(cap), QLineF(capRect.topLeft(), capRect.bottomLeft()));
    QCOMPARE(stopsOf(cap), (QGradientStops{{0, Qt::darkGray}, {1, Qt::gray}}));
}

void TestEnergyline::batteryCharge_data()
{
    QTest::addColumn<QString>("charge");
    QTest::addColumn<qreal>("top"); // of the fill, relative to the centre
    QTest::addColumn<qreal>("bottom");
    QTest::addColumn<QColor>("start");
    QTest::addColumn<QColor>("end");
    const auto row = [](const char* charge, qreal top, qreal bottom, Qt::GlobalColor start,
                        Qt::GlobalColor end) {
        QTest::newRow(charge) << charge << top << bottom << QColor(start) << QColor(end);
    };
    constexpr qreal kFloor = 153.0;
    constexpr qreal kPerCent = 0.71;
    row("20", kFloor - 20 * kPerCent, kFloor, Qt::darkRed, Qt::red);
    row("21", kFloor - 21 * kPerCent, kFloor, Qt::darkYellow, Qt::yellow);
    row("60", kFloor - 60 * kPerCent, kFloor, Qt::darkYellow, Qt::yellow);
    row("61", kFloor - 61 * kPerCent, kFloor, Qt::darkGreen, Qt::green);
    row("100", 82.0, kFloor, Qt::darkGreen, Qt::green);
    row("120", kFloor - 120 * kPerCent, kFloor, Qt::darkGreen, Qt::green);
    row("-5", kFloor, kFloor + 5 * kPerCent, Qt::darkRed, Qt::red);
    row("0", kFloor, kFloor, Qt::darkRed, Qt::red);
    row("no number", kFloor, kFloor, Qt::darkRed, Qt::red);
}

void TestEnergyline::batteryCharge()
{
    QFETCH(QString, charge);
    QFETCH(qreal, top);
    QFETCH(qreal, bottom);
    QFETCH(QColor, start);
    QFETCH(QColor, end);
    Page page;
    page.resize(900, 700);
    page.bat_Cap = charge;
    RecordingDevice device(page.size());
    page.recordTo(device, &Page::drawBattery);
    const PaintStep fill = device.steps().at(1);
    const QPointF c = page.middle();
    QCOMPARE(stopsOf(fill), (QGradientStops{{0, start}, {1, end}}));
    QCOMPARE(fill.rect.left(), c.x() - 23);
    QCOMPARE(fill.rect.right(), c.x() + 23);
    QCOMPARE(fill.rect.top(), c.y() + top);
    QCOMPARE(fill.rect.bottom(), c.y() + bottom);

    // The charge as seen: the end colour just above the body's floor, nothing there at 0.
    const QColor seen = page.grab().toImage().pixelColor(450, 350 + 150);
    QCOMPARE(seen == end, charge.toInt() > 0);
}

void TestEnergyline::panels_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<QStringList>("texts"); // title, then labels, then values
    QTest::newRow("bypass") << "bypass" << QRectF(-375, -320, 250, 79)
                            << QStringList{"BYPASS", "Voltage:", "Frequency:", "231 V", "50.1 Hz"};
    QTest::newRow("input") << "input" << QRectF(-375, 45, 250, 104)
                           << QStringList{"INPUT", "Voltage:", "Current:", "Frequency:",
                                          "230 V", "5.2 A",    "49.9 Hz"};
    QTest::newRow("device") << "ups" << QRectF(-110, -320, 250, 104)
                            << QStringList{"UPS",           "Type:",  "Name:",
                                           "Manufacturer:", "Type 5", "A <b>&name</b> %s",
                                           "Maker"};
    QTest::newRow("load") << "load" << QRectF(130, 45, 250, 179)
                          << QStringList{"LOAD",          "Voltage:",      "Current:", "Frequency:",
                                         "Active power:", "Load percent:", "Status:",  "232 V",
                                         "14.8 A",        "50.0 Hz",       "3 KW",     "45 %",
                                         "Utility supply"};
    QTest::newRow("battery") << "battery" << QRectF(-375, 163, 250, 154)
                             << QStringList{"BATTERY",   "Voltage:", "Temperature:", "Remain time:",
                                            "Capacity:", "Status:",  "27.1 V",       "25.0 ℃",
                                            "42 Min",    "95 %",     "Floating"};
}

void TestEnergyline::panels()
{
    QFETCH(QString, open);
    QFETCH(QRectF, frame);
    QFETCH(QStringList, texts);
    Page page;
    page.flushData({{realdata_InputNumLines, 1},
                    {realdata_OutputNumLines, 1},
                    {realdata_BypNumLines, 1},
                    {realdata_BypVoltage_A, 231},
                    {realdata_BypFre, 501},
                    {realdata_InputVoltage_A, 230},
                    {realdata_InputCurrent_A, 52},
                    {realdata_InputFre_A, 499},
                    {realdata_OutputVoltage_A, 232},
                    {realdata_OutputCurrent_A, 148},
                    {realdata_OutputFre, 500},
                    {realdata_OutputPower_A_Hi, 3},
                    {realdata_OutputLoad_A, 45},
                    {realdata_OutputSource, 3},
                    {realdata_BatVoltage, 271},
                    {realdata_BatTemp, 250},
                    {realdata_MinutesRemaining, 42},
                    {realdata_ChargeRemaining, 95},
                    {realdata_BatteryStatus, 7},
                    {info_ups_type, "Type 5"},
                    {info_quenta_name, "A <b>&name</b> %s"},
                    {info_copo_name, "Maker"}});
    page.closePanels();
    page.BYPASS_view_Flag = open == "bypass";
    page.INPUT_view_Flag = open == "input";
    page.UPS_view_Flag = open == "ups";
    page.LOAD_view_Flag = open == "load";
    page.BATTERY_view_Flag = open == "battery";
    page.resize(900, 700);
    RecordingDevice device(page.size());
    page.recordTo(device, &Page::drawdate);

    const QVector<PaintStep> frames = device.stepsOf(PaintStep::RoundedRect);
    QCOMPARE(frames.size(), 1);
    frame.translate(page.middle());
    QCOMPARE(frames[0].rect, frame);
    QCOMPARE(frames[0].radii, frame.size() * 0.05 / 2);
    QCOMPARE(frames[0].pen.color(), QColor(Qt::white));
    QCOMPARE(frames[0].brush, QBrush(QColor(245, 246, 250)));

    QVector<PaintStep> drawn = device.stepsOf(PaintStep::Text);
    QCOMPARE(drawn.size(), texts.size() + 2); // after the charge and the load
    drawn.remove(0, 2);
    const int lines = texts.size() / 2;
    for (int i = 0; i < texts.size(); ++i) {
        const PaintStep& step = drawn[i];
        const bool isValue = i > lines;
        const int line = isValue ? i - lines : i;
        const QLineF extent = extentOf(step);
        QCOMPARE(step.text, texts[i]);
        QCOMPARE(step.pen.color(), isValue ? QColor(19, 75, 255) : QColor(102, 102, 102));
        QCOMPARE(step.font.pointSize(), 11);
        QVERIFY(!step.font.bold());
        QVERIFY(extent.y1() > frame.top() + 25 * line &&
                extent.y1() < frame.top() + 25 * (line + 1));
        if (i == 0)
            QVERIFY(qAbs(extent.center().x() - frame.center().x()) <= 1.0);
        else if (isValue)
            QVERIFY(qAbs(extent.x2() - (frame.right() - 10)) <= 1.0);
        else
            QCOMPARE(extent.x1(), frame.left() + 10);
    }
}

void TestEnergyline::chargeAndLoadStayWithoutPanels()
{
    Page page;
    page.closePanels();
    page.resize(900, 700);
    page.bat_Cap = "95";
    page.ld_Percent = "45 %";
    RecordingDevice device(page.size());
    page.recordTo(device, &Page::drawdate);
    QCOMPARE(device.texts(), (QStringList{"95 %", "45 %"}));
    const QRectF rooms[] = {{25, 160, 50, 50}, {275, -63, 80, 25}};
    for (int i = 0; i < 2; ++i) {
        const PaintStep& step = device.steps()[i];
        const QRectF room = rooms[i].translated(page.middle());
        QCOMPARE(step.pen.color(), QColor(19, 75, 255));
        QCOMPARE(extentOf(step).x1(), room.left());
        QVERIFY(room.contains(extentOf(step).p2()));
    }
}

void TestEnergyline::textsStayInTheirRectangles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a little too long") << "Basement rack 4, row B";
    QTest::newRow("much too long") << QString("name ").repeated(20);
    QTest::newRow("a million characters") << QString(1000000, 'W');
    QTest::newRow("lines") << "one\ntwo\r\nthree" + QString(QChar::LineSeparator) + "four";
    QTest::newRow("controls") << QString("a\tb\x9c") + QChar(0) + QChar(0x202e) + "cd";
    QTest::newRow("rich text") << "<h1>big</h1>";
}

void TestEnergyline::textsStayInTheirRectangles()
{
    QFETCH(QString, name);
    Page page;
    page.resize(900, 700);
    page.flushData({{info_quenta_name, name},
                    {realdata_OutputLoad_A, kLowest},
                    {realdata_OutputLoad_B, kLowest},
                    {realdata_ChargeRemaining, kHighest}});
    page.closePanels();
    page.UPS_view_Flag = true;
    RecordingDevice device(page.size());
    page.recordTo(device, &Page::drawdate);

    const QRectF nameLine = QRectF(-100, -270, 230, 25).translated(page.middle());
    const qreal labelEnd = extentOf(device.textsOf("Name:").value(0)).x2();
    int runs = 0;
    QSet<int> baselines;
    for (const PaintStep& step : device.stepsOf(PaintStep::Text)) {
        const QLineF extent = extentOf(step);
        const bool isName = nameLine.contains(extent.p1()) && step.text != "Name:";
        runs += isName;
        baselines << qRound(extent.y1());
        if (isName)
            QVERIFY(extent.x1() > labelEnd && extent.x2() <= nameLine.right() + 1.0);
        // The load beside its caption ends where its room ends.
        QVERIFY(extent.x2() <= page.middle().x() + 275 + 80 + 1.0);
    }
    QVERIFY(runs >= 1);
    QCOMPARE(baselines.size(), 6); // charge, load, title and three lines, no line broken in two
    QVERIFY(!page.grab().isNull());
}

void TestEnergyline::layersInOrderLeaveThePainterAlone()
{
    Page page;
    page.resize(900, 700);
    page.setFlows(true);
    RecordingDevice device(page.size());
    page.recordTo(device);
    const QVector<PaintStep> all = device.steps();
    QVERIFY(all[0].hints.testFlag(QPainter::Antialiasing));
    QVERIFY(all[0].hints.testFlag(QPainter::TextAntialiasing));
    QVERIFY(all[0].hints.testFlag(QPainter::SmoothPixmapTransform));

    device.clear();
    {
        QPainter painter(&device);
        const QPen pen = painter.pen();
        const QBrush brush = painter.brush();
        const QFont font = painter.font();
        for (Page::Layer layer : {Page::Layer(&Page::drawBase), Page::Layer(&Page::drawBattery),
                                  Page::Layer(&Page::drawflow), Page::Layer(&Page::drawdate)}) {
            (page.*layer)(&painter);
            QCOMPARE(painter.pen(), pen);
            QCOMPARE(painter.brush(), brush);
            QCOMPARE(painter.font(), font);
            QVERIFY(painter.transform().isIdentity());
        }
    }
    QCOMPARE(device.steps().size(), all.size());
    for (int i = 0; i < all.size(); ++i)
        QCOMPARE(device.steps()[i].kind, all[i].kind);
}

void TestEnergyline::hostImagesWin()
{
    const auto images = [](int devicePixelRatio) {
        Page page;
        page.resize(900, 700);
        RecordingDevice device(page.size(), devicePixelRatio);
        page.recordTo(device, &Page::drawBase);
        QVector<QImage> drawn;
        for (const PaintStep& step : device.stepsOf(PaintStep::Pixmap))
            drawn << step.pixmap.toImage();
        return drawn;
    };
    // The library claims nothing under the host's paths: it would win there, registered first.
    QVERIFY(!QFile::exists("://image/INPUT.png"));
    const QVector<QImage> own = images(1);
    const QVector<QImage> ownDense = images(2);
    QCOMPARE(own[0].size(), QSize(30, 10));
    QCOMPARE(own[2].size(), QSize(70, 55));
    QCOMPARE(ownDense[0].size(), QSize(60, 20));
    QCOMPARE(ownDense[2].size(), QSize(140, 110));

    Q_INIT_RESOURCE(hostimages);
    const QVector<QImage> withHost = images(1);
    const QVector<QImage> withHostDense = images(2);
    Q_CLEANUP_RESOURCE(hostimages);
    QCOMPARE(withHost[0].pixelColor(15, 5), QColor(255, 0, 255)); // the host's, for both boxes
    QCOMPARE(withHost[1], withHost[0]);
    QCOMPARE(withHostDense[0], withHost[0]); // its one size, before the library's denser one
    QCOMPARE(withHost[2], own[2]);           // what the host lacks stays the library's
    QCOMPARE(withHostDense[2], ownDense[2]);
    QCOMPARE(images(1), own);
}

QTEST_MAIN(TestEnergyline)
#include "tst_energyline.moc"
