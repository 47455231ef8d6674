#include "peers/qwtworks.h"

#include "peers/ourworks.h"

#include <qwt_dial.h>
#include <qwt_dial_needle.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <algorithm>

namespace {

class TimeLabels : public QwtScaleDraw
{
public:
    explicit TimeLabels(const TrendFeed& feed)
        : m_feed(feed)
    {}
    void show(int step)
    {
        m_step = step;
        invalidateCache();
    }
    QwtText label(double second) const override
    {
        return m_feed.label(m_step, static_cast<int>(second));
    }

private:
    TrendFeed m_feed;
    int m_step = 0;
};

class Trend
{
public:
    explicit Trend(const TrendFeed& feed)
        : m_feed(feed)
        , m_labels(new TimeLabels(feed))
        , m_values(feed.series)
    {
        m_plot.setAutoReplot(false);
        m_plot.setCanvasBackground(QColor(250, 250, 250));
        m_plot.setAxisScale(QwtPlot::yLeft, 0, TrendFeed::kFullScale, 40);
        m_plot.setAxisScale(QwtPlot::xBottom, TrendFeed::kFirstSecond, TrendFeed::kLastSecond,
                            TrendFeed::kLabelSeconds);
        m_plot.setAxisScaleDraw(QwtPlot::xBottom, m_labels);
        m_plot.enableAxis(QwtPlot::yRight, feed.hasRightScale());
        m_plot.setAxisScale(QwtPlot::yRight, 0, TrendFeed::kFullScale, 40);
        auto* grid = new QwtPlotGrid;
        grid->enableX(false);
        grid->setPen(Qt::black, 0, Qt::DotLine);
        grid->attach(&m_plot);
        fill();
        m_plot.resize(feed.size);
        m_plot.show();
        finishPainting();
    }
    void step()
    {
        ++m_step;
        for (int id = 0; id < m_feed.series; ++id) {
            QVector<double>& values = m_values[id];
            std::move_backward(values.begin(), values.end() - 1, values.end());
            values[0] = TrendFeed::value(id, m_step);
        }
        if (m_feed.clockRuns) {
            m_labels->show(m_step);
            m_plot.axisWidget(QwtPlot::xBottom)->update();
        }
        m_plot.replot();
        finishPainting();
    }

private:
    void fill()
    {
        const int count = m_feed.samples();
        for (int k = 0; k < count; ++k)
            m_seconds << TrendFeed::kLastSecond -
                             double(k) * (TrendFeed::kLastSecond - TrendFeed::kFirstSecond) / count;
        for (int id = 0; id < m_feed.series; ++id) {
            m_values[id].fill(TrendFeed::value(id, 0), count);
            auto* curve = new QwtPlotCurve;
            curve->setPen(QColor::fromHsv(60 * id, 255, 200));
            curve->setRenderHint(QwtPlotItem::RenderAntialiased);
            curve->setRawSamples(m_seconds.constData(), m_values[id].constData(), count);
            curve->setYAxis(id < 3 || !m_feed.hasRightScale() ? QwtPlot::yLeft : QwtPlot::yRight);
            curve->attach(&m_plot);
        }
    }

    TrendFeed m_feed;
    QwtPlot m_plot;
    TimeLabels* m_labels;
    QVector<double> m_seconds;
    QVector<QVector<double>> m_values;
    int m_step = 0;
};

} // namespace

Work qwtTrend(const TrendFeed& feed)
{
    auto trend = std::make_shared<Trend>(feed);
    return {QStringLiteral("QwtPlot"), [trend = trend.get()] { trend->step(); }, trend};
}

Work qwtGauge(const QSize& size)
{
    auto dial = std::make_shared<QwtDial>();
    dial->setScale(60, 300);
    dial->setScaleStepSize(48);
    dial->setScaleArc(190, 350);
    dial->setNeedle(new QwtDialSimpleNeedle(QwtDialSimpleNeedle::Arrow));
    dial->resize(size);
    dial->show();
    finishPainting();
    const auto step = [dial = dial.get(), number = 0]() mutable {
        dial->setValue(gaugeValue(++number));
        finishPainting();
    };
    return {QStringLiteral("QwtDial"), step, dial};
}
