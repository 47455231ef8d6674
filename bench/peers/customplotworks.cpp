#include "peers/customplotworks.h"

#include "peers/ourworks.h"

#include <qcustomplot.h>

namespace {

class TimeTicker : public QCPAxisTickerFixed
{
public:
    explicit TimeTicker(const TrendFeed& feed)
        : m_feed(feed)
    {
        setTickStep(TrendFeed::kLabelSeconds);
    }
    int step = 0;

protected:
    QString getTickLabel(double second, const QLocale&, QChar, int) override
    {
        return m_feed.label(step, static_cast<int>(second));
    }

private:
    TrendFeed m_feed;
};

class Trend
{
public:
    explicit Trend(const TrendFeed& feed)
        : m_feed(feed)
        , m_ticker(new TimeTicker(feed))
    {
        m_plot.xAxis->setTicker(m_ticker);
        m_plot.xAxis->setRange(TrendFeed::kFirstSecond, TrendFeed::kLastSecond);
        m_plot.xAxis->grid()->setVisible(false);
        for (QCPAxis* axis : {m_plot.yAxis, m_plot.yAxis2})
            axis->setRange(0, TrendFeed::kFullScale);
        m_plot.yAxis2->setVisible(feed.hasRightScale());
        m_plot.yAxis->grid()->setPen(QPen(Qt::black, 1, Qt::DotLine));
        const int count = feed.samples();
        for (int k = count - 1; k >= 0; --k)
            m_seconds << TrendFeed::kLastSecond -
                             double(k) * (TrendFeed::kLastSecond - TrendFeed::kFirstSecond) / count;
        m_values.resize(feed.series);
        for (int id = 0; id < feed.series; ++id) {
            m_values[id].fill(TrendFeed::value(id, 0), count);
            QCPGraph* graph = m_plot.addGraph(
                m_plot.xAxis, id < 3 || !feed.hasRightScale() ? m_plot.yAxis : m_plot.yAxis2);
            graph->setPen(QColor::fromHsv(60 * id, 255, 200));
            graph->setAntialiased(true);
        }
        m_plot.resize(feed.size);
        m_plot.show();
        finishPainting();
    }
    void step()
    {
        m_ticker->step = ++m_step;
        for (int id = 0; id < m_feed.series; ++id) {
            QVector<double>& values = m_values[id];
            std::move(values.begin() + 1, values.end(), values.begin());
            values.last() = TrendFeed::value(id, m_step);
            m_plot.graph(id)->setData(m_seconds, values, true);
        }
        m_plot.replot(QCustomPlot::rpQueuedRefresh);
        finishPainting();
    }

private:
    TrendFeed m_feed;
    QCustomPlot m_plot;
    QSharedPointer<TimeTicker> m_ticker;
    QVector<double> m_seconds;
    QVector<QVector<double>> m_values;
    int m_step = 0;
};

} // namespace

Work customPlotTrend(const TrendFeed& feed)
{
    auto trend = std::make_shared<Trend>(feed);
    return {QStringLiteral("QCustomPlot"), [trend = trend.get()] { trend->step(); }, trend};
}
