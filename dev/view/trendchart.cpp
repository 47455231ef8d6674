#include "trendchart.h"

#include "paintmemory.h"
#include "valuetext.h"

#include <QPainter>
#include <QVarLengthArray>

#include <cmath>

namespace {

constexpr double kSampleStep = 5.0;   // px between two samples
constexpr int kTrimmedOnResize = 3;   // series 0 to 2; the others wait for their next sample
constexpr double kMarginShare = 13.0; // margins: this part of the widget's size
constexpr int kIntervals = 10;        // of the grid and of all three scales
constexpr double kLabelGap = 5.0;     // px between box and label

} // namespace

TrendChart::TrendChart(const Look& look, QWidget* parent)
    : QWidget(parent)
    , m_look(look)
    , m_boxMemory(new PaintMemory)
    , m_scaleMemory(new PaintMemory)
    , m_timeMemory(new PaintMemory)
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
        m_latest[id] = value;
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
    for (int i = 0; hasSeries(i); ++i)
        setCurveData(i, series(i));
    update();
}

void TrendChart::setCurveData(int id, const QVector<double>& samples)
{
    curveMap[id] = samples;
    update();
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
        const QString number = std::isfinite(latest.value()) ? QString::number(latest.value())
                                                             : valuetext::outOfRange();
        values.append(name + QLatin1Char(' ') + number);
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
    for (PaintMemory* memory : {m_boxMemory.get(), m_scaleMemory.get(), m_timeMemory.get()})
        memory->clear();
}

void TrendChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_bUseAntialiasing)
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
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

// All that box and scales depend on.
QVariantList TrendChart::look() const
{
    return {size(),       font(),     logicalDpiX(), logicalDpiY(), m_bUseAntialiasing,
            m_bShowHLine, max_Y_Left, max_Y_Right};
}

void TrendChart::drawBox(QPainter* painter)
{
    m_boxRect = QRectF(QPointF(m_leftSpace, m_topSpace),
                       QPointF(width() - m_leftSpace, height() - m_topSpace));
    m_boxMemory->paintOver(
        painter, look(), [this] { return boxParts(); }, [&] { paintBox(painter); });
}

void TrendChart::drawText(QPainter* painter)
{
    const QTime now = wallClock();
    m_scaleMemory->paintOver(
        painter, look(), [this] { return scaleParts(); }, [&] { paintScales(painter); });
    m_timeMemory->paintOver(
        painter, look() << now.hour() << now.minute() << now.second(),
        [this] { return timeParts(); }, [&] { paintTimeAxis(painter, now); });
}

void TrendChart::paintBox(QPainter* painter)
{
    painter->setPen(Qt::black);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_boxRect);

    if (m_look.gridCanBeHidden && !m_bShowHLine)
        return;
    painter->setPen(Qt::DotLine); // black whatever m_hLineClr says
    const double step = m_boxRect.height() / kIntervals;
    for (int k = 1; k < kIntervals; ++k) {
        const double y = m_boxRect.top() + k * step;
        painter->drawLine(QPointF(m_boxRect.left(), y), QPointF(m_boxRect.right(), y));
    }
}

QRegion TrendChart::boxParts() const
{
    QRegion region;
    const auto addLine = [&](const QPointF& from, const QPointF& to) {
        region += QRectF(from, to).adjusted(-1, -1, 1, 1).toAlignedRect();
    };
    addLine(m_boxRect.topLeft(), m_boxRect.bottomLeft());
    addLine(m_boxRect.topRight(), m_boxRect.bottomRight());
    for (int k = 0; k <= kIntervals; ++k) {
        const QPointF down(0, k * (m_boxRect.height() / kIntervals));
        addLine(m_boxRect.topLeft() + down, m_boxRect.topRight() + down);
    }
    return region & rect();
}

void TrendChart::paintScales(QPainter* painter)
{
    constexpr int kLeftStep = 40; // per label, whatever the top label is
    constexpr int kRightStep = 10;

    painter->setPen(Qt::black);
    const QFontMetrics metrics = fontMetrics();
    for (int k = 0; k <= kIntervals; ++k) {
        const double baseline =
            m_boxRect.top() + k * (m_boxRect.height() / kIntervals) + metrics.height() / 2.0;
        const QString left = QString::number(max_Y_Left - k * kLeftStep);
        painter->drawText(
            QPointF(m_boxRect.left() - kLabelGap - metrics.horizontalAdvance(left), baseline),
            left);
        if (!m_look.hasRightScale)
            continue;
        // Half the label's own width further out than the gap asks for; meant so.
        const QString right = QString::number(max_Y_Right - k * kRightStep);
        painter->drawText(
            QPointF(m_boxRect.right() + kLabelGap + metrics.horizontalAdvance(right) / 2.0,
                    baseline),
            right);
    }
}

// The margins, as high as the box and a letter's height around its corners.
QRegion TrendChart::scaleParts() const
{
    constexpr int kInk = 2; // px that letters may reach out of their place
    const double above = fontMetrics().height() + kInk;
    const QRectF high = m_boxRect.adjusted(0, -above, 0, above);
    QRegion region = QRectF(QPointF(0, high.top()), high.bottomLeft()).toAlignedRect();
    if (m_look.hasRightScale)
        region += QRectF(high.topRight(), QPointF(width(), high.bottom())).toAlignedRect();
    return region & rect();
}

// A ruler laid over the present, from 40 s ago to 60 s ahead; it is not tied to the samples.
void TrendChart::paintTimeAxis(QPainter* painter, QTime now)
{
    constexpr int kSecondsPerLabel = 10;
    constexpr int kFirstSecond = -40;
    constexpr int kTickLength = 5; // px
    constexpr QSize kLabelSize{100, 15};

    painter->setPen(Qt::black);
    const int bottom = static_cast<int>(m_boxRect.bottom());
    for (int k = 0; k <= kIntervals; ++k) {
        // One pixel inside the box's edge, except at its right end.
        const int x = static_cast<int>(m_boxRect.left() + m_boxRect.width() * k / kIntervals) +
                      (k == kIntervals ? 0 : 1);
        painter->drawLine(x, bottom, x, bottom + kTickLength);
        const QRect place(
            QPoint(x - kLabelSize.width() / 2, static_cast<int>(m_boxRect.bottom() + kLabelGap)),
            kLabelSize);
        painter->drawText(
            place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip,
            now.addSecs(kFirstSecond + k * kSecondsPerLabel).toString(QStringLiteral("hh:mm:ss")));
    }
}

QRegion TrendChart::timeParts() const
{
    return QRect(0, static_cast<int>(m_boxRect.bottom()) - 1, width(), height()) & rect();
}

void TrendChart::drawGraph(QPainter* painter)
{
    constexpr int kUsualSegments = 256; // on the stack; more of them move to the heap
    constexpr double kFarAway = 30000;  // px; the paint engine counts no further

    painter->setBrush(Qt::NoBrush);
    for (auto curve = curveMap.cbegin(); curve != curveMap.cend(); ++curve) {
        const QVector<double>& samples = curve.value();
        const double pixelsPerUnit = m_boxRect.height() / m_look.curves.at(curve.key()).fullScale;
        const auto y = [&](double value) {
            return m_boxRect.bottom() - qBound(-kFarAway, pixelsPerUnit * value, kFarAway);
        };
        QVarLengthArray<QLineF, kUsualSegments> segments;
        double x = m_boxRect.right(); // of samples 0 and 1 alike
        for (int k = 1; k < samples.size(); ++k) {
            const double previousX = k == 1 ? x : x + kSampleStep;
            if (!std::isnan(samples[k - 1]) && !std::isnan(samples[k]))
                segments.append(QLineF(previousX, y(samples[k - 1]), x, y(samples[k])));
            x -= kSampleStep;
        }
        if (segments.isEmpty())
            continue;
        painter->setPen(color_pen.at(curve.key()));
        painter->drawLines(segments.constData(), segments.size());
    }
}
