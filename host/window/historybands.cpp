#include "window/historybands.h"

#include "window/urgencycolors.h"

#include <QPainter>
#include <qwt_scale_map.h>

#include <algorithm>

namespace {

constexpr int kHalfLight = 128;
constexpr double kShade = 0.25;   // opacity of a band
constexpr double kLeastWidth = 2; // px: a failure of seconds is seen in a year
constexpr double kRim = 4;        // px, of the solid strip along a band's top

struct BandRow {
    JournalKind kind;
    QRgb onLight;
    QRgb onDark;
    Qt::BrushStyle fill; // hatched: nothing is known of that time
};
constexpr BandRow kBands[] = {
    {JournalKind::Outage, 0xffc62828, 0xffff6b60, Qt::SolidPattern},
    {JournalKind::Bypass, 0xffd98200, 0xffffb347, Qt::SolidPattern},
    {JournalKind::Link, 0xff5d6475, 0xff9aa0b4, Qt::BDiagPattern},
};

const BandRow& rowOf(JournalKind kind)
{
    const auto* row = std::find_if(std::begin(kBands), std::end(kBands),
                                   [kind](const BandRow& band) { return band.kind == kind; });
    return row == std::end(kBands) ? kBands[0] : *row;
}

} // namespace

HistoryBands::HistoryBands() = default;

QColor HistoryBands::color(JournalKind kind, const QPalette& palette)
{
    const bool onDark = palette.color(QPalette::Base).lightness() < kHalfLight;
    return QColor::fromRgb(onDark ? rowOf(kind).onDark : rowOf(kind).onLight);
}

void HistoryBands::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap&,
                        const QRectF& canvas) const
{
    if (!m_history)
        return;
    for (const JournalEntry& entry : m_history->bands)
        drawBand(painter, xMap, canvas, entry);
    painter->setRenderHint(QPainter::Antialiasing);
    for (const JournalEntry& entry : m_history->marks)
        drawMark(painter, xMap, canvas, entry);
}

void HistoryBands::drawBand(QPainter* painter, const QwtScaleMap& xMap, const QRectF& canvas,
                            const JournalEntry& entry) const
{
    const double left =
        std::max(xMap.transform(static_cast<double>(entry.onsetMs)), canvas.left() - kLeastWidth);
    const double right = xMap.transform(static_cast<double>(knownEnd(entry, m_history->extent)));
    const QRectF band(left, canvas.top(), std::max(right - left, kLeastWidth), canvas.height());
    if (!band.intersects(canvas))
        return;
    const QColor solid = color(entry.kind, m_palette);
    const Qt::BrushStyle fill = rowOf(entry.kind).fill;
    QColor shade = solid;
    if (fill == Qt::SolidPattern)
        shade.setAlphaF(kShade);
    painter->fillRect(band & canvas, QBrush(shade, fill));
    painter->fillRect(QRectF(band.topLeft(), QSizeF(band.width(), kRim)) & canvas, solid);
}

void HistoryBands::drawMark(QPainter* painter, const QwtScaleMap& xMap, const QRectF& canvas,
                            const JournalEntry& entry) const
{
    const double x = xMap.transform(static_cast<double>(entry.onsetMs));
    if (x < canvas.left() || x > canvas.right())
        return;
    const QPointF tip(x, canvas.bottom() - kMarkSize);
    painter->setPen(QPen(m_palette.color(QPalette::Base), 1));
    painter->setBrush(urgencyTextColor(entry.severity, m_palette));
    painter->drawPolygon(
        QPolygonF(QVector<QPointF>{tip, QPointF(x - kMarkSize / 2.0, canvas.bottom()),
                                   QPointF(x + kMarkSize / 2.0, canvas.bottom())}));
}
