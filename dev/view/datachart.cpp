#include "datachart.h"

#include "paintersaver.h"
#include "splitpicture.h"
#include "valuetext.h"

#include <QPaintEvent>
#include <QRadialGradient>
#include <QTimer>
#include <QtMath>

#include <cmath>
#include <limits>
#include <utility>

namespace {

// The arc: the upper half circle less 10 degrees at each end, in Qt's 1/16 degrees.
constexpr int kArcDegrees = 160;
constexpr int kArcStart = 10 * 16;
constexpr int kArcSpan = kArcDegrees * 16;
constexpr int kArcBottom = 10;    // px between arc centre and lower edge
constexpr double kArcShare = 0.7; // of the outer radius
constexpr int kInk = 2;           // px that lines and letters may reach out of their place
constexpr int kValuePoints = 11;

int truncated(double v)
{
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return std::isnan(v) ? 0 : static_cast<int>(qBound(kLowest, v, kHighest));
}

QRect inked(const QRectF& place)
{
    return place.adjusted(-kInk, -kInk, kInk, kInk).toAlignedRect();
}

QFont gaugeFont(int points, int weight)
{
    return QFont(QStringLiteral("Microsoft YaHei"), points, weight);
}

} // namespace

DataChart::DataChart(QWidget* parent)
    : QWidget(parent)
    , m_unitText(QStringLiteral("V"))
    , m_dial(new SplitPicture)
{
    m_valueText.setCacheEnabled(true);
    constexpr int kTickMs = 10;
    updateTimer = new QTimer(this);
    updateTimer->setInterval(kTickMs);
    connect(updateTimer, SIGNAL(timeout()), this, SLOT(UpdateGraph()));
    updateTimer->start();
    tellValue();
}

DataChart::~DataChart() = default;

void DataChart::setValue(qreal v)
{
    m_invalidValue = !isOnScale(v);
    if (m_invalidValue)
        v = 0;
    if (v != m_value) { // between "0" and "--" it is the same; the next paint shows which
        const int covered = coveredSpan();
        m_bReverse = v < m_value;
        m_value = m_currentValue = v;
        updateFrom(covered);
    }
    tellValue();
}

bool DataChart::isOnScale(double v) const
{
    return std::isfinite(v) && m_maxValue > m_minValue && v >= m_minValue && v <= m_maxValue;
}

void DataChart::setUnitText(QString unit)
{
    m_unitText = unit;
    tellValue();
}

void DataChart::setMaxValue(qreal v)
{
    m_maxValue = v;
}

void DataChart::setMinValue(qreal v)
{
    m_minValue = v;
}

// An editor shows a change of the scale at once, and a value that was not on it before.
void DataChart::showMinimum(qreal v)
{
    setMinValue(v);
    update();
}

void DataChart::showMaximum(qreal v)
{
    setMaxValue(v);
    update();
}

void DataChart::setRadioValue(QList<int> ratio, QList<int> values)
{
    m_ratio = ratio;
    m_radioValue = values;
}

void DataChart::tellValue()
{
    QString told = m_caption.isEmpty() ? QString() : m_caption + QLatin1String(": ");
    told += m_invalidValue ? valueText() : valueText() + QLatin1Char(' ') + m_unitText;
    if (told != accessibleName())
        setAccessibleName(told);
}

void DataChart::setCaption(const QString& caption)
{
    m_caption = caption;
    tellValue();
}

QString DataChart::valueText() const
{
    return m_invalidValue ? valuetext::outOfRange() : QString::number(m_value);
}

// Half a unit past the value, then it stops for good: the timer is started once, at the beginning.
void DataChart::UpdateGraph()
{
    constexpr double kStep = 0.5;
    m_currentValue += m_bReverse ? -kStep : kStep;
    if (m_bReverse ? m_value >= m_currentValue : m_currentValue >= m_value)
        updateTimer->stop();
    update();
}

void DataChart::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_dial->clear();
}

// Where the dial is known and only the value has changed, its number and the way of the arc's end.
// The edges of a part show where they lie between pixels of the screen.
void DataChart::updateFrom(int covered)
{
    const double ratio = devicePixelRatioF();
    const int band = bandColour();
    if (!m_dial->isKept(band) || band != m_bandShown || !(dialNow() == m_dialShown) ||
        ratio != std::floor(ratio))
        return update();
    update(coverBetween(covered, coveredSpan()) + m_valueShown + inked(valuePlace()));
}

// Open and covered the dial stays the same; the value is which of them is seen where.
void DataChart::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    resetVariables();
    const Dial dial = std::exchange(m_dialShown, dialNow());
    const int band = std::exchange(m_bandShown, bandColour());
    const bool isSameDial = dial == m_dialShown;
    if (!isSameDial) {
        m_dial->clear();
        m_valueText.setFont(QFont(gaugeFont(kValuePoints, QFont::Bold), this));
        m_valueText.setText(QString());
    }
    m_dial->paint(&painter,
                  {m_bandShown, rect(), [&] { drawDial(&painter, 0); },
                   [&] { drawDial(&painter, kArcSpan); },
                   [&] { drawDial(&painter, coveredSpan()); }},
                  cover());
    drawValue(&painter);
    // A part that is not put back may differ from the rest.
    const bool isPutBack = isSameDial && band == m_bandShown && m_dial->isKept(band);
    if (!isPutBack && !(visibleRegion() - event->region()).isEmpty())
        update();
}

DataChart::Dial DataChart::dialNow() const
{
    return {size(), font(), logicalDpiX(), logicalDpiY(), m_minValue, m_maxValue};
}

bool DataChart::Dial::operator==(const Dial& other) const
{
    return size == other.size && dpiX == other.dpiX && dpiY == other.dpiY &&
           minimum == other.minimum && maximum == other.maximum && font == other.font;
}

void DataChart::drawDial(QPainter* painter, int covered)
{
    drawColorPies(painter);
    drawGraph(painter, covered);
    drawCoverLines(painter);
    drawCoverCircle(painter);
    drawMarkAndText(painter);
    drawTextRect(painter);
}

int DataChart::heightForWidth(int width) const
{
    constexpr double kMarksShare = 0.06; // of the outer radius, outside the arc
    const double reach = (kArcShare + kMarksShare) * (width / 2);
    const double numbers = 1.5 * fontMetrics().height(); // the topmost ones, and their distance
    return qMin(kHighestDial, qRound(kArcBottom + reach + numbers));
}

void DataChart::resetVariables()
{
    m_outerRadius = qMin(height(), width() / 2);
    m_innerRadius = 0.85 * m_outerRadius;
    m_colorPieRadius = kArcShare * m_outerRadius;
    m_coverCircleRadius = 0.5 * m_colorPieRadius;
    m_longHand = m_outerRadius / 20.0;
    m_okHand = 0.7 * m_longHand;
    m_shortHand = 0.5 * m_longHand;
    m_space = 0.1 * m_longHand;
    m_center = rect().center();
    m_pieRect = QRectF(arcCentre() - QPointF(m_colorPieRadius, m_colorPieRadius),
                       2 * QSizeF(m_colorPieRadius, m_colorPieRadius));
}

QPointF DataChart::arcCentre() const
{
    return QPointF(width() / 2, height() - kArcBottom);
}

// Counterclockwise from the right, as angles of arcs are.
QPointF DataChart::onCircle(double radius, double degrees) const
{
    const double angle = qDegreesToRadians(degrees);
    return arcCentre() + radius * QPointF(std::cos(angle), -std::sin(angle));
}

int DataChart::bandColour() const
{
    constexpr int kGrey = 3;
    constexpr double kNoLimit = std::numeric_limits<double>::infinity();
    if (m_ratio.isEmpty())
        return kGrey;
    const auto colour = [this](int band) { return m_ratio.at(qMin(band, m_ratio.size() - 1)); };
    const auto limit = [this](int band) {
        return band < m_radioValue.size() ? m_radioValue.at(band) : kNoLimit;
    };
    if (m_value >= m_minValue && m_value < limit(0))
        return colour(0);
    if (m_ratio.size() != 3)
        return colour(1);
    return m_value >= limit(0) && m_value <= limit(1) ? colour(1) : colour(2);
}

void DataChart::setColor(QRadialGradient& gradient, int index)
{
    static const QColor kStops[][3] = {
        // centre             0.7                  edge
        {{138, 226, 52}, {115, 210, 22}, {78, 154, 6}},     // green
        {{255, 235, 69}, {255, 205, 0}, {255, 166, 0}},     // yellow
        {{238, 119, 34}, {221, 85, 34}, {205, 34, 51}},     // red
        {{242, 242, 242}, {221, 210, 240}, {219, 200, 199}} // grey
    };
    if (index < 0 || index >= static_cast<int>(std::size(kStops)))
        return;
    gradient.setColorAt(0, kStops[index][0]);
    gradient.setColorAt(0.7, kStops[index][1]);
    gradient.setColorAt(1, kStops[index][2]);
}

void DataChart::drawColorPies(QPainter* painter)
{
    const PainterSaver saver(painter);
    QRadialGradient gradient(arcCentre(), m_colorPieRadius);
    setColor(gradient, bandColour());
    painter->setPen(QColor(128, 128, 128));
    painter->setBrush(gradient);
    painter->drawPie(m_pieRect, kArcStart, kArcSpan);
}

int DataChart::coveredSpan() const
{
    const double degreesPerUnit = kArcDegrees / (m_maxValue - m_minValue);
    const double filled = (m_currentValue - m_minValue) * degreesPerUnit * 16;
    // Not a number on a scale without width, which has nothing to fill.
    if (!(m_currentValue >= m_minValue) || !(m_maxValue > m_minValue) || std::isnan(filled))
        return kArcSpan;
    return static_cast<int>(qBound<double>(0, kArcSpan - filled, kArcSpan));
}

void DataChart::drawGraph(QPainter* painter, int covered)
{
    const PainterSaver saver(painter);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(238, 238, 221));
    painter->drawPie(m_pieRect, kArcStart, covered);
}

// It ends where the unfilled part does and goes beyond the arc on all other sides, where both
// pictures of the dial have the same pixels: a square, as upright edges are painted fastest.
QPolygonF DataChart::cover() const
{
    constexpr double kDown = -90; // degrees
    constexpr double kAllAround = kDown + 360;
    constexpr double kCorners[] = {-45, 45, 135, 225};
    const int span = coveredSpan();
    if (span == 0)
        return {};
    const double end = span == kArcSpan ? kAllAround : double(kArcStart + span) / 16;
    const double reach = m_colorPieRadius + kInk;
    const auto onSquare = [&](double degrees) {
        const QPointF way = onCircle(reach, degrees) - arcCentre();
        return arcCentre() + way * (reach / qMax(qAbs(way.x()), qAbs(way.y())));
    };
    QPolygonF sector;
    sector << arcCentre() << onSquare(kDown);
    for (double corner : kCorners) {
        if (corner < end)
            sector << onSquare(corner);
    }
    return sector << onSquare(end);
}

// The pixels of the sector between the ends of two arcs, in parts that leave out most others.
QRegion DataChart::coverBetween(int span, int other) const
{
    constexpr int kParts = 3;
    constexpr double kStep = 10; // degrees, at most
    const double begin = double(kArcStart + qMin(span, other)) / 16;
    const double end = double(kArcStart + qMax(span, other)) / 16;
    const double bulge = std::cos(qDegreesToRadians(kStep / 2)); // of the arc between two corners
    const double partReach = (m_colorPieRadius + kInk) / bulge / kParts;
    QRegion region;
    for (int part = 0; part < kParts; ++part) {
        QPolygonF corners;
        for (double angle = begin; angle < end + kStep; angle += kStep) {
            for (int circle : {part, part + 1})
                corners << onCircle(circle * partReach, qMin(angle, end));
        }
        region += corners.boundingRect().adjusted(-1, -1, 1, 1).toAlignedRect();
    }
    return region;
}

// Five equal sectors.
void DataChart::drawCoverLines(QPainter* painter)
{
    constexpr int kFirstAngle = 100; // degrees, as rotated from straight down
    constexpr int kLines = 6;
    constexpr int kSector = 32;

    const PainterSaver saver(painter);
    painter->translate(arcCentre());
    painter->rotate(kFirstAngle);
    painter->setPen(QColor(47, 47, 47));
    for (int i = 0; i < kLines; ++i) {
        painter->drawLine(QPointF(0, m_colorPieRadius), QPointF(0, 1.5 * m_coverCircleRadius));
        painter->rotate(kSector);
    }
}

// Has neither pen nor brush and leaves no mark: the inner part of the arc stays coloured.
void DataChart::drawCoverCircle(QPainter* painter)
{
    const PainterSaver saver(painter);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::NoBrush);
    const QPointF corner(m_coverCircleRadius, m_coverCircleRadius);
    painter->drawChord(QRectF(arcCentre() - corner, arcCentre() + corner), kArcStart, kArcSpan);
}

void DataChart::drawMarkAndText(QPainter* painter)
{
    constexpr double kFirstAngle = 100.0;
    constexpr int kSteps = 100;
    constexpr double kDegreesPerStep = 1.6;
    constexpr int kMajor = 20; // steps
    constexpr int kMinor = 5;
    constexpr double kIntervals = kSteps / kMajor;
    static const QColor kMajorColour(16, 49, 98);
    static const QColor kMinorColour(47, 47, 47);

    const PainterSaver saver(painter);
    painter->translate(arcCentre());
    const double start = m_space + m_colorPieRadius;
    int number = truncated(m_minValue);
    for (int i = 0; i <= kSteps; i += kMinor) {
        const double angle = kFirstAngle + i * kDegreesPerStep;
        const bool major = i % kMajor == 0;
        const PainterSaver turned(painter);
        painter->rotate(angle);
        painter->setPen(major ? kMajorColour : kMinorColour);
        painter->drawLine(QPointF(0, start), QPointF(0, start + (major ? m_longHand : m_okHand)));
        if (!major)
            continue;
        drawLabel(painter, number, angle);
        number = truncated(number + (m_maxValue - m_minValue) / kIntervals);
    }
}

// The painter stands turned by `angle` at the arc centre; the text is upright. It is placed by the
// metrics of the widget's own font.
void DataChart::drawLabel(QPainter* painter, int number, double angle)
{
    constexpr int kPoints = 8;
    const QString text = QString::number(number);
    const double w = fontMetrics().horizontalAdvance(text);
    const double h = fontMetrics().height();
    painter->translate(-w / 2, 2 * m_space + m_colorPieRadius + m_longHand + h);
    painter->rotate(-angle);
    painter->setPen(Qt::black);
    painter->setFont(gaugeFont(kPoints, QFont::Normal));
    painter->drawText(QPointF(3.0 - w, 2.0 + h / 2), text);
}

QRect DataChart::valueBox() const
{
    const int k = static_cast<int>((m_colorPieRadius - m_coverCircleRadius) / 3.0);
    return QRect(width() / 2 - 3 * k, height() - 2 * k, 6 * k, 2 * k);
}

void DataChart::drawTextRect(QPainter* painter)
{
    const PainterSaver saver(painter);
    const QRect box = valueBox();
    const int roundness = box.height() / 2;
    painter->setOpacity(0.7);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::blue);
    painter->drawRoundedRect(box, roundness, roundness, Qt::RelativeSize);
}

void DataChart::drawValue(QPainter* painter)
{
    const PainterSaver saver(painter);
    painter->setPen(Qt::white);
    const QRectF place = valuePlace();
    m_valueText.draw(painter, place.topLeft());
    m_valueShown = inked(place);
}

// Of the number, which may be longer than its box; it is laid out once, to measure and to paint.
QRectF DataChart::valuePlace()
{
    const QString text = valueText();
    if (m_valueText.text() != text) {
        m_valueText.setText(text);
        m_valueText.beginLayout();
        m_valueText.createLine();
        m_valueText.endLayout();
    }
    QRectF place = m_valueText.lineAt(0).naturalTextRect();
    place.moveCenter(QRectF(valueBox()).center());
    return place;
}
