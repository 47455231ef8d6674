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

constexpr double kAcrossTheRoom = 2.5; // times the size at a desk
constexpr int kTurnMs = 12 * 1000;
constexpr int kCursorRestMs = 3000;
constexpr int kClockMs = 1000;

} // namespace

WallDisplay::WallDisplay(OverviewPage* overview, DeviceListModel& model, QWidget* parent)
    : QWidget(parent)
    , m_overview(overview)
    , m_model(model)
    , m_counts(new QHBoxLayout)
    , m_clock(new QLabel)
{
    overview->setLargestScale(kAcrossTheRoom);
    overview->setCountsShown(false);
    m_clock->setObjectName(QStringLiteral("WallClock"));
    auto* head = new QHBoxLayout;
    head->setContentsMargins(18, 8, 18, 0);
    head->addLayout(m_counts);
    head->addStretch(1);
    head->addWidget(m_clock);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(head);
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
}
