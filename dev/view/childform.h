#ifndef CHILDFORM_H
#define CHILDFORM_H

// The device view of one UPS: four tabs, of which only the visible one works on a refresh.
// May touch: its pages; knows nothing of the host.

#include <devview/globalvar.h>
#include <devview/proPlugin.h>

class ChartForm;
class Energyline;
class QTabWidget;
class RateInfoForm;
class RTEventForm;
class SetInfoForm;
class Ui_ChildForm;

class DEVVIEW_EXPORT ChildForm : public CollectView
{
    Q_OBJECT
    Q_PROPERTY(QString name READ getName WRITE setName)

public:
    explicit ChildForm(CollectView* parent = nullptr);
    ~ChildForm() override;

    // Passed on to the alarm, detail and control pages; the control page puts it in its commands.
    void setName(QString name) override;
    QString getName() const { return viewName; }
    // Shows the stored snapshot on the visible page. The control page takes no data.
    void refreshData() override;
    // Enables the control page from level 1 up. user is for hosts that derive; not used here.
    void setUserInfo(QString user, int level) override;

    // Shows the stored snapshot on page `tab`: 0 energy flow, 1 alarms, 2 detail; others nothing.
    void UpdatePointTabInfo(int tab);
    void ShowPointDevInfo();

    // Declared for hosts that bring their own bodies; the library neither defines nor calls them.
    void RefreshInfoTimer();
    void setCurrentName(QString name);

private slots:
    // A page shows the last snapshot as soon as it is selected, without waiting for the next poll.
    void on_tabWidget_currentChanged(int index);

protected:
    Ui_ChildForm* ui;
    QTabWidget* m_tabWidget = nullptr; // kept for hosts that derive; never set
    Energyline* rtData;
    RTEventForm* rtEvent;
    ChartForm* rtChart = nullptr; // kept for hosts that derive; never created
    RateInfoForm* rateInfo;
    SetInfoForm* setInfo;
    UINT8 pre_lostflag; // 255: not yet known
    uint Tab_No;        // the visible tab
};

#endif // CHILDFORM_H
