#ifndef RTSINGLEGRAPHFORM_H
#define RTSINGLEGRAPHFORM_H

// Chart page of a single-phase unit: six gauges and the trend of four voltages with its legend.
// May touch: gauges, trend chart and the real-time block.

#include <devview/devview_export.h>

#include <QMap>
#include <QVariant>
#include <QWidget>

class Ui_RTSingleGraphForm;

/// Charge, load, battery temperature and three frequencies as gauges above the curves of input,
/// output, battery and bypass voltage.
///
/// Gauges: 0 to 100 % charge (captioned "Remaining battery time(Min)"), 0 to 160 % load, 0 to
/// 100 Hz; `--` outside. **The temperature gauge reads no key and always shows `--`.** Curves: 0 to
/// 400 V. Values are read as unsigned numbers.
/// \image html chart.png "The page in the desk"
class DEVVIEW_EXPORT RTSingleGraphForm : public QWidget
{
    Q_OBJECT

public:
    /// Gauges at 0, no curves.
    explicit RTSingleGraphForm(QWidget* parent = nullptr);
    ~RTSingleGraphForm() override;

    /// Gauges and legend to 0, curves emptied: for another device.
    void InitRtSingleChart();
    /// Shows a snapshot and adds one sample to each curve. Charge and load in %, frequencies and
    /// battery voltage in tenths, other voltages in V; missing keys read 0. Every call moves the
    /// curves by 5 px, so feed it at a steady pace.
    void RefreshRtSingleChartInfo(QMap<int, QVariant> snapshot);
    /// `false`: InitRtSingleChart(); `true`: nothing.
    void InitRTChartFormInfo(bool flag);

public slots:
    /// The same as RefreshRtSingleChartInfo().
    void Show_RtChart_View(QMap<int, QVariant> snapshot);

private:
    Ui_RTSingleGraphForm* ui;
};

#endif // RTSINGLEGRAPHFORM_H
