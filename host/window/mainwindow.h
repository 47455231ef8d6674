#ifndef MAINWINDOW_H
#define MAINWINDOW_H

// The desk: device list at the left, the chosen device or all of them at the right, events below.
// As a wall display: nothing but the devices, and no commands.
// May touch: the fleet, the command desk, the views through device pages, operators, settings;
// connectors by their base class, to test one.

#include "config/desksettings.h"
#include "fleet/commanddesk.h"
#include "fleet/connectiontest.h"
#include "operators/operatorsession.h"
#include "window/windowstate.h"

#include <QMainWindow>
#include <QPointer>

class DeskMenu;
class QAction;
class DeviceActions;
class DeskHistory;
class DeviceListModel;
class DevicePage;
class EventDock;
class FirstRunStrip;
class HistoryReader;
class JournalPage;
class OverviewPage;
class PageStack;
class QPushButton;
class QScrollArea;
class QSplitter;
class ReplayPage;
class ResultBanner;
class SidePanel;
class Viewer;
class ViewerLine;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    enum class Mode { Desk, Kiosk };

    // All references must outlive the window.
    MainWindow(Fleet& fleet, CommandDesk& desk, EventLog& log, OperatorSession& session,
               Mode mode = Mode::Desk, QWidget* parent = nullptr);
    ~MainWindow() override;

    // As it was left; what no longer fits the screen is made to fit. The device is opened if there
    // is one of that name.
    void restore(const WindowState& state);
    WindowState state() const;

    // Opens the device's page; its page is made when it is opened for the first time.
    void openDevice(Device* device);
    // What an operator can do to the list of devices: buttons below it, menus, its context menu.
    // settings: opens them, from the menu.
    void setActions(DeviceActions* actions, QAction* settings);
    // The device of a desk that has none: the strip above says that it is none of the operator's.
    void setSimulation(Device* device);
    // What is shown comes from collectors: nothing is polled, commanded or added here. Must be
    // there as long as the window is used.
    void setViewer(const Viewer& viewer);
    // The choices that the menu shows.
    void markTheme(ThemeChoice choice);
    void markLanguage(LanguageChoice choice);
    LanguageChoice language() const { return m_language; } // that was marked
    // All devices as tiles.
    void openOverview();
    // What happened, from the store; at a desk only.
    void openJournal();
    // The device as it was; below 0: that many ms before the last stored moment. device: its name
    // in the history.
    void openReplay(const QString& device, qint64 timeMs);
    // Must be there as long as the window is used.
    void setHistory(const DeskHistory& history);
    // The page on show, null before a device is chosen, on the overview and in the journal.
    DevicePage* currentPage() const;
    // How many devices need somebody: in the title.
    void setTroubleCount(int count);
    // Something the operator should know that concerns no device.
    void tell(const QString& text, bool isBad);

signals:
    // In the menu; nothing is done about them here.
    void themeChosen(ThemeChoice choice);
    void languageChosen(LanguageChoice choice);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct ItemRow;
    static const ItemRow kItems[];

    void setUpDesk();
    void setUpJournal();
    void setUpSide();
    void setUpWall();
    QWidget* makeRightSide();
    void setUpMenu();
    void followFleet();
    void followCommands();

    // What the menu does
    void findInList();
    void pollNow();
    void openSelected();
    void openCommands();
    void testConnection();
    void copy();
    void replayCurrent();
    void leaveReplay();
    void showList(bool shown);
    void showEvents(bool shown);
    void showFull(bool full);
    void showHelpOnKeys();
    void showHelpOnPlaces();
    void showHelpOnVersion();

    void retitle();
    Device* chosenDevice() const;
    void choiceChanged();
    void reportTest();
    void askWhoIsThere();
    void operatorChanged();
    void fitScreen();

    Fleet& m_fleet;
    CommandDesk& m_desk;
    EventLog& m_log;
    OperatorSession& m_session;
    QString m_lastOperator;
    LanguageChoice m_language = LanguageChoice::System;
    DeviceListModel* m_model;
    OverviewPage* m_overview;
    PageStack* m_pages;
    ResultBanner* m_banner;
    FirstRunStrip* m_strip;
    ViewerLine* m_viewerLine;
    DeskMenu* m_menu = nullptr; // these: at a desk only
    SidePanel* m_side = nullptr;
    QSplitter* m_splitter = nullptr;
    EventDock* m_events = nullptr;
    JournalPage* m_journal = nullptr;
    QScrollArea* m_journalPlace = nullptr;
    QPointer<ReplayPage> m_replay; // there while it is on show
    QPointer<HistoryReader> m_reader;
    DeviceActions* m_actions = nullptr;
    QPushButton* m_wayBack = nullptr; // on a wall only
    std::unique_ptr<ConnectionTest> m_test;
    int m_troubleCount = 0;
    bool m_reopenReplaced = false; // the device that went last was the one on show
};

#endif // MAINWINDOW_H
