#include "window/devicepage.h"

#include "window/deviceheading.h"
#include "window/linkband.h"
#include "window/linkcover.h"
#include "window/valuewords.h"

#include "chartform.h"
#include "childform.h"
#include "energyline.h"
#include "rtdataform.h"

#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// The energy-flow diagram with all panels open, and the tabs above it; px.
constexpr QSize kWholeDiagram(760, 685);

constexpr char kDiagramGround[] = "#e6e9f2";

enum ChartPage { SinglePhasePage, ThreePhasePage };

bool isThreePhase(const UpsReading& reading)
{
    constexpr int threeLines = 3;
    return shownLines(reading.input) == threeLines || shownLines(reading.output) == threeLines;
}

// A view keeps its least size, its own or a larger one, and scrolls where the window is smaller.
QScrollArea* scrolled(QWidget* view, QSize leastSize)
{
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("ViewArea"));
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    if (!leastSize.isEmpty())
        view->setMinimumSize(leastSize);
    area->setWidget(view);
    return area;
}

} // namespace

DevicePage::DevicePage(Device& device, CommandDesk& desk, QWidget* parent)
    : QWidget(parent)
    , m_device(device)
    , m_desk(desk)
    , m_heading(new DeviceHeading)
    , m_band(new LinkBand)
    , m_viewTabs(new QTabBar)
    , m_stack(new QStackedWidget)
    , m_view(new ChildForm)
    , m_charts(new ChartForm(nullptr))
    , m_table(new RTDataForm)
{
    m_viewTabs->setObjectName(QStringLiteral("ViewTabs"));
    m_viewTabs->setExpanding(false);
    m_viewTabs->setDrawBase(false);
    m_stack->addWidget(scrolled(m_view, kWholeDiagram));
    m_stack->addWidget(scrolled(m_charts, {}));
    m_stack->addWidget(m_table);
    for (const QString& text : {tr("Device"), tr("Charts"), tr("Table")})
        m_viewTabs->addTab(text);
    m_cover = new LinkCover(m_stack);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_heading);
    column->addWidget(m_band);
    column->addWidget(m_viewTabs);
    column->addWidget(m_stack, 1);

    // The theme's ground takes the place of the view's own, except under the diagram: its colours
    // are made for a light one, and its idle wiring would vanish on white.
    m_view->setStyleSheet(
        QStringLiteral("* { background-color: %1; } Energyline { background: %2; }")
            .arg(palette().color(QPalette::Window).name(), kDiagramGround));
    m_view->findChild<Energyline*>()->setAttribute(Qt::WA_StyledBackground);
    const QString name = device.name();
    m_view->setName(name);
    m_charts->setCurrentName(name);
    m_table->setCurrentName(name);
    m_table->InitRTDataFormInfo();
    refreshOperator();

    connect(m_viewTabs, &QTabBar::currentChanged, this, [this](int view) {
        m_stack->setCurrentIndex(view);
        refresh();
    });
    m_viewPages = m_view->findChild<QTabWidget*>(QStringLiteral("devStacketTable"));
    // The pages disagree about units: the one that becomes current gets a snapshot of its own.
    connect(m_viewPages, &QTabWidget::currentChanged, this, &DevicePage::feedDeviceView);
    connect(m_view, &CollectView::postDEvent, this,
            [this](int code, const QMap<QString, QVariant>& command) {
                m_desk.post(&m_device, code, command);
            });
}

void DevicePage::showView(View view)
{
    m_viewTabs->setCurrentIndex(view);
}

void DevicePage::showTab(int tab)
{
    m_viewPages->setCurrentIndex(tab);
}

void DevicePage::refreshOperator()
{
    m_view->setUserInfo(QString(), m_desk.levelFor(m_device));
}

void DevicePage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void DevicePage::refresh()
{
    feedCharts();
    switch (m_stack->currentIndex()) {
    case DeviceView:
        feedDeviceView();
        break;
    case TableView:
        if (m_device.reading())
            m_table->RefreshRTDataInfo(m_device.snapshot(SnapshotPage::Chart));
        break;
    default:
        break;
    }
    refreshAge();
}

void DevicePage::feedDeviceView()
{
    if (!m_device.reading())
        return;
    constexpr int energyFlowTab = 0;
    const bool energyFlow = m_viewPages->currentIndex() == energyFlowTab;
    m_view->flushData(
        m_device.snapshot(energyFlow ? SnapshotPage::EnergyFlow : SnapshotPage::Device));
    m_view->refreshData();
}

void DevicePage::feedCharts()
{
    if (!m_device.reading() || m_device.readingNumber() == m_chartedReading)
        return;
    const int page = isThreePhase(*m_device.reading()) ? ThreePhasePage : SinglePhasePage;
    if (m_chartedReading < 0 || m_charts->getCurrentIndex() != page) {
        m_charts->setCurrentIndex(page);
        m_charts->initFormInfo(false);
    }
    m_chartedReading = m_device.readingNumber();
    m_charts->refreshFormInfo(m_device.snapshot(SnapshotPage::Chart));
}

void DevicePage::refreshAge()
{
    m_heading->show(m_device);
    const LinkState link = m_device.link();
    m_cover->setOpaque(!m_device.reading());
    m_cover->setVisible(link != LinkState::Live);
    m_cover->raise(); // a view that becomes current is raised, too
    m_band->setVisible(link != LinkState::Live);
    if (link == LinkState::Live)
        return;
    const QString age = linkText(link, m_device.ageMs());
    const QString message = m_device.message();
    m_band->say(m_device.condition().text,
                message.isEmpty() ? age : message + QLatin1Char('\n') + age,
                link == LinkState::Connecting);
}
