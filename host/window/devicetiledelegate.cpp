#include "window/devicetiledelegate.h"

#include "window/devicelistmodel.h"
#include "window/urgencycolors.h"
#include "window/valuewords.h"

#include <QPainter>

namespace {

// px at scale 1
constexpr int kGap = 6; // half the space between two tiles
constexpr int kMargin = 12;
constexpr int kBandHeight = 34;
constexpr int kCornerRadius = 6;
// pt at scale 1
constexpr double kNameSize = 13;
constexpr double kStateSize = 14;
constexpr double kFigureSize = 18;
constexpr double kSmallSize = 9.5;

void drawElided(QPainter* painter, const QRect& rect, int flags, const QString& text)
{
    painter->drawText(rect, flags | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
}

} // namespace

void DeviceTileDelegate::setTile(int width, double scale)
{
    m_tileWidth = width;
    m_scale = scale;
}

QFont DeviceTileDelegate::sized(QFont font, double points, bool bold) const
{
    font.setPointSizeF(points * m_scale);
    font.setBold(bold);
    return font;
}

void DeviceTileDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    const Device* device = DeviceListModel::deviceAt(index);
    if (!device)
        return;
    const Condition condition = device->condition();
    const bool live = device->link() == LinkState::Live;
    const QColor color = urgencyColor(condition.urgency);
    const QRect tile = option.rect.adjusted(px(kGap), px(kGap), -px(kGap), -px(kGap));
    const QColor text = option.palette.color(QPalette::Text);
    QColor soft = text;
    soft.setAlphaF(0.65);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool hovered = option.state & QStyle::State_MouseOver;
    painter->setPen(QPen(hovered ? option.palette.color(QPalette::Highlight) : color, 2));
    painter->setBrush(option.palette.base());
    painter->drawRoundedRect(tile, px(kCornerRadius), px(kCornerRadius));

    // The state fills the head of the tile: its colour is what the room sees first.
    const QRect band(tile.left(), tile.top(), tile.width(), px(kBandHeight));
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(band, px(kCornerRadius), px(kCornerRadius));
    painter->drawRect(band.adjusted(0, px(kCornerRadius), 0, 0));
    painter->setPen(Qt::white);
    painter->setFont(sized(option.font, kStateSize, true));
    drawElided(painter, band.adjusted(px(kMargin), 0, -px(kMargin), 0),
               Qt::AlignLeft | Qt::AlignVCenter, condition.text);

    QRect line = tile.adjusted(px(kMargin), px(kBandHeight) + px(kMargin) / 2, -px(kMargin), 0);
    painter->setPen(text);
    painter->setFont(sized(option.font, kNameSize, true));
    line.setHeight(painter->fontMetrics().height());
    drawElided(painter, line, Qt::AlignLeft | Qt::AlignVCenter, device->name());
    line.translate(0, line.height() + px(kMargin) / 2);

    // Values that are not live are still told, but faintly.
    const UpsReading* reading = device->reading();
    const struct {
        QString value;
        QString caption;
        int widthPercent; // of the tile; minutes need most
    } figures[] = {{chargeText(reading), tr("battery"), 33},
                   {runtimeText(reading), tr("lasts"), 36},
                   {loadText(reading), tr("load"), 31}};
    QRect figure(line.topLeft(), QSize());
    for (const auto& f : figures) {
        const int columnWidth = line.width() * f.widthPercent / 100;
        figure.setWidth(columnWidth);
        painter->setPen(live ? text : soft);
        painter->setFont(sized(option.font, kFigureSize, live));
        figure.setHeight(painter->fontMetrics().height());
        drawElided(painter, figure, Qt::AlignLeft | Qt::AlignVCenter, f.value);
        painter->setPen(soft);
        painter->setFont(sized(option.font, kSmallSize, false));
        drawElided(
            painter,
            QRect(figure.left(), figure.bottom(), columnWidth, painter->fontMetrics().height()),
            Qt::AlignLeft | Qt::AlignVCenter, f.caption);
        figure.moveLeft(figure.left() + columnWidth);
    }

    painter->setFont(sized(option.font, kSmallSize, false));
    const int smallHeight = painter->fontMetrics().height();
    const QRect foot(tile.left() + px(kMargin), tile.bottom() - smallHeight - px(kMargin) / 2,
                     tile.width() - 2 * px(kMargin), smallHeight);
    painter->setPen(live ? soft : color);
    drawElided(painter, foot, Qt::AlignLeft | Qt::AlignVCenter,
               linkText(device->link(), device->ageMs()));
    const auto worst = reading ? worstAlarm(reading->alarms) : std::nullopt;
    if (worst) {
        painter->setPen(urgencyTextColor(urgencyOf(*worst), option.palette));
        drawElided(painter, foot.translated(0, -smallHeight), Qt::AlignLeft | Qt::AlignVCenter,
                   alarmText(*worst));
    }
    painter->restore();
}

QSize DeviceTileDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return {m_tileWidth, px(kHeight)};
}
