#include "samples.h"

#include <devview/chartform.h>
#include <devview/childform.h>
#include <devview/datachart.h>
#include <devview/dynamicchart.h>
#include <devview/globalvar.h>
#include <devview/rtdataform.h>
#include <devview/rtsinglegraphform.h>
#include <devview/rtthreegraphform.h>
#include <devview/threedynamicchart.h>

#include <cmath>

namespace {

constexpr int kSamples = 60; // of a curve
constexpr QSize kChartSize(500, 350);
constexpr QSize kPageSize(900, 640);

// Of a UPS on the mains whose voltages swing a little; step: how far into the samples.
QMap<int, QVariant> snapshot(int lines, int step)
{
    const int swing = static_cast<int>(std::lround(8 * std::sin(step / 6.0)));
    QMap<int, QVariant> values{{realdata_BatteryStatus, 2},
                               {realdata_MinutesRemaining, 42},
                               {realdata_ChargeRemaining, 87},
                               {realdata_BatVoltage, 548},
                               {realdata_BatTemp, 25},
                               {realdata_OutputSource, 3},
                               {realdata_OutputFre, 500},
                               {realdata_BypFre, 499},
                               {info_ups_type, QStringLiteral("Example 3000")}};
    for (int count : {realdata_InputNumLines, realdata_OutputNumLines, realdata_BypNumLines})
        values.insert(count, lines);
    for (int line = 0; line < lines; ++line) {
        values.insert(realdata_InputVoltage_A + line, 228 + line + swing);
        values.insert(realdata_InputFre_A + line, 500);
        values.insert(realdata_OutputVoltage_A + line, 230);
        values.insert(realdata_OutputCurrent_A + line, 52 + line);
        values.insert(realdata_OutputLoad_A + line, 45 + swing);
        values.insert(realdata_BypVoltage_A + line, 226 - line + swing);
    }
    return values;
}

// A chart keeps samples from its first paint on.
void paintOnce(QWidget& widget, const QSize& size)
{
    widget.resize(size);
    widget.grab();
}

template <typename Show>
void showAll(QWidget& form, int lines, Show show)
{
    paintOnce(form, kPageSize);
    for (int step = 0; step < kSamples; ++step)
        show(snapshot(lines, step));
}

void addCurves(TrendChart& chart, const QVector<double>& levels)
{
    paintOnce(chart, kChartSize);
    for (int step = 0; step < kSamples; ++step)
        for (int id = 0; id < levels.size(); ++id)
            chart.addData(id, levels[id] * (1 + 0.05 * std::sin(step / 6.0 + id)));
}

} // namespace

void samples::gauge(DataChart& chart)
{
    chart.setRadioValue({1, 0, 2}, {200, 250}); // yellow below, red above
    chart.setValue(230);
}

void samples::trend(DynamicChart& chart)
{
    addCurves(chart, {228, 236, 55, 215});
}

void samples::threeTrends(ThreeDynamicChart& chart)
{
    addCurves(chart, {228, 240, 215, 50, 45, 40});
}

void samples::page(RTSingleGraphForm& form)
{
    showAll(form, 1, [&form](const auto& values) { form.RefreshRtSingleChartInfo(values); });
}

void samples::threePage(RTThreeGraphForm& form)
{
    showAll(form, 3, [&form](const auto& values) { form.RefreshRtChartInfo(values); });
}

void samples::pages(ChartForm& form)
{
    const int index = form.getCurrentIndex();
    for (int page : {0, 1}) {
        form.setCurrentIndex(page);
        showAll(form, page == 0 ? 1 : 3,
                [&form](const auto& values) { form.refreshFormInfo(values); });
    }
    form.setCurrentIndex(index);
}

void samples::table(RTDataForm& form)
{
    form.RefreshRTDataInfo(snapshot(1, 0));
}

void samples::device(ChildForm& view)
{
    QMap<int, QVariant> values = snapshot(1, 0);
    values.insert(realdata_BatTemp, 250); // tenths here
    view.setName(QStringLiteral("Example UPS"));
    view.flushData(values);
    view.refreshData();
}
