#include "chartform.h"

#include "ui_chartform.h"

namespace {

constexpr int kSinglePage = 0; // any other index is the three-phase page
constexpr int kThreePage = 1;

} // namespace

ChartForm::ChartForm(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui_ChartForm)
{
    ui->setupUi(this);
    ui->stackedWidget->setCurrentIndex(kThreePage);
}

ChartForm::~ChartForm()
{
    delete ui;
}

int ChartForm::getCurrentIndex()
{
    return ui->stackedWidget->currentIndex();
}

void ChartForm::setCurrentIndex(int index)
{
    ui->stackedWidget->setCurrentIndex(index);
}

void ChartForm::initFormInfo(bool flag)
{
    if (getCurrentIndex() == kSinglePage)
        ui->page_single->InitRTChartFormInfo(flag);
    else
        ui->page_three->InitRTChartFormInfo(flag);
}

void ChartForm::refreshFormInfo(QMap<int, QVariant> snapshot)
{
    if (getCurrentIndex() == kSinglePage)
        ui->page_single->RefreshRtSingleChartInfo(snapshot);
    else
        ui->page_three->RefreshRtChartInfo(snapshot);
}

void ChartForm::setCurrentName(QString name)
{
    currentName = name;
}
