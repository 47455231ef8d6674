#ifndef HISTORYPLOT_H
#define HISTORYPLOT_H

// One chart of the history page: its curves over true time, what they were at the time that is
// read, and the operator's wishes to see another stretch.
// May touch: the history of a device, Qwt.

#include "history/devicehistory.h"

#include <QWidget>

#include <memory>

class HistoryBands;
class HistoryTrace;
class PlotOverlay;
class QLabel;
class QwtPlot;

class HistoryPlot : public QWidget
{
    Q_OBJECT

public:
    // chart: index in historyCharts().
    explicit HistoryPlot(int chart, QWidget* parent = nullptr);

    // The columns of its series are the quantities of historyCurves(), in that order. What lies
    // further apart than longestStepMs is not joined.
    void setHistory(const std::shared_ptr<const DeviceHistory>& history, qint64 longestStepMs);
    void setRange(TimeRange range);
    // Shows the values of that time; none: the last ones in sight.
    void readAt(std::optional<qint64> timeMs);
    // Below a stack of charts one time axis is enough.
    void showTimes(bool shown);

    // The time at the middle of the canvas' column x, px.
    qint64 timeAt(int x) const;
    int canvasWidth() const;
    QString readText() const; // as shown above the chart, plain

signals:
    void timePointed(qint64 timeMs);
    void pointerLeft();
    void rowsStepped(int rows); // by key: read so many rows further
    void zoomWanted(double factor, qint64 aroundMs);
    void closerWanted(double factor); // by key; the page knows around what
    void panWanted(qint64 byMs);
    void rangeWanted(qint64 fromMs, qint64 toMs);
    void nowWanted();
    void startWanted(); // of all that is stored

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct CurveItem {
        int curve; // index in historyCurves()
        HistoryTrace* trace;
    };

    void addCurves();
    void setColors();
    void rescale();
    void showReading();
    QString familyText(int first, int count, int row) const;
    bool press(QMouseEvent* event);
    bool drag(QMouseEvent* event);
    bool release(QMouseEvent* event);
    bool wheel(QWheelEvent* event);

    const int m_chart;
    QLabel* m_values;
    QwtPlot* m_plot;
    PlotOverlay* m_overlay;
    HistoryBands* m_bands;
    QVector<CurveItem> m_curves;
    std::shared_ptr<const DeviceHistory> m_history;
    qint64 m_longestStepMs = 0;
    TimeRange m_range;
    std::optional<qint64> m_readMs;
    std::optional<int> m_draggedFrom; // px; the left button is down
    bool m_isChoosing = false;        // the drag chooses a stretch
};

#endif // HISTORYPLOT_H
