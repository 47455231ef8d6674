#ifndef HISTORYTRACE_H
#define HISTORYTRACE_H

// One curve of the history: the means as a line, least and most as a band around it, and nothing
// where nothing was recorded.
// May touch: the history of a device, Qwt.

#include "history/devicehistory.h"

#include <QPen>
#include <qwt_plot_item.h>

#include <memory>

class HistoryTrace : public QwtPlotItem
{
public:
    // column: in the series; factor: from the stored unit to that of the scale.
    HistoryTrace(int column, double factor);

    void setHistory(const std::shared_ptr<const DeviceHistory>& history, qint64 longestStepMs);
    void setColor(const QColor& color, int line);
    bool isEmpty() const { return m_runs.isEmpty(); }
    // Of the scale, within that time; not known where nothing is.
    ValueRange extremes(TimeRange range) const;

    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
              const QRectF& canvas) const override;

private:
    void drawRun(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, int first,
                 int last) const;

    const int m_column;
    const double m_factor;
    std::shared_ptr<const DeviceHistory> m_history;
    QVector<QPair<int, int>> m_runs;
    QPen m_pen;
};

#endif // HISTORYTRACE_H
