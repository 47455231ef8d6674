#ifndef RTSINGLEGRAPHFORM_H
#define RTSINGLEGRAPHFORM_H

// Chart page of a single-phase unit: six gauges and the trend of four voltages with its legend.
// May touch: gauges, trend chart and the real-time block.

#include <devview/devview_export.h>

#include <QMap>
#include <QVariant>
#include <QWidget>

class Ui_RTSingleGraphForm;

class DEVVIEW_EXPORT RTSingleGraphForm : public QWidget
{
    Q_OBJECT

public:
    explicit RTSingleGraphForm(QWidget* parent = nullptr);
    ~RTSingleGraphForm() override;

    // Gauges and legend to 0, curves emptied.
    void InitRtSingleChart();
    // Shows a snapshot and adds it to the curves. Charge and load in %, frequencies and battery
    // voltage in tenths, other voltages in V.
    void RefreshRtSingleChartInfo(QMap<int, QVariant> snapshot);
    // false: InitRtSingleChart; true: nothing.
    void InitRTChartFormInfo(bool flag);

public slots:
    void Show_RtChart_View(QMap<int, QVariant> snapshot);

private:
    Ui_RTSingleGraphForm* ui;
};

#endif // RTSINGLEGRAPHFORM_H
