#ifndef MAINWINDOW_H
#define MAINWINDOW_H

// The desk: device list at the left, the chosen device at the right, events below.
// May touch: the fleet, the command desk and the views through device pages; no connector.

#include "fleet/commanddesk.h"

#include <QHash>
#include <QMainWindow>

class DeviceListModel;
class DevicePage;
class DeviceSortModel;
class QLabel;
class QListView;
class QModelIndex;
class QStackedWidget;
class ResultBanner;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // All three must outlive the window.
    MainWindow(Fleet& fleet, CommandDesk& desk, EventLog& log, QWidget* parent = nullptr);

    // Opens the device's page; its page is made when it is opened for the first time.
    void openDevice(Device* device);
    // The page on show, null before a device is chosen.
    DevicePage* currentPage() const;

public slots:
    // Somebody logged in or out.
    void refreshOperator();

private:
    QWidget* makeSidePanel();
    QWidget* makeEventList(EventLog& log);
    void forget(const Device* device);

    Fleet& m_fleet;
    CommandDesk& m_desk;
    DeviceListModel* m_model;
    DeviceSortModel* m_sorted;
    QListView* m_list;
    QLabel* m_counts;
    QStackedWidget* m_pages;
    ResultBanner* m_banner;
    QHash<const Device*, DevicePage*> m_pageOf;
};

#endif // MAINWINDOW_H
