#include "trendchart.h"

#include "paintlayer.h"
#include "valuetext.h"

#include <QPainter>
#include <QPaintEvent>
#include <QtMath>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

namespace {

constexpr double kSampleStep = 5.0;   // px between two samples
constexpr int kTrimmedOnResize = 3;   // series 0 to 2; the others wait for their next sample
constexpr double kMarginShare = 13.0; // margins: this part of the widget's size
constexpr int kIntervals = 10;        // of the grid and of all three scales
constexpr double kLabelGap = 5.0;     // px between box and label
constexpr int kInk = 2;               // px that lines and letters may reach out of their place
constexpr double kFarAway = 30000;    // px; the paint engine counts no further

QRect inked(const QRectF& place)
{
    return place.adjusted(-kInk, -kInk, kInk, kInk).toAlignedRect();
}

int secondOf(QTime time)
{
    return time.msecsSinceStartOfDay() / 1000;
}

} // namespace

TrendChart::TrendChart(const Look& look, QWidget* parent)
    : QWidget(parent)
    , m_look(look)
    , m_timeTexts(kMostTimeTexts)
    , m_boxLayer(new PaintLayer)
    , m_curveLayer(new PaintLayer)
{
    Q_ASSERT(look.curves.size() <= kMaxSeries);
    initVariables();
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(look.styleSheet));
    for (const Curve& curve : m_look.curves)
        color_pen.append(QPen(curve.colour));
}

TrendChart::~TrendChart() = default;

void TrendChart::initVariables()
{
    m_bUseAntialiasing = true;
    m_bShowHLine = true;
    m_hLineClr = Qt::black;
}

QVector<double>& TrendChart::series(int id)
{
    static constexpr QVector<double> TrendChart::*kSeries[kMaxSeries] = {
        &TrendChart::m_dataVec0, &TrendChart::m_dataVec1, &TrendChart::m_dataVec2,
        &TrendChart::m_dataVec3, &TrendChart::m_dataVec4, &TrendChart::m_dataVec5};
    return this->*kSeries[id];
}

void TrendChart::initValue()
{
    for (int id = 0; hasSeries(id); ++id)
        series(id).clear();
    m_latest.clear();
    tellLatest();
}

void TrendChart::addData(int id, qreal value)
{
    if (hasSeries(id)) {
        QVector<double>& samples = series(id);
        samples.prepend(value);
        if (samples.size() == 1) // a series starts with two samples, so that it is a line at once
            samples.prepend(value);
        m_latest[id] = std::isfinite(value) ? QString::number(value) : valuetext::outOfRange();
        tellLatest();
    }
    updateVector(id);
}

// Removes one sample per call at most, also after the box shrank by more than that.
void TrendChart::updateVector(int id)
{
    const int capacity = static_cast<int>(m_boxRect.width() / kSampleStep);
    if (hasSeries(id) && series(id).size() > capacity)
        series(id).removeAt(capacity);
    QRegion changed = m_curveRows;
    for (int i = 0; hasSeries(i); ++i)
        setCurveData(i, series(i));
    changed += m_curveRows;
    const int second = secondOf(wallClock());
    if (std::exchange(m_secondAsked, second) != second || changed.isEmpty())
        changed += timesPlace();
    updatePart(changed);
}

void TrendChart::setCurveData(int id, const QVector<double>& samples)
{
    QVector<double>& shown = curveMap[id];
    if (shown == samples)
        return;
    shown = samples;
    m_places[id] = curvePlace(id);
    m_curveRows = curveRows();
}

// The edges of a part show where they lie between pixels of the screen, and where they cut a line
// that leaves the picture.
void TrendChart::updatePart(const QRegion& part)
{
    const double ratio = devicePixelRatioF();
    const bool isClean = ratio == std::floor(ratio) && rect().contains(m_curveRows.boundingRect());
    update(isClean && !m_boxRect.isEmpty() ? part : rect());
}

void TrendChart::setUseAntialiasing(bool on)
{
    m_bUseAntialiasing = on;
    update();
}

void TrendChart::setHorizontalLineColor(const QColor& colour)
{
    m_hLineClr = colour;
    update();
}

void TrendChart::setCaption(const QString& caption)
{
    m_caption = caption;
    tellLatest();
}

void TrendChart::setSeriesNames(const QStringList& names)
{
    m_seriesNames = names;
    tellLatest();
}

void TrendChart::tellLatest()
{
    QStringList values;
    for (auto latest = m_latest.cbegin(); latest != m_latest.cend(); ++latest) {
        const QString name = latest.key() < m_seriesNames.size()
                                 ? m_seriesNames.at(latest.key())
                                 : tr("Curve %1").arg(latest.key() + 1);
        values.append(name + QLatin1Char(' ') + *latest);
    }
    const QString told = values.join(QLatin1String(", "));
    setAccessibleName(m_caption.isEmpty() || told.isEmpty()
                          ? m_caption + told
                          : m_caption + QLatin1String(": ") + told);
}

// Works with the box of the last paint, before the new size is known.
void TrendChart::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    for (int id = 0; id < kTrimmedOnResize; ++id)
        updateVector(id);
}

void TrendChart::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_boxLayer->clear();
    m_curveLayer->clear();
}

// Repaints what the event asks for, most often the curves and the times only.
void TrendChart::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (m_bUseAntialiasing)
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    m_exposed = event->region();
    resetVariables(&painter);
    drawBox(&painter);
    drawText(&painter);
    drawGraph(&painter);
}

void TrendChart::resetVariables(QPainter*)
{
    const int split = (height() / 3) * 2;
    m_topRect = QRectF(QPointF(0, 0), QPointF(width(), split));
    m_bottomRect = QRectF(QPointF(0, split), QPointF(width(), height()));
    m_leftSpace = width() / kMarginShare;
    m_topSpace = height() / kMarginShare;
}

// Calls `draw`, which draws at `place`, for each exposed rectangle that it reaches: the paint
// engine is several times slower within a clip of many.
template <typename Draw>
void TrendChart::drawAt(const QRectF& place, QPainter* painter, Draw draw)
{
    const QRect reach = inked(place);
    for (const QRect& exposed : m_exposed) {
        if (!exposed.intersects(reach))
            continue;
        if (m_exposed.rectCount() > 1)
            painter->setClipRect(exposed);
        draw();
        painter->setClipping(false);
    }
}

void TrendChart::drawBox(QPainter* painter)
{
    const QRectF box(QPointF(m_leftSpace, m_topSpace),
                     QPointF(width() - m_leftSpace, height() - m_topSpace));
    if (box != m_boxRect) {
        m_boxRect = box;
        m_boxLines = boxLines();
        for (auto curve = curveMap.cbegin(); curve != curveMap.cend(); ++curve)
            m_places[curve.key()] = curvePlace(curve.key());
        m_curveRows = curveRows();
    }
    const bool hasGrid = !m_look.gridCanBeHidden || m_bShowHLine;
    PaintLayer::Move move;
    if (m_drawnBox.box == box && m_drawnBox.hasGrid == hasGrid &&
        m_drawnBox.isAntialiased == m_bUseAntialiasing)
        move.distance = 0;
    m_drawnBox = {box, hasGrid, m_bUseAntialiasing};
    m_boxLayer->paint(painter, inked(box) & rect(), m_boxLines & rect(), move,
                      [this](QPainter* on, const QRect&) { drawLines(on); });
}

void TrendChart::drawLines(QPainter* painter)
{
    painter->setPen(Qt::black);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_boxRect);
    if (!m_drawnBox.hasGrid)
        return;
    painter->setPen(Qt::DotLine); // black whatever m_hLineClr says
    for (int k = 1; k < kIntervals; ++k)
        painter->drawLine(gridLine(k));
}

// From above.
QLineF TrendChart::gridLine(int k) const
{
    const double y = m_boxRect.top() + k * (m_boxRect.height() / kIntervals);
    return {m_boxRect.left(), y, m_boxRect.right(), y};
}

// What the frame and the grid cover.
QRegion TrendChart::boxLines() const
{
    QRegion lines(inked(m_boxRect));
    lines -= m_boxRect.adjusted(kInk, kInk, -kInk, -kInk).toRect();
    for (int k = 1; k < kIntervals; ++k)
        lines += inked(QRectF(gridLine(k).p1(), gridLine(k).p2()));
    return lines;
}

void TrendChart::drawText(QPainter* painter)
{
    painter->setPen(Qt::black);
    drawScales(painter);
    keepTime();
    drawAt(QRectF(QPointF(0, m_boxRect.bottom()), QPointF(width(), height())), painter,
           [&] { drawTimeAxis(painter); });
}

void TrendChart::drawScales(QPainter* painter)
{
    constexpr int kLeftStep = 40; // per label, whatever the top label is
    constexpr int kRightStep = 10;

    const QFontMetrics metrics = fontMetrics();
    const double step = m_boxRect.height() / kIntervals;
    const QPointF left = m_boxRect.topLeft() + QPointF(-kLabelGap, metrics.height() / 2.0);
    const QPointF right = m_boxRect.topRight() + QPointF(kLabelGap, metrics.height() / 2.0);
    for (int k = 0; k <= kIntervals; ++k) {
        const QPointF down(0, k * step);
        const double top = left.y() + down.y() - metrics.ascent();
        const double high = metrics.height();
        drawAt(QRectF(0, top, left.x(), high), painter, [&] {
            const QString text = QString::number(max_Y_Left - k * kLeftStep);
            painter->drawText(left + down - QPointF(metrics.horizontalAdvance(text), 0), text);
        });
        if (!m_look.hasRightScale)
            continue;
        drawAt(QRectF(right.x(), top, width(), high), painter, [&] {
            // Half the label's own width further out than the gap asks for; meant so.
            const QString text = QString::number(max_Y_Right - k * kRightStep);
            const double out = metrics.horizontalAdvance(text) / 2.0;
            painter->drawText(right + down + QPointF(out, 0), text);
        });
    }
}

// A ruler laid over the present, from 40 s ago to 60 s ahead; it is not tied to the samples.
void TrendChart::drawTimeAxis(QPainter* painter)
{
    constexpr int kSecondsPerLabel = 10;
    constexpr int kFirstSecond = -40;
    constexpr int kTickLength = 5; // px
    constexpr int kLabelWidth = 100;

    const int bottom = static_cast<int>(m_boxRect.bottom());
    for (int k = 0; k <= kIntervals; ++k) {
        // One pixel inside the box's edge, except at its right end.
        const int x = static_cast<int>(m_boxRect.left() + m_boxRect.width() * k / kIntervals) +
                      (k == kIntervals ? 0 : 1);
        painter->drawLine(x, bottom, x, bottom + kTickLength);
        const QStaticText& text = timeText(m_now.addSecs(kFirstSecond + k * kSecondsPerLabel));
        painter->drawStaticText(
            QPointF(x - kLabelWidth / 2 + (kLabelWidth - text.size().width()) / 2,
                    static_cast<int>(m_boxRect.bottom() + kLabelGap)),
            text);
    }
}

// A paint that leaves parts of the times as they are shows the same, and asks for another one.
void TrendChart::keepTime()
{
    const QRegion times = timesPlace();
    if (!m_exposed.intersects(times))
        return;
    if (!m_now.isValid() || ((times & visibleRegion()) - m_exposed).isEmpty())
        m_now = wallClock();
    else
        updatePart(times);
}

// Below the ends of the ticks.
QRect TrendChart::timesPlace() const
{
    return QRect(0, static_cast<int>(m_boxRect.bottom() + kLabelGap) - kInk, width(), height()) &
           rect();
}

// Most texts come again ten seconds later, a label further left, and are laid out once.
const QStaticText& TrendChart::timeText(QTime time)
{
    const int second = secondOf(time);
    if (m_timeFont != font()) {
        m_timeFont = font();
        m_timeTexts.clear();
    }
    if (!m_timeTexts.contains(second)) {
        auto* text = new QStaticText(time.toString(QStringLiteral("hh:mm:ss")));
        text->setTextFormat(Qt::PlainText);
        text->setPerformanceHint(QStaticText::AggressiveCaching);
        text->prepare(QTransform(), m_timeFont);
        m_timeTexts.insert(second, text);
    }
    return *m_timeTexts.object(second);
}

double TrendChart::xOf(int sample) const
{
    return m_boxRect.right() - kSampleStep * (sample - 1);
}

double TrendChart::yOf(double pixels) const
{
    return m_boxRect.bottom() - qBound(-kFarAway, pixels, kFarAway);
}

// In px per unit.
double TrendChart::scaleOf(int id) const
{
    return m_boxRect.height() / m_look.curves.at(id).fullScale;
}

// What a curve covers at most.
QRect TrendChart::curvePlace(int id) const
{
    const QVector<double> samples = curveMap.value(id);
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    for (double value : samples) { // neither is met by what is not a number
        if (value < least)
            least = value;
        if (value > most)
            most = value;
    }
    if (!(least <= most))
        return {};
    const QPointF right(m_boxRect.right(), yOf(least * scaleOf(id)));
    const QPointF left(leftEnd(samples), yOf(most * scaleOf(id)));
    return inked(QRectF(left, right));
}

// All curves, each whole in one of the rectangles.
QRegion TrendChart::curveRows() const
{
    QRect bounds;
    for (const QRect& place : m_places)
        bounds |= place;
    QRegion rows;
    for (const QRect& place : m_places)
        rows += QRect(bounds.left(), place.top(), bounds.width(), place.height());
    return rows;
}

void TrendChart::drawGraph(QPainter* painter)
{
    if (!m_exposed.intersects(m_curveRows))
        return;
    PaintLayer::Move move;
    const int samples = rect().contains(m_curveRows.boundingRect()) ? samplesSinceDrawn() : -1;
    if (samples >= 0) {
        move.distance = static_cast<int>(samples * kSampleStep);
        move.still = stillPlace(move.distance);
        move.reach = qCeil(kSampleStep) + 2 * kInk;
    }
    const QRect box = inked(m_boxRect);
    const bool isInBox = box.contains(m_curveRows.boundingRect());
    m_curveLayer->paint(painter, isInBox ? box & rect() : rect(), m_curveRows & rect(), move,
                        [this](QPainter* on, const QRect& place) { drawCurves(on, place); });
    m_drawn = {curveMap, color_pen, m_boxRect, m_bUseAntialiasing};
}

// By how many samples the curves have moved on since the last paint; -1: something else is painted.
int TrendChart::samplesSinceDrawn() const
{
    constexpr int kMost = 4;
    if (m_drawn.box != m_boxRect || m_drawn.pens != color_pen ||
        m_drawn.isAntialiased != m_bUseAntialiasing)
        return -1;
    int samples = 0;
    while (samples <= kMost && !isDrawnUpTo(samples))
        ++samples;
    return samples <= kMost ? samples : -1;
}

// Between the ends of the curves, new and old, where they have only moved.
QRect TrendChart::stillPlace(double distance) const
{
    double left = m_boxRect.left();
    for (const QVector<double>& now : curveMap)
        left = qMax(left, leftEnd(now));
    const int first = qCeil(left) + kInk;
    const int last = qFloor(m_boxRect.right() - distance - kInk) - 1;
    return {first, 0, qMax(last - first, 0), height()};
}

// All curves are those of the last paint with `samples` more.
bool TrendChart::isDrawnUpTo(int samples) const
{
    constexpr int kLeast = 2; // of a curve that draws something
    return m_drawn.curves.size() == curveMap.size() &&
           std::equal(curveMap.cbegin(), curveMap.cend(), m_drawn.curves.cbegin(),
                      [=](const QVector<double>& now, const QVector<double>& then) {
                          const int common = qMin(now.size() - samples, then.size());
                          if (common < kLeast)
                              return now.size() < kLeast && then.size() < kLeast;
                          return std::memcmp(now.constData() + samples, then.constData(),
                                             common * sizeof(double)) == 0;
                      });
}

double TrendChart::leftEnd(const QVector<double>& samples) const
{
    return xOf(qMax(samples.size() - 1, 1));
}

// What of them reaches into `place`.
void TrendChart::drawCurves(QPainter* painter, const QRect& place)
{
    constexpr int kUsualSegments = 256; // on the stack; more of them move to the heap
    const QRectF reach = inked(place);
    const int first = qCeil((m_boxRect.right() - reach.right()) / kSampleStep) + 1;
    const int last = qFloor((m_boxRect.right() - reach.left()) / kSampleStep) + 2;

    painter->setBrush(Qt::NoBrush);
    for (auto curve = curveMap.cbegin(); curve != curveMap.cend(); ++curve) {
        if (!m_places.at(curve.key()).intersects(place))
            continue;
        const QVector<double>& samples = curve.value();
        QVarLengthArray<QLineF, kUsualSegments> segments;
        const double pixelsPerUnit = scaleOf(curve.key());
        const auto point = [&](int k) { // samples 0 and 1 stand at the right edge alike
            return QPointF(xOf(qMax(k, 1)), yOf(samples[k] * pixelsPerUnit));
        };
        for (int k = qMax(first, 1); k <= qMin(last, samples.size() - 1); ++k) {
            if (std::isnan(samples[k - 1]) || std::isnan(samples[k]))
                continue;
            const QLineF segment(point(k - 1), point(k));
            if (qMin(segment.y1(), segment.y2()) <= reach.bottom() &&
                qMax(segment.y1(), segment.y2()) >= reach.top())
                segments.append(segment);
        }
        if (segments.isEmpty())
            continue;
        painter->setPen(color_pen.at(curve.key()));
        painter->drawLines(segments.constData(), segments.size());
    }
}
