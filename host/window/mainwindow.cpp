#include "window/mainwindow.h"

#include "history/deskhistory.h"
#include "history/devicefacts.h"
#include "viewer/relayconnector.h"
#include "window/clipboardtext.h"
#include "window/deskmenu.h"
#include "window/deviceactions.h"
#include "window/devicelistmodel.h"
#include "window/devicepage.h"
#include "window/devicesummary.h"
#include "window/eventdock.h"
#include "window/firstrunstrip.h"
#include "window/helpdialogs.h"
#include "window/journalpage.h"
#include "window/logindialog.h"
#include "window/overviewpage.h"
#include "window/pagestack.h"
#include "window/replaypage.h"
#include "window/resultbanner.h"
#include "window/sidepanel.h"
#include "window/viewerline.h"
#include "window/walldisplay.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(1240, 900);          // where the screen has room
constexpr int kFrame = 40;                      // px that a window's title and borders may take
constexpr qint64 kReplayFrom = -10 * 60 * 1000; // ms before the last stored moment
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
    , m_lastOperator(session.name())
    , m_model(new DeviceListModel(fleet, this))
    , m_overview(new OverviewPage(*m_model))
    , m_pages(nullptr)
    , m_banner(new ResultBanner)
    , m_strip(new FirstRunStrip(fleet))
    , m_viewerLine(new ViewerLine)
{
    setWindowTitle(tr("upsdesk"));
    if (mode == Mode::Kiosk)
        setUpWall();
    else
        setUpDesk();
    connect(m_overview, &OverviewPage::deviceChosen, this, &MainWindow::openDevice);
    followFleet();
    followCommands();
    connect(&session, &OperatorSession::changed, this, &MainWindow::operatorChanged);
    openOverview();
    fitScreen();
}

MainWindow::~MainWindow() = default;

// Building

void MainWindow::setUpDesk()
{
    m_pages = new PageStack(m_desk, m_overview);
    setUpJournal();
    setUpSide();
    m_splitter = new QSplitter;
    m_splitter->setObjectName(QStringLiteral("Splitter"));
    m_splitter->addWidget(m_side);
    m_splitter->addWidget(makeRightSide());
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({kSideWidth, kFirstSize.width() - kSideWidth});
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);

    m_events = new EventDock(m_log);
    addDockWidget(Qt::BottomDockWidgetArea, m_events);
    connect(m_events, &EventDock::cameUp, this,
            [this] { resizeDocks({m_events}, {kEventListHeight}, Qt::Vertical); });
    setUpMenu();
}

void MainWindow::setUpJournal()
{
    m_journal = new JournalPage(m_session);
    m_journalPlace = new QScrollArea; // its filters would keep the window from fitting the screen
    m_journalPlace->setFocusPolicy(Qt::NoFocus);
    m_journalPlace->setWidgetResizable(true);
    m_journalPlace->setFrameShape(QFrame::NoFrame);
    m_journalPlace->setWidget(m_journal);
    m_pages->addWidget(m_journalPlace);
    connect(m_journal, &JournalPage::told, this, &MainWindow::tell);
    connect(m_journal, &JournalPage::replayWanted, this, &MainWindow::openReplay);
    connect(m_pages, &QStackedWidget::currentChanged, this, [this] {
        if (m_replay && m_replay != m_pages->currentWidget())
            m_replay->deleteLater();
    });
}

void MainWindow::setUpSide()
{
    m_side = new SidePanel(*m_model, m_session);
    connect(m_side, &SidePanel::overviewWanted, this, &MainWindow::openOverview);
    connect(m_side, &SidePanel::loginWanted, this, &MainWindow::askWhoIsThere);
    connect(m_side, &SidePanel::filterChanged, m_overview, &OverviewPage::setFilter);
    m_overview->showGroups(true);
    connect(m_side, &SidePanel::worstFirstChanged, m_overview,
            [this](bool on) { m_overview->showGroups(!on); });
    connect(m_side, &SidePanel::deviceSelected, this, [this](Device* device) {
        if (device)
            openDevice(device);
        choiceChanged();
    });
}

void MainWindow::setUpWall()
{
    m_desk.lock(tr("This is a wall display: it commands nothing."));
    m_strip->offerNothing();
    m_pages = new PageStack(m_desk, new WallDisplay(m_overview, *m_model));
    m_wayBack = new QPushButton(tr("&All devices"));
    m_wayBack->setObjectName(QStringLiteral("OverviewButton"));
    connect(m_wayBack, &QPushButton::clicked, this, &MainWindow::openOverview);
    connect(m_pages, &PageStack::currentChanged, m_wayBack,
            [this] { m_wayBack->setVisible(currentPage()); });
    m_wayBack->hide();
    setCentralWidget(makeRightSide());
    setFocusPolicy(Qt::StrongFocus); // no tile is marked until somebody is at the keys
    setFocus();
}

QWidget* MainWindow::makeRightSide()
{
    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (m_wayBack)
        column->addWidget(m_wayBack);
    column->addWidget(m_strip);
    column->addWidget(m_viewerLine);
    column->addWidget(m_pages, 1);
    column->addWidget(m_banner);
    return right;
}

struct MainWindow::ItemRow {
    DeskMenu::Item item;
    void (MainWindow::*act)();
    void (MainWindow::*turn)(bool on); // of a switch
};

const MainWindow::ItemRow MainWindow::kItems[] = {
    {DeskMenu::AllDevices, &MainWindow::openOverview, nullptr},
    {DeskMenu::Journal, &MainWindow::openJournal, nullptr},
    {DeskMenu::Filter, &MainWindow::findInList, nullptr},
    {DeskMenu::ShowList, nullptr, &MainWindow::showList},
    {DeskMenu::ShowEvents, nullptr, &MainWindow::showEvents},
    {DeskMenu::FullScreen, nullptr, &MainWindow::showFull},
    {DeskMenu::OpenDevice, &MainWindow::openSelected, nullptr},
    {DeskMenu::TestConnection, &MainWindow::testConnection, nullptr},
    {DeskMenu::PollNow, &MainWindow::pollNow, nullptr},
    {DeskMenu::Commands, &MainWindow::openCommands, nullptr},
    {DeskMenu::Replay, &MainWindow::replayCurrent, nullptr},
    {DeskMenu::Copy, &MainWindow::copy, nullptr},
    {DeskMenu::Shortcuts, &MainWindow::showHelpOnKeys, nullptr},
    {DeskMenu::Places, &MainWindow::showHelpOnPlaces, nullptr},
    {DeskMenu::About, &MainWindow::showHelpOnVersion, nullptr},
};

void MainWindow::setUpMenu()
{
    m_menu = new DeskMenu;
    setMenuBar(m_menu);
    m_menu->action(DeskMenu::ShowList)->setChecked(true);
    m_menu->action(DeskMenu::ShowEvents)->setChecked(true);
    for (const ItemRow& row : kItems) {
        QAction* action = m_menu->action(row.item);
        if (row.turn)
            connect(action, &QAction::toggled, this, row.turn);
        else
            connect(action, &QAction::triggered, this, row.act);
    }
    connect(m_menu->action(DeskMenu::Quit), &QAction::triggered, this, &QWidget::close);
    connect(m_events, &EventDock::wantedChanged, m_menu->action(DeskMenu::ShowEvents),
            &QAction::setChecked);
    connect(m_menu, &DeskMenu::pageChosen, this, [this](int page) {
        m_pages->setPage(page);
        if (!currentPage())
            openSelected();
    });
    connect(m_pages, &PageStack::pageChanged, m_menu, &DeskMenu::markPage);
    connect(m_menu, &DeskMenu::themeChosen, this, &MainWindow::themeChosen);
    connect(m_menu, &DeskMenu::languageChosen, this, &MainWindow::languageChosen);
}

void MainWindow::followFleet()
{
    connect(&m_fleet, &Fleet::devicePolled, this, [this](Device* device) {
        DevicePage* page = currentPage();
        if (page && &page->device() == device && page->isVisible())
            page->refresh();
    });
    connect(&m_fleet, &Fleet::ticked, this, [this] {
        if (m_side)
            m_side->refreshAges();
        m_overview->refreshAge();
        if (DevicePage* page = currentPage())
            page->refreshAge();
    });
    connect(&m_fleet, &Fleet::deviceAboutToBeRemoved, this, [this](int index) {
        m_reopenReplaced = m_pages->forget(m_fleet.at(index));
        if (m_reopenReplaced)
            openOverview();
    });
    connect(&m_fleet, &Fleet::deviceReplaced, this, [this](int index) {
        if (m_reopenReplaced)
            openDevice(m_fleet.at(index));
    });
}

void MainWindow::followCommands()
{
    connect(&m_desk, &CommandDesk::finished, this,
            [this](const QString& device, const QString& command, const QString& outcome,
                   const QString& message, bool isBad) {
                const QString head = QStringLiteral("%1: %2: %3").arg(device, command, outcome);
                tell(message.isEmpty() ? head : head + QStringLiteral(". ") + message, isBad);
            });
    connect(&m_desk, &CommandDesk::sent, this,
            [this](const QString& device, const QString& command) {
                tell(tr("%1: %2: sent, waiting for the result").arg(device, command), false);
            });
}

void MainWindow::setActions(DeviceActions* actions, QAction* settings)
{
    m_actions = actions;
    m_side->setActions(actions);
    m_menu->addFirst(DeskMenu::FileMenu,
                     {actions->addAction(), actions->addSeveralAction(), settings});
    m_menu->addFirst(DeskMenu::DeviceMenu,
                     {actions->editAction(), actions->removeAction(), nullptr});
    connect(m_strip, &FirstRunStrip::addWanted, actions->addAction(), &QAction::trigger);
    connect(actions, &DeviceActions::chosen, this, &MainWindow::openDevice);
    connect(actions, &DeviceActions::refused, this,
            [this](const QString& text) { tell(text, true); });
    choiceChanged();
}

void MainWindow::setSimulation(Device* device)
{
    m_strip->setSimulation(device);
}

void MainWindow::setViewer(const Viewer& viewer)
{
    m_desk.lock(RelayConnector::noCommands());
    m_strip->retire();
    m_viewerLine->follow(viewer);
    if (m_actions)
        m_actions->lock();
}

void MainWindow::markTheme(ThemeChoice choice)
{
    if (m_menu)
        m_menu->markTheme(choice);
}

void MainWindow::markLanguage(LanguageChoice choice)
{
    m_language = choice;
    if (m_menu)
        m_menu->markLanguage(choice);
}

// Place and size

void MainWindow::fitScreen()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize room = screen ? screen->availableSize() - QSize(kFrame, kFrame) : kFirstSize;
    if (m_wayBack && screen) // a wall may have no window manager to make it fill the screen
        return setGeometry(screen->geometry());
    resize(kFirstSize.boundedTo(room));
    if (room.width() < kFirstSize.width() || room.height() < kFirstSize.height())
        setWindowState(windowState() | Qt::WindowMaximized);
}

void MainWindow::restore(const WindowState& state)
{
    m_pages->setPage(state.page);
    restoreGeometry(state.geometry);
    if (!m_menu)
        return;
    restoreState(state.docks);
    m_splitter->restoreState(state.splitter);
    m_side->setWorstFirst(state.worstFirst);
    m_menu->action(DeskMenu::ShowList)->setChecked(state.showsList);
    m_events->setWanted(state.showsEvents);
    m_events->setVisible(state.showsEvents && m_log.count() > 0);
    for (int i = 0; i < m_fleet.count(); ++i)
        if (!state.device.isEmpty() && m_fleet.at(i)->name() == state.device)
            return openDevice(m_fleet.at(i));
}

WindowState MainWindow::state() const
{
    WindowState state;
    state.geometry = saveGeometry();
    state.page = m_pages->page();
    state.device = currentPage() ? currentPage()->device().name() : QString();
    if (!m_menu)
        return state;
    state.docks = saveState();
    state.splitter = m_splitter->saveState();
    state.worstFirst = m_side->isWorstFirst();
    state.showsList = m_menu->action(DeskMenu::ShowList)->isChecked();
    state.showsEvents = m_events->isWanted();
    return state;
}

// Choosing

DevicePage* MainWindow::currentPage() const
{
    return m_pages->current();
}

void MainWindow::openOverview()
{
    m_pages->showOverview();
    m_overview->refreshAge();
    if (m_side)
        m_side->select(nullptr);
    retitle();
    choiceChanged();
}

void MainWindow::openJournal()
{
    m_pages->setCurrentWidget(m_journalPlace);
    m_side->select(nullptr);
    setWindowTitle(tr("Journal - upsdesk"));
    choiceChanged();
}

void MainWindow::openDevice(Device* device)
{
    if (!device->reading())
        m_fleet.pollNow(device); // nobody opens a device to wait for its turn
    m_pages->showDevice(device);
    if (m_side)
        m_side->select(device);
    retitle();
    choiceChanged();
}

void MainWindow::replayCurrent()
{
    if (const DevicePage* page = currentPage())
        openReplay(storedName(page->device()), kReplayFrom);
}

void MainWindow::openReplay(const QString& device, qint64 timeMs)
{
    Device* live = nullptr;
    for (int i = 0; i < m_fleet.count() && !live; ++i)
        if (storedName(*m_fleet.at(i)) == device)
            live = m_fleet.at(i);
    DeviceSettings settings; // of a device that is gone, nothing but the name
    settings.name = device;
    if (live)
        settings = live->settings();
    auto* page = new ReplayPage(settings, m_fleet.thresholds(), device, m_reader);
    connect(page, &ReplayPage::liveWanted, this, &MainWindow::leaveReplay);
    page->showPage(m_pages->page());
    m_pages->addWidget(page);
    m_pages->setCurrentWidget(page);
    m_replay = page;
    page->open(timeMs);
    m_side->select(nullptr);
    setWindowTitle(tr("Replay: %1 - upsdesk").arg(device));
    choiceChanged();
}

void MainWindow::leaveReplay()
{
    const QString device = m_replay ? m_replay->device() : QString();
    for (int i = 0; i < m_fleet.count(); ++i)
        if (storedName(*m_fleet.at(i)) == device)
            return openDevice(m_fleet.at(i));
    openOverview();
}

void MainWindow::setHistory(const DeskHistory& history)
{
    const auto open = [this, &history] {
        m_reader = history.reader();
        m_pages->setHistory(history.reader());
        if (m_journal)
            m_journal->setStore(history.reader(), history.writer());
    };
    connect(&history, &DeskHistory::started, this, open);
    if (history.reader())
        open();
}

void MainWindow::setTroubleCount(int count)
{
    m_troubleCount = count;
    retitle();
}

void MainWindow::retitle()
{
    const DevicePage* page = currentPage();
    const QString title = page ? tr("%1 - upsdesk").arg(page->device().name()) : tr("upsdesk");
    setWindowTitle(m_troubleCount == 0 ? title : tr("(%1) %2").arg(m_troubleCount).arg(title));
}

Device* MainWindow::chosenDevice() const
{
    if (const DevicePage* page = currentPage())
        return &page->device();
    return m_side ? m_side->selected() : nullptr;
}

void MainWindow::choiceChanged()
{
    if (m_actions)
        m_actions->setCurrent(chosenDevice());
    if (m_menu)
        m_menu->enableDeviceItems(chosenDevice());
}

void MainWindow::tell(const QString& text, bool isBad)
{
    m_banner->say(text, isBad);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    const bool isElsewhere = currentPage() || (m_journal && m_journal->isVisible());
    if (event->key() == Qt::Key_Escape && m_replay)
        leaveReplay();
    else if (event->key() == Qt::Key_Escape && isElsewhere)
        openOverview();
    else
        QMainWindow::keyPressEvent(event);
}

// Pages come while the desk is used, and would be the last that Tab reaches; these stand below.
bool MainWindow::focusNextPrevChild(bool next)
{
    const auto last = [this] {
        QWidget* widget = previousInFocusChain();
        while (widget->focusPolicy() == Qt::NoFocus && widget != this)
            widget = widget->previousInFocusChain();
        return widget;
    };
    if (m_events && last() != m_events->widget()) {
        setTabOrder(last(), m_banner->findChild<QToolButton*>());
        setTabOrder(last(), m_events->widget());
    }
    return QMainWindow::focusNextPrevChild(next);
}

// What the menu does

void MainWindow::findInList()
{
    m_menu->action(DeskMenu::ShowList)->setChecked(true);
    m_side->findByText();
}

void MainWindow::pollNow()
{
    Device* device = chosenDevice();
    if (device && !m_fleet.mayPoll())
        return tell(tr("%1: its collector polls it, this desk does not.").arg(device->name()),
                    true);
    if (device)
        m_fleet.pollNow(device);
}

void MainWindow::openSelected()
{
    if (Device* device = chosenDevice())
        openDevice(device);
}

void MainWindow::openCommands()
{
    Device* device = chosenDevice();
    if (!device)
        return;
    m_pages->setPage(DevicePage::controlPage());
    openDevice(device);
}

void MainWindow::testConnection()
{
    const Device* device = chosenDevice();
    if (!device)
        return;
    m_test = std::make_unique<ConnectionTest>(m_fleet.connectorMaker(), device->settings());
    connect(m_test.get(), &ConnectionTest::finished, this, &MainWindow::reportTest);
    tell(tr("%1: testing the connection \u2026").arg(device->name()), false);
    m_test->start();
}

void MainWindow::reportTest()
{
    const Device& device = m_test->device();
    tell(QStringLiteral("%1: %2").arg(device.name(), testResultText(device)),
         device.link() != LinkState::Live);
    m_test.release()->deleteLater(); // it is the one that is speaking
}

void MainWindow::copy()
{
    const auto* view = qobject_cast<QAbstractItemView*>(QApplication::focusWidget());
    QString text = view ? selectedText(view) : QString();
    if (text.isEmpty() && currentPage())
        text = shownValues(currentPage());
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void MainWindow::showList(bool shown)
{
    m_side->setVisible(shown);
}

void MainWindow::showEvents(bool shown)
{
    m_events->setWanted(shown);
}

void MainWindow::showFull(bool full)
{
    setWindowState(full ? windowState() | Qt::WindowFullScreen
                        : windowState() & ~Qt::WindowFullScreen);
}

void MainWindow::showHelpOnKeys()
{
    showShortcuts(this, m_menu->shortcuts());
}

void MainWindow::showHelpOnPlaces()
{
    showPlaces(this);
}

void MainWindow::showHelpOnVersion()
{
    showAbout(this);
}

// Operators

void MainWindow::askWhoIsThere()
{
    auto* dialog = new LoginDialog(m_session, m_session.hasOperators(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::operatorChanged()
{
    DeskEvent event;
    event.kind = EventKind::LogIn;
    event.operatorName = m_session.isLoggedIn() ? m_session.name() : m_lastOperator;
    event.text = m_session.isLoggedIn() ? tr("Logged in") : tr("Logged out");
    event.outcome = m_session.isLoggedIn() ? tr("level %1").arg(m_session.level()) : tr("done");
    m_log.append(event);
    m_lastOperator = m_session.name();
    for (DevicePage* page : m_pages->kept())
        page->refreshOperator();
}
