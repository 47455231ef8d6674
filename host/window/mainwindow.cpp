#include "window/mainwindow.h"

#include "window/deviceactions.h"
#include "window/devicelistmodel.h"
#include "window/devicepage.h"
#include "window/devicerowdelegate.h"
#include "window/devicesortmodel.h"
#include "window/eventlistmodel.h"
#include "window/logindialog.h"
#include "window/operatorbar.h"
#include "window/overviewpage.h"
#include "window/resultbanner.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(1240, 900);
constexpr int kSideWidth = 245;
constexpr int kEventListHeight = 120;

} // namespace

MainWindow::MainWindow(Fleet& fleet, CommandDesk& desk, EventLog& log, OperatorSession& session,
                       Mode mode, QWidget* parent)
    : QMainWindow(parent)
    , m_fleet(fleet)
    , m_desk(desk)
    , m_log(log)
    , m_session(session)
    , m_model(new DeviceListModel(fleet, this))
    , m_sorted(new DeviceSortModel(this))
    , m_list(new QListView)
    , m_counts(new QLabel)
    , m_pages(new QStackedWidget)
    , m_overview(new OverviewPage(*m_model))
    , m_overviewButton(new QPushButton(tr("&All devices")))
    , m_banner(new ResultBanner)
{
    setWindowTitle(tr("upsdesk"));
    resize(kFirstSize);
    m_sorted->setSourceModel(m_model);

    m_pages->addWidget(m_overview);
    m_overviewButton->setObjectName(QStringLiteral("OverviewButton"));
    connect(m_overview, &OverviewPage::deviceChosen, this, &MainWindow::openDevice);
    connect(m_overviewButton, &QPushButton::clicked, this, &MainWindow::openOverview);

    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (mode == Mode::Kiosk)
        column->addWidget(m_overviewButton);
    column->addWidget(m_pages, 1);
    column->addWidget(m_banner);

    if (mode == Mode::Kiosk) {
        constexpr double acrossTheRoom = 2.5;
        m_overview->setLargestScale(acrossTheRoom);
        // The way back, needed only on a device's page.
        connect(m_pages, &QStackedWidget::currentChanged, m_overviewButton,
                [this] { m_overviewButton->setVisible(currentPage()); });
        m_overviewButton->hide();
        for (QWidget* deskOnly : {static_cast<QWidget*>(m_list), static_cast<QWidget*>(m_counts)}) {
            deskOnly->setParent(this);
            deskOnly->hide();
        }
        desk.lock();
        setCentralWidget(right);
    } else {
        auto* splitter = new QSplitter;
        splitter->addWidget(makeSidePanel());
        splitter->addWidget(right);
        splitter->setStretchFactor(1, 1);
        splitter->setSizes({kSideWidth, kFirstSize.width() - kSideWidth});
        splitter->setChildrenCollapsible(false);
        setCentralWidget(splitter);
        addDockWidget(Qt::BottomDockWidgetArea, makeEventDock());
    }
    openOverview();

    connect(&fleet, &Fleet::devicePolled, this, [this](Device* device) {
        DevicePage* page = currentPage();
        if (page && &page->device() == device && page->isVisible())
            page->refresh();
    });
    connect(&fleet, &Fleet::ticked, this, [this] {
        m_list->viewport()->update(); // ages
        m_overview->refreshAge();
        if (DevicePage* page = currentPage())
            page->refreshAge();
    });
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this,
            [this](int index) { forget(m_fleet.at(index)); });
    connect(&fleet, &Fleet::deviceReplaced, this, [this](int index) {
        if (m_reopenReplaced)
            openDevice(m_fleet.at(index));
    });
    connect(&desk, &CommandDesk::finished, this,
            [this](const QString& device, const QString& command, const QString& outcome,
                   const QString& message, bool isBad) {
                const QString head = QStringLiteral("%1: %2: %3").arg(device, command, outcome);
                tell(message.isEmpty() ? head : head + QStringLiteral(". ") + message, isBad);
            });
    connect(&desk, &CommandDesk::sent, this, [this](const QString& device, const QString& command) {
        tell(tr("%1: %2: sent, waiting for the result").arg(device, command), false);
    });
    connect(&session, &OperatorSession::changed, this, &MainWindow::operatorChanged);
}

QWidget* MainWindow::makeSidePanel()
{
    auto* panel = new QWidget;
    panel->setObjectName(QStringLiteral("SidePanel"));
    panel->setMinimumWidth(200);

    auto* filter = new QLineEdit;
    filter->setPlaceholderText(tr("Filter by name, address or state"));
    filter->setClearButtonEnabled(true);
    connect(filter, &QLineEdit::textChanged, m_sorted,
            &QSortFilterProxyModel::setFilterFixedString);

    auto* worstFirst = new QCheckBox(tr("Worst first"));
    connect(worstFirst, &QCheckBox::toggled, m_sorted, &DeviceSortModel::setWorstFirst);

    m_list->setObjectName(QStringLiteral("DeviceList"));
    m_list->setAccessibleName(tr("Devices"));
    m_list->setModel(m_sorted);
    m_list->setItemDelegate(new DeviceRowDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                Device* device = index.isValid() ? DeviceListModel::deviceAt(index) : nullptr;
                if (m_actions)
                    m_actions->setCurrent(device);
                if (device)
                    openDevice(device);
            });

    m_counts->setObjectName(QStringLiteral("CountsLabel"));
    m_counts->setWordWrap(true);
    connect(m_model, &DeviceListModel::refreshed, this,
            [this] { m_counts->setText(m_model->countsText()); });
    m_counts->setText(m_model->countsText());

    auto* who = new OperatorBar(m_session);
    connect(who, &OperatorBar::loginWanted, this, &MainWindow::askWhoIsThere);

    auto* column = new QVBoxLayout(panel);
    m_sideColumn = column;
    column->setContentsMargins(0, 8, 0, 8);
    auto* head = new QVBoxLayout;
    head->setContentsMargins(8, 0, 8, 0);
    head->addWidget(m_overviewButton);
    head->addWidget(filter);
    head->addWidget(worstFirst);
    column->addLayout(head);
    column->addWidget(m_list, 1);
    auto* foot = new QVBoxLayout;
    foot->setContentsMargins(8, 0, 8, 0);
    foot->addWidget(m_counts);
    foot->addWidget(who);
    column->addLayout(foot);
    return panel;
}

void MainWindow::setActions(DeviceActions* actions)
{
    m_actions = actions;
    constexpr int belowTheList = 2;
    m_sideColumn->insertWidget(belowTheList, actions->makeButtons());
    m_list->addActions(actions->actions());
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(actions, &DeviceActions::chosen, this, &MainWindow::openDevice);
    connect(actions, &DeviceActions::refused, this,
            [this](const QString& text) { tell(text, true); });
}

QDockWidget* MainWindow::makeEventDock()
{
    auto* view = new QTreeView;
    view->setObjectName(QStringLiteral("EventList"));
    view->setModel(new EventListModel(m_log, view));
    view->setAccessibleName(tr("Events"));
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->header()->setStretchLastSection(true);
    constexpr int widths[] = {140, 90, 160, 190, 50, 60, 150}; // px
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
        view->setColumnWidth(column, widths[column]);

    auto* dock = new QDockWidget(tr("Events"));
    dock->setObjectName(QStringLiteral("EventDock"));
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    dock->setWidget(view);
    dock->hide(); // shows itself with the first event
    connect(&m_log, &EventLog::appended, dock, [this, dock] {
        if (dock->isVisible())
            return;
        dock->show();
        resizeDocks({dock}, {kEventListHeight}, Qt::Vertical);
    });
    return dock;
}

DevicePage* MainWindow::currentPage() const
{
    return qobject_cast<DevicePage*>(m_pages->currentWidget());
}

void MainWindow::openOverview()
{
    m_pages->setCurrentWidget(m_overview);
    m_overview->refreshAge();
    m_list->setCurrentIndex({});
    m_list->clearSelection();
    setWindowTitle(tr("upsdesk"));
}

void MainWindow::openDevice(Device* device)
{
    if (!device->reading())
        m_fleet.pollNow(device); // nobody opens a device to wait for its turn
    DevicePage*& page = m_pageOf[device];
    if (!page) {
        page = new DevicePage(*device, m_desk);
        m_pages->addWidget(page);
    }
    m_pages->setCurrentWidget(page);
    const int row = m_fleet.indexOf(device);
    const QModelIndex shown = m_sorted->mapFromSource(m_model->index(row));
    if (shown.isValid() && shown != m_list->currentIndex())
        m_list->setCurrentIndex(shown);
    setWindowTitle(tr("%1 - upsdesk").arg(device->name()));
}

void MainWindow::tell(const QString& text, bool isBad)
{
    m_banner->say(text, isBad);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && currentPage())
        openOverview();
    else
        QMainWindow::keyPressEvent(event);
}

void MainWindow::askWhoIsThere()
{
    auto* dialog = new LoginDialog(m_session, m_session.hasOperators(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::operatorChanged()
{
    DeskEvent event;
    event.time = QDateTime::currentDateTime();
    event.operatorName = m_session.isLoggedIn() ? m_session.name() : m_lastOperator;
    event.text = m_session.isLoggedIn() ? tr("Logged in") : tr("Logged out");
    event.outcome = m_session.isLoggedIn() ? tr("level %1").arg(m_session.level()) : tr("done");
    m_log.append(event);
    m_lastOperator = m_session.name();
    for (DevicePage* page : qAsConst(m_pageOf))
        page->refreshOperator();
}

void MainWindow::forget(const Device* device)
{
    m_reopenReplaced = currentPage() && &currentPage()->device() == device;
    delete m_pageOf.take(device);
    if (!currentPage())
        openOverview();
}
