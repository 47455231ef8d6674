#ifndef SAMPLES_H
#define SAMPLES_H

// What the widgets show in an editor, where there is no UPS.
// May touch: the library's public headers.

class ChartForm;
class ChildForm;
class DataChart;
class DynamicChart;
class RTDataForm;
class RTSingleGraphForm;
class RTThreeGraphForm;
class ThreeDynamicChart;

namespace samples {

void gauge(DataChart& chart);
void trend(DynamicChart& chart);
void threeTrends(ThreeDynamicChart& chart);
void page(RTSingleGraphForm& form);
void threePage(RTThreeGraphForm& form);
void pages(ChartForm& form);
void table(RTDataForm& form);
void device(ChildForm& view);

} // namespace samples

#endif // SAMPLES_H
