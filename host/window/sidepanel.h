#ifndef SIDEPANEL_H
#define SIDEPANEL_H

// The list of devices with its filter, the counts below it, and who is logged in.
// May touch: the device list model, the operator session; no connector.

#include "operators/operatorsession.h"

#include <QWidget>

class Device;
class DeviceActions;
class DeviceListModel;
class DeviceSortModel;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QVBoxLayout;

class SidePanel : public QWidget
{
    Q_OBJECT

public:
    SidePanel(DeviceListModel& model, OperatorSession& session, QWidget* parent = nullptr);

    // What an operator can do to the list of devices: buttons below it, and its context menu.
    void setActions(DeviceActions* actions);
    // Selects its row where the filter lets it through; null selects none.
    void select(Device* device);
    // Null while none is selected.
    Device* selected() const;
    void findByText(); // puts the cursor into the filter
    void refreshAges();

    void setWorstFirst(bool on);
    bool isWorstFirst() const;

signals:
    void deviceSelected(Device* device); // null: none
    void overviewWanted();
    void loginWanted();
    void worstFirstChanged(bool on);
    void filterChanged(const QString& text);

private:
    QWidget* makeHead();
    QWidget* makeFoot(OperatorSession& session);
    void setUpList();

    DeviceListModel& m_model;
    DeviceSortModel* m_sorted;
    QListView* m_list;
    QLineEdit* m_filter;
    QCheckBox* m_worstFirst;
    QLabel* m_counts;
    QVBoxLayout* m_column;
};

#endif // SIDEPANEL_H
