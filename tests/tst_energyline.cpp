// The energy-flow page: what a snapshot becomes, what a click does, and the diagram as numbers.

#include "energyline.h"
#include "globalvar.h"
#include "support/recordingdevice.h"

#include <QProxyStyle>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <limits>

namespace {

using Snapshot = QMap<int, QVariant>;
constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr QSize kEven(900, 700);
constexpr QSize kOdd(741, 643); // its centre is rounded down

class Page : public Energyline
{
public:
    using Energyline::ac_ACur, Energyline::ac_AVolt, Energyline::byp_Volt, Energyline::ld_ActPower,
        Energyline::ld_Cur, Energyline::ld_Percent, Energyline::ld_State, Energyline::ld_Volt;
    using Energyline::advanceFlow, Energyline::m_offset, Energyline::timer;
    using Energyline::bat_Cap, Energyline::bat_State, Energyline::bat_Temp;
    using Energyline::drawBase, Energyline::drawBattery, Energyline::drawdate, Energyline::drawflow;
    using Energyline::normalValue, Energyline::ups_Name;
    using Layer = void (Page::*)(QPainter*);
    using Flags = QVector<QPair<const char*, bool Energyline::*>>;
    static const Flags kFlows, kPanels; // in the order of their drawing

    explicit Page(const QSize& size = kEven) { resize(size); }

    QString on(const Flags& flags) const
    {
        QStringList names;
        for (auto [name, flag] : flags) {
            if (this->*flag)
                names << name;
        }
        return names.join(' ');
    }
    void set(const Flags& flags, const QString& names)
    {
        for (auto [name, flag] : flags)
            this->*flag = names.split(' ').contains(name);
    }
    QRegion painted; // last
    QPointF middle() const { return QPoint(width() / 2, height() / 2); }

    // One layer of the page as primitives.
    QVector<PaintStep> steps(Layer layer, int kind = -1, int devicePixelRatio = 1)
    {
        RecordingDevice device(size(), devicePixelRatio);
        QPainter painter(&device);
        (this->*layer)(&painter);
        return kind < 0 ? device.steps() : device.stepsOf(PaintStep::Kind(kind));
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted = event->region();
        Energyline::paintEvent(event);
    }
};

const Page::Flags Page::kFlows{
    {"input-rec", &Page::input_rec_Flag}, {"rec-bat", &Page::rec_bat_Flag},
    {"bat-inv", &Page::bat_inv_Flag},     {"rec-inv", &Page::rec_inv_Flag},
    {"inv-load", &Page::inv_load_Flag},   {"byp-load", &Page::byp_load_Flag}};
const Page::Flags Page::kPanels{{"bypass", &Page::BYPASS_view_Flag},
                                {"input", &Page::INPUT_view_Flag},
                                {"ups", &Page::UPS_view_Flag},
                                {"load", &Page::LOAD_view_Flag},
                                {"battery", &Page::BATTERY_view_Flag}};
const char kAllFlows[] = "input-rec rec-bat bat-inv rec-inv inv-load byp-load";
const char kAllPanels[] = "bypass input ups load battery";

// lines: the three phase counts; invalid: none in the snapshot. Phase B is 10 more than A.
Snapshot sampleSnapshot(const QVariant& lines)
{
    Snapshot map{{info_ups_type, "  On-line\n 10 kVA "},
                 {info_quenta_name, "A <b>&  %s"},
                 {info_copo_name, "Maker"}};
    constexpr int kValues[][2] = {{realdata_InputFre_A, 499},       {realdata_BypFre, 501},
                                  {realdata_OutputFre, 500},        {realdata_OutputSource, 3},
                                  {realdata_OutputPower_A_Lo, 777}, {realdata_BatVoltage, 271},
                                  {realdata_BatTemp, 250},          {realdata_MinutesRemaining, 42},
                                  {realdata_ChargeRemaining, 95},   {realdata_BatteryStatus, 7}};
    for (auto [key, value] : kValues)
        map[key] = value;
    constexpr int kPhaseA[][2] = {{realdata_InputVoltage_A, 230},  {realdata_InputCurrent_A, 52},
                                  {realdata_BypVoltage_A, 231},    {realdata_OutputVoltage_A, 232},
                                  {realdata_OutputCurrent_A, 148}, {realdata_OutputPower_A_Hi, 3},
                                  {realdata_OutputLoad_A, 45}};
    for (auto [key, value] : kPhaseA) {
        const int stride = key == realdata_OutputPower_A_Hi ? 2 : 1; // the low words lie between
        for (int phase = 0; phase < 3; ++phase)
            map[key + phase * stride] = value + phase * 10;
    }
    for (int key : {realdata_InputNumLines, realdata_BypNumLines, realdata_OutputNumLines})
        map[key] = lines;
    return map;
}

bool isWithin(const PaintStep& text, const QRectF& room)
{
    const QRectF within = room.adjusted(-1.0, 0.0, 1.0, 0.0); // rounding of advances
    const QPointF start = text.points[0];
    return within.contains(text.transform.map(start)) &&
           within.contains(text.transform.map(start + QPointF(text.width, 0.0)));
}

} // namespace

class TestEnergyline : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_CLEANUP_RESOURCE(hostimages); } // only hostImagesWin() has such a host
    void texts();
    void flowsBySource();
    void clicks();
    void animation();
    void stepsPaintWhatChanged();
    void stepsShowWhatAPaintShows_data();
    void stepsShowWhatAPaintShows();
    void diagram();
    void flowLines();
    void batterySymbol();
    void panels();
    void textsStayInTheirRectangles();
    void hostImagesWin();
    void standsStillWhereTheStyleWantsIt();
};

void TestEnergyline::texts() // single-phase texts: see panels()
{
    Page page;
    for (const QVariant& lines : {QVariant(3), QVariant(2), QVariant()}) {
        page.flushData(sampleSnapshot(lines));
        const QStringList texts{page.ac_AVolt, page.ac_ACur,     page.byp_Volt,  page.ld_Volt,
                                page.ld_Cur,   page.ld_ActPower, page.ld_Percent};
        QCOMPARE(texts.join(", "),
                 QString("230/240/250 V, 5.2/6.2/7.2 A, 231/241/251 V, 232/242/252 V, "
                         "14.8/15.8/16.8 A, 3/13/23 KW, 45/55/65 %"));
    }
    page.flushData({{realdata_BypNumLines, 1}}); // each group follows its own count
    QCOMPARE(page.ac_AVolt + page.byp_Volt + page.ld_Percent, QString("0/0/0 V0 V0/0/0 %"));

    const std::tuple<int, int, const char*> rows[] = {
        {1000, 0, "100.0 Normal"}, {1001, 1, "-- Unknown"}, {0, 8, "0.0 Discharge"},
        {-1, 9, "-- Normal"},      {-1, 10, "-- "},         {-1, kLowest, "-- "}};
    for (auto [tenths, status, text] : rows) {
        page.flushData({{realdata_BatTemp, tenths}, {realdata_BatteryStatus, status}});
        QCOMPARE(page.bat_Temp + ' ' + page.bat_State, QString(text));
    }
}

void TestEnergyline::flowsBySource()
{
    const struct {
        int source;
        const char* text;
        const char* flows;         // battery neither in boost nor in float charge
        const char* chargingFlows; // in boost or float charge
    } rows[] = {
        // On utility supply the battery's line shows while not charging.
        {0, "None supply", "", ""},
        {1, "Other supply", "", ""},
        {3, "Utility supply", "input-rec rec-bat rec-inv inv-load", "input-rec rec-inv inv-load"},
        {4, "Bypass supply", "byp-load", "input-rec rec-bat byp-load"},
        {5, "Battery supply", "bat-inv inv-load", "bat-inv inv-load"},
        {7, "Reducer supply", "", ""},
        {8, "", "", ""},
    };
    Page page;
    for (const auto& row : rows) {
        for (int status : {5, 6, 7, 8, kLowest}) {
            page.set(Page::kFlows, kAllFlows); // nothing of the last snapshot stays
            page.flushData({{realdata_OutputSource, row.source}, {realdata_BatteryStatus, status}});
            const bool charging = status == 6 || status == 7;
            QCOMPARE(page.on(Page::kFlows), QString(charging ? row.chargingFlows : row.flows));
            QCOMPARE(page.ld_State, QString(row.text));
        }
    }
}

void TestEnergyline::clicks()
{
    // The whole pixels of the area, relative to the centre, and the panels open after one click.
    const std::pair<QRect, const char*> rows[] = {
        {QRect(-300, -37, 76, 75), "bypass ups load battery"},
        {QRect(-300, -187, 76, 75), "input ups load battery"},
        {QRect(225, -37, 76, 75), "bypass input ups battery"},
        {QRect(-25, 80, 51, 76), "bypass input load"},
    };
    for (auto [inside, left] : rows) {
        Page page(kOdd);
        const auto click = [&page](int x, int y) {
            QTest::mouseClick(&page, Qt::LeftButton, {}, QPoint(x, y));
            return page.on(Page::kPanels);
        };
        const QRect area = inside.translated(page.middle().toPoint());
        const QPoint mid = area.center();
        QCOMPARE(click(area.left() - 1, mid.y()), QString(kAllPanels));
        QCOMPARE(click(area.right() + 1, mid.y()), QString(kAllPanels));
        QCOMPARE(click(mid.x(), area.top() - 1), QString(kAllPanels));
        QCOMPARE(click(mid.x(), area.bottom() + 1), QString(kAllPanels));
        QCOMPARE(click(area.left(), area.top()), QString(left));
        page.flushData({{realdata_OutputSource, 3}});
        QCOMPARE(page.on(Page::kPanels), QString(left)); // a refresh opens nothing
        QCOMPARE(click(area.right(), area.bottom()), QString(kAllPanels));
    }
}

void TestEnergyline::animation()
{
    Page page;
    QCOMPARE(page.timer->interval(), 100);
    page.advanceFlow();
    QVERIFY(page.timer->isActive()); // not hidden: not shown yet
    page.show();
    QTRY_VERIFY(page.m_offset < -0.4F); // without any new data
    page.hide();
    QTRY_VERIFY(!page.timer->isActive()); // for nobody
    page.show();
    QTRY_VERIFY(page.timer->isActive());
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

// As window.render() paints a part of it.
QImage painted(QWidget& window, const QRect& part, int devicePixelRatio, QImage::Format format)
{
    QImage image(window.size() * devicePixelRatio, format);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::white);
    window.render(&image, part.topLeft(), part);
    return image;
}

void TestEnergyline::stepsPaintWhatChanged()
{
    Page page;
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    page.timer->stop();
    const auto step = [&page] {
        page.painted = {};
        page.advanceFlow();
        QCoreApplication::processEvents();
        return page.painted;
    };
    const auto click = [&page] {
        QTest::mouseClick(&page, Qt::LeftButton, {}, page.middle().toPoint() + QPoint(0, 100));
    };
    const std::function<void()> changes[] = {
        [&] { page.flushData(sampleSnapshot(3)); },
        [&] { page.flushData(sampleSnapshot(1)); },
        [&] { page.ups_Name = "written by a derived page"; },
        [&] { page.normalValue = 99; },
        [&] { page.set(Page::kFlows, "byp-load"); },
        [&] { page.set(Page::kPanels, "ups"); },
        [&] { click(); },
    };
    step();
    for (const auto& change : changes) {
        const QImage before = painted(page, page.rect(), 1, QImage::Format_RGB32);
        change();
        QVERIFY(painted(page, page.rect(), 1, QImage::Format_RGB32) != before);
        QCOMPARE(step(), QRegion(page.rect()));
        const QVector<QRegion> steps{step(), step()};
        QCOMPARE(steps[0], steps[1]);
        QVERIFY(!steps[0].isEmpty());
        for (const QRect& line : steps[0])
            QVERIFY(std::min(line.width(), line.height()) <= 6); // a flow's width, in whole pixels
    }
    click();
    page.repaint(); // another window uncovers it
    click();
    QCOMPARE(step(), QRegion(page.rect()));
    page.set(Page::kFlows, {});
    step();
    QVERIFY(step().isEmpty());
}

void TestEnergyline::stepsShowWhatAPaintShows_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("onScreen");
    for (quint32 seed : {1, 2, 3})
        QTest::addRow("a window, %u", seed) << seed << true;
    for (quint32 seed : {4, 5, 6})
        QTest::addRow("a part of a line, %u", seed) << seed << false;
}

// Some of what can happen to a page between two steps.
void changeAtRandom(QWidget& window, Page& page, QRandomGenerator& dice)
{
    const auto even = [&dice] { return dice.bounded(2) == 0; };
    switch (dice.bounded(20)) {
    case 0:
        window.resize(590 + dice.bounded(4), dice.bounded(4) ? 420 : 220);
        return page.resize(window.size() - QSize(30, 20));
    case 1:
        return page.setStyleSheet(even() ? "" : "Energyline { background: rgba(255, 0, 0, 90) }");
    case 2:
        return window.setPalette(even() ? Qt::white : QColor(30, 40, 50));
    case 3:
        return window.setStyleSheet(even() ? "" : "* { background: #345; font: 30pt }");
    case 4:
        return page.set(Page::kFlows, even() ? kAllFlows : "byp-load rec-bat");
    case 5:
        return page.flushData({{realdata_OutputSource, 3 + dice.bounded(3)},
                               {realdata_ChargeRemaining, even() ? 90 : 120 + dice.bounded(9)}});
    case 6:
        page.normalValue = even() ? 60 : 200; // the colours of a charge above 100
        return;
    case 7:
        QTest::mouseClick(&page, Qt::LeftButton, {}, page.middle().toPoint() + QPoint(0, 100));
        return;
    case 8:
        page.m_offset = even() ? -0.13F : 20.0F; // between the steps
        return;
    case 9:
        return page.move(even() ? QPoint(13, 7) : QPoint(14, 8));
    default: // one of few steps, so that they come again
        page.m_offset = -0.4F * static_cast<float>(dice.bounded(35, 37));
    }
}

void TestEnergyline::stepsShowWhatAPaintShows()
{
    QFETCH(quint32, seed);
    QFETCH(bool, onScreen);
    constexpr QRect kParts[] = {{293, 207, 20, 2}, {300, 207, 20, 2}}; // wherever the page moves
    QRandomGenerator dice(seed);
    QWidget window;
    Page page;
    page.setParent(&window);
    page.move(13, 7);
    window.resize(590, 420);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    page.timer->stop();
    page.set(Page::kFlows, kAllFlows);
    int ratio = 1;
    QImage::Format format = QImage::Format_RGB32;
    QRect part = kParts[0];
    for (int i = 0; i < 300; ++i) {
        QImage shown;
        if (onScreen) {
            changeAtRandom(window, page, dice);
            page.advanceFlow();
            QCoreApplication::processEvents();
            shown = window.screen()->grabWindow(window.winId()).toImage();
            part = window.rect();
            format = shown.format();
        } else {
            painted(window, part, ratio, format); // and remembered
            changeAtRandom(window, page, dice);
            ratio = dice.bounded(9) ? ratio : 3 - ratio;
            part = kParts[dice.bounded(9) ? 0 : 1];
            format = dice.bounded(9) ? QImage::Format_RGB32 : QImage::Format_RGB16;
            shown = painted(window, part, ratio, format);
        }
        const QImage plain = painted(window, window.rect(), ratio, format);
        const QRect pixels(part.topLeft() * ratio, part.size() * ratio);
        QVERIFY2(shown.copy(pixels) == plain.copy(pixels), qPrintable(QString::number(i)));
    }
}

void TestEnergyline::diagram()
{
    // Halves of a pixel are cut off.
    const struct {
        QPointF box;
        const char* caption;
        QRectF image;
    } rows[] = {
        {{-300, -38}, "INPUT", {-279, -5, 30, 10}}, {{-300, -188}, "BYPASS", {-279, -155, 30, 10}},
        {{225, -38}, "LOAD", {227, -28, 70, 55}},   {{-130, -38}, "REC", {-129, -28, 70, 55}},
        {{55, -38}, "INV", {57, -28, 70, 55}},
    };
    const QPolygonF wires(
        {{-225, 0}, {0, 0}, {0, 70}, {0, 0}, {225, 0}, {175, 0}, {175, -150}, {-225, -150}});
    for (const QSize& size : {kEven, kOdd}) {
        Page page(size);
        const QPointF c = page.middle();
        QCOMPARE(page.steps(&Page::drawBase).at(0).points, wires.translated(c));
        const auto boxes = page.steps(&Page::drawBase, PaintStep::RoundedRect);
        const auto texts = page.steps(&Page::drawBase, PaintStep::Text);
        const auto images = page.steps(&Page::drawBase, PaintStep::Pixmap);
        QCOMPARE(boxes.size(), 5);
        for (int i = 0; i < 5; ++i) {
            const QRectF box(c + rows[i].box, QSizeF(75, 75));
            QCOMPARE(boxes[i].rect, box);
            QCOMPARE(images[i].rect, rows[i].image.translated(c));
            QCOMPARE(texts[i].text, QString(rows[i].caption));
            QVERIFY(isWithin(texts[i], QRectF(box.x(), box.y() - 25, 75, 25)));
        }
        QVERIFY(isWithin(texts[5], QRectF(-45, 160, 70, 50).translated(c)));
    }
}

void TestEnergyline::flowLines()
{
    const QVector<QPointF> lines[] = {
        {{-225, 0}, {-130, 0}},     {{-55, 0}, {0, 0}, {0, 75}},
        {{0, 75}, {0, 0}, {55, 0}}, {{-55, 0}, {55, 0}},
        {{130, 0}, {225, 0}},       {{-225, -150}, {175, -150}, {175, 0}, {225, 0}},
    };
    Page page(kOdd);
    QVERIFY(page.steps(&Page::drawflow).isEmpty());
    page.set(Page::kFlows, kAllFlows);
    page.set_all_off_Flow();
    QCOMPARE(page.on(Page::kFlows), QString("rec-inv")); // which it leaves as it is
    page.m_offset = -1.2F;
    for (int i = 0; i < 6; ++i) {
        page.set(Page::kFlows, Page::kFlows[i].first);
        const QVector<PaintStep> drawn = page.steps(&Page::drawflow);
        QCOMPARE(drawn.size(), 1);
        QCOMPARE(drawn[0].points, QPolygonF(lines[i]).translated(page.middle()));
        QCOMPARE(drawn[0].pen.dashOffset(), qreal(-1.2F));
    }
    // Added up in single precision; repeated after 35 steps; between the steps.
    const std::pair<float, float> offsets[] = {{-1.2001F, -1.2F}, {-15.2F, -1.2F}, {-1.1F, -1.1F}};
    for (auto [offset, shown] : offsets) {
        page.m_offset = offset;
        QCOMPARE(page.steps(&Page::drawflow)[0].pen.dashOffset(), qreal(shown));
    }
}

void TestEnergyline::batterySymbol()
{
    const struct {
        const char* text;
        int charge;             // the fill's height, from the floor up, in per cent of 71 px
        Qt::GlobalColor colour; // at the floor
    } rows[] = {
        {"-5", -5, Qt::red},     {"no number", 0, Qt::red}, {"20", 20, Qt::red},
        {"21", 21, Qt::yellow},  {"60", 60, Qt::yellow},    {"61", 61, Qt::green},
        {"120", 120, Qt::green},
    };
    for (const QSize& size : {kEven, kOdd}) {
        Page page(size);
        const QPointF c = page.middle();
        for (const auto& row : rows) {
            page.bat_Cap = row.text;
            const QVector<PaintStep> drawn = page.steps(&Page::drawBattery);
            QCOMPARE(drawn.size(), 3); // body, fill, cap
            QCOMPARE(drawn[0].rect, QRectF(-25, 80, 50, 75).translated(c));
            const QRectF fill(c + QPointF(-23, 153), QSizeF(46, row.charge * -0.71));
            QCOMPARE(drawn[1].rect, fill.normalized());
            QCOMPARE(drawn[1].brush.gradient()->stops().last().second, QColor(row.colour));
        }
    }
}

void TestEnergyline::panels()
{
    const struct {
        const char* panel;
        QRectF frame;
        const char* texts; // title, then labels, then values
    } rows[] = {
        {"bypass", QRectF(-375, -320, 250, 79), "BYPASS|Voltage:|Frequency:|231 V|50.1 Hz"},
        {"input", QRectF(-375, 45, 250, 104),
         "INPUT|Voltage:|Current:|Frequency:|230 V|5.2 A|49.9 Hz"},
        {"ups", QRectF(-110, -320, 250, 104),
         "UPS|Type:|Name:|Manufacturer:|On-line 10 kVA|A <b>&  %s|Maker"},
        {"load", QRectF(130, 45, 250, 179),
         "LOAD|Voltage:|Current:|Frequency:|Active power:|Load percent:|Status:|"
         "232 V|14.8 A|50.0 Hz|3 KW|45 %|Utility supply"},
        {"battery", QRectF(-375, 163, 250, 154),
         "BATTERY|Voltage:|Temperature:|Remain time:|Capacity:|Status:|"
         "27.1 V|25.0 ℃|42 Min|95 %|Floating"},
    };
    Page page;
    page.flushData(sampleSnapshot(1));
    for (const auto& row : rows) {
        page.set(Page::kPanels, row.panel);
        const QRectF frame = row.frame.translated(page.middle());
        const auto frames = page.steps(&Page::drawdate, PaintStep::RoundedRect);
        QCOMPARE(frames.value(0).rect, frame);
        const QVector<PaintStep> drawn = page.steps(&Page::drawdate, PaintStep::Text);
        QStringList texts;
        for (const PaintStep& step : drawn)
            texts << step.text;
        // Charge and load are there whatever is open.
        QCOMPARE(texts.join('|'), "95 %|45 %|" + QString::fromUtf8(row.texts));
        QVERIFY(isWithin(drawn[0], QRectF(25, 160, 50, 50).translated(page.middle())));
        QVERIFY(isWithin(drawn[1], QRectF(275, -63, 80, 25).translated(page.middle())));
        const int lines = drawn.size() / 2 - 1;
        for (int i = 0; i < drawn.size() - 2; ++i) {
            const int line = i > lines ? i - lines : i;
            QVERIFY(isWithin(drawn[i + 2], {frame.x() + 10, frame.y() + 25 * line, 230, 25}));
        }
    }
}

void TestEnergyline::textsStayInTheirRectangles()
{
    Page page;
    page.set(Page::kPanels, "ups");
    const QRectF charge(25, 160, 50, 50), load(275, -63, 80, 25), panel(-100, -320, 230, 104);
    for (const QString& name : {QString(1000000, 'W'), QString("one\ntwo\r\nthree\u2028four")}) {
        page.flushData({{info_quenta_name, name},
                        {realdata_OutputLoad_A, kLowest},
                        {realdata_OutputLoad_B, kLowest},
                        {realdata_ChargeRemaining, kHighest}});
        QSet<int> baselines;
        for (PaintStep& step : page.steps(&Page::drawdate, PaintStep::Text)) {
            baselines << qRound(step.transform.map(step.points[0]).y());
            step.transform *= QTransform::fromTranslate(-page.middle().x(), -page.middle().y());
            QVERIFY(isWithin(step, charge) || isWithin(step, load) || isWithin(step, panel));
        }
        QCOMPARE(baselines.size(), 6); // charge, load, title and three lines, none broken in two
    }
}

void TestEnergyline::hostImagesWin()
{
    const auto images = [](int devicePixelRatio) {
        QVector<QImage> drawn;
        for (auto& step : Page().steps(&Page::drawBase, PaintStep::Pixmap, devicePixelRatio))
            drawn << step.pixmap.toImage();
        return drawn;
    };
    // The library claims nothing under the host's paths: it would win there, registered first.
    QVERIFY(!QFile::exists("://image/INPUT.png"));
    const QVector<QImage> own = images(2);
    QCOMPARE(own[0].size(), images(1)[0].size() * 2);
    Q_INIT_RESOURCE(hostimages);
    const QVector<QImage> withHost = images(2);
    Q_CLEANUP_RESOURCE(hostimages);
    // The host's one size, for both boxes, before the library's denser one.
    QCOMPARE(withHost[0].pixelColor(15, 5), QColor(255, 0, 255));
    QCOMPARE(withHost[1], withHost[0]);
    QCOMPARE(withHost[2], own[2]); // what the host lacks stays the library's
}

void TestEnergyline::standsStillWhereTheStyleWantsIt()
{
    class Still : public QProxyStyle
    {
        int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* returned) const override
        {
            return hint == SH_Widget_Animation_Duration
                       ? 0
                       : QProxyStyle::styleHint(hint, option, widget, returned);
        }
    } still;
    Page page;
    page.setStyle(&still);
    page.timer->stop();
    page.show();
    page.flushData({{realdata_OutputSource, 3}, {realdata_InputNumLines, 1}});
    page.advanceFlow();
    QCoreApplication::processEvents();
    page.painted = {};
    page.advanceFlow();
    QCoreApplication::processEvents();
    QVERIFY(page.painted.isEmpty());
    QCOMPARE(page.m_offset, 0.0F);
    page.flushData({{realdata_OutputSource, 5}, {realdata_InputNumLines, 1}});
    page.advanceFlow(); // what is new is shown as ever
    QCoreApplication::processEvents();
    QCOMPARE(page.painted, QRegion(page.rect()));
}

QTEST_MAIN(TestEnergyline)
#include "tst_energyline.moc"
