#include "window/historytrace.h"

#include <QPainter>
#include <qwt_scale_map.h>

#include <algorithm>

namespace {

constexpr double kWidth = 1.5;    // px, of a curve
constexpr double kDot = 3;        // px, of a sample that stands alone
constexpr double kLeastShade = 1; // px, between least and most
constexpr double kShade = 0.3;    // opacity of the band between least and most
constexpr int kCurvesAbove = 20;  // z, over bands and grid
constexpr int kPiece = 64; // points; smoothing takes time by the square of a flat line's length

// One line, its dashes going on from piece to piece.
void drawInPieces(QPainter* painter, QPen pen, const QPolygonF& line)
{
    double length = 0;
    for (int from = 0; from < line.size() - 1; from += kPiece) {
        const int to = std::min(from + kPiece, line.size() - 1);
        pen.setDashOffset(length / pen.widthF());
        painter->setPen(pen);
        painter->drawPolyline(line.constData() + from, to - from + 1);
        for (int point = from; point < to; ++point)
            length += QLineF(line.at(point), line.at(point + 1)).length();
    }
}

} // namespace

HistoryTrace::HistoryTrace(int column, double factor)
    : m_column(column)
    , m_factor(factor)
{
    setRenderHint(RenderAntialiased);
    setZ(kCurvesAbove);
}

void HistoryTrace::setHistory(const std::shared_ptr<const DeviceHistory>& history,
                              qint64 longestStepMs)
{
    m_history = history;
    m_runs.clear();
    if (history && m_column < history->series.values.size())
        m_runs = unbrokenRuns(history->series, m_column, longestStepMs);
}

void HistoryTrace::setColor(const QColor& color, int line)
{
    constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::SolidLine, Qt::DashLine, Qt::DotLine};
    m_pen = QPen(color, kWidth, styles[line], Qt::FlatCap, Qt::BevelJoin);
}

ValueRange HistoryTrace::extremes(TimeRange range) const
{
    ValueRange found;
    for (const auto& run : m_runs)
        for (int row = run.first; row <= run.second; ++row) {
            const qint64 start = m_history->series.timeMs.at(row);
            if (start >= range.toMs || start + m_history->series.spanMs.at(row) < range.fromMs)
                continue;
            const ValueRange& value = m_history->series.values.at(m_column).at(row);
            const double least = value.least * m_factor;
            const double most = value.most * m_factor;
            found = found.isKnown()
                        ? ValueRange{0, std::min(found.least, least), std::max(found.most, most)}
                        : ValueRange{0, least, most};
        }
    return found;
}

void HistoryTrace::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                        const QRectF&) const
{
    if (!m_history)
        return;
    const HistorySeries& series = m_history->series;
    const auto from = static_cast<qint64>(xMap.s1());
    const auto to = static_cast<qint64>(xMap.s2());
    // The rows that are in sight, and the next one at each side.
    const auto begin = series.timeMs.constBegin();
    const auto end = series.timeMs.constEnd();
    const int firstRow = static_cast<int>(std::lower_bound(begin, end, from) - begin) - 1;
    const int lastRow = static_cast<int>(std::upper_bound(begin, end, to) - begin);
    for (const auto& run : m_runs) {
        const int first = std::max(run.first, firstRow);
        const int last = std::min(run.second, lastRow);
        if (first <= last)
            drawRun(painter, xMap, yMap, first, last);
    }
}

void HistoryTrace::drawRun(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                           int first, int last) const
{
    const HistorySeries& series = m_history->series;
    QPolygonF means;
    QPolygonF shade;
    QPolygonF below;
    for (int row = first; row <= last; ++row) {
        const ValueRange& value = series.values.at(m_column).at(row);
        const double x =
            xMap.transform(static_cast<double>(series.timeMs.at(row) + series.spanMs.at(row) / 2));
        means += QPointF(x, yMap.transform(value.mean * m_factor));
        // Half a pixel more at each side: a swing of seconds has no width of its own.
        shade += QPointF(x, yMap.transform(value.most * m_factor) - kLeastShade / 2);
        below += QPointF(x, yMap.transform(value.least * m_factor) + kLeastShade / 2);
    }
    if (means.size() == 1) {
        painter->setPen(QPen(m_pen.color(), kDot, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(QPointF(means.first().x(), shade.first().y()),
                          QPointF(means.first().x(), below.first().y() + 0.01));
        return;
    }
    std::reverse(below.begin(), below.end());
    QColor fill = m_pen.color();
    fill.setAlphaF(kShade);
    painter->setPen(Qt::NoPen);
    painter->setBrush(fill);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->drawPolygon(shade + below);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    drawInPieces(painter, m_pen, means);
}
