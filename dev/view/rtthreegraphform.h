#ifndef RTTHREEGRAPHFORM_H
#define RTTHREEGRAPHFORM_H

// Chart page of a three-phase unit: five gauges and the trends of input, output and bypass, each
// with its legend.
// May touch: gauges, trend charts and the real-time block.

#include <devview/devview_export.h>

#include <QMap>
#include <QVariant>
#include <QVector>
#include <QWidget>

class QLabel;
class ThreeDynamicChart;
class Ui_RTThreeGraphForm;

/// Charge, load, battery temperature, voltage and current as gauges above three tabs of curves:
/// the voltages of the lines against the left scale, the frequencies against the right one.
///
/// Gauges: 0 to 100 %, 0 to 160 % (line A), 0 to 100 degrees, 0 to 600 or 1000 V, 0 to 200 A; `--`
/// outside. Curves: 0 to 400 V, 0 to 100 Hz. The third curve of the bypass repeats the second; its
/// legend does show line C. Values are read as unsigned numbers: give the battery current as its
/// magnitude.
/// \image html chart-three-phase.png "The page in the desk"
class DEVVIEW_EXPORT RTThreeGraphForm : public QWidget
{
    Q_OBJECT

public:
    /// Gauges at 0, no curves.
    explicit RTThreeGraphForm(QWidget* parent = nullptr);
    ~RTThreeGraphForm() override;

    /// `false`: InitRtChart(); `true`: nothing.
    void InitRTChartFormInfo(bool flag);
    /// Gauges and legends to 0, curves emptied: for another device.
    void InitRtChart();
    /// Shows a snapshot and adds one sample to each curve. Charge and load in %, temperature in
    /// **whole degrees**, battery voltage and current and all frequencies in tenths, other voltages
    /// in V; missing keys read 0. The battery voltage gauge ends at 600 V, or at 1000 V for
    /// batteries of 601 to 1000 V.
    void RefreshRtChartInfo(QMap<int, QVariant> snapshot);

private:
    void fillTab(int tab);
    void configureGauges(double batteryVoltage);
    void showEntry(int entry, const QString& text);

    Ui_RTThreeGraphForm* ui;
    QVector<ThreeDynamicChart*> m_charts; // by tab
    QVector<QLabel*> m_captions;          // of the legends' entries, through all tabs
    QVector<QLabel*> m_values;
};

#endif // RTTHREEGRAPHFORM_H
