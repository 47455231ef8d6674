// The gauge: what a value does to its state, its bands, and what is painted. Reads protected
// members through a probe and the painting through a recording device.

#include "datachart.h"
#include "support/recordingdevice.h"

#include <QTimer>
#include <QtTest>

#include <limits>

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class Probe : public DataChart
{
public:
    using DataChart::bandColour;
    using DataChart::coveredSpan;
    using DataChart::m_bReverse;
    using DataChart::m_currentValue;
    using DataChart::m_invalidValue;
    using DataChart::m_value;
    using DataChart::updateTimer;

    explicit Probe(double minimum = 60, double maximum = 300)
    {
        setMinValue(minimum);
        setMaxValue(maximum);
    }
    QStringList texts()
    {
        RecordingDevice recorder(size());
        render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
        return recorder.texts();
    }
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        DataChart::paintEvent(event);
    }
};

} // namespace

class TestDataChart : public QObject
{
    Q_OBJECT

private slots:
    void values_data();
    void values();
    void repaintsOnlyWhenTheValueChanges();
    void timerRunsOnce();
    void bands_data();
    void bands();
    void covered_data();
    void covered();
    void geometry_data();
    void geometry();
    void bandShowsLeftOfTheValue();
    void paintsAtAnySize();
};

void TestDataChart::values_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("at the bottom") << 60.0 << 300.0 << 60.0 << "60";
    QTest::newRow("below") << 60.0 << 300.0 << 59.999 << "--";
    QTest::newRow("at the top") << 0.0 << 100.0 << 100.0 << "100";
    QTest::newRow("above") << 0.0 << 100.0 << 100.001 << "--";
    QTest::newRow("six digits") << 0.0 << 1000.0 << 123.456789 << "123.457";
    QTest::newRow("not a number") << 0.0 << 100.0 << kNaN << "--";
    QTest::newRow("infinite") << 0.0 << kInfinity << kInfinity << "--";
    QTest::newRow("minus infinite") << -kInfinity << 0.0 << -kInfinity << "--";
    QTest::newRow("scale without width") << 50.0 << 50.0 << 50.0 << "--";
    QTest::newRow("scale upside down") << 100.0 << 0.0 << 50.0 << "--";
    QTest::newRow("scale that is no number") << 0.0 << kNaN << 50.0 << "--";
}

void TestDataChart::values()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    QFETCH(QString, text);
    Probe gauge(minimum, maximum);
    gauge.setValue(value);
    QCOMPARE(gauge.m_invalidValue, text == QLatin1String("--"));
    QCOMPARE(gauge.m_value, gauge.m_invalidValue ? 0.0 : value);
    QCOMPARE(gauge.m_currentValue, gauge.m_value); // jumps at once
    QCOMPARE(gauge.texts().last(), text);
    QCOMPARE(gauge.accessibleDescription(), gauge.m_invalidValue ? text : text + " V");
    QVERIFY(!gauge.grab().isNull());
}

void TestDataChart::repaintsOnlyWhenTheValueChanges()
{
    Probe gauge(0, 100);
    gauge.show();
    QVERIFY(QTest::qWaitForWindowExposed(&gauge));
    QTRY_VERIFY(!gauge.updateTimer->isActive());
    const auto paintsOf = [&](double value) {
        QCoreApplication::processEvents();
        gauge.paints = 0;
        gauge.setValue(value);
        QCoreApplication::processEvents();
        return gauge.paints;
    };
    QVERIFY(paintsOf(50) > 0);
    QCOMPARE(paintsOf(50), 0);
    QVERIFY(!gauge.m_bReverse);
    QVERIFY(paintsOf(101) > 0); // a fall to 0
    QVERIFY(gauge.m_bReverse);
    QCOMPARE(gauge.m_value, 0.0);
    QCOMPARE(paintsOf(0), 0);
    QCOMPARE(paintsOf(101), 0); // counts as 0 again: its "--" waits for the next paint, meant so
    QCOMPARE(gauge.texts().last(), QStringLiteral("--"));
}

// Meant so: a value does not start the timer again.
void TestDataChart::timerRunsOnce()
{
    Probe gauge(0, 100);
    QCOMPARE(gauge.updateTimer->interval(), 10);
    QTRY_VERIFY(!gauge.updateTimer->isActive());
    QCOMPARE(gauge.m_currentValue, 0.5);
    gauge.setValue(50);
    QVERIFY(!gauge.updateTimer->isActive());
    QCOMPARE(gauge.m_currentValue, 50.0);
}

void TestDataChart::bands_data()
{
    QTest::addColumn<QList<int>>("colours");
    QTest::addColumn<QList<int>>("limits");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("colour");
    const QList<int> three{2, 1, 0};
    const QList<int> two{0, 2};
    const QList<int> limits{30, 60, 100};
    QTest::newRow("three: below the first limit") << three << limits << 29.9 << 2;
    QTest::newRow("three: first limit is in the second band") << three << limits << 30.0 << 1;
    QTest::newRow("three: second limit, too") << three << limits << 60.0 << 1;
    QTest::newRow("three: above") << three << limits << 60.1 << 0;
    QTest::newRow("two: below") << two << limits << 29.9 << 0;
    QTest::newRow("two: at the limit") << two << limits << 30.0 << 2;
    QTest::newRow("one colour goes on") << QList<int>{1} << limits << 130.0 << 1;
    QTest::newRow("no colours: grey") << QList<int>{} << QList<int>{} << 50.0 << 3;
    QTest::newRow("one limit of three") << three << QList<int>{30} << 50.0 << 1;
    QTest::newRow("unknown colour") << QList<int>{-7, 99} << QList<int>{10} << 50.0 << 99;
}

void TestDataChart::bands()
{
    QFETCH(QList<int>, colours);
    QFETCH(QList<int>, limits);
    QFETCH(double, value);
    Probe gauge(0, 200);
    gauge.setRadioValue(colours, limits);
    gauge.setValue(value);
    QTEST(gauge.bandColour(), "colour");
    QVERIFY(!gauge.grab().isNull());
}

void TestDataChart::covered_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("drawnFor");
    QTest::addColumn<int>("span");
    QTest::newRow("empty") << 0.0 << 100.0 << 0.0 << 2560;
    QTest::newRow("truncated") << 0.0 << 100.0 << 33.33 << 1706;
    QTest::newRow("full") << 0.0 << 100.0 << 100.0 << 0;
    QTest::newRow("half a unit past the end") << 0.0 << 100.0 << 100.5 << 0;
    QTest::newRow("below the scale") << 60.0 << 300.0 << 0.0 << 2560;
    QTest::newRow("no width") << 50.0 << 50.0 << 50.0 << 2560;
    QTest::newRow("tiny width") << 0.0 << 5e-324 << 1.0 << 0;
    QTest::newRow("infinite width") << -kInfinity << kInfinity << 1.0 << 2560;
}

void TestDataChart::covered()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, drawnFor);
    Probe gauge(minimum, maximum);
    gauge.m_currentValue = drawnFor;
    QTEST(gauge.coveredSpan(), "span");
}

void TestDataChart::geometry_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QStringList>("labels");
    const QString most = QString::number(std::numeric_limits<int>::max());
    QTest::newRow("defaults") << QSize(200, 100) << 300.0
                              << QStringList{"60", "108", "156", "204", "252", "300"};
    QTest::newRow("each label is truncated")
        << QSize(500, 400) << 68.0 << QStringList{"60", "61", "62", "63", "64", "65"};
    QTest::newRow("scale beyond all integers")
        << QSize(300, 150) << 1e300 << QStringList{"60", most, most, most, most, most};
}

void TestDataChart::geometry()
{
    QFETCH(QSize, size);
    QFETCH(double, maximum);
    QFETCH(QStringList, labels);
    Probe gauge(60, maximum);
    gauge.resize(size);
    RecordingDevice recorder(size);
    gauge.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(recorder.texts(), labels << QStringLiteral("0"));

    const double outer = qMin(size.height(), size.width() / 2);
    const double pie = 0.7 * outer;
    const double start = pie + 0.1 * outer / 20;
    int sectors = 0, major = 0, minor = 0;
    for (const PaintStep& line : recorder.stepsOf(PaintStep::Line)) {
        QCOMPARE(line.transform.map(QPointF(0, 0)), QPointF(size.width() / 2, size.height() - 10));
        const double from = line.points.first().y();
        const double length = line.points.last().y() - from;
        sectors += qFuzzyCompare(from, pie) && qFuzzyCompare(length, -0.25 * pie);
        major += qFuzzyCompare(from, start) && qFuzzyCompare(length, outer / 20);
        minor += qFuzzyCompare(from, start) && qFuzzyCompare(length, 0.7 * outer / 20);
    }
    QCOMPARE(QVector<int>({sectors, major, minor}), QVector<int>({6, 6, 15}));

    const int k = static_cast<int>((pie - 0.5 * pie) / 3);
    const QVector<PaintStep> boxes = recorder.stepsOf(PaintStep::RoundedRect);
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().rect,
             QRectF(size.width() / 2 - 3 * k, size.height() - 2 * k, 6 * k, 2 * k));
}

// Half filled: 70 % of the way out, left of the middle the band's colour, right of it the cover.
void TestDataChart::bandShowsLeftOfTheValue()
{
    Probe gauge(0, 100);
    gauge.resize(400, 200);
    gauge.setRadioValue({1}, {100});
    gauge.setValue(50);
    const QImage image = gauge.grab().toImage();
    const QPointF centre(200, 190);
    const double reach = 0.7 * 140; // of the pie's radius
    // Between two sector lines, at 116 and 64 degrees.
    const QPointF left = centre + QPointF(-reach * 0.438, -reach * 0.899);
    const QPointF right = centre + QPointF(reach * 0.438, -reach * 0.899);
    const QColor seen = image.pixelColor(left.toPoint());
    QVERIFY2(seen.red() > 249 && qAbs(seen.green() - 205) < 6 && seen.blue() < 6,
             qPrintable(seen.name()));
    QCOMPARE(image.pixelColor(right.toPoint()), QColor(238, 238, 221));
}

void TestDataChart::paintsAtAnySize()
{
    Probe gauge;
    gauge.setValue(100);
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(400, 5), QSize(3, 400)}) {
        gauge.resize(size);
        QImage image(500, 500, QImage::Format_RGB32);
        gauge.render(&image);
    }
}

QTEST_MAIN(TestDataChart)
#include "tst_datachart.moc"
