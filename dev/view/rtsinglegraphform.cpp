#include "rtsinglegraphform.h"

#include "chartpage.h"
#include "ui_rtsinglegraphform.h"

using chartpage::GaugeScale;

namespace {

using Form = Ui_RTSingleGraphForm;

// The temperature gauge reads no key: it is always off its scale and shows "--".
constexpr int kNoKey = -1;
constexpr UINT32 kNoTemperature = static_cast<UINT32>(-5);

struct Gauge {
    DataChart* Form::*gauge;
    QLabel* Form::*label;
    const char* caption;
    int key;
    bool tenths;
    GaugeScale scale;
};

GaugeScale frequency()
{
    constexpr int kGreen = 0;
    constexpr int kRed = 2;
    return {100, "Hz", {kRed, kGreen, kRed}, {40, 60, 100}};
}

const QVector<Gauge>& gauges()
{
    static const QVector<Gauge> kGauges{
        // The first caption speaks of minutes and the gauge shows the charge; both are meant.
        {&Form::widget_load, &Form::label_load,
         QT_TRANSLATE_NOOP("RTSingleGraphForm", "Remaining battery time(Min)"),
         realdata_ChargeRemaining, false, chartpage::batteryCharge()},
        {&Form::widget_outload, &Form::label_outload,
         QT_TRANSLATE_NOOP("RTSingleGraphForm", "Output load(%)"), realdata_OutputLoad_A, false,
         chartpage::outputLoad()},
        {&Form::widget_temp, &Form::label_temp,
         QT_TRANSLATE_NOOP("RTSingleGraphForm", "Battery temperature(C)"), kNoKey, false,
         chartpage::batteryTemperature()},
        {&Form::widget_input_freq, &Form::label_input,
         QT_TRANSLATE_NOOP("RTSingleGraphForm", "Input frequency(Hz)"), realdata_InputFre_A, true,
         frequency()},
        {&Form::widget_out_freq, &Form::label_output,
         QT_TRANSLATE_NOOP("RTSingleGraphForm", "Output frequency(Hz)"), realdata_OutputFre, true,
         frequency()},
        {&Form::widget_by_freq, &Form::label_bypass,
         QT_TRANSLATE_NOOP("RTSingleGraphForm", "Bypass frequency(Hz)"), realdata_BypFre, true,
         frequency()},
    };
    return kGauges;
}

// By series id.
struct Trend {
    QLabel* Form::*label;
    const char* caption;
    QLabel* Form::*value;
    int key;
    bool tenths;
};

constexpr Trend kTrends[] = {
    {&Form::label_input_vol, QT_TRANSLATE_NOOP("RTSingleGraphForm", "Input voltage(V)"),
     &Form::value_input, realdata_InputVoltage_A, false},
    {&Form::label_output_vol, QT_TRANSLATE_NOOP("RTSingleGraphForm", "Output voltage(V)"),
     &Form::value_output, realdata_OutputVoltage_A, false},
    {&Form::label_batt_vol, QT_TRANSLATE_NOOP("RTSingleGraphForm", "Battery voltage(V)"),
     &Form::value_batt, realdata_BatVoltage, true},
    {&Form::label_bypass_vol, QT_TRANSLATE_NOOP("RTSingleGraphForm", "Bypass voltage(V)"),
     &Form::value_bypass, realdata_BypVoltage_A, false},
};

} // namespace

RTSingleGraphForm::RTSingleGraphForm(QWidget* parent)
    : QWidget(parent)
    , ui(new Form)
{
    ui->setupUi(this);
    for (const Gauge& row : gauges()) {
        chartpage::setScale(ui->*row.gauge, row.scale);
        chartpage::setCaption(ui->*row.gauge, ui->*row.label, tr(row.caption));
    }
    QStringList names;
    for (const Trend& row : kTrends) {
        (ui->*row.label)->setText(tr(row.caption));
        chartpage::showLegend(ui->*row.value, ui->*row.label, (ui->*row.value)->text());
        names.append(tr(row.caption));
    }
    ui->widget_single->setSeriesNames(names);
    ui->widget_single->setCaption(ui->label_graphic->text());
    chartpage::setPageLook(this);
}

RTSingleGraphForm::~RTSingleGraphForm()
{
    delete ui;
}

void RTSingleGraphForm::InitRTChartFormInfo(bool flag)
{
    if (!flag)
        InitRtSingleChart();
}

void RTSingleGraphForm::InitRtSingleChart()
{
    for (const Gauge& row : gauges())
        chartpage::setValue(ui->*row.gauge, 0);
    for (const Trend& row : kTrends)
        chartpage::showLegend(ui->*row.value, ui->*row.label, QStringLiteral("(0)"));
    ui->widget_single->initValue();
}

void RTSingleGraphForm::RefreshRtSingleChartInfo(QMap<int, QVariant> snapshot)
{
    Show_RtChart_View(snapshot);
}

void RTSingleGraphForm::Show_RtChart_View(QMap<int, QVariant> snapshot)
{
    const RealTimeBlock values(snapshot);
    for (const Gauge& row : gauges())
        chartpage::setValue(ui->*row.gauge, row.key == kNoKey
                                                ? kNoTemperature
                                                : chartpage::reading(values, row.key, row.tenths));
    int series = 0;
    for (const Trend& row : kTrends) {
        ui->widget_single->addData(series++, chartpage::reading(values, row.key, row.tenths));
        chartpage::showLegend(
            ui->*row.value, ui->*row.label,
            chartpage::legendText(tr("Current value:"), values, row.key, row.tenths));
    }
}
