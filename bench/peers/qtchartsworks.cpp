#include "peers/qtchartsworks.h"

#include "peers/ourworks.h"

#include <QChartView>
#include <QDateTimeAxis>
#include <QLegend>
#include <QLineSeries>
#include <QValueAxis>

namespace {

constexpr qint64 kMsPerSecond = 1000;
constexpr int kGridIntervals = 10;

class Trend
{
public:
    explicit Trend(const TrendFeed& feed)
        : m_feed(feed)
        , m_time(new QtCharts::QDateTimeAxis)
    {
        auto* chart = new QtCharts::QChart;
        chart->legend()->hide();
        m_time->setFormat(QStringLiteral("hh:mm:ss"));
        m_time->setTickCount(kGridIntervals + 1);
        m_time->setGridLineVisible(false);
        chart->addAxis(m_time, Qt::AlignBottom);
        QtCharts::QValueAxis* left = addScale(*chart, Qt::AlignLeft);
        QtCharts::QValueAxis* right =
            feed.hasRightScale() ? addScale(*chart, Qt::AlignRight) : left;
        for (int id = 0; id < feed.series; ++id) {
            auto* series = new QtCharts::QLineSeries;
            series->setPen(QPen(QColor::fromHsv(60 * id, 255, 200), 1));
            chart->addSeries(series);
            series->attachAxis(m_time);
            series->attachAxis(id < 3 ? left : right);
            m_series << series;
        }
        m_view.setChart(chart);
        m_view.setRenderHint(QPainter::Antialiasing);
        m_view.resize(feed.size);
        step();
        m_view.show();
        finishPainting();
    }
    void step()
    {
        ++m_step;
        const QDateTime noon(QDate(2000, 1, 1), m_feed.now(m_step), Qt::LocalTime);
        const QDateTime first = noon.addSecs(TrendFeed::kFirstSecond);
        const QDateTime last = noon.addSecs(TrendFeed::kLastSecond);
        m_time->setRange(first, last);
        const int count = m_feed.samples();
        const auto end = static_cast<double>(last.toMSecsSinceEpoch());
        const double width = (TrendFeed::kLastSecond - TrendFeed::kFirstSecond) * kMsPerSecond;
        for (int id = 0; id < m_feed.series; ++id) {
            QVector<QPointF> points;
            points.reserve(count);
            for (int k = 0; k < count; ++k)
                points << QPointF(end - k * width / count,
                                  TrendFeed::value(id, std::max(m_step - k, 0)));
            m_series.at(id)->replace(points);
        }
        finishPainting();
    }

private:
    static QtCharts::QValueAxis* addScale(QtCharts::QChart& chart, Qt::Alignment side)
    {
        auto* axis = new QtCharts::QValueAxis;
        axis->setRange(0, TrendFeed::kFullScale);
        axis->setTickCount(kGridIntervals + 1);
        axis->setLabelFormat(QStringLiteral("%.0f"));
        axis->setGridLinePen(QPen(Qt::black, 1, Qt::DotLine));
        axis->setGridLineVisible(side == Qt::AlignLeft);
        chart.addAxis(axis, side);
        return axis;
    }

    TrendFeed m_feed;
    QtCharts::QChartView m_view;
    QtCharts::QDateTimeAxis* m_time;
    QVector<QtCharts::QLineSeries*> m_series;
    int m_step = 0;
};

} // namespace

Work qtChartsTrend(const TrendFeed& feed)
{
    auto trend = std::make_shared<Trend>(feed);
    return {QStringLiteral("QtCharts"), [trend = trend.get()] { trend->step(); }, trend};
}
