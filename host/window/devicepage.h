#ifndef DEVICEPAGE_H
#define DEVICEPAGE_H

// Everything the window shows of one device: heading, device view, charts, table, history, cover.
// May touch: the fleet's device, the command desk, the history's reader and the library's views; no
// connector.

#include "fleet/commanddesk.h"

#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

class ChartFeed;
class ChartForm;
class ChildForm;
class ControlNotice;
class DeviceHeading;
class HistoryPage;
class HistoryReader;
class LinkBand;
class LinkCover;
class QScrollArea;
class QTabBar;
class QStackedWidget;
class QTabWidget;
class RTDataForm;

// The heading is there at once; the views are made when they are needed, in pieces that leave the
// GUI thread free between them, and only while the page is on show.
class DevicePage : public QWidget
{
    Q_OBJECT

public:
    enum View { DeviceView, ChartView, TableView, HistoryView };

    // What can be opened by number: the tabs of the device view, then the other views.
    struct Page {
        const char* title;
        View view;
        int tab; // of the device view; -1: of another view
    };
    static const QVector<Page>& pages();

    // The device must outlive the page.
    DevicePage(Device& device, CommandDesk& desk, QWidget* parent = nullptr);

    Device& device() const { return m_device; }

    void showView(View view);
    // 0 energy flow, 1 alarms, 2 detail, 3 control.
    void showTab(int tab);
    // The same by number in pages().
    void showPage(int page);
    int currentPage() const;
    static int controlPage();

    // Shows what the device knows now; adds a sample to the charts when the reading is new.
    void refresh();
    // Time has passed: ages and cover only.
    void refreshAge();
    // Null: there is none. The reader may go at any time.
    void setHistory(HistoryReader* reader);
    // The device is of the past: the page says no ages, and has no history of its own. Makes all
    // views.
    void setReplay();
    ChartFeed* charts() const { return m_chartFeed; } // null until they are made
    // Somebody logged in or out.
    void refreshOperator();
    // Makes all views now: for pictures and whoever else cannot wait for the pieces.
    void finishViews();

signals:
    // Another page is on show, by the operator's choice or by showPage().
    void pageChanged(int page);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct ViewRow;
    static const ViewRow kViews[];

    // A view on its way: kSteps, one after the other.
    struct Building {
        QScrollArea* place = nullptr; // in the stack
        QWidget* widget = nullptr;    // null: not begun
        int stepsDone = 0;
    };
    using Step = void (DevicePage::*)(int view);
    static const Step kSteps[];

    QWidget* makeDeviceView();
    QWidget* makeCharts();
    QWidget* makeTable();
    QWidget* makeHistory();
    void fitDeviceView();
    void fitCharts();
    void fitTable();
    void fitHistory();
    void feedDeviceView();
    void feedCharts();
    void feedTable();
    void feedHistory();

    bool isReady(int view) const;
    void make(int view);
    void fit(int view);
    void moveIn(int view);
    void putOnShow(int view);
    void buildPiece();
    // Takes the view one piece further; false: it is ready.
    bool buildPieceOf(int view);
    void feed(int view);
    void switchView(int view);
    void refreshNotice();
    void colorDeviceView();

    Device& m_device;
    CommandDesk& m_desk;
    DeviceHeading* m_heading;
    LinkBand* m_band;
    QTabBar* m_viewTabs;
    QStackedWidget* m_stack;
    ControlNotice* m_notice;
    LinkCover* m_cover;
    ChildForm* m_view = nullptr;
    ChartForm* m_charts = nullptr;
    QTabWidget* m_viewPages = nullptr; // the device view's own tabs
    ChartFeed* m_chartFeed = nullptr;
    RTDataForm* m_table = nullptr;
    HistoryPage* m_history = nullptr;
    QPointer<HistoryReader> m_reader;
    QVector<Building> m_buildings; // in the order of kViews
    QTimer m_builder;
    QColor m_ground; // of the device view, as last set
    int m_tab = 0;   // of the device view, also while there is none yet
};

#endif // DEVICEPAGE_H
