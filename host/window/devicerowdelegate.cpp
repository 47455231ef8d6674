#include "window/devicerowdelegate.h"

#include "window/devicelistmodel.h"
#include "window/devicesortmodel.h"
#include "window/devicesummary.h"
#include "window/urgencycolors.h"

#include "dev/view/paintersaver.h"

#include <QApplication>
#include <QPainter>

namespace {

// px
constexpr int kMargin = 8;
constexpr int kMarkerWidth = 5;
constexpr int kLineGap = 2;
constexpr int kLines = 3;
constexpr int kSectionPadding = 5; // above and below its name

bool startsSection(const QModelIndex& index)
{
    const auto* sorted = qobject_cast<const DeviceSortModel*>(index.model());
    return sorted && sorted->startsSection(index);
}

int sectionHeight(const QStyleOptionViewItem& option)
{
    return option.fontMetrics.height() + 2 * kSectionPadding;
}

// The group's name, in a line above its first device. Returns what is left for the device.
QRect paintSection(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QString group = index.data(DeviceListModel::GroupRole).toString();
    QRect line = option.rect;
    line.setHeight(sectionHeight(option));
    QFont bold = option.font;
    bold.setBold(true);
    const PainterSaver saver(painter);
    painter->setFont(bold);
    QColor soft = option.palette.color(QPalette::Text);
    soft.setAlphaF(0.75);
    painter->setPen(soft);
    painter->drawText(
        line.adjusted(kMargin, 0, -kMargin, 0), Qt::AlignLeft | Qt::AlignVCenter,
        painter->fontMetrics().elidedText(group, Qt::ElideRight, line.width() - 2 * kMargin));
    return option.rect.adjusted(0, line.height(), 0, 0);
}

struct RowColors {
    QColor strong;
    QColor state;
    QColor soft;
};

RowColors colorsOf(const QStyleOptionViewItem& option, Urgency urgency)
{
    const bool selected = option.state & QStyle::State_Selected;
    const auto ground = selected ? QPalette::Highlight : QPalette::Window;
    RowColors colors;
    colors.strong = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    colors.state = selected || urgency <= Urgency::Notice
                       ? colors.strong
                       : urgencyTextColor(urgency, option.palette);
    colors.soft = fadedColor(colors.strong, option.palette.color(ground));
    return colors;
}

// In one line of the row: on the left what may be cut, on the right what may not.
void writeLine(QPainter* painter, const QRect& line, const QString& left, const QString& right = {},
               Qt::TextElideMode elide = Qt::ElideRight)
{
    const QFontMetrics metrics = painter->fontMetrics();
    const int rightWidth = right.isEmpty() ? 0 : metrics.horizontalAdvance(right) + kMargin;
    painter->drawText(line, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, right);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(left, elide, line.width() - rightWidth));
}

void writeLines(QPainter* painter, const QStyleOptionViewItem& option, const Device& device)
{
    const Condition condition = device.condition();
    const RowColors colors = colorsOf(option, condition.urgency);
    QRect line = option.rect.adjusted(kMarkerWidth + kMargin, kMargin, -kMargin, 0);
    line.setHeight(option.fontMetrics.height());
    const auto nextLine = [&line] { line.translate(0, line.height() + kLineGap); };

    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(colors.strong);
    writeLine(painter, line, device.name());
    painter->setFont(option.font);

    // At a narrow width the condition stays and the age goes.
    nextLine();
    const QString age = ageText(device.ageMs());
    const int needed = option.fontMetrics.horizontalAdvance(condition.text + age) + kMargin;
    painter->setPen(colors.state);
    writeLine(painter, line, condition.text, needed <= line.width() ? age : QString());

    nextLine();
    painter->setPen(colors.soft);
    writeLine(painter, line, device.address(), {}, Qt::ElideMiddle); // its end is what differs
}

} // namespace

void DeviceRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    const Device* device = DeviceListModel::deviceAt(index);
    if (!device)
        return;
    QStyleOptionViewItem row = option;
    if (startsSection(index))
        row.rect = paintSection(painter, option, index);
    row.text.clear();
    const QWidget* widget = option.widget;
    (widget ? widget->style() : QApplication::style())
        ->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, widget);

    const PainterSaver saver(painter);
    const QRect marker(row.rect.left(), row.rect.top() + 1, kMarkerWidth, row.rect.height() - 2);
    painter->fillRect(marker, urgencyColor(device->condition().urgency));
    writeLines(painter, row, *device);
}

QSize DeviceRowDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    const int device = kLines * (option.fontMetrics.height() + kLineGap) + 2 * kMargin - kLineGap;
    return {0, device + (startsSection(index) ? sectionHeight(option) : 0)};
}
