#ifndef DEVICEPAGE_H
#define DEVICEPAGE_H

// Everything the window shows of one device: heading, device view, charts, table, cover.
// May touch: the fleet's device, the command desk and the library's views; no connector.

#include "fleet/commanddesk.h"

#include <QWidget>

class ChartForm;
class ChildForm;
class DeviceHeading;
class LinkBand;
class LinkCover;
class QLabel;
class QTabBar;
class QStackedWidget;
class QTabWidget;
class RTDataForm;

class DevicePage : public QWidget
{
    Q_OBJECT

public:
    enum View { DeviceView, ChartView, TableView };

    // The device must outlive the page.
    DevicePage(Device& device, CommandDesk& desk, QWidget* parent = nullptr);

    Device& device() const { return m_device; }

    void showView(View view);
    // 0 energy flow, 1 alarms, 2 detail, 3 control.
    void showTab(int tab);

    // Shows what the device knows now; adds a sample to the charts when the reading is new.
    void refresh();
    // Time has passed: ages and cover only.
    void refreshAge();
    // Somebody logged in or out.
    void refreshOperator();

protected:
    void showEvent(QShowEvent* event) override;

private:
    // Gives the device view the snapshot of the page that is current there, then shows it.
    void feedDeviceView();
    void feedCharts();

    Device& m_device;
    CommandDesk& m_desk;
    DeviceHeading* m_heading;
    LinkBand* m_band;
    QTabBar* m_viewTabs;
    QStackedWidget* m_stack;
    ChildForm* m_view;
    QTabWidget* m_viewPages; // the device view's own tabs
    ChartForm* m_charts;
    RTDataForm* m_table;
    LinkCover* m_cover;
    qint64 m_chartedReading = -1; // number of the reading that the charts saw last
};

#endif // DEVICEPAGE_H
