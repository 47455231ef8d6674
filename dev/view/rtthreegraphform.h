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

class DEVVIEW_EXPORT RTThreeGraphForm : public QWidget
{
    Q_OBJECT

public:
    explicit RTThreeGraphForm(QWidget* parent = nullptr);
    ~RTThreeGraphForm() override;

    // false: InitRtChart; true: nothing.
    void InitRTChartFormInfo(bool flag);
    // Gauges and legends to 0, curves emptied.
    void InitRtChart();
    // Shows a snapshot and adds it to the curves. Charge and load in %, temperature in degrees,
    // battery voltage and current and all frequencies in tenths, other voltages in V.
    // The battery voltage gauge ends at 600 V, or at 1000 V for batteries of 601 to 1000 V.
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
