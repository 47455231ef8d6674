#include "window/historyplot.h"

#include "window/historybands.h"
#include "window/historycharts.h"
#include "window/historytrace.h"
#include "window/plotoverlay.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <qwt_date_scale_draw.h>
#include <qwt_date_scale_engine.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr QSize kLeastSize(300, 84); // px, of one chart
constexpr int kFrame = 1;            // px, for the style sheet's focus frame
constexpr int kScaleWidth = 40;      // px, so that the charts of a stack have one left edge
constexpr int kRoomAtSides = 34;     // px, for half a label of the time axis
constexpr int kPerTimeLabel = 110;   // px
constexpr int kPerValueLabel = 26;   // px
constexpr int kMinorTicks = 4;
constexpr double kHeadroom = 0.06;  // of the scale, above and below the curves
constexpr double kCloser = 0.8;     // one step of the wheel
constexpr double kMuchCloser = 0.5; // one stroke of a key, one double-click
constexpr double kPanShare = 0.1;   // of what is shown, by one stroke of an arrow key
constexpr double kWholeWheelStep = 120;
constexpr int kLeastChoice = 4; // px; less is a click
constexpr int kHalfLight = 128;

// Days and hours as everywhere in the window, in local time.
class TimeScaleDraw : public QwtDateScaleDraw
{
public:
    TimeScaleDraw()
        : QwtDateScaleDraw(Qt::LocalTime)
    {
        setDateFormat(QwtDate::Second, QStringLiteral("HH:mm:ss"));
        setDateFormat(QwtDate::Minute, QStringLiteral("HH:mm"));
        setDateFormat(QwtDate::Hour, QStringLiteral("HH:mm\nMMM d"));
        setDateFormat(QwtDate::Day, QStringLiteral("MMM d"));
        setDateFormat(QwtDate::Week, QStringLiteral("MMM d"));
        setDateFormat(QwtDate::Month, QStringLiteral("MMM\nyyyy"));
        setDateFormat(QwtDate::Year, QStringLiteral("yyyy"));
    }
};

QwtPlot* makePlot()
{
    auto* plot = new QwtPlot;
    auto* canvas = new QwtPlotCanvas;
    canvas->setFrameStyle(QFrame::NoFrame);
    canvas->setFocusPolicy(Qt::NoFocus);
    canvas->setMouseTracking(true);
    canvas->setCursor(Qt::CrossCursor);
    plot->setCanvas(canvas);
    plot->setAutoReplot(false);
    plot->plotLayout()->setAlignCanvasToScales(true);
    plot->setAxisScaleEngine(QwtPlot::xBottom, new QwtDateScaleEngine(Qt::LocalTime));
    plot->setAxisScaleDraw(QwtPlot::xBottom, new TimeScaleDraw);
    plot->axisWidget(QwtPlot::xBottom)->setMinBorderDist(kRoomAtSides, kRoomAtSides);
    plot->axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(kScaleWidth);
    plot->setAxisMaxMinor(QwtPlot::yLeft, 0);
    plot->setMinimumSize(kLeastSize);
    return plot;
}

} // namespace

HistoryPlot::HistoryPlot(int chart, QWidget* parent)
    : QWidget(parent)
    , m_chart(chart)
    , m_values(new QLabel)
    , m_plot(makePlot())
    , m_overlay(new PlotOverlay(m_plot->canvas()))
    , m_bands(new HistoryBands)
{
    setObjectName(QStringLiteral("HistoryPlot"));
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::StrongFocus);
    m_values->setObjectName(QStringLiteral("HistoryValues"));
    m_values->setTextFormat(Qt::RichText); // our own words and numbers only
    m_values->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kFrame, kFrame, kFrame, kFrame);
    column->setSpacing(0);
    column->addWidget(m_values);
    column->addWidget(m_plot, 1);

    auto* grid = new QwtPlotGrid;
    grid->attach(m_plot);
    m_bands->attach(m_plot);
    addCurves();
    setColors();
    m_plot->canvas()->installEventFilter(this);
    showReading();
}

void HistoryPlot::addCurves()
{
    for (int i = 0; i < historyCurves().size(); ++i) {
        const HistoryCurve& curve = historyCurves().at(i);
        if (curve.chart != m_chart)
            continue;
        auto* trace = new HistoryTrace(i, historyCharts().at(m_chart).factor);
        trace->attach(m_plot);
        m_curves += {i, trace};
    }
}

void HistoryPlot::setColors()
{
    const bool onDark = palette().color(QPalette::Base).lightness() < kHalfLight;
    m_plot->setCanvasBackground(palette().color(QPalette::Base));
    QColor lines = palette().color(QPalette::Text);
    lines.setAlphaF(0.15);
    for (QwtPlotItem* item : m_plot->itemList(QwtPlotItem::Rtti_PlotGrid))
        static_cast<QwtPlotGrid*>(item)->setPen(lines, 0);
    m_bands->setPalette(palette());
    for (const CurveItem& item : qAsConst(m_curves)) {
        const HistoryCurve& curve = historyCurves().at(item.curve);
        item.trace->setColor(curveColor(curve.family, onDark), curve.line);
    }
}

void HistoryPlot::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    // The canvas gets its old ground back while the style sheet of a new theme is laid on it.
    const auto recolor = [this] {
        setColors();
        showReading();
        m_plot->replot();
    };
    recolor();
    QTimer::singleShot(0, this, recolor);
}

// What is shown

void HistoryPlot::setHistory(const std::shared_ptr<const DeviceHistory>& history,
                             qint64 longestStepMs)
{
    m_history = history;
    m_longestStepMs = longestStepMs;
    m_bands->setHistory(history);
    for (const CurveItem& item : qAsConst(m_curves))
        item.trace->setHistory(history, longestStepMs);
    setRange(m_range);
}

void HistoryPlot::setRange(TimeRange range)
{
    m_range = range;
    if (range.toMs <= range.fromMs)
        return;
    m_plot->setAxisMaxMajor(QwtPlot::xBottom, std::max(2, canvasWidth() / kPerTimeLabel));
    m_plot->setAxisMaxMinor(QwtPlot::xBottom, kMinorTicks);
    m_plot->setAxisScale(QwtPlot::xBottom, static_cast<double>(range.fromMs),
                         static_cast<double>(range.toMs));
    rescale();
    m_plot->replot();
    readAt(m_readMs);
}

// The curves that are in sight fill the scale, but a little noise does not.
void HistoryPlot::rescale()
{
    const HistoryChart& chart = historyCharts().at(m_chart);
    ValueRange all;
    for (const CurveItem& item : qAsConst(m_curves)) {
        const ValueRange own = item.trace->extremes(m_range);
        if (own.isKnown())
            all = all.isKnown()
                      ? ValueRange{0, std::min(all.least, own.least), std::max(all.most, own.most)}
                      : own;
    }
    double least = all.isKnown() ? all.least : 0;
    double most = all.isKnown() ? all.most : chart.leastScale;
    const double missing = chart.leastScale - (most - least);
    if (chart.isPercent) {
        least = std::min(least, 0.0);
        most = std::max(most, chart.leastScale);
    } else if (missing > 0) {
        least -= std::min(missing / 2, least >= 0 ? least : missing / 2); // below 0 only what was
        most = least + chart.leastScale;
    }
    const double room = (most - least) * kHeadroom;
    m_plot->setAxisMaxMajor(QwtPlot::yLeft,
                            std::max(2, m_plot->canvas()->height() / kPerValueLabel));
    m_plot->setAxisScale(QwtPlot::yLeft, least - (least == 0 ? 0 : room), most + room);
}

void HistoryPlot::readAt(std::optional<qint64> timeMs)
{
    m_readMs = timeMs;
    std::optional<double> x;
    if (timeMs && *timeMs >= m_range.fromMs && *timeMs <= m_range.toMs)
        x = m_plot->transform(QwtPlot::xBottom, static_cast<double>(*timeMs));
    m_overlay->setLine(x);
    showReading();
}

QString HistoryPlot::familyText(int first, int count, int row) const
{
    const HistoryChart& chart = historyCharts().at(m_chart);
    QStringList means;
    double least = 0;
    double most = 0;
    bool moves = false;
    for (int i = first; i < first + count; ++i) {
        const ValueRange& value = m_history->series.values.at(m_curves.at(i).curve).at(row);
        if (!value.isKnown())
            continue;
        least = means.isEmpty() ? value.least : std::min(least, value.least);
        most = means.isEmpty() ? value.most : std::max(most, value.most);
        moves = moves || value.most > value.least;
        means += QString::number(value.mean * chart.factor, 'f', chart.decimals);
    }
    if (means.isEmpty())
        return QStringLiteral("--");
    QString text = means.join(QStringLiteral(" / "));
    if (moves)
        text += QStringLiteral(" (%1\u2013%2)")
                    .arg(QString::number(least * chart.factor, 'f', chart.decimals),
                         QString::number(most * chart.factor, 'f', chart.decimals));
    return text;
}

void HistoryPlot::showReading()
{
    const QString title = chartTitle(historyCharts().at(m_chart));
    QString rich = QStringLiteral("<b>%1</b>").arg(title);
    QString plain = title;
    const auto row =
        m_history ? rowAt(m_history->series, m_readMs.value_or(m_range.toMs), m_longestStepMs)
                  : std::nullopt;
    const bool onDark = palette().color(QPalette::Base).lightness() < kHalfLight;
    for (int i = 0, count = 0; i < m_curves.size(); i += count) {
        const CurveFamily family = historyCurves().at(m_curves.at(i).curve).family;
        bool isEmpty = true;
        for (count = 0; i + count < m_curves.size() &&
                        historyCurves().at(m_curves.at(i + count).curve).family == family;
             ++count)
            isEmpty = isEmpty && m_curves.at(i + count).trace->isEmpty();
        if (isEmpty)
            continue;
        const QString text = QStringLiteral("%1 %2").arg(
            familyName(family), row ? familyText(i, count, *row) : QStringLiteral("--"));
        rich += QStringLiteral("&nbsp;&nbsp; <span style=\"color:%1\">\u25a0</span> %2")
                    .arg(curveColor(family, onDark).name(), text);
        plain += QStringLiteral(", ") + text;
    }
    m_values->setText(rich);
    setAccessibleName(plain);
}

QString HistoryPlot::readText() const
{
    return accessibleName();
}

void HistoryPlot::showTimes(bool shown)
{
    QwtScaleDraw* draw = m_plot->axisScaleDraw(QwtPlot::xBottom);
    draw->enableComponent(QwtScaleDraw::Labels, shown);
    m_plot->axisWidget(QwtPlot::xBottom)->setMinBorderDist(kRoomAtSides, kRoomAtSides);
    m_plot->updateLayout();
}

qint64 HistoryPlot::timeAt(int x) const
{
    return std::llround(m_plot->invTransform(QwtPlot::xBottom, x));
}

int HistoryPlot::canvasWidth() const
{
    return m_plot->canvas()->width();
}

// What the operator does

bool HistoryPlot::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return drag(static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return release(static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonDblClick:
        emit zoomWanted(kMuchCloser, timeAt(static_cast<QMouseEvent*>(event)->x()));
        return true;
    case QEvent::Wheel:
        return wheel(static_cast<QWheelEvent*>(event));
    case QEvent::Leave:
        emit pointerLeft();
        break;
    case QEvent::Resize:
        QMetaObject::invokeMethod(
            this, [this] { setRange(m_range); }, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool HistoryPlot::press(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return false;
    setFocus(Qt::MouseFocusReason);
    m_draggedFrom = event->x();
    m_isChoosing = event->modifiers().testFlag(Qt::ShiftModifier);
    return true;
}

bool HistoryPlot::drag(QMouseEvent* event)
{
    if (!m_draggedFrom) {
        emit timePointed(timeAt(event->x()));
    } else if (m_isChoosing) {
        m_overlay->setChoice(
            qMakePair(std::min(*m_draggedFrom, event->x()), std::max(*m_draggedFrom, event->x())));
    } else if (event->x() != *m_draggedFrom) {
        emit panWanted(timeAt(*m_draggedFrom) - timeAt(event->x()));
        m_draggedFrom = event->x();
    }
    return true;
}

bool HistoryPlot::release(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_draggedFrom)
        return false;
    const int from = std::min(*m_draggedFrom, event->x());
    const int to = std::max(*m_draggedFrom, event->x());
    m_draggedFrom.reset();
    m_overlay->setChoice({});
    if (m_isChoosing && to - from >= kLeastChoice)
        emit rangeWanted(timeAt(from), timeAt(to));
    return true;
}

bool HistoryPlot::wheel(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    const bool isSideways = turned.y() == 0 || event->modifiers().testFlag(Qt::ShiftModifier);
    const double steps = (turned.y() == 0 ? turned.x() : turned.y()) / kWholeWheelStep;
    if (isSideways)
        emit panWanted(static_cast<qint64>(-steps * kPanShare *
                                           static_cast<double>(m_range.toMs - m_range.fromMs)));
    else
        emit zoomWanted(std::pow(kCloser, steps), timeAt(event->position().toPoint().x()));
    return true;
}

void HistoryPlot::keyPressEvent(QKeyEvent* event)
{
    const auto length = static_cast<double>(m_range.toMs - m_range.fromMs);
    const bool steps = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int way = event->key() == Qt::Key_Left ? -1 : 1;
        if (steps)
            emit rowsStepped(way);
        else
            emit panWanted(static_cast<qint64>(way * kPanShare * length));
        break;
    }
    case Qt::Key_PageUp:
        emit panWanted(static_cast<qint64>(-length));
        break;
    case Qt::Key_PageDown:
        emit panWanted(static_cast<qint64>(length));
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        emit closerWanted(kMuchCloser);
        break;
    case Qt::Key_Minus:
        emit closerWanted(1 / kMuchCloser);
        break;
    case Qt::Key_Home:
        emit startWanted();
        break;
    case Qt::Key_End:
        emit nowWanted();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
