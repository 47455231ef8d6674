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

/// What a host makes for each UPS: a CollectView with the tabs "EnergyLine" (Energyline),
/// "RT-Alarm" (RTEventForm), "Detail" (RateInfoForm) and "Control" (SetInfoForm).
///
/// Only the page that shows works on a refresh, so that many views cost little. One that is
/// selected shows the stored snapshot at once, without waiting for the next poll. Style sheets and
/// `findChild()` find the tabs as `devStacketTable`; see \ref CollectView for how it is fed.
/// \image html energyline.png "The device view in the desk, on its first page"
/// \image html energyline-three-phase.png "The same of a three-phase UPS"
class DEVVIEW_EXPORT ChildForm : public CollectView
{
    Q_OBJECT
    /// What setName() was given; empty at first.
    Q_PROPERTY(QString name READ getName WRITE setName)

public:
    /// Starts as a top-level widget whatever parent is given; texts in the language of this moment.
    explicit ChildForm(CollectView* parent = nullptr);
    ~ChildForm() override;

    /// Passed on to the alarm, detail and control pages; the control page puts it in its commands.
    void setName(QString name) override;
    /// What setName() was given.
    QString getName() const { return viewName; }
    /// Shows the stored snapshot on the visible page. The control page takes no data.
    void refreshData() override;
    /// Enables the control page from level 1 up, disables it below; until the first call it is
    /// enabled. `user` is for hosts that derive; not used here.
    void setUserInfo(QString user, int level) override;

    /// Shows the stored snapshot on page `tab`: 0 energy flow, 1 alarms, 2 detail; others nothing.
    void UpdatePointTabInfo(int tab);
    void ShowPointDevInfo(); ///< first step of a refresh; does nothing here

    /// \cond
    // Declared for hosts that bring their own bodies; the library neither defines nor calls them.
    void RefreshInfoTimer();
    void setCurrentName(QString name);
    /// \endcond

private slots:
    // A page shows the last snapshot as soon as it is selected, without waiting for the next poll.
    void on_tabWidget_currentChanged(int index);

protected:
    Ui_ChildForm* ui;                  ///< the form around the tabs; owned
    QTabWidget* m_tabWidget = nullptr; ///< kept for hosts that derive; never set
    Energyline* rtData;                ///< tab 0
    RTEventForm* rtEvent;              ///< tab 1
    ChartForm* rtChart = nullptr;      ///< kept for hosts that derive; never created
    RateInfoForm* rateInfo;            ///< tab 2, in a scroll area
    SetInfoForm* setInfo;              ///< tab 3
    UINT8 pre_lostflag;                ///< for hosts that derive; 255: not yet known
    uint Tab_No;                       ///< the visible tab
};

#endif // CHILDFORM_H
