#ifndef HISTORYBANDS_H
#define HISTORYBANDS_H

// Behind the curves: when the device was on battery, on bypass or not reachable, and a mark for
// what else the journal knows.
// May touch: the history of a device, urgencies' colours, Qwt.

#include "history/devicehistory.h"

#include <QPalette>
#include <qwt_plot_item.h>

#include <memory>

class HistoryBands : public QwtPlotItem
{
public:
    static constexpr int kMarkSize = 7; // px

    HistoryBands();

    void setHistory(const std::shared_ptr<const DeviceHistory>& history) { m_history = history; }
    void setPalette(const QPalette& palette) { m_palette = palette; }

    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
              const QRectF& canvas) const override;

    // Solid colour of a band on that ground, for legends as well.
    static QColor color(JournalKind kind, const QPalette& palette);

private:
    void drawBand(QPainter* painter, const QwtScaleMap& xMap, const QRectF& canvas,
                  const JournalEntry& entry) const;
    void drawMark(QPainter* painter, const QwtScaleMap& xMap, const QRectF& canvas,
                  const JournalEntry& entry) const;

    std::shared_ptr<const DeviceHistory> m_history;
    QPalette m_palette;
};

#endif // HISTORYBANDS_H
