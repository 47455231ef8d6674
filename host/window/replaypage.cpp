#include "window/replaypage.h"

#include "window/chartfeed.h"
#include "window/devicepage.h"
#include "window/replaybar.h"

#include <QDateTime>
#include <QVBoxLayout>

ReplayPage::ReplayPage(const DeviceSettings& settings, const Thresholds& thresholds,
                       const QString& device, HistoryReader* reader, QWidget* parent)
    : QWidget(parent)
    , m_name(device)
    , m_past(settings, thresholds)
    , m_player(reader, device)
    , m_fleet([](const DeviceSettings&) { return std::unique_ptr<Connector>(); })
    , m_desk(m_fleet, m_log, [] { return CommandDesk::Operator(); })
{
    setObjectName(QStringLiteral("ReplayPage"));
    m_desk.lock(tr("This is a replay: the past takes no commands. Go back to live."));
    m_page = new DevicePage(m_past.device(), m_desk);
    m_page->setReplay();
    auto* bar = new ReplayBar(m_player);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_bar = bar;
    column->addWidget(bar);
    column->addWidget(m_page, 1);
    connect(bar, &ReplayBar::liveWanted, this, &ReplayPage::liveWanted);
    connect(&m_player, &ReplayPlayer::jumped, this, &ReplayPage::jump);
    connect(&m_player, &ReplayPlayer::played, this, &ReplayPage::showReading);
    connect(&m_player, &ReplayPlayer::changed, this, [this] {
        m_past.setTime(m_player.timeMs());
        m_page->refreshAge();
    });
}

// They know of what goes before the other children do.
ReplayPage::~ReplayPage()
{
    delete m_page;
    delete m_bar;
}

void ReplayPage::showPage(int page)
{
    const bool isOfPast = DevicePage::pages().at(page).view != DevicePage::HistoryView;
    m_page->showPage(isOfPast ? page : 0); // the history has no past of its own
}

void ReplayPage::jump(const QVector<StoredReading>& before, qint64 conditionSinceMs)
{
    m_past.restart();
    for (const StoredReading& reading : before)
        m_past.show(reading);
    if (conditionSinceMs > 0)
        m_past.device().setConditionSince(QDateTime::fromMSecsSinceEpoch(conditionSinceMs));
    m_page->charts()->restart(before);
    m_page->refresh();
}

void ReplayPage::showReading(const StoredReading& reading)
{
    m_past.show(reading);
    m_page->charts()->add(reading);
    m_page->refresh();
}
