#include "window/devicerowdelegate.h"

#include "window/devicelistmodel.h"
#include "window/devicesortmodel.h"
#include "window/devicesummary.h"
#include "window/urgencycolors.h"

#include "paintersaver.h"

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

} // namespace

void DeviceRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    const Device* device = DeviceListModel::deviceAt(index);
    if (!device)
        return;
    QStyleOptionViewItem background = option;
    if (startsSection(index))
        background.rect = paintSection(painter, option, index);
    const QRect room = background.rect;
    background.text.clear();
    const QWidget* widget = option.widget;
    (widget ? widget->style() : QApplication::style())
        ->drawPrimitive(QStyle::PE_PanelItemViewItem, &background, painter, widget);

    const bool selected = option.state & QStyle::State_Selected;
    const auto role = selected ? QPalette::HighlightedText : QPalette::Text;
    const QColor strong = option.palette.color(role);
    const auto ground = selected ? QPalette::Highlight : QPalette::Window;
    const QColor soft = fadedColor(strong, option.palette.color(ground));
    const Condition condition = device->condition();

    const PainterSaver saver(painter);
    const QRect marker(room.left(), room.top() + 1, kMarkerWidth, room.height() - 2);
    painter->fillRect(marker, urgencyColor(condition.urgency));

    QRect line = room.adjusted(kMarkerWidth + kMargin, kMargin, -kMargin, 0);
    line.setHeight(option.fontMetrics.height());
    const auto writeLine = [&](const QString& left, const QString& right, const QColor& color) {
        painter->setPen(color);
        const QFontMetrics metrics = painter->fontMetrics();
        const int rightWidth = right.isEmpty() ? 0 : metrics.horizontalAdvance(right) + kMargin;
        painter->drawText(line, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, right);
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics.elidedText(left, Qt::ElideRight, line.width() - rightWidth));
        line.translate(0, line.height() + kLineGap);
    };
    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    writeLine(device->name(), {}, strong);
    painter->setFont(option.font);
    const QColor stateColor = selected || condition.urgency <= Urgency::Notice
                                  ? strong
                                  : urgencyTextColor(condition.urgency, option.palette);
    // At a narrow width the condition stays and the age goes.
    const QString age = ageText(device->ageMs());
    const QFontMetrics metrics = painter->fontMetrics();
    const bool fits = metrics.horizontalAdvance(condition.text + age) + kMargin <= line.width();
    writeLine(condition.text, fits ? age : QString(), stateColor);
    writeLine(device->address(), {}, soft);
}

QSize DeviceRowDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    const int device = kLines * (option.fontMetrics.height() + kLineGap) + 2 * kMargin - kLineGap;
    return {0, device + (startsSection(index) ? sectionHeight(option) : 0)};
}
