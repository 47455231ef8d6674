#include "energyline.h"

#include "paintersaver.h"
#include "paintmemory.h"
#include "valuetext.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPixmap>
#include <QStyle>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>

// All lengths are px relative to the widget's centre unless a name says otherwise.

namespace {

constexpr int kStepMilliseconds = 100;
constexpr double kStepInPenWidths = 0.4;
constexpr float kLowestOffset = -1000.0F; // in pen widths; the dashes jump once here
constexpr int kPhases = 35;               // steps until the dashes repeat

constexpr QColor kPaleGrey{245, 246, 250, 255};
constexpr QColor kCaptionGrey{153, 153, 153, 255};
constexpr QColor kLabelGrey{102, 102, 102, 255};
constexpr QColor kValueBlue{19, 75, 255, 255};
constexpr QColor kFlowBlue{157, 172, 255, 255};
constexpr QColor kBoxTop = kFlowBlue;
constexpr QColor kBoxBottom{41, 71, 198, 255};

// What paint and click have in common.
constexpr QSizeF kBoxSize{75.0, 75.0};
constexpr QRectF kInputBox{QPointF(-300.0, -37.5), kBoxSize};
constexpr QRectF kBypassBox{QPointF(-300.0, -187.5), kBoxSize};
constexpr QRectF kLoadBox{QPointF(225.0, -37.5), kBoxSize};
constexpr QRectF kRectifierBox{QPointF(-130.0, -37.5), kBoxSize};
constexpr QRectF kInverterBox{QPointF(55.0, -37.5), kBoxSize};
constexpr QRectF kBatteryBody{-25.0, 80.0, 50.0, 75.0};

// Charge and load are drawn right beside the captions of battery and load.
constexpr QRectF kChargeText{25.0, 160.0, 50.0, 50.0};
constexpr QRectF kLoadText{275.0, -62.5, 80.0, 25.0};

// Fractions are cut off, so that boxes, images and texts start on a pixel.
QRect wholePixels(const QRectF& rect)
{
    return {static_cast<int>(rect.x()), static_cast<int>(rect.y()), static_cast<int>(rect.width()),
            static_cast<int>(rect.height())};
}

QFont textFont(int points, QFont::Weight weight)
{
    return {QStringLiteral("Microsoft YaHei"), points, weight};
}

// One line of text that stays inside its rectangle and starts where `flags` say. The font may be a
// wider substitute and the text may be a device's own: what is too wide is condensed as far as it
// stays readable, then cut with an ellipsis.
void drawTextLine(QPainter* painter, const QRectF& rect, int flags, const QString& text)
{
    constexpr qreal kNarrowest = 0.7;
    constexpr int kMostCharacters = 256; // more than fit anywhere here; bounds the cost of a paint

    const PainterSaver saver(painter);
    QRectF room = wholePixels(rect);
    QString line = text.left(kMostCharacters);
    line.replace(QChar::LineSeparator, QLatin1Char(' ')); // which even a single line would obey
    line.replace(QChar::ParagraphSeparator, QLatin1Char(' '));
    const QFontMetricsF metrics(painter->font(), painter->device());
    const qreal narrowing = room.width() / metrics.horizontalAdvance(line);
    if (narrowing < 1.0) {
        const qreal scale = std::max(narrowing, kNarrowest);
        painter->translate(room.topLeft());
        painter->scale(scale, 1.0);
        room = QRectF(0.0, 0.0, room.width() / scale, room.height());
        if (narrowing < kNarrowest)
            line = metrics.elidedText(line, Qt::ElideRight, room.width());
    }
    painter->drawText(room, flags | Qt::TextSingleLine, line);
}

// The host's image where it has one under the agreed path, else the library's own of that name. Qt
// looks for "@2x" by itself in icons only, so this does; a host's only size wins over both of ours.
QPixmap boxImage(const char* name, qreal devicePixelRatio)
{
    for (const char* folder : {"://image/", ":/devview/image/"}) {
        for (const char* ending : {"@2x.png", ".png"}) {
            if (devicePixelRatio <= 1.0 && ending[0] == '@')
                continue;
            const QPixmap image(QLatin1String(folder) + QLatin1String(name) +
                                QLatin1String(ending));
            if (!image.isNull())
                return image;
        }
    }
    return {};
}

void drawWiring(QPainter* painter, QPointF centre)
{
    constexpr qreal kWiringWidth = 10.0;
    // Along the centre line with a branch down to the battery, and back over the bypass line.
    constexpr QPointF kWiring[] = {{-225.0, 0.0}, {0.0, 0.0},   {0.0, 70.0},     {0.0, 0.0},
                                   {225.0, 0.0},  {175.0, 0.0}, {175.0, -150.0}, {-225.0, -150.0}};
    QPolygonF wiring;
    for (const QPointF& point : kWiring)
        wiring << centre + point;
    painter->setPen(QPen(kPaleGrey, kWiringWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(wiring);
}

} // namespace

Energyline::Energyline(QWidget* parent)
    : QWidget(parent)
    , m_flowPictures(new PaintMemory)
{
    set_all_off_Flow();

    timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Energyline::advanceFlow);
    timer->start(kStepMilliseconds);

    bat_fault = {tr("Unknown"), tr("Normal"), tr("Low"), tr("Depleted")};
    supply_mode = {tr("Other supply"),  tr("None supply"),    tr("Utility supply"),
                   tr("Bypass supply"), tr("Battery supply"), tr("Booster supply"),
                   tr("Reducer supply")};
}

Energyline::~Energyline() = default;

QSize Energyline::sizeHint() const
{
    // Twice the reach of the outermost frames: the load panel's right, the upper panels' top.
    return {2 * 380, 2 * 320};
}

// ---- Taking over a snapshot ----

namespace {

// Positions in supply_mode.
enum Supply : int {
    NoneSupply = 1,
    UtilitySupply = 2,
    BypassSupply = 3,
    BatterySupply = 4,
};

// A position in supply_mode. Sources count from 1, and 0 also says that nothing feeds the load.
constexpr int supplyOfSource(int source)
{
    if (source == 0)
        return NoneSupply;
    return source < 0 ? source : source - 1;
}

// Boost and float charge.
constexpr bool isCharging(int batteryStatus)
{
    return batteryStatus == 6 || batteryStatus == 7;
}

QString withUnit(const QString& value, const char* unit)
{
    return value + QLatin1Char(' ') + QLatin1String(unit);
}

} // namespace

void Energyline::flushData(QMap<int, QVariant> map)
{
    const RealTimeBlock values(map);
    takeElectricalValues(values);

    ups_Type = map.value(info_ups_type).toString().simplified();
    ups_Name = map.value(info_quenta_name).toString();
    ups_Manufacturer = map.value(info_copo_name).toString();

    const QVector<QString> batteryStatusTexts{
        tr("Normal"),   tr("Unknown"), tr("Normal"),   tr("Low"),       tr("Depleted"),
        tr("Selftest"), tr("Boost"),   tr("Floating"), tr("Discharge"), tr("Normal")};
    const int batteryStatus = values[realdata_BatteryStatus];
    bat_State = batteryStatusTexts.value(batteryStatus);

    const int supply = supplyOfSource(values[realdata_OutputSource]);
    ld_State = supply_mode.value(supply);
    takeFlows(supply, batteryStatus);
    tellValues();
}

void Energyline::takeElectricalValues(const RealTimeBlock& values)
{
    using namespace valuetext;
    constexpr float kHottest = 100.0F; // degrees, still shown
    constexpr float kColdest = 0.0F;

    const bool threeIn = isThreePhaseUnlessOne(values[realdata_InputNumLines]);
    ac_AVolt = withUnit(phases(values, threeIn, realdata_InputVoltage_A, 1, whole), "V");
    ac_ACur = withUnit(phases(values, threeIn, realdata_InputCurrent_A, 1, tenths), "A");
    ac_Frenq = tenths(values[realdata_InputFre_A]);

    const bool threeBypass = isThreePhaseUnlessOne(values[realdata_BypNumLines]);
    byp_Volt = withUnit(phases(values, threeBypass, realdata_BypVoltage_A, 1, whole), "V");
    byp_Frenq = tenths(values[realdata_BypFre]);

    const bool threeOut = isThreePhaseUnlessOne(values[realdata_OutputNumLines]);
    ld_Volt = withUnit(phases(values, threeOut, realdata_OutputVoltage_A, 1, whole), "V");
    ld_Cur = withUnit(phases(values, threeOut, realdata_OutputCurrent_A, 1, tenths), "A");
    ld_ActPower = withUnit(phases(values, threeOut, realdata_OutputPower_A_Hi, 2, whole), "KW");
    ld_Percent = withUnit(phases(values, threeOut, realdata_OutputLoad_A, 1, whole), "%");
    ld_Freq = withUnit(tenths(values[realdata_OutputFre]), "Hz");

    bat_Volt = tenths(values[realdata_BatVoltage]);
    const float degrees = static_cast<float>(values[realdata_BatTemp] / 10.0);
    bat_Temp = degrees > kHottest || degrees < kColdest ? outOfRange() : oneDecimal(degrees);
    bat_Min = whole(values[realdata_MinutesRemaining]);
    bat_Cap = whole(values[realdata_ChargeRemaining]);
}

void Energyline::takeFlows(int supply, int batteryStatus)
{
    enum When { Never, Always, Charging, NotCharging };
    struct SupplyFlows {
        int supply;
        When inputRec, recBat, batInv, recInv, invLoad, bypLoad;
    };
    // On utility supply the line to the battery shows while it is not in boost or float charge;
    // that is how this page reads, and so it stays.
    static constexpr SupplyFlows kFlows[] = {
        // supply      input-rec  rec-bat      bat-inv rec-inv inv-load byp-load
        {UtilitySupply, Always, NotCharging, Never, Always, Always, Never},
        {BypassSupply, Charging, Charging, Never, Never, Never, Always},
        {BatterySupply, Never, Never, Always, Never, Always, Never},
    };
    static constexpr SupplyFlows kNoFlow{-1, Never, Never, Never, Never, Never, Never};

    const auto known =
        std::find_if(std::begin(kFlows), std::end(kFlows),
                     [supply](const SupplyFlows& row) { return row.supply == supply; });
    const SupplyFlows& flows = known == std::end(kFlows) ? kNoFlow : *known;
    const bool charging = isCharging(batteryStatus);
    const auto isOn = [charging](When when) {
        return when == Always || when == (charging ? Charging : NotCharging);
    };
    input_rec_Flag = isOn(flows.inputRec);
    rec_bat_Flag = isOn(flows.recBat);
    bat_inv_Flag = isOn(flows.batInv);
    rec_inv_Flag = isOn(flows.recInv);
    inv_load_Flag = isOn(flows.invLoad);
    byp_load_Flag = isOn(flows.bypLoad);
}

void Energyline::set_all_off_Flow()
{
    input_rec_Flag = false;
    rec_bat_Flag = false;
    bat_inv_Flag = false;
    inv_load_Flag = false;
    byp_load_Flag = false;
}

// ---- Animation ----

struct Energyline::Flow {
    bool Energyline::*isOn;
    int count;
    QPointF points[4]; // in the direction of the power
};

namespace {

constexpr qreal kFlowWidth = 5.0;

// The offset of the dashes in one of their phases.
constexpr float offsetOf(int phase)
{
    return static_cast<float>(-kStepInPenWidths * phase);
}

// The phase at an offset of the animation, whose steps add up what single precision rounds off.
// Negative for an offset that no step comes near.
int phaseOf(float offset)
{
    constexpr double kMostRounding = 0.05; // pen widths
    if (!(offset <= 0.0F && offset >= kLowestOffset))
        return -1;
    const double steps = std::round(-offset / kStepInPenWidths);
    const bool near = std::abs(offset + steps * kStepInPenWidths) < kMostRounding;
    return near ? static_cast<int>(steps) % kPhases : -1;
}

} // namespace

// Wiring, boxes and battery lie below the whole of these lines, so that no ground shows through. No
// panel and no figure reaches them; a charge does above 100 per cent.
const Energyline::Flow Energyline::kFlows[] = {
    {&Energyline::input_rec_Flag, 2, {{-225.0, 0.0}, {-130.0, 0.0}}},
    {&Energyline::rec_bat_Flag, 3, {{-55.0, 0.0}, {0.0, 0.0}, {0.0, 75.0}}},
    {&Energyline::bat_inv_Flag, 3, {{0.0, 75.0}, {0.0, 0.0}, {55.0, 0.0}}},
    {&Energyline::rec_inv_Flag, 2, {{-55.0, 0.0}, {55.0, 0.0}}},
    {&Energyline::inv_load_Flag, 2, {{130.0, 0.0}, {225.0, 0.0}}},
    {&Energyline::byp_load_Flag,
     4,
     {{-225.0, -150.0}, {175.0, -150.0}, {175.0, 0.0}, {225.0, 0.0}}},
};

void Energyline::advanceFlow()
{
    const bool moves = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    if (moves)
        m_offset = static_cast<float>(m_offset - kStepInPenWidths);
    Shown now = shown();
    if (now == m_shown) {
        if (moves)
            update(flowRegion());
    } else {
        m_shown = std::move(now);
        update();
    }
    if (m_offset < kLowestOffset)
        m_offset = 0.0F;
    if (!isSeen())
        rest();
}

// Until the next paint, for which this asks: it comes as soon as there is somebody to see it.
void Energyline::rest()
{
    update();
    timer->stop();
    m_resting = true;
    m_flowPictures->clear();
}

void Energyline::wake()
{
    if (!m_resting)
        return;
    m_resting = false;
    timer->start();
}

// A minimised window is visible, but not exposed.
bool Energyline::isSeen() const
{
    const QWindow* const onScreen = window()->windowHandle();
    if (!onScreen) // before the window is on a screen the animation runs for whoever looks at it
        return true;
    return isVisible() && onScreen->isExposed();
}

// Where the dashes of the flows that are on can be.
QRegion Energyline::flowRegion() const
{
    constexpr qreal kReach = kFlowWidth / 2.0;
    const QPointF c(width() / 2, height() / 2);
    QRegion region;
    for (const Flow& flow : kFlows) {
        for (int i = 1; this->*flow.isOn && i < flow.count; ++i) {
            const QRectF segment = QRectF(c + flow.points[i - 1], c + flow.points[i]).normalized();
            region += segment.adjusted(-kReach, -kReach, kReach, kReach).toAlignedRect();
        }
    }
    return region;
}

// ---- Clicks ----

void Energyline::toggle_view_Flag(bool& flag)
{
    flag = !flag;
}

void Energyline::mousePressEvent(QMouseEvent* e)
{
    struct ClickArea {
        QRectF area;
        bool Energyline::*panel;
        bool Energyline::*secondPanel;
    };
    // The rectifier and the inverter have no panel and take no click.
    static constexpr ClickArea kAreas[] = {
        {kInputBox, &Energyline::INPUT_view_Flag, nullptr},
        {kBypassBox, &Energyline::BYPASS_view_Flag, nullptr},
        {kLoadBox, &Energyline::LOAD_view_Flag, nullptr},
        {kBatteryBody, &Energyline::BATTERY_view_Flag, &Energyline::UPS_view_Flag},
    };

    const QPointF click = e->pos() - centre();
    for (const ClickArea& row : kAreas) {
        if (!row.area.contains(click))
            continue;
        toggle_view_Flag(this->*row.panel);
        if (row.secondPanel)
            toggle_view_Flag(this->*row.secondPanel);
        return;
    }
}

// ---- Painting ----

void Energyline::paintEvent(QPaintEvent* event)
{
    wake();
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    if (m_shown != shown())
        m_shown = {}; // a step that finds what the last one showed must not take it as painted
    const int phase = phaseOf(m_offset);
    const bool onlyFlows = (event->region() - flowRegion()).isEmpty();
    if (onlyFlows && phase >= 0)
        m_flowPictures->paint(&painter, flowKey(), phase, [&] { drawLayers(&painter); });
    else
        drawLayers(&painter);
}

void Energyline::drawLayers(QPainter* painter)
{
    drawBase(painter);
    drawBattery(painter);
    drawflow(painter);
    drawdate(painter);
}

QPointF Energyline::centre()
{
    wid = width() / 2;
    hei = height() / 2;
    return {wid, hei};
}

namespace {

constexpr qreal kCaptionGap = 3.0; // to a text that is drawn right beside a caption

struct Box {
    QRectF rect;
    const char* caption;
    int captionAlignment;
    qreal captionWidth;
    const char* image;
    QRectF imageRect;
};

void drawBox(QPainter* painter, const Box& box, QPointF centre)
{
    constexpr qreal kCaptionHeight = 25.0;
    constexpr int kRoundness = 25; // per cent

    const QRect rect = wholePixels(box.rect.translated(centre));
    QLinearGradient gradient(rect.x(), rect.y(), rect.x(), rect.y() + rect.height());
    gradient.setColorAt(0.0, kBoxTop);
    gradient.setColorAt(1.0, kBoxBottom);
    painter->setBrush(gradient);
    painter->drawRoundedRect(rect, kRoundness, kRoundness, Qt::RelativeSize);
    const QRectF caption(box.rect.x(), box.rect.y() - kCaptionHeight, box.captionWidth,
                         kCaptionHeight);
    drawTextLine(painter, caption.translated(centre), box.captionAlignment,
                 Energyline::tr(box.caption));
    painter->drawPixmap(wholePixels(box.imageRect.translated(centre)),
                        boxImage(box.image, painter->device()->devicePixelRatioF()));
}

} // namespace

void Energyline::drawBase(QPainter* painter)
{
    constexpr QSizeF kMainsSize{30.0, 10.0};
    constexpr QSizeF kSymbolSize{70.0, 55.0};
    constexpr qreal kWide = kBoxSize.width();
    constexpr qreal kBesideLoad = kLoadText.x() - kLoadBox.x() - kCaptionGap;
    // clang-format off
    static constexpr Box kBoxes[] = {
        // box          caption               alignment        width        image    its place
        {kInputBox,     QT_TR_NOOP("INPUT"),  Qt::AlignCenter, kWide,       "INPUT", {{-278.5, -5.0}, kMainsSize}},
        {kBypassBox,    QT_TR_NOOP("BYPASS"), Qt::AlignCenter, kWide,       "INPUT", {{-278.5, -155.0}, kMainsSize}},
        {kLoadBox,      QT_TR_NOOP("LOAD"),   Qt::AlignLeft,   kBesideLoad, "LOAD",  {{227.5, -27.5}, kSymbolSize}},
        {kRectifierBox, QT_TR_NOOP("REC"),    Qt::AlignCenter, kWide,       "REC",   {{-128.5, -27.5}, kSymbolSize}},
        {kInverterBox,  QT_TR_NOOP("INV"),    Qt::AlignCenter, kWide,       "INV",   {{57.5, -27.5}, kSymbolSize}},
    };
    // clang-format on
    constexpr QRectF kBatteryCaption{-45.0, 160.0, 70.0, 50.0};

    const PainterSaver saver(painter);
    const QPointF c = centre();

    drawWiring(painter, c);
    painter->setPen(kCaptionGrey);
    painter->setFont(textFont(13, QFont::Bold));
    for (const Box& box : kBoxes)
        drawBox(painter, box, c);
    drawTextLine(painter, kBatteryCaption.translated(c).adjusted(0.0, 0.0, -kCaptionGap, 0.0),
                 Qt::AlignJustify, tr("BATTERY"));
}

namespace {

void drawCap(QPainter* painter, const QRectF& battery, qreal radius)
{
    constexpr qreal kHeight = 10.0;
    const qreal third = battery.width() / 3.0;
    const QRectF cap(QPointF(battery.left() + third, battery.top() - kHeight),
                     QPointF(battery.right() - third, battery.top()));
    QLinearGradient gradient(cap.topLeft(), cap.bottomLeft());
    gradient.setColorAt(0.0, Qt::darkGray);
    gradient.setColorAt(1.0, Qt::gray);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    painter->drawRoundedRect(cap, radius, radius);
}

} // namespace

void Energyline::drawBattery(QPainter* painter)
{
    constexpr qreal kOutlineWidth = 5.0;

    const PainterSaver saver(painter);
    borderRadius = 8;
    bgRadius = 5;
    headRadius = 2;
    batteryRect = kBatteryBody.translated(centre());

    painter->setPen(
        QPen(QBrush(Qt::darkGray), kOutlineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(batteryRect, borderRadius, borderRadius);

    drawBatteryFill(painter);

    drawCap(painter, batteryRect, headRadius);
}

QLinearGradient Energyline::fillGradient(int charge) const
{
    struct FillColours {
        Qt::GlobalColor start, end;
    };
    constexpr FillColours kAlarm{Qt::darkRed, Qt::red};
    constexpr FillColours kHalf{Qt::darkYellow, Qt::yellow};
    constexpr FillColours kNormal{Qt::darkGreen, Qt::green};
    const FillColours colours = charge <= alarmValue    ? kAlarm
                                : charge <= normalValue ? kHalf
                                                        : kNormal;
    // Fixed at the widget's top left corner, so that the battery mostly shows the end colour.
    QLinearGradient gradient(0.0, 0.0, 0.0, batteryRect.width());
    gradient.setColorAt(0.0, colours.start);
    gradient.setColorAt(1.0, colours.end);
    return gradient;
}

void Energyline::drawBatteryFill(QPainter* painter)
{
    const PainterSaver saver(painter);
    const int charge = bat_Cap.toInt();

    // The charge is not clamped: above 100 the fill leaves the body, below 0 it hangs below it.
    const int margin = static_cast<int>(std::min(batteryRect.width(), batteryRect.height()) / 20.0);
    const qreal perCent = (batteryRect.height() - 2 * margin) / 100.0;
    const QRectF fill(
        QPointF(batteryRect.left() + margin, batteryRect.bottom() - charge * perCent - margin),
        QPointF(batteryRect.right() - margin, batteryRect.bottom() - margin));
    painter->setPen(Qt::NoPen);
    painter->setBrush(fillGradient(charge));
    painter->drawRoundedRect(fill, bgRadius, bgRadius);
}

void Energyline::drawflow(QPainter* painter)
{
    const PainterSaver saver(painter);
    const QPointF c = centre();
    QPen pen(kFlowBlue, kFlowWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pen.setDashPattern({2.0, 1.5, 2.0, 1.5}); // in pen widths
    const int phase = phaseOf(m_offset);
    pen.setDashOffset(phase < 0 ? m_offset : offsetOf(phase));
    painter->setPen(pen);
    for (const Flow& flow : kFlows) {
        if (!(this->*flow.isOn))
            continue;
        QPolygonF line;
        for (int i = 0; i < flow.count; ++i)
            line << c + flow.points[i];
        painter->drawPolyline(line);
    }
}

// What the pixels of flowRegion() depend on, but for the place of the dashes.
QVector<int> Energyline::flowKey() const
{
    constexpr int kFull = 100; // the fill leaves the body above
    QVector<int> key{width() / 2, height() / 2, std::max(bat_Cap.toInt(), kFull), alarmValue,
                     normalValue};
    for (const Flow& flow : kFlows)
        key << this->*flow.isOn;
    return key;
}

struct Energyline::PanelLine {
    const char* label;
    QString Energyline::*value;
    const char* unit; // UTF-8
};

struct Energyline::Panel {
    bool Energyline::*isOpen;
    QPointF origin; // of the title line
    const char* title;
    int count;
    PanelLine lines[6];
};

// clang-format off
const Energyline::Panel Energyline::kPanels[] = {
    // open while                    origin            title                  lines
    {&Energyline::BYPASS_view_Flag,  {-365.0, -320.0}, QT_TR_NOOP("BYPASS"),  2,
        {{QT_TR_NOOP("Voltage:"),      &Energyline::byp_Volt,         ""},
         {QT_TR_NOOP("Frequency:"),    &Energyline::byp_Frenq,        " Hz"}}},
    {&Energyline::INPUT_view_Flag,   {-365.0, 45.0},   QT_TR_NOOP("INPUT"),   3,
        {{QT_TR_NOOP("Voltage:"),      &Energyline::ac_AVolt,         ""},
         {QT_TR_NOOP("Current:"),      &Energyline::ac_ACur,          ""},
         {QT_TR_NOOP("Frequency:"),    &Energyline::ac_Frenq,         " Hz"}}},
    {&Energyline::UPS_view_Flag,     {-100.0, -320.0}, QT_TR_NOOP("UPS"),     3,
        {{QT_TR_NOOP("Type:"),         &Energyline::ups_Type,         ""},
         {QT_TR_NOOP("Name:"),         &Energyline::ups_Name,         ""},
         {QT_TR_NOOP("Manufacturer:"), &Energyline::ups_Manufacturer, ""}}},
    {&Energyline::LOAD_view_Flag,    {140.0, 45.0},    QT_TR_NOOP("LOAD"),    6,
        {{QT_TR_NOOP("Voltage:"),      &Energyline::ld_Volt,          ""},
         {QT_TR_NOOP("Current:"),      &Energyline::ld_Cur,           ""},
         {QT_TR_NOOP("Frequency:"),    &Energyline::ld_Freq,          ""},
         {QT_TR_NOOP("Active power:"), &Energyline::ld_ActPower,      ""},
         {QT_TR_NOOP("Load percent:"), &Energyline::ld_Percent,       ""},
         {QT_TR_NOOP("Status:"),       &Energyline::ld_State,         ""}}},
    {&Energyline::BATTERY_view_Flag, {-365.0, 163.0},  QT_TR_NOOP("BATTERY"), 5,
        {{QT_TR_NOOP("Voltage:"),      &Energyline::bat_Volt,         " V"},
         {QT_TR_NOOP("Temperature:"),  &Energyline::bat_Temp,         " ℃"},
         {QT_TR_NOOP("Remain time:"),  &Energyline::bat_Min,          " Min"},
         {QT_TR_NOOP("Capacity:"),     &Energyline::bat_Cap,          " %"},
         {QT_TR_NOOP("Status:"),       &Energyline::bat_State,        ""}}},
};
// clang-format on

void Energyline::drawdate(QPainter* painter)
{
    const PainterSaver saver(painter);
    painter->setBrush(kPaleGrey);
    painter->setFont(textFont(11, QFont::Normal));
    drawFigures(painter);
    for (const Panel& panel : kPanels) {
        if (this->*panel.isOpen)
            drawPanel(painter, panel);
    }
}

void Energyline::drawFigures(QPainter* painter)
{
    const QPointF c = centre();
    painter->setPen(kValueBlue);
    drawTextLine(painter, kChargeText.translated(c), Qt::AlignJustify,
                 bat_Cap + QLatin1String(" %"));
    drawTextLine(painter, kLoadText.translated(c), Qt::AlignLeft, ld_Percent);
}

QString Energyline::valueOf(const PanelLine& line) const
{
    return this->*line.value + QString::fromUtf8(line.unit);
}

Energyline::Shown Energyline::shown() const
{
    Shown shown{{bat_Cap, ld_Percent}, {alarmValue, normalValue}};
    for (const Flow& flow : kFlows)
        shown.second << this->*flow.isOn;
    for (const Panel& panel : kPanels) {
        shown.second << this->*panel.isOpen;
        for (int i = 0; i < panel.count; ++i)
            shown.first << this->*panel.lines[i].value;
    }
    return shown;
}

// Open or closed, to whoever cannot see the diagram.
void Energyline::tellValues()
{
    QStringList told;
    for (const Panel& panel : kPanels) {
        QStringList lines;
        for (int i = 0; i < panel.count; ++i)
            lines << tr(panel.lines[i].label) + QLatin1Char(' ') + valueOf(panel.lines[i]);
        told << tr(panel.title) + QLatin1String(": ") + lines.join(QLatin1String(", "));
    }
    setAccessibleName(told.join(QLatin1String("; ")));
}

namespace {

// Around the title and so many lines below it.
void drawFrame(QPainter* painter, const QRectF& titleLine, int lines)
{
    constexpr qreal kMargin = 10.0; // left and right of the lines
    constexpr qreal kFoot = 4.0;    // below the last line
    constexpr int kRoundness = 5;   // per cent

    QRectF frame = titleLine.adjusted(-kMargin, 0.0, kMargin, 0.0);
    frame.setHeight((1 + lines) * titleLine.height() + kFoot);
    painter->setPen(Qt::white);
    painter->drawRoundedRect(wholePixels(frame), kRoundness, kRoundness, Qt::RelativeSize);
}

} // namespace

void Energyline::drawPanel(QPainter* painter, const Panel& panel)
{
    constexpr QSizeF kLineSize{230.0, 25.0};
    constexpr qreal kLabelGap = 6.0; // least distance from a label to its value

    const QRectF titleLine(centre() + panel.origin, kLineSize);
    const auto lineAt = [titleLine](int i) {
        return titleLine.translated(0.0, (i + 1) * titleLine.height());
    };

    drawFrame(painter, titleLine, panel.count);
    painter->setPen(kLabelGrey);
    drawTextLine(painter, titleLine, Qt::AlignCenter, tr(panel.title));
    for (int i = 0; i < panel.count; ++i)
        drawTextLine(painter, lineAt(i), Qt::AlignLeft, tr(panel.lines[i].label));

    const QFontMetricsF metrics(painter->font(), painter->device());
    painter->setPen(kValueBlue);
    for (int i = 0; i < panel.count; ++i) {
        const PanelLine& line = panel.lines[i];
        const qreal taken = std::ceil(metrics.horizontalAdvance(tr(line.label)));
        drawTextLine(painter, lineAt(i).adjusted(taken + kLabelGap, 0.0, 0.0, 0.0), Qt::AlignRight,
                     valueOf(line));
    }
}
