#include "rtthreegraphform.h"

#include "chartpage.h"
#include "ui_rtthreegraphform.h"

#include <algorithm>
#include <iterator>

using chartpage::GaugeScale;

namespace {

using Form = Ui_RTThreeGraphForm;

struct Gauge {
    DataChart* Form::*gauge;
    QLabel* Form::*label;
    const char* caption;
    int key;
    bool tenths;
};

constexpr Gauge kGauges[] = {
    {&Form::widget_load, &Form::label_battload,
     QT_TRANSLATE_NOOP("RTThreeGraphForm", "Remaining battery capacity(%)"),
     realdata_ChargeRemaining, false},
    {&Form::widget_outload, &Form::label_outload,
     QT_TRANSLATE_NOOP("RTThreeGraphForm", "Output load(%)"), realdata_OutputLoad_A, false},
    {&Form::widget_temp, &Form::label_temp,
     QT_TRANSLATE_NOOP("RTThreeGraphForm", "Battery temperature(C)"), realdata_BatTemp, false},
    {&Form::widget_batt_volt, &Form::label_battvol,
     QT_TRANSLATE_NOOP("RTThreeGraphForm", "Battery voltage(V)"), realdata_BatVoltage, true},
    {&Form::widget_batt_curr, &Form::label_battcurr,
     QT_TRANSLATE_NOOP("RTThreeGraphForm", "Battery current(A)"), realdata_BatCurrent, true},
};

// By series id within each chart.
struct Trend {
    ThreeDynamicChart* Form::*chart;
    int series;
    int curveKey;
    QLabel* Form::*label;
    QLabel* Form::*value;
    int legendKey;
    bool tenths;
    const char* initial;
};

constexpr char kZero[] = "(0)";
constexpr char kZeroTenths[] = "(0.0)";

constexpr Trend kTrends[] = {
    {&Form::widget_in, 0, realdata_InputVoltage_A, &Form::label_input_vol, &Form::inVol1,
     realdata_InputVoltage_A, false, kZero},
    {&Form::widget_in, 1, realdata_InputVoltage_B, &Form::label_input_vol_2, &Form::inVol2,
     realdata_InputVoltage_B, false, kZero},
    {&Form::widget_in, 2, realdata_InputVoltage_C, &Form::label_input_vol_3, &Form::inVol3,
     realdata_InputVoltage_C, false, kZero},
    {&Form::widget_in, 3, realdata_InputFre_A, &Form::label_input_vol_4, &Form::inFre1,
     realdata_InputFre_A, true, kZeroTenths},
    {&Form::widget_in, 4, realdata_InputFre_B, &Form::label_input_vol_5, &Form::inFre2,
     realdata_InputFre_B, true, kZeroTenths},
    {&Form::widget_in, 5, realdata_InputFre_C, &Form::label_input_vol_6, &Form::inFre3,
     realdata_InputFre_C, true, kZeroTenths},

    {&Form::widget_out, 0, realdata_OutputVoltage_A, &Form::label_output_vol, &Form::outVol1,
     realdata_OutputVoltage_A, false, kZero},
    {&Form::widget_out, 1, realdata_OutputVoltage_B, &Form::label_output_vol_2, &Form::outVol2,
     realdata_OutputVoltage_B, false, kZero},
    {&Form::widget_out, 2, realdata_OutputVoltage_C, &Form::label_output_vol_3, &Form::outVol3,
     realdata_OutputVoltage_C, false, kZero},
    {&Form::widget_out, 3, realdata_OutputFre, &Form::label_output_vol_4, &Form::outFre,
     realdata_OutputFre, true, kZero},

    {&Form::widget_bypass, 0, realdata_BypVoltage_A, &Form::label_bypass_vol, &Form::byVol1,
     realdata_BypVoltage_A, false, kZero},
    {&Form::widget_bypass, 1, realdata_BypVoltage_B, &Form::label_bypass_vol_2, &Form::byVol2,
     realdata_BypVoltage_B, false, kZero},
    // Phase C is not charted: its curve repeats phase B. Its legend does show phase C.
    {&Form::widget_bypass, 2, realdata_BypVoltage_B, &Form::label_bypass_vol_3, &Form::byVol3,
     realdata_BypVoltage_C, false, kZero},
    {&Form::widget_bypass, 3, realdata_BypFre, &Form::label_bypass_vol_4, &Form::byFre,
     realdata_BypFre, true, kZero},
};

// What a curve really shows, which is not always the legend entry of its own colour.
QLabel* Form::*nameOf(const Trend& curve)
{
    return std::find_if(std::begin(kTrends), std::end(kTrends),
                        [&](const Trend& row) { return row.legendKey == curve.curveKey; })
        ->label;
}

} // namespace

RTThreeGraphForm::RTThreeGraphForm(QWidget* parent)
    : QWidget(parent)
    , ui(new Form)
{
    ui->setupUi(this);
    for (const Gauge& row : kGauges)
        chartpage::setCaption(ui->*row.gauge, ui->*row.label, tr(row.caption));
    // The gauges keep their own scale and bands until values come: only these decide the scale.

    QMap<ThreeDynamicChart*, QStringList> names;
    for (const Trend& row : kTrends) {
        names[ui->*row.chart].append((ui->*nameOf(row))->text());
        chartpage::showLegend(ui->*row.value, ui->*row.label, (ui->*row.value)->text());
    }
    ThreeDynamicChart* const charts[] = {ui->widget_in, ui->widget_out, ui->widget_bypass};
    int page = 0;
    for (ThreeDynamicChart* chart : charts) {
        chart->setSeriesNames(names.value(chart));
        chart->setCaption(ui->tabWidget->tabText(page++));
    }
    chartpage::setPageLook(this);
}

RTThreeGraphForm::~RTThreeGraphForm()
{
    delete ui;
}

void RTThreeGraphForm::configureGauges(double batteryVoltage)
{
    constexpr int kGreen = 0;
    const int volts = static_cast<int>(batteryVoltage);
    const int topVoltage = volts >= 601 && volts <= 1000 ? 1000 : 600;

    chartpage::setScale(ui->widget_load, chartpage::batteryCharge());
    chartpage::setScale(ui->widget_outload, chartpage::outputLoad());
    chartpage::setScale(ui->widget_temp, chartpage::batteryTemperature());
    // One band: green goes on above its limit.
    chartpage::setScale(ui->widget_batt_volt, {topVoltage, "V", {kGreen}, {400}});
    chartpage::setScale(ui->widget_batt_curr, {200, "A", {kGreen}, {200}});
}

void RTThreeGraphForm::InitRTChartFormInfo(bool flag)
{
    if (!flag)
        InitRtChart();
}

void RTThreeGraphForm::InitRtChart()
{
    for (const Gauge& row : kGauges)
        chartpage::setValue(ui->*row.gauge, 0);
    for (const Trend& row : kTrends) {
        chartpage::showLegend(ui->*row.value, ui->*row.label, QLatin1String(row.initial));
        (ui->*row.chart)->initValue();
    }
}

void RTThreeGraphForm::RefreshRtChartInfo(QMap<int, QVariant> snapshot)
{
    const RealTimeBlock values(snapshot);
    configureGauges(chartpage::reading(values, realdata_BatVoltage, true));
    for (const Gauge& row : kGauges)
        chartpage::setValue(ui->*row.gauge, chartpage::reading(values, row.key, row.tenths));
    for (const Trend& row : kTrends) {
        (ui->*row.chart)->addData(row.series, chartpage::reading(values, row.curveKey, row.tenths));
        chartpage::showLegend(
            ui->*row.value, ui->*row.label,
            chartpage::legendText(tr("Current value:"), values, row.legendKey, row.tenths));
    }
}
