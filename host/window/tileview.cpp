#include "window/tileview.h"

#include "window/urgencycolors.h"

#include <QPainter>
#include <QPaintEvent>

#include <algorithm>

namespace {

constexpr int kPadding = 6; // px, around a heading

int headingHeight(const QFontMetrics& metrics)
{
    return metrics.height() + 2 * kPadding;
}

int rowsOf(const DeviceSection& section, int columns)
{
    return (section.count + columns - 1) / columns;
}

} // namespace

TileView::TileView(const DeviceSortModel& sorted, QWidget* parent)
    : QListView(parent)
    , m_sorted(sorted)
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Free); // by this view; nobody else can
    setDragEnabled(false);
    setAcceptDrops(false);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
}

int TileView::heightOf(const QVector<DeviceSection>& sections, int columns, int tileHeight,
                       const QFontMetrics& metrics)
{
    int height = 0;
    for (const DeviceSection& section : sections)
        height += rowsOf(section, columns) * tileHeight +
                  (section.group.isEmpty() ? 0 : headingHeight(metrics));
    return height;
}

void TileView::doItemsLayout()
{
    QListView::doItemsLayout();
    m_headings.clear();
    const QVector<DeviceSection> sections = m_sorted.sections();
    if (sections.size() == 1 && sections.first().group.isEmpty())
        return; // as they flow
    const QSize tile = sizeHintForIndex(m_sorted.index(0, 0));
    const int columns = std::max(viewport()->width() / std::max(tile.width(), 1), 1);
    int top = 0;
    for (const DeviceSection& section : sections) {
        if (!section.group.isEmpty()) {
            m_headings << Heading{section.group, top};
            top += headingHeight(fontMetrics());
        }
        for (int i = 0; i < section.count; ++i)
            setPositionForIndex({i % columns * tile.width(), top + i / columns * tile.height()},
                                m_sorted.index(section.first + i, 0));
        top += rowsOf(section, columns) * tile.height();
    }
    updateGeometries();
}

void TileView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(fadedColor(palette().color(QPalette::Text), palette().color(QPalette::Base)));
    for (const Heading& heading : qAsConst(m_headings)) {
        const QRect line(kPadding, heading.top - verticalOffset(),
                         viewport()->width() - 2 * kPadding, headingHeight(fontMetrics()));
        if (line.intersects(event->rect()))
            painter.drawText(
                line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                painter.fontMetrics().elidedText(heading.text, Qt::ElideRight, line.width()));
    }
}
