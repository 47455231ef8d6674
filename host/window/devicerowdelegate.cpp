#include "window/devicerowdelegate.h"

#include "window/devicelistmodel.h"
#include "window/devicesummary.h"
#include "window/urgencycolors.h"

#include <QApplication>
#include <QPainter>

namespace {

// px
constexpr int kMargin = 8;
constexpr int kMarkerWidth = 5;
constexpr int kLineGap = 2;
constexpr int kLines = 3;

} // namespace

void DeviceRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    const Device* device = DeviceListModel::deviceAt(index);
    if (!device)
        return;
    QStyleOptionViewItem background = option;
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

    painter->save();
    const QRect marker(option.rect.left(), option.rect.top() + 1, kMarkerWidth,
                       option.rect.height() - 2);
    painter->fillRect(marker, urgencyColor(condition.urgency));

    QRect line = option.rect.adjusted(kMarkerWidth + kMargin, kMargin, -kMargin, 0);
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
    writeLine(condition.text, ageText(device->ageMs()), stateColor);
    writeLine(device->address(), {}, soft);
    painter->restore();
}

QSize DeviceRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {0, kLines * (option.fontMetrics.height() + kLineGap) + 2 * kMargin - kLineGap};
}
