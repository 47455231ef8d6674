#include "widgetplugins.h"

#include "samples.h"
#include "widgetplugin.h"

#include <devview/chartform.h>
#include <devview/childform.h>
#include <devview/datachart.h>
#include <devview/dynamicchart.h>
#include <devview/rtdataform.h>
#include <devview/rtsinglegraphform.h>
#include <devview/rtthreegraphform.h>
#include <devview/threedynamicchart.h>

namespace {

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

// A device view is a window of its own for its hosts; on a form it is a part of it.
template <>
QWidget* make<ChildForm>(QWidget* parent)
{
    auto* view = new ChildForm;
    view->setParent(parent);
    return view;
}

template <typename Widget, void (*sample)(Widget&)>
void fill(QWidget* widget)
{
    sample(*static_cast<Widget*>(widget));
}

const WidgetRow kWidgets[] = {
    {"DataChart", "datachart.h", "gauge.png", "Gauge of one value",
     "A half-circle gauge whose arc fills with the value, in the colour of the value's band.", 200,
     120, make<DataChart>, fill<DataChart, samples::gauge>},
    {"DynamicChart", "dynamicchart.h", "trend.png", "Trend chart of one phase",
     "Four curves against one scale of 0 to 400, scrolling with the time.", 500, 350,
     make<DynamicChart>, fill<DynamicChart, samples::trend>},
    {"ThreeDynamicChart", "threedynamicchart.h", "trend3.png", "Trend chart of three phases",
     "Three curves against 0 to 400 at the left and three against 0 to 100 at the right.", 500, 350,
     make<ThreeDynamicChart>, fill<ThreeDynamicChart, samples::threeTrends>},
    {"RTSingleGraphForm", "rtsinglegraphform.h", "page.png", "Chart page of a single-phase UPS",
     "Six gauges, and the trend of four voltages with its legend.", 900, 640,
     make<RTSingleGraphForm>, fill<RTSingleGraphForm, samples::page>},
    {"RTThreeGraphForm", "rtthreegraphform.h", "page.png", "Chart page of a three-phase UPS",
     "Five gauges, and the trends of input, output and bypass with their legends.", 900, 640,
     make<RTThreeGraphForm>, fill<RTThreeGraphForm, samples::threePage>},
    {"ChartForm", "chartform.h", "pages.png", "Chart pages of a UPS",
     "The single-phase and the three-phase chart page in one place.", 900, 640, make<ChartForm>,
     fill<ChartForm, samples::pages>},
    {"RTDataForm", "rtdataform.h", "table.png", "Table of all live values",
     "One table of all live values of a UPS, of one phase or of three.", 500, 500, make<RTDataForm>,
     fill<RTDataForm, samples::table>},
    {"ChildForm", "childform.h", "device.png", "View of one UPS",
     "Energy flow, alarms, details and commands of one UPS.", 1000, 760, make<ChildForm>,
     fill<ChildForm, samples::device>},
};

} // namespace

WidgetPlugins::WidgetPlugins(QObject* parent)
    : QObject(parent)
{
    for (const WidgetRow& row : kWidgets)
        m_widgets << new WidgetPlugin(row, this);
}
