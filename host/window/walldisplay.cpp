#include "window/walldisplay.h"

#include "window/devicelistmodel.h"
#include "window/overviewpage.h"
#include "window/urgencycolors.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QTime>
#include <QVBoxLayout>

namespace {

// Times the size at a desk, to be read across the room.
constexpr double kLeastScale = 1.5;
constexpr double kLargestScale = 2.5;
constexpr int kTurnMs = 12 * 1000;
constexpr int kCursorRestMs = 3000;
constexpr int kClockMs = 1000;
// pt, of counts and clock
constexpr int kLargestHead = 32;
constexpr int kLeastHead = 12;
constexpr int kHeadStep = 4;
// px
constexpr int kHeadMargin = 18;
constexpr int kHeadGap = 36; // behind each text, at least

} // namespace

WallDisplay::WallDisplay(OverviewPage* overview, DeviceListModel& model, QWidget* parent)
    : QWidget(parent)
    , m_overview(overview)
    , m_model(model)
    , m_head(new QWidget)
    , m_counts(new QHBoxLayout)
    , m_clock(new QLabel)
{
    overview->setScales(kLeastScale, kLargestScale);
    overview->setCountsShown(false);
    m_clock->setObjectName(QStringLiteral("WallClock"));
    m_head->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // its letters shrink instead
    auto* head = new QHBoxLayout(m_head);
    head->setContentsMargins(kHeadMargin, 8, kHeadMargin, 0);
    head->addLayout(m_counts);
    head->addStretch(1);
    head->addWidget(m_clock);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_head);
    column->addWidget(overview, 1);

    connect(&model, &DeviceListModel::refreshed, this, &WallDisplay::showCounts);
    connect(&m_turn, &QTimer::timeout, overview, &OverviewPage::showNextRows);
    m_turn.start(kTurnMs);
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &WallDisplay::showTime);
    clock->start(kClockMs);
    m_cursorRest.setSingleShot(true);
    connect(&m_cursorRest, &QTimer::timeout, this,
            [this] { window()->setCursor(Qt::BlankCursor); });
    qApp->installEventFilter(this);
    m_cursorRest.start(kCursorRestMs);
    showCounts();
    showTime();
}

bool WallDisplay::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove)
        wakeCursor();
    return QWidget::eventFilter(watched, event);
}

// Somebody is at the wall: the pages stand still as long as the cursor is to be seen.
void WallDisplay::wakeCursor()
{
    if (!m_cursorRest.isActive())
        window()->unsetCursor();
    m_cursorRest.start(kCursorRestMs);
    m_turn.start(kTurnMs);
}

void WallDisplay::showTime()
{
    m_clock->setText(QTime::currentTime().toString(QStringLiteral("HH:mm")));
}

void WallDisplay::showCounts()
{
    while (QLayoutItem* item = m_counts->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const auto& count : m_model.countWords()) {
        auto* label = new QLabel(count.second);
        label->setObjectName(QStringLiteral("WallCount"));
        label->setStyleSheet(
            QStringLiteral("color: %1;").arg(urgencyTextColor(count.first, palette()).name()));
        m_counts->addWidget(label);
    }
    fitHead();
}

// As large as leaves room for all counts and the clock.
void WallDisplay::fitHead()
{
    const auto widthAt = [this](int points) {
        const QFontMetrics metrics(QFont(font().family(), points, QFont::Bold));
        int width = 2 * kHeadMargin;
        for (const QLabel* label : m_head->findChildren<QLabel*>())
            width += metrics.horizontalAdvance(label->text()) + kHeadGap;
        return width;
    };
    int points = kLargestHead;
    while (points > kLeastHead && widthAt(points) > width())
        points -= kHeadStep;
    m_head->setStyleSheet(QStringLiteral("QLabel { font-size: %1pt; }").arg(points));
}

void WallDisplay::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitHead();
}
