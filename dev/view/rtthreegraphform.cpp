#include "rtthreegraphform.h"

#include "chartpage.h"
#include "threedynamicchart.h"
#include "trendlegend.h"
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

enum Tab { InputTab, OutputTab, BypassTab };

// Object names beside the page's, by which style sheets and tests find the parts of a tab.
struct TabRow {
    QWidget* Form::*page;
    const char* chart;
    const char* leftScale;
    const char* rightScale;
    const char* caption; // of the first entry; the others count on from _2
};

constexpr TabRow kTabs[] = {
    {&Form::tab, "widget_in", "label_input_left", "label_input_right", "label_input_vol"},
    {&Form::tab_2, "widget_out", "label_output_vol_5", "label_output_vol_6", "label_output_vol"},
    {&Form::tab_3, "widget_bypass", "label_bypass_vol_5", "label_bypass_vol_6", "label_bypass_vol"},
};

// By series id within each tab.
struct Trend {
    Tab tab;
    int series;
    int curveKey;
    const char* caption;
    const char* value; // object name of its label
    int legendKey;
    bool tenths;
    const char* initial;
};

constexpr char kVoltageR[] = QT_TRANSLATE_NOOP("RTThreeGraphForm", "Voltage R(V)");
constexpr char kVoltageS[] = QT_TRANSLATE_NOOP("RTThreeGraphForm", "Voltage S(V)");
constexpr char kVoltageT[] = QT_TRANSLATE_NOOP("RTThreeGraphForm", "Voltage T(V)");
constexpr char kFrequencyR[] = QT_TRANSLATE_NOOP("RTThreeGraphForm", "Frequency R(Hz)");
constexpr char kFrequencyS[] = QT_TRANSLATE_NOOP("RTThreeGraphForm", "Frequency S(Hz)");
constexpr char kFrequencyT[] = QT_TRANSLATE_NOOP("RTThreeGraphForm", "Frequency T(Hz)");
constexpr char kFrequency[] = QT_TRANSLATE_NOOP("RTThreeGraphForm", "Frequency(Hz)");
constexpr char kZero[] = "(0)";
constexpr char kZeroTenths[] = "(0.0)";

constexpr Trend kTrends[] = {
    {InputTab, 0, realdata_InputVoltage_A, kVoltageR, "inVol1", realdata_InputVoltage_A, false,
     kZero},
    {InputTab, 1, realdata_InputVoltage_B, kVoltageS, "inVol2", realdata_InputVoltage_B, false,
     kZero},
    {InputTab, 2, realdata_InputVoltage_C, kVoltageT, "inVol3", realdata_InputVoltage_C, false,
     kZero},
    {InputTab, 3, realdata_InputFre_A, kFrequencyR, "inFre1", realdata_InputFre_A, true,
     kZeroTenths},
    {InputTab, 4, realdata_InputFre_B, kFrequencyS, "inFre2", realdata_InputFre_B, true,
     kZeroTenths},
    {InputTab, 5, realdata_InputFre_C, kFrequencyT, "inFre3", realdata_InputFre_C, true,
     kZeroTenths},

    {OutputTab, 0, realdata_OutputVoltage_A, kVoltageR, "outVol1", realdata_OutputVoltage_A, false,
     kZero},
    {OutputTab, 1, realdata_OutputVoltage_B, kVoltageS, "outVol2", realdata_OutputVoltage_B, false,
     kZero},
    {OutputTab, 2, realdata_OutputVoltage_C, kVoltageT, "outVol3", realdata_OutputVoltage_C, false,
     kZero},
    {OutputTab, 3, realdata_OutputFre, kFrequency, "outFre", realdata_OutputFre, true, kZero},

    {BypassTab, 0, realdata_BypVoltage_A, kVoltageR, "byVol1", realdata_BypVoltage_A, false, kZero},
    {BypassTab, 1, realdata_BypVoltage_B, kVoltageS, "byVol2", realdata_BypVoltage_B, false, kZero},
    // Phase C is not charted: its curve repeats phase B. Its legend does show phase C.
    {BypassTab, 2, realdata_BypVoltage_B, kVoltageT, "byVol3", realdata_BypVoltage_C, false, kZero},
    {BypassTab, 3, realdata_BypFre, kFrequency, "byFre", realdata_BypFre, true, kZero},
};

// What a curve really shows, which is not always the legend entry of its own colour.
const char* nameOf(const Trend& curve)
{
    return std::find_if(std::begin(kTrends), std::end(kTrends),
                        [&](const Trend& row) { return row.legendKey == curve.curveKey; })
        ->caption;
}

// The lines of all entries and the one below each legend are numbered through all tabs.
QString lineName(int tab, int entries)
{
    constexpr int kFirst = 3;
    return QStringLiteral("line_%1").arg(kFirst + tab + entries);
}

QString captionName(const TabRow& tab, int series)
{
    const QString first = QLatin1String(tab.caption);
    return series == 0 ? first : first + QStringLiteral("_%1").arg(series + 1);
}

QFrame* makeSeparator(const QString& name, QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setObjectName(name);
    line->setFrameStyle(QFrame::HLine | QFrame::Plain);
    return line;
}

ThreeDynamicChart* makeChart(const char* name, QWidget* parent)
{
    constexpr QSize kLeast{700, 260};
    auto* chart = new ThreeDynamicChart(parent);
    chart->setObjectName(QLatin1String(name));
    chart->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    chart->setMinimumSize(kLeast);
    return chart;
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
    for (int tab = InputTab; tab <= BypassTab; ++tab)
        fillTab(tab);
    chartpage::setPageLook(this);
}

// In its place, after the page was put into the tabs: a page that moves is styled anew with all
// that is in it.
void RTThreeGraphForm::fillTab(int tab)
{
    constexpr int kSpacing = 4; // px
    const TabRow& row = kTabs[tab];
    QWidget* page = ui->*row.page;
    auto* legend = new TrendLegend(row.leftScale, row.rightScale, page);
    QStringList names;
    for (const Trend& trend : kTrends) {
        if (trend.tab != tab)
            continue;
        const TrendLegend::Entry entry = legend->add(trend.series, captionName(row, trend.series),
                                                     trend.value, lineName(tab, m_values.size()));
        entry.caption->setText(tr(trend.caption));
        m_captions.append(entry.caption);
        m_values.append(entry.value);
        showEntry(m_values.size() - 1, QLatin1String(trend.initial));
        names.append(tr(nameOf(trend)));
    }
    ThreeDynamicChart* chart = makeChart(row.chart, page);
    chart->setSeriesNames(names);
    chart->setCaption(ui->tabWidget->tabText(tab));
    m_charts.append(chart);

    auto* column = new QVBoxLayout(page);
    column->setSpacing(kSpacing);
    column->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    column->addWidget(legend);
    column->addWidget(makeSeparator(lineName(tab, m_values.size()), page));
    column->addWidget(chart, 1);
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
    int entry = 0;
    for (const Trend& row : kTrends)
        showEntry(entry++, QLatin1String(row.initial));
    for (ThreeDynamicChart* chart : qAsConst(m_charts))
        chart->initValue();
}

void RTThreeGraphForm::RefreshRtChartInfo(QMap<int, QVariant> snapshot)
{
    const RealTimeBlock values(snapshot);
    configureGauges(chartpage::reading(values, realdata_BatVoltage, true));
    for (const Gauge& row : kGauges)
        chartpage::setValue(ui->*row.gauge, chartpage::reading(values, row.key, row.tenths));
    int entry = 0;
    for (const Trend& row : kTrends) {
        m_charts.at(row.tab)->addData(row.series,
                                      chartpage::reading(values, row.curveKey, row.tenths));
        showEntry(entry++,
                  chartpage::legendText(tr("Current value:"), values, row.legendKey, row.tenths));
    }
}

void RTThreeGraphForm::showEntry(int entry, const QString& text)
{
    chartpage::showLegend(m_values.at(entry), m_captions.at(entry), text);
}
