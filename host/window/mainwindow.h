#ifndef MAINWINDOW_H
#define MAINWINDOW_H

// The desk: device list at the left, the chosen device or all of them at the right, events below.
// As a wall display: nothing but the devices, and no commands.
// May touch: the fleet, the command desk and the views through device pages; no connector.

#include "fleet/commanddesk.h"
#include "operators/operatorsession.h"

#include <QHash>
#include <QMainWindow>

class DeviceActions;
class DeviceListModel;
class DevicePage;
class DeviceSortModel;
class OverviewPage;
class QDockWidget;
class QLabel;
class QListView;
class QModelIndex;
class QStackedWidget;
class QPushButton;
class QVBoxLayout;
class ResultBanner;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    enum class Mode { Desk, Kiosk };

    // All references must outlive the window.
    MainWindow(Fleet& fleet, CommandDesk& desk, EventLog& log, OperatorSession& session,
               Mode mode = Mode::Desk, QWidget* parent = nullptr);

    // Opens the device's page; its page is made when it is opened for the first time.
    void openDevice(Device* device);
    // What an operator can do to the list of devices: buttons below it, and its context menu.
    void setActions(DeviceActions* actions);
    // All devices as tiles.
    void openOverview();
    // The page on show, null before a device is chosen and on the overview.
    DevicePage* currentPage() const;
    // Something the operator should know that concerns no device.
    void tell(const QString& text, bool isBad);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeSidePanel();
    QDockWidget* makeEventDock();
    void askWhoIsThere();
    void operatorChanged();
    void forget(const Device* device);

    Fleet& m_fleet;
    CommandDesk& m_desk;
    EventLog& m_log;
    OperatorSession& m_session;
    QString m_lastOperator;
    DeviceListModel* m_model;
    DeviceSortModel* m_sorted;
    QListView* m_list;
    DeviceActions* m_actions = nullptr;
    QVBoxLayout* m_sideColumn = nullptr;
    QLabel* m_counts;
    QStackedWidget* m_pages;
    OverviewPage* m_overview;
    QPushButton* m_overviewButton;
    ResultBanner* m_banner;
    QHash<const Device*, DevicePage*> m_pageOf;
    bool m_reopenReplaced = false; // the device that went last was the one on show
};

#endif // MAINWINDOW_H
