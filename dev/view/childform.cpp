#include "childform.h"

#include "energyline.h"
#include "rateinfoform.h"
#include "rteventform.h"
#include "setinfoform.h"
#include "ui_childform.h"

#include <QScrollArea>
#include <QStackedWidget>

// Kept for hosts that count their data log here.
DEVVIEW_EXPORT int count_datalog = 0;

namespace {

enum Tab { EnergyTab, AlarmTab, DetailTab, ControlTab };

constexpr UINT8 kLostFlagUnknown = 255;
constexpr int kCommandLevel = 1; // lowest operator level that may command the device

} // namespace

ChildForm::ChildForm(CollectView* parent)
    : CollectView(parent)
    , ui(new Ui_ChildForm)
    , pre_lostflag(kLostFlagUnknown)
    , Tab_No(EnergyTab)
{
    // A widget that changes its parent is styled anew with all that is in it: each page is made
    // where the tabs keep it.
    ui->setupUi(this);
    setAutoFillBackground(true);
    QWidget* place = ui->tabWidget->findChild<QStackedWidget*>();
    rtData = new Energyline(place);
    rtEvent = new RTEventForm(place);
    setInfo = new SetInfoForm(place);
    auto* rateInfoArea = new QScrollArea(place);
    rateInfoArea->setAutoFillBackground(true);
    rateInfoArea->setWidgetResizable(true);
    rateInfoArea->setAccessibleName(tr("Detail")); // it takes the focus, to be scrolled by keys

    ui->tabWidget->insertTab(EnergyTab, rtData, tr("EnergyLine"));
    ui->tabWidget->insertTab(AlarmTab, rtEvent, tr("RT-Alarm"));
    ui->tabWidget->insertTab(DetailTab, rateInfoArea, tr("Detail"));
    ui->tabWidget->insertTab(ControlTab, setInfo, tr("Control"));
    rateInfo = new RateInfoForm(rateInfoArea->viewport());
    rateInfoArea->setWidget(rateInfo);
    // Renamed only now: setupUi connects the slot by the designer's name, style sheets use this
    // one.
    ui->tabWidget->setObjectName(QStringLiteral("devStacketTable"));

    connect(setInfo, &SetInfoForm::postDEvent, this, &ChildForm::postDEvent);
}

ChildForm::~ChildForm()
{
    delete ui;
}

void ChildForm::setName(QString name)
{
    viewName = name;
    rtEvent->setCurrentName(name);
    rateInfo->setCurrentName(name);
    setInfo->setCurrentName(name);
}

void ChildForm::setUserInfo(QString user, int level)
{
    Q_UNUSED(user)
    setInfo->setEnabled(level >= kCommandLevel);
}

void ChildForm::refreshData()
{
    ShowPointDevInfo();
    UpdatePointTabInfo(static_cast<int>(Tab_No));
}

void ChildForm::ShowPointDevInfo() {}

void ChildForm::UpdatePointTabInfo(int tab)
{
    switch (tab) {
    case EnergyTab:
        rtData->flushData(dataMap);
        break;
    case AlarmTab:
        rtEvent->RefreshRTEventInfo(dataMap);
        break;
    case DetailTab:
        rateInfo->RefreshRateInfo(dataMap);
        break;
    default:
        break;
    }
}

void ChildForm::on_tabWidget_currentChanged(int index)
{
    if (index < 0)
        return;
    if (index == AlarmTab)
        rtEvent->InitRTEventFormInfo();
    else if (index == ControlTab)
        setInfo->InitSettingFormInfo();
    Tab_No = static_cast<uint>(index);
    UpdatePointTabInfo(index);
}
