// Both trend charts: how samples are kept and trimmed, and what is painted where. Reads protected
// members through probes and the painting through a recording device.

#include "dynamicchart.h"
#include "support/recordingdevice.h"
#include "threedynamicchart.h"

#include <QtTest>

#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

template <typename Chart>
class Probe : public Chart
{
public:
    using Chart::color_pen, Chart::curveMap, Chart::m_boxRect, Chart::m_bShowHLine;
    using Chart::m_dataVec0, Chart::m_dataVec1, Chart::m_dataVec2, Chart::m_dataVec3;

    explicit Probe(QSize size = {520, 390})
    {
        this->resize(size);
        picture();
    }
    QVector<PaintStep> picture(PaintStep::Kind kind = PaintStep::Line)
    {
        RecordingDevice recorder(this->size());
        this->render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
        texts = recorder.texts();
        return recorder.stepsOf(kind);
    }
    QVector<PaintStep> linesOf(int series)
    {
        QVector<PaintStep> lines;
        for (const PaintStep& line : picture()) {
            if (line.pen.color() == this->color_pen.at(series).color())
                lines.append(line);
        }
        return lines;
    }
    QVector<int> counts() const
    {
        return {m_dataVec0.size(), m_dataVec1.size(), m_dataVec2.size(), m_dataVec3.size()};
    }
    void fill(int samples)
    {
        for (int i = 0; i < samples; ++i) {
            for (int id = 0; id < this->color_pen.size(); ++id)
                this->addData(id, i);
        }
    }

    QTime now{12, 0, 0};
    QStringList texts;

protected:
    QTime wallClock() const override { return now; }
};

using SingleProbe = Probe<DynamicChart>;
using ThreeProbe = Probe<ThreeDynamicChart>;

int dotted(const QVector<PaintStep>& lines)
{
    return std::count_if(lines.begin(), lines.end(),
                         [](const PaintStep& line) { return line.pen.style() == Qt::DotLine; });
}

} // namespace

class TestTrendChart : public QObject
{
    Q_OBJECT

private slots:
    void firstSampleIsDoubled();
    void trimming();
    void unknownSeriesOnlyRefreshes();
    void boxAndGrid();
    void scales();
    void timeAxis();
    void curvesRunFromRightToLeft();
    void oddSamples();
};

void TestTrendChart::firstSampleIsDoubled()
{
    SingleProbe chart;
    chart.addData(1, 230);
    chart.addData(1, 231);
    QCOMPARE(chart.m_dataVec1, QVector<double>({231, 230, 230}));
    QCOMPARE(chart.curveMap.value(1), chart.m_dataVec1);

    // Meant so: before the first paint there is no room, and each call removes what it added.
    class Unpainted : public DynamicChart
    {
    public:
        using DynamicChart::m_dataVec0;
    } unpainted;
    for (double value : {1.0, 2.0, 3.0})
        unpainted.addData(0, value);
    QCOMPARE(unpainted.m_dataVec0, QVector<double>({1.0}));
}

void TestTrendChart::trimming()
{
    for (auto [width, samples] : {std::pair(473, 80), std::pair(472, 79)}) { // 400.2 and 399.4 px
        SingleProbe chart({width, 390});
        chart.fill(85);
        QCOMPARE(chart.m_dataVec3.size(), samples); // a part of a sample does not count
    }
    SingleProbe chart; // 88 samples
    chart.fill(100);
    chart.resize(260, 390); // 44 samples
    chart.picture();
    QCOMPARE(chart.counts(), QVector<int>({88, 88, 88, 88})); // the box was still the old one
    QResizeEvent event(chart.size(), chart.size());
    QCoreApplication::sendEvent(&chart, &event);
    QCOMPARE(chart.counts(), QVector<int>({87, 87, 87, 88})); // series 3 waits, as intended
    QCOMPARE(chart.m_dataVec0.at(43), 56.0);
    QCOMPARE(chart.m_dataVec0.at(44), 54.0); // the first one beyond the room went
}

void TestTrendChart::unknownSeriesOnlyRefreshes()
{
    for (int id : {-1, 4}) {
        SingleProbe chart;
        chart.fill(3);
        chart.initValue();
        QCOMPARE(chart.curveMap.value(0).size(), 4); // the picture keeps its last curves
        chart.addData(id, 7);
        QCOMPARE(chart.counts(), QVector<int>({0, 0, 0, 0}));
        QVERIFY(chart.curveMap.value(0).isEmpty());
    }
}

void TestTrendChart::boxAndGrid()
{
    for (const QSize& size : {QSize(1300, 390), QSize(520, 260)}) {
        SingleProbe chart(size);
        const QRectF box(size.width() / 13, size.height() / 13, size.width() * 11 / 13,
                         size.height() * 11 / 13);
        QCOMPARE(chart.m_boxRect, box);
        const QVector<PaintStep> grid = chart.picture(); // comes first
        QCOMPARE(dotted(grid), 9);
        for (int k = 1; k <= 9; ++k) {
            const double y = box.top() + k * box.height() / 10;
            QCOMPARE(grid.at(k - 1).points,
                     (QPolygonF() << QPointF(box.left(), y) << QPointF(box.right(), y)));
        }
    }
    SingleProbe chart;
    chart.m_bShowHLine = false;
    QCOMPARE(dotted(chart.picture()), 0);
    ThreeProbe three;
    three.m_bShowHLine = false;
    QCOMPARE(dotted(three.picture()), 9); // this chart always shows it; meant so
}

void TestTrendChart::scales()
{
    ThreeProbe chart;
    const QRectF box = chart.m_boxRect;
    const QFontMetrics metrics = chart.fontMetrics();
    const QVector<PaintStep> texts = chart.picture(PaintStep::Text);
    for (int k = 0; k <= 10; ++k) {
        const double baseline = box.top() + k * box.height() / 10 + metrics.height() / 2.0;
        const QString left = QString::number(400 - 40 * k);
        QCOMPARE(texts.at(2 * k).text, left);
        QCOMPARE(texts.at(2 * k).points.first(),
                 QPointF(box.left() - 5 - metrics.horizontalAdvance(left), baseline));
        QCOMPARE(texts.at(2 * k + 1).text, QString::number(100 - 10 * k));
        QVERIFY(texts.at(2 * k + 1).points.first().x() > box.right());
    }
}

void TestTrendChart::timeAxis()
{
    SingleProbe chart;             // box 40 to 480 px
    chart.now = QTime(23, 59, 30); // the last labels are of tomorrow
    const int bottom = static_cast<int>(chart.m_boxRect.bottom());
    int k = 0;
    for (const PaintStep& line : chart.picture()) {
        if (line.points.first().x() != line.points.last().x())
            continue;
        const int x = 40 + 44 * k + (k == 10 ? 0 : 1);
        QCOMPARE(line.points, QPolygonF() << QPointF(x, bottom) << QPointF(x, bottom + 5));
        ++k;
    }
    QCOMPARE(k, 11);
    QCOMPARE(chart.texts.at(11), QStringLiteral("23:58:50"));
    QCOMPARE(chart.texts.at(15), QStringLiteral("23:59:30"));
    QCOMPARE(chart.texts.at(21), QStringLiteral("00:00:30"));
}

void TestTrendChart::curvesRunFromRightToLeft()
{
    SingleProbe chart; // box 40 to 480 px and 30 to 360 px
    for (double value : {0.0, 100.0, 400.0, 500.0})
        chart.addData(2, value);
    const QVector<PaintStep> lines = chart.linesOf(2);
    const QVector<QLineF> expected{
        {480, 360 - 412.5, 480, 30}, // newest: above the box, not clipped
        {480, 30, 475, 277.5},       // samples 0 and 1 share the edge
        {475, 277.5, 470, 360},
        {470, 360, 465, 360}}; // the doubled first sample
    QCOMPARE(lines.size(), expected.size());
    for (int i = 0; i < lines.size(); ++i)
        QCOMPARE(QLineF(lines.at(i).points.first(), lines.at(i).points.last()), expected.at(i));

    ThreeProbe three;
    for (int series = 0; series < 6; ++series) {
        three.addData(series, series < 3 ? 400 : 100);
        QCOMPARE(three.linesOf(series).first().points.first().y(), three.m_boxRect.top());
    }
}

void TestTrendChart::oddSamples()
{
    for (auto [value, segments] : {std::pair(kNaN, 2), std::pair(kInfinity, 4)}) { // NaN: a gap
        SingleProbe chart;
        for (double sample : {230.0, 231.0, value, 232.0})
            chart.addData(0, sample);
        const QVector<PaintStep> lines = chart.linesOf(0);
        QCOMPARE(lines.size(), segments);
        for (const PaintStep& line : lines)
            QVERIFY(qAbs(line.points.last().y()) < 32767);
    }
}

QTEST_MAIN(TestTrendChart)
#include "tst_trendchart.moc"
