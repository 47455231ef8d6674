#include "window/devicepage.h"

#include "window/chartfeed.h"
#include "window/controlnotice.h"
#include "window/deviceheading.h"
#include "window/devicesummary.h"
#include "window/historypage.h"
#include "window/linkband.h"
#include "window/linkcover.h"
#include "window/theme.h"

#include "chartform.h"
#include "childform.h"
#include "energyline.h"
#include "rtdataform.h"

#include <QEvent>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

// The energy-flow diagram with all panels open, and the tabs above it; px.
constexpr QSize kWholeDiagram(760, 685);

constexpr char kDiagramGround[] = "#e6e9f2";
// The view's own ground would hide the theme's rule for these.
const QString kLightPanelTitle =
    QStringLiteral("#PanelTitle { background-color: #dddff5; color: #2947c6; }");
const QString kDarkPanelTitle =
    QStringLiteral("#PanelTitle { background-color: #30364a; color: #b9c4ff; }");
constexpr int kHalfLight = 128;

bool isDark(const QColor& ground)
{
    return ground.lightness() < kHalfLight;
}

// Longer than a held key takes for its next stroke: a page that is only passed builds nothing.
constexpr int kBeforeFirstPieceMs = 50;
constexpr int kBetweenPiecesMs = 2;

// Tabs of the device view.
constexpr int kEnergyFlowTab = 0;
constexpr int kControlTab = 3;

// A view keeps its least size, its own or a larger one, and scrolls where the window is smaller.
QScrollArea* makePlace()
{
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("ViewArea"));
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

} // namespace

const QVector<DevicePage::Page>& DevicePage::pages()
{
    static const QVector<Page> pages{
        {QT_TR_NOOP("Energy flow"), DeviceView, kEnergyFlowTab},
        {QT_TR_NOOP("Alarms"), DeviceView, 1},
        {QT_TR_NOOP("Detail"), DeviceView, 2},
        {QT_TR_NOOP("Control"), DeviceView, kControlTab},
        {QT_TR_NOOP("Charts"), ChartView, -1},
        {QT_TR_NOOP("Table"), TableView, -1},
        {QT_TR_NOOP("History"), HistoryView, -1},
    };
    return pages;
}

struct DevicePage::ViewRow {
    const char* title;
    QWidget* (DevicePage::*make)();
    void (DevicePage::*fit)();
    void (DevicePage::*feed)();
    bool isMadeAhead;     // it has something to gather before it is opened
    bool showsThePresent; // needs a reading, and is covered while that is not live
};

// In the order of View.
const DevicePage::ViewRow DevicePage::kViews[] = {
    {QT_TR_NOOP("Device"), &DevicePage::makeDeviceView, &DevicePage::fitDeviceView,
     &DevicePage::feedDeviceView, false, true},
    {QT_TR_NOOP("Charts"), &DevicePage::makeCharts, &DevicePage::fitCharts, &DevicePage::feedCharts,
     true, true},
    {QT_TR_NOOP("Table"), &DevicePage::makeTable, &DevicePage::fitTable, &DevicePage::feedTable,
     false, true},
    {QT_TR_NOOP("History"), &DevicePage::makeHistory, &DevicePage::fitHistory,
     &DevicePage::feedHistory, false, false},
};

DevicePage::DevicePage(Device& device, CommandDesk& desk, QWidget* parent)
    : QWidget(parent)
    , m_device(device)
    , m_desk(desk)
    , m_heading(new DeviceHeading)
    , m_band(new LinkBand)
    , m_viewTabs(new QTabBar)
    , m_stack(new QStackedWidget)
    , m_notice(new ControlNotice(device, desk))
{
    m_viewTabs->setObjectName(QStringLiteral("ViewTabs"));
    m_viewTabs->setExpanding(false);
    QFont bold = m_viewTabs->font(); // as the style sheet has it: the tabs get their width by this
    bold.setBold(true);
    m_viewTabs->setFont(bold);
    m_viewTabs->setDrawBase(false);
    for (const ViewRow& row : kViews) {
        m_viewTabs->addTab(tr(row.title));
        Building building;
        building.place = makePlace();
        building.place->setAccessibleName(tr(row.title)); // arrow keys scroll it
        m_stack->addWidget(building.place);
        m_buildings << building;
    }
    m_cover = new LinkCover(m_stack);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_heading);
    column->addWidget(m_band);
    column->addWidget(m_viewTabs);
    column->addWidget(m_notice);
    column->addWidget(m_stack, 1);

    connect(&m_builder, &QTimer::timeout, this, &DevicePage::buildPiece);
    connect(m_viewTabs, &QTabBar::currentChanged, this, &DevicePage::switchView);
    connect(this, &DevicePage::pageChanged, this, &DevicePage::refreshNotice);
}

// Making the views

QWidget* DevicePage::makeDeviceView()
{
    return m_view = new ChildForm;
}

void DevicePage::fitDeviceView()
{
    m_view->findChild<Energyline*>()->setAttribute(Qt::WA_StyledBackground);
    m_view->setName(m_device.name());
    giveThemeGrounds(*m_view);
    colorDeviceView();
    refreshOperator();
    m_viewPages = m_view->findChild<QTabWidget*>(QStringLiteral("devStacketTable"));
    m_viewPages->setCurrentIndex(m_tab);
    // The pages disagree about units: the one that becomes current gets a snapshot of its own.
    connect(m_viewPages, &QTabWidget::currentChanged, this, [this](int tab) {
        m_tab = tab;
        feedDeviceView();
        emit pageChanged(currentPage());
    });
    connect(m_view, &CollectView::postDEvent, this,
            [this](int code, const QMap<QString, QVariant>& command) {
                m_desk.post(&m_device, code, command);
            });
    m_view->setMinimumSize(kWholeDiagram);
}

// Those that take a parent are made in their place and spare the move.

QWidget* DevicePage::makeCharts()
{
    return m_charts = new ChartForm(m_buildings.at(ChartView).place->viewport());
}

void DevicePage::fitCharts()
{
    m_charts->setCurrentName(m_device.name());
    giveThemeGrounds(*m_charts);
    m_chartFeed = new ChartFeed(m_device, *m_charts, m_charts);
    m_chartFeed->setReader(m_reader);
}

QWidget* DevicePage::makeTable()
{
    return m_table = new RTDataForm(m_buildings.at(TableView).place->viewport());
}

void DevicePage::fitTable()
{
    m_table->setCurrentName(m_device.name());
    m_table->InitRTDataFormInfo();
}

QWidget* DevicePage::makeHistory()
{
    return m_history = new HistoryPage(m_device, m_buildings.at(HistoryView).place->viewport());
}

void DevicePage::fitHistory()
{
    m_history->setReader(m_reader);
}

void DevicePage::setHistory(HistoryReader* reader)
{
    m_reader = reader;
    if (m_chartFeed)
        m_chartFeed->setReader(reader);
    if (m_history)
        m_history->setReader(reader);
}

void DevicePage::setReplay()
{
    m_heading->setReplay();
    m_viewTabs->removeTab(HistoryView);
    finishViews();
}

void DevicePage::buildPiece()
{
    m_builder.setInterval(kBetweenPiecesMs);
    if (buildPieceOf(m_stack->currentIndex()))
        return;
    for (int view = 0; view < m_buildings.size(); ++view)
        if (kViews[view].isMadeAhead && buildPieceOf(view))
            return;
    m_builder.stop();
}

// Each takes some ms of the GUI thread; most of that is for styling every part of a view, by the
// style sheets above it.
const DevicePage::Step DevicePage::kSteps[] = {&DevicePage::make, &DevicePage::fit,
                                               &DevicePage::moveIn, &DevicePage::putOnShow,
                                               &DevicePage::feed};

bool DevicePage::isReady(int view) const
{
    return m_buildings.at(view).stepsDone == static_cast<int>(std::size(kSteps));
}

bool DevicePage::buildPieceOf(int view)
{
    if (isReady(view))
        return false;
    const Step step = kSteps[m_buildings[view].stepsDone++];
    (this->*step)(view);
    return true;
}

void DevicePage::make(int view)
{
    const auto make = kViews[view].make; // named: g++ 12 with its sanitizers calls row 0 otherwise
    m_buildings[view].widget = (this->*make)();
}

void DevicePage::fit(int view)
{
    (this->*kViews[view].fit)();
}

void DevicePage::moveIn(int view)
{
    Building& building = m_buildings[view];
    if (building.widget->parent() != building.place->viewport())
        building.widget->setParent(building.place->viewport());
}

void DevicePage::putOnShow(int view)
{
    m_buildings[view].place->setWidget(m_buildings[view].widget);
}

void DevicePage::finishViews()
{
    for (int view = 0; view < m_buildings.size(); ++view)
        while (buildPieceOf(view)) {
        }
}

// The theme's ground takes the place of the view's own, except under the diagram: its colours
// are made for a light one, and its idle wiring would vanish on white.
void DevicePage::colorDeviceView()
{
    const QColor ground = palette().color(QPalette::Window);
    if (!m_view || ground == m_ground)
        return;
    m_ground = ground;
    m_view->setStyleSheet(
        QStringLiteral("* { background-color: %1; } Energyline { background: %2; } %3")
            .arg(ground.name(), kDiagramGround,
                 isDark(ground) ? kDarkPanelTitle : kLightPanelTitle));
}

void DevicePage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colorDeviceView();
}

void DevicePage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
    m_builder.start(kBeforeFirstPieceMs);
}

void DevicePage::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_builder.stop();
}

// Choosing

void DevicePage::showView(View view)
{
    m_viewTabs->setCurrentIndex(view);
}

void DevicePage::showTab(int tab)
{
    m_tab = tab;
    if (m_viewPages)
        m_viewPages->setCurrentIndex(tab);
}

void DevicePage::showPage(int page)
{
    const Page wanted = pages().at(page);
    if (wanted.tab >= 0)
        showTab(wanted.tab);
    showView(wanted.view);
}

int DevicePage::currentPage() const
{
    int number = 0;
    for (const Page& page : pages()) {
        if (page.view == m_viewTabs->currentIndex() && (page.tab < 0 || page.tab == m_tab))
            return number;
        ++number;
    }
    return 0;
}

int DevicePage::controlPage()
{
    const auto control = std::find_if(pages().begin(), pages().end(), [](const Page& page) {
        return page.view == DeviceView && page.tab == kControlTab;
    });
    return static_cast<int>(control - pages().begin());
}

void DevicePage::switchView(int view)
{
    m_stack->setCurrentIndex(view);
    refresh();
    if (isVisible())
        m_builder.start(kBetweenPiecesMs);
    emit pageChanged(currentPage());
}

// Feeding

void DevicePage::refreshOperator()
{
    if (m_view)
        m_view->setUserInfo(QString(), m_desk.levelFor(m_device));
    refreshNotice();
}

void DevicePage::refreshNotice()
{
    m_notice->refresh(currentPage() == controlPage());
}

void DevicePage::refresh()
{
    for (int view = 0; view < m_buildings.size(); ++view)
        if (kViews[view].isMadeAhead || view == m_stack->currentIndex())
            feed(view);
    refreshAge();
}

void DevicePage::feed(int view)
{
    if (isReady(view) && (m_device.reading() || !kViews[view].showsThePresent))
        (this->*kViews[view].feed)();
}

void DevicePage::feedDeviceView()
{
    if (!m_device.reading())
        return;
    const bool energyFlow = m_viewPages->currentIndex() == kEnergyFlowTab;
    m_view->flushData(
        m_device.snapshot(energyFlow ? SnapshotPage::EnergyFlow : SnapshotPage::Device));
    m_view->refreshData();
}

void DevicePage::feedCharts()
{
    m_chartFeed->refresh();
}

void DevicePage::feedTable()
{
    m_table->RefreshRTDataInfo(m_device.snapshot(SnapshotPage::Chart));
}

void DevicePage::feedHistory()
{
    m_history->refresh();
}

void DevicePage::refreshAge()
{
    m_heading->show(m_device);
    refreshNotice();
    const LinkState link = m_device.link();
    m_cover->setOpaque(!m_device.reading());
    m_cover->setVisible(link != LinkState::Live && kViews[m_stack->currentIndex()].showsThePresent);
    m_cover->raise(); // a view that becomes current is raised, too
    m_band->setVisible(link != LinkState::Live);
    if (link == LinkState::Live)
        return;
    m_band->say(m_device.condition().state, dataText(m_device), link == LinkState::Connecting);
}
