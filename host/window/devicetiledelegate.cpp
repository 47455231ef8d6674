#include "window/devicetiledelegate.h"

#include "window/devicelistmodel.h"
#include "window/devicesummary.h"
#include "window/urgencycolors.h"

#include "paintersaver.h"

#include <QPainter>

namespace {

// px at scale 1
constexpr QSize kFullSize(290, 186);
constexpr QSize kCompactSize(108, 32);
constexpr int kGap = 6; // half the space between two tiles
constexpr int kCompactGap = 1;
constexpr int kMargin = 12;
constexpr int kCompactMargin = 5;
constexpr int kBandHeight = 34;
constexpr int kCornerRadius = 6;
constexpr int kFocusWidth = 3;
// pt at scale 1
constexpr double kNameSize = 13;
constexpr double kStateSize = 14;
constexpr double kFigureSize = 18;
constexpr double kSmallSize = 9.5;
constexpr double kCompactNameSize = 8.5;
constexpr double kCompactStateSize = 8;
constexpr double kLeastSize = 6; // of alarms that need the room

constexpr int kLeft = Qt::AlignLeft | Qt::AlignVCenter;

int drawElided(QPainter* painter, const QRect& rect, int flags, const QString& text)
{
    const QFontMetrics metrics = painter->fontMetrics();
    const QString shown = metrics.elidedText(text, Qt::ElideRight, rect.width());
    painter->drawText(rect, flags | Qt::TextSingleLine, shown);
    return metrics.horizontalAdvance(shown);
}

// What makes the tile's colour stands first.
QString compactText(const Condition& condition)
{
    const bool alarmsFirst = condition.alarmUrgency >= condition.urgency;
    const QStringList state(condition.state);
    const QStringList words = alarmsFirst ? condition.alarms + state : state + condition.alarms;
    return words.join(QStringLiteral(" \u00b7 "));
}

} // namespace

struct DeviceTileDelegate::Tile {
    QPainter* painter;
    const QStyleOptionViewItem& option;
    const Device& device;
    Condition condition;
    bool live;
    QRect rect;

    QColor text() const { return option.palette.color(QPalette::Text); }
    QColor soft() const { return fadedColor(text(), option.palette.color(QPalette::Base)); }
    bool hasFocus() const { return option.state & QStyle::State_HasFocus; }
};

QSize DeviceTileDelegate::leastSize(Form form)
{
    return form == Form::Full ? kFullSize : kCompactSize;
}

void DeviceTileDelegate::setTile(Form form, int width, double scale)
{
    m_form = form;
    m_tileWidth = width;
    m_scale = scale;
}

QFont DeviceTileDelegate::sized(const Tile& tile, double points, bool bold) const
{
    QFont font = tile.option.font;
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
    const int gap = m_form == Form::Full ? px(kGap) : kCompactGap;
    const Tile tile{painter,
                    option,
                    *device,
                    device->condition(),
                    device->link() == LinkState::Live,
                    option.rect.adjusted(gap, gap, -gap, -gap)};
    const PainterSaver saver(painter);
    if (m_form == Form::Compact) {
        drawCompact(tile);
    } else {
        painter->setRenderHint(QPainter::Antialiasing);
        drawFrame(tile);
        drawBand(tile);
        QRect room = tile.rect.adjusted(px(kMargin), px(kBandHeight) + px(kMargin) / 2,
                                        -px(kMargin), -px(kMargin) / 2);
        drawFigures(tile, room);
        drawData(tile, room);
        drawAlarms(tile, room);
    }
}

void DeviceTileDelegate::drawCompact(const Tile& tile) const
{
    QPainter* painter = tile.painter;
    painter->fillRect(tile.rect, urgencyColor(tile.condition.urgency));
    if (tile.hasFocus() || tile.option.state & QStyle::State_MouseOver) {
        painter->setPen(QPen(tile.text(), kFocusWidth));
        painter->drawRect(tile.rect.adjusted(1, 1, -2, -2));
    }
    QRect line = tile.rect.adjusted(px(kCompactMargin), 1, -px(kCompactMargin), -1);
    line.setHeight(line.height() / 2);
    painter->setPen(Qt::white);
    painter->setFont(sized(tile, kCompactNameSize, true));
    drawElided(painter, line, kLeft, tile.device.name());
    line.translate(0, line.height());
    painter->setFont(sized(tile, kCompactStateSize, false));
    drawElided(painter, line, kLeft, compactText(tile.condition));
}

void DeviceTileDelegate::drawFrame(const Tile& tile) const
{
    const bool marked = tile.hasFocus() || tile.option.state & QStyle::State_MouseOver;
    const QColor color = urgencyColor(tile.condition.urgency);
    tile.painter->setPen(QPen(marked ? tile.text() : color, tile.hasFocus() ? kFocusWidth : 2));
    tile.painter->setBrush(tile.option.palette.base());
    tile.painter->drawRoundedRect(tile.rect, px(kCornerRadius), px(kCornerRadius));
}

// The state fills the head of the tile: its colour is what the room sees first.
void DeviceTileDelegate::drawBand(const Tile& tile) const
{
    QPainter* painter = tile.painter;
    QRect band = tile.rect.adjusted(1, 1, -1, 0);
    band.setHeight(px(kBandHeight));
    painter->setPen(Qt::NoPen);
    painter->setBrush(urgencyColor(tile.condition.urgency));
    painter->drawRoundedRect(band, px(kCornerRadius), px(kCornerRadius));
    painter->drawRect(band.adjusted(0, px(kCornerRadius), 0, 0));
    painter->setPen(Qt::white);
    const QRect line = band.adjusted(px(kMargin), 0, -px(kMargin), 0);
    painter->setFont(sized(tile, kSmallSize, false));
    const int taken = drawElided(painter, line, Qt::AlignRight | Qt::AlignVCenter,
                                 sinceText(tile.device.conditionSince()));
    painter->setFont(sized(tile, kStateSize, true));
    drawElided(painter, line.adjusted(0, 0, -taken - px(kMargin) / 2, 0), kLeft,
               tile.condition.state);
}

// Values that are not live are still told, but faintly.
void DeviceTileDelegate::drawFigures(const Tile& tile, QRect& room) const
{
    constexpr int kWidthPercent[] = {33, 36, 31}; // of the tile; minutes need most
    QPainter* painter = tile.painter;
    painter->setPen(tile.text());
    painter->setFont(sized(tile, kNameSize, true));
    QRect line = room;
    line.setHeight(painter->fontMetrics().height());
    drawElided(painter, line, kLeft, tile.device.name());

    QRect value(line.bottomLeft() + QPoint(0, px(kMargin) / 2), QSize());
    QRect caption;
    std::size_t number = 0;
    for (const DeviceFigure& figure : deviceFigures(tile.device.reading())) {
        value.setWidth(room.width() * kWidthPercent[number++] / 100);
        painter->setPen(tile.live ? tile.text() : tile.soft());
        painter->setFont(sized(tile, kFigureSize, tile.live));
        value.setHeight(painter->fontMetrics().height());
        drawElided(painter, value, kLeft, figure.value);
        painter->setPen(tile.soft());
        painter->setFont(sized(tile, kSmallSize, false));
        caption = QRect(value.bottomLeft(), QSize(value.width(), painter->fontMetrics().height()));
        drawElided(painter, caption, kLeft, figure.caption);
        value.moveLeft(value.left() + value.width());
    }
    room.setTop(caption.bottom() + 1);
}

// Age of live data; of other data the cause, as far as there is room, and the age.
void DeviceTileDelegate::drawData(const Tile& tile, QRect& room) const
{
    QPainter* painter = tile.painter;
    painter->setFont(sized(tile, kSmallSize, false));
    painter->setPen(tile.live ? tile.soft()
                              : urgencyTextColor(tile.condition.urgency, tile.option.palette));
    const int flags = Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap;
    const QString text = dataText(tile.device);
    const QRect needed = painter->boundingRect(room, flags, text) & room;
    painter->setClipRect(room);
    painter->drawText(room, flags, text);
    painter->setClipping(false);
    room.setBottom(needed.top() - 1);
}

// Whole, in letters as large as the room allows.
void DeviceTileDelegate::drawAlarms(const Tile& tile, const QRect& room) const
{
    if (tile.condition.alarms.isEmpty())
        return;
    QPainter* painter = tile.painter;
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
    const QString text = tile.condition.alarms.join(QStringLiteral("  \u00b7  "));
    double points = kSmallSize + 1;
    do {
        painter->setFont(sized(tile, points, true));
        points -= 0.5;
    } while (points >= kLeastSize &&
             !room.contains(painter->fontMetrics().boundingRect(room, flags, text)));
    painter->setPen(urgencyTextColor(tile.condition.alarmUrgency, tile.option.palette));
    painter->setClipRect(room);
    painter->drawText(room, flags, text);
    painter->setClipping(false);
}

QSize DeviceTileDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return {m_tileWidth, px(leastSize(m_form).height())};
}
