#include "window/devicetiledelegate.h"

#include "window/devicelistmodel.h"
#include "window/devicesummary.h"
#include "window/urgencycolors.h"

#include "dev/view/paintersaver.h"

#include <QPainter>

namespace {

constexpr int kFocusWidth = 3;     // px
constexpr double kLeastSize = 6.5; // pt, of alarms that need the room

constexpr int kLeft = Qt::AlignLeft | Qt::AlignVCenter;

int drawElided(QPainter* painter, const QRect& rect, int flags, const QString& text)
{
    const QFontMetrics metrics = painter->fontMetrics();
    const int advance = metrics.horizontalAdvance(text);
    const bool isWhole = advance <= rect.width(); // most are, and looking is cheaper than cutting
    const QString shown = isWhole ? text : metrics.elidedText(text, Qt::ElideRight, rect.width());
    painter->drawText(rect, flags | Qt::TextSingleLine, shown);
    return isWhole ? advance : metrics.horizontalAdvance(shown);
}

bool fits(const QFontMetrics& metrics, const QRect& room, const QString& text)
{
    return room.contains(
        metrics.boundingRect(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text));
}

// Words as far as there is room for whole lines of them.
QString cutWords(const QFontMetrics& metrics, const QRect& room, const QString& text)
{
    const QString more(QStringLiteral("\u2026"));
    QStringList words = text.split(QLatin1Char(' '));
    QString shown = text;
    while (words.size() > 1 && !fits(metrics, room, shown)) {
        words.removeLast();
        shown = words.join(QLatin1Char(' ')) + more;
    }
    return shown;
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

// At scale 1.
struct DeviceTileDelegate::Metrics {
    // px
    QSize size;
    int gap; // half the space between two tiles
    int margin;
    int bandHeight;
    int cornerRadius;
    // pt
    double name;
    double state;
    double figure;
    double caption;
    double small;
};

const DeviceTileDelegate::Metrics DeviceTileDelegate::kMetrics[] = {
    // size     gap margin band corner  name state figure caption small
    {{290, 186}, 6, 12, 34, 6, 13, 14, 18, 9.5, 9.5}, // Full
    {{176, 108}, 3, 8, 24, 4, 10.5, 11, 11, 8, 8.5},  // Brief
    {{108, 32}, 1, 5, 0, 0, 8.5, 8, 0, 0, 0},         // Compact
};

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
    return kMetrics[static_cast<int>(form)].size;
}

const DeviceTileDelegate::Metrics& DeviceTileDelegate::metrics() const
{
    return kMetrics[static_cast<int>(m_form)];
}

void DeviceTileDelegate::setTile(Form form, const QSize& size, double scale)
{
    m_form = form;
    m_tile = size;
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
    const int gap = std::max(px(metrics().gap), 1);
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
        const int margin = px(metrics().margin);
        QRect room =
            tile.rect.adjusted(margin, px(metrics().bandHeight) + margin / 2, -margin, -margin / 2);
        drawFigures(tile, room);
        if (m_form == Form::Brief)
            return drawReason(tile, room);
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
    const int margin = px(metrics().margin);
    QRect room = tile.rect.adjusted(margin, 1, -margin, -1);
    QRect line = room;
    line.setHeight(px(metrics().size.height()) / 2 - 1);
    painter->setPen(Qt::white);
    painter->setFont(sized(tile, metrics().name, true));
    drawElided(painter, line, kLeft, tile.device.name());
    painter->setFont(sized(tile, metrics().state, false));
    room.setTop(line.bottom() + 1);
    const QString text = compactText(tile.condition);
    if (room.height() < 2 * painter->fontMetrics().lineSpacing())
        return void(drawElided(painter, room, kLeft, text));
    painter->drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                      cutWords(painter->fontMetrics(), room, text));
}

void DeviceTileDelegate::drawFrame(const Tile& tile) const
{
    const bool marked = tile.hasFocus() || tile.option.state & QStyle::State_MouseOver;
    const QColor color = urgencyColor(tile.condition.urgency);
    const int corner = px(metrics().cornerRadius);
    tile.painter->setPen(QPen(marked ? tile.text() : color, tile.hasFocus() ? kFocusWidth : 2));
    tile.painter->setBrush(tile.option.palette.base());
    tile.painter->drawRoundedRect(tile.rect, corner, corner);
}

// The state fills the head of the tile: its colour is what the room sees first.
void DeviceTileDelegate::drawBand(const Tile& tile) const
{
    QPainter* painter = tile.painter;
    const int corner = px(metrics().cornerRadius);
    QRect band = tile.rect.adjusted(1, 1, -1, 0);
    band.setHeight(px(metrics().bandHeight));
    painter->setPen(Qt::NoPen);
    painter->setBrush(urgencyColor(tile.condition.urgency));
    painter->drawRoundedRect(band, corner, corner);
    painter->drawRect(band.adjusted(0, corner, 0, 0));
    painter->setPen(Qt::white);
    const int margin = px(metrics().margin);
    const QRect line = band.adjusted(margin, 0, -margin, 0);
    const QDateTime since = tile.device.conditionSince();
    painter->setFont(sized(tile, metrics().small, false));
    const int taken = drawElided(painter, line, Qt::AlignRight | Qt::AlignVCenter,
                                 m_form == Form::Full ? sinceText(since) : momentText(since));
    painter->setFont(sized(tile, metrics().state, true));
    drawElided(painter, line.adjusted(0, 0, -taken - margin / 2, 0), kLeft, tile.condition.state);
}

// Values that are not live are still told, but faintly.
void DeviceTileDelegate::drawFigures(const Tile& tile, QRect& room) const
{
    constexpr int kWidthPercent[] = {33, 36, 31}; // of the tile; minutes need most
    QPainter* painter = tile.painter;
    painter->setPen(tile.text());
    painter->setFont(sized(tile, metrics().name, true));
    QRect line = room;
    line.setHeight(painter->fontMetrics().height());
    drawElided(painter, line, kLeft, tile.device.name());

    QRect value(line.bottomLeft() + QPoint(0, px(metrics().gap)), QSize());
    QRect caption;
    std::size_t number = 0;
    for (const DeviceFigure& figure : deviceFigures(tile.device.reading())) {
        value.setWidth(room.width() * kWidthPercent[number++] / 100);
        painter->setPen(tile.live ? tile.text() : tile.soft());
        painter->setFont(sized(tile, metrics().figure, tile.live));
        value.setHeight(painter->fontMetrics().height());
        drawElided(painter, value, kLeft, figure.value);
        painter->setPen(tile.soft());
        painter->setFont(sized(tile, metrics().caption, false));
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
    painter->setFont(sized(tile, metrics().small, false));
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

void DeviceTileDelegate::drawAlarms(const Tile& tile, const QRect& room) const
{
    tile.painter->setPen(urgencyTextColor(tile.condition.alarmUrgency, tile.option.palette));
    drawWhole(tile, room, tile.condition.alarms.join(QStringLiteral("  \u00b7  ")));
}

// Of data that is not live the cause, else the alarms; a brief tile has no room for ages.
void DeviceTileDelegate::drawReason(const Tile& tile, const QRect& room) const
{
    if (tile.live)
        return drawAlarms(tile, room);
    tile.painter->setPen(urgencyTextColor(tile.condition.urgency, tile.option.palette));
    drawWhole(tile, room, dataText(tile.device).section(QLatin1Char('\n'), 0, 0));
}

// In letters as large as the room allows.
void DeviceTileDelegate::drawWhole(const Tile& tile, const QRect& room, const QString& text) const
{
    QPainter* painter = tile.painter;
    double points = metrics().small + 1;
    do {
        painter->setFont(sized(tile, points, true));
        points -= 0.5;
    } while (points * m_scale >= kLeastSize && !fits(painter->fontMetrics(), room, text));
    painter->setClipRect(room);
    painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
                      cutWords(painter->fontMetrics(), room, text));
    painter->setClipping(false);
}

QSize DeviceTileDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return m_tile;
}
