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
    using DataChart::refreshTimer;
    using DataChart::updateTimer;
    using DataChart::valueText;

    explicit Probe(double minimum = 60, double maximum = 300)
    {
        setMinValue(minimum);
        setMaxValue(maximum);
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
    void fallAndRise();
    void repaintsOnlyWhenThePictureChanges();
    void timerRunsOnce();
    void bands_data();
    void bands();
    void bandsOfDefaultLists_data();
    void bandsOfDefaultLists();
    void covered_data();
    void covered();
    void marks_data();
    void marks();
    void colours_data();
    void colours();
    void paintsAtAnySize_data();
    void paintsAtAnySize();
    void speaksItsValue();
};

void TestDataChart::values_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("inside") << 0.0 << 100.0 << 49.9 << "49.9";
    QTest::newRow("at the bottom") << 60.0 << 300.0 << 60.0 << "60";
    QTest::newRow("below") << 60.0 << 300.0 << 59.999 << "--";
    QTest::newRow("at the top") << 0.0 << 100.0 << 100.0 << "100";
    QTest::newRow("above") << 0.0 << 100.0 << 100.001 << "--";
    QTest::newRow("unsigned -5") << 0.0 << 100.0 << 4294967291.0 << "--";
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
    QCOMPARE(gauge.valueText(), text);
    QCOMPARE(gauge.m_invalidValue, text == QLatin1String("--"));
    QCOMPARE(gauge.m_value, gauge.m_invalidValue ? 0.0 : value);
    QCOMPARE(gauge.m_currentValue, gauge.m_value); // jumps at once

    RecordingDevice recorder(gauge.size());
    gauge.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(recorder.texts().last(), text);
    QVERIFY(!gauge.grab().isNull());
}

void TestDataChart::fallAndRise()
{
    Probe gauge;
    gauge.setValue(200);
    QVERIFY(!gauge.m_bReverse);
    gauge.setValue(1000); // out of range: a fall to 0
    QVERIFY(gauge.m_bReverse);
    QCOMPARE(gauge.m_value, 0.0);
    gauge.setValue(100);
    QVERIFY(!gauge.m_bReverse && !gauge.m_invalidValue);
}

void TestDataChart::repaintsOnlyWhenThePictureChanges()
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
    QVERIFY(paintsOf(0) > 0);
    QVERIFY(paintsOf(101) > 0); // the same value 0, but "--" instead of "0"
    QCOMPARE(paintsOf(102), 0);
    QVERIFY(paintsOf(0) > 0);
}

// Meant so: a value does not start the timer again.
void TestDataChart::timerRunsOnce()
{
    Probe gauge(0, 100);
    QVERIFY(gauge.updateTimer->isActive());
    QCOMPARE(gauge.updateTimer->interval(), 10);
    QVERIFY(!gauge.refreshTimer);
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
    const QList<int> limits{30, 60, 100};
    QTest::newRow("three: below the first limit") << three << limits << 29.9 << 2;
    QTest::newRow("three: first limit is in the second band") << three << limits << 30.0 << 1;
    QTest::newRow("three: second limit, too") << three << limits << 60.0 << 1;
    QTest::newRow("three: above") << three << limits << 60.1 << 0;
    QTest::newRow("three: third limit does not count") << three << limits << 150.0 << 0;
    QTest::newRow("two: below") << QList<int>{0, 2} << QList<int>{100, 120} << 99.0 << 0;
    QTest::newRow("two: at the limit") << QList<int>{0, 2} << QList<int>{100, 120} << 100.0 << 2;
    QTest::newRow("two: above both") << QList<int>{0, 2} << QList<int>{100, 120} << 130.0 << 2;
    QTest::newRow("four count like two") << QList<int>{0, 1, 2, 3} << limits << 90.0 << 1;
    QTest::newRow("one colour goes on") << QList<int>{1} << QList<int>{100} << 130.0 << 1;
    QTest::newRow("no colours: grey") << QList<int>{} << QList<int>{} << 50.0 << 3;
    QTest::newRow("no limits: first band") << three << QList<int>{} << 50.0 << 2;
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

void TestDataChart::bandsOfDefaultLists_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("colour");
    QTest::newRow("0, below the scale: last band") << 0.0 << 2;
    QTest::newRow("60") << 60.0 << 2;
}

void TestDataChart::bandsOfDefaultLists()
{
    QFETCH(double, value);
    Probe gauge;
    gauge.setValue(value);
    QTEST(gauge.bandColour(), "colour");
}

void TestDataChart::covered_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("drawnFor");
    QTest::addColumn<int>("span");
    QTest::newRow("empty") << 0.0 << 100.0 << 0.0 << 2560;
    QTest::newRow("half") << 0.0 << 100.0 << 50.0 << 1280;
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

void TestDataChart::marks_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("defaults") << QSize(200, 100) << 300.0
                              << QStringList{"60", "108", "156", "204", "252", "300"};
    QTest::newRow("each label is cut")
        << QSize(500, 400) << 68.0 << QStringList{"60", "61", "62", "63", "64", "65"};
    QTest::newRow("scale beyond all integers")
        << QSize(300, 150) << 1e300
        << QStringList{"60", "2147483647", "2147483647", "2147483647", "2147483647", "2147483647"};
}

void TestDataChart::marks()
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
    int sectors = 0;
    int major = 0;
    int minor = 0;
    for (const PaintStep& line : recorder.stepsOf(PaintStep::Line)) {
        QCOMPARE(line.transform.map(QPointF(0, 0)), QPointF(size.width() / 2, size.height() - 10));
        const double from = line.points.first().y();
        const double length = line.points.last().y() - from;
        sectors += qFuzzyCompare(from, pie) && qFuzzyCompare(length, -0.25 * pie);
        major += qFuzzyCompare(from, start) && qFuzzyCompare(length, outer / 20);
        minor += qFuzzyCompare(from, start) && qFuzzyCompare(length, 0.7 * outer / 20);
    }
    QCOMPARE(sectors, 6);
    QCOMPARE(major, 6);
    QCOMPARE(minor, 15);

    const int k = static_cast<int>((pie - 0.5 * pie) / 3);
    const QVector<PaintStep> boxes = recorder.stepsOf(PaintStep::RoundedRect);
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().rect,
             QRectF(size.width() / 2 - 3 * k, size.height() - 2 * k, 6 * k, 2 * k));
    QCOMPARE(boxes.first().opacity, 0.7);
}

void TestDataChart::colours_data()
{
    QTest::addColumn<int>("colour");
    QTest::addColumn<QColor>("at70Percent");
    QTest::newRow("green") << 0 << QColor(115, 210, 22);
    QTest::newRow("yellow") << 1 << QColor(255, 205, 0);
    QTest::newRow("red") << 2 << QColor(221, 85, 34);
    QTest::newRow("grey") << 3 << QColor(221, 210, 240);
}

// Half filled: 70 % of the way out, left of the middle the band's colour, right of it the cover.
void TestDataChart::colours()
{
    QFETCH(int, colour);
    QFETCH(QColor, at70Percent);
    Probe gauge(0, 100);
    gauge.resize(400, 200);
    gauge.setRadioValue({colour}, {100});
    gauge.setValue(50);
    const QImage image = gauge.grab().toImage();
    const QPointF centre(200, 190);
    const double reach = 0.7 * 140; // of the pie's radius
    // Between two sector lines, at 64 and 116 degrees.
    const QPointF left = centre + QPointF(-reach * 0.438, -reach * 0.899);
    const QPointF right = centre + QPointF(reach * 0.438, -reach * 0.899);
    const QColor seen = image.pixelColor(left.toPoint());
    QVERIFY2(qAbs(seen.red() - at70Percent.red()) < 6 &&
                 qAbs(seen.green() - at70Percent.green()) < 6 &&
                 qAbs(seen.blue() - at70Percent.blue()) < 6,
             qPrintable(seen.name()));
    QCOMPARE(image.pixelColor(right.toPoint()), QColor(238, 238, 221));
}

void TestDataChart::paintsAtAnySize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("a point") << QSize(1, 1);
    QTest::newRow("low") << QSize(400, 5);
    QTest::newRow("narrow") << QSize(3, 400);
}

void TestDataChart::paintsAtAnySize()
{
    QFETCH(QSize, size);
    Probe gauge;
    gauge.resize(size);
    gauge.setValue(100);
    QImage image(500, 500, QImage::Format_RGB32);
    gauge.render(&image);
    RecordingDevice recorder({500, 500});
    gauge.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    if (!size.isEmpty())
        QCOMPARE(recorder.texts().last(), QStringLiteral("100"));
}

void TestDataChart::speaksItsValue()
{
    Probe gauge(0, 100);
    QCOMPARE(gauge.accessibleDescription(), QStringLiteral("0 V"));
    gauge.setUnitText(QStringLiteral("Hz"));
    gauge.setValue(49.9);
    QCOMPARE(gauge.accessibleDescription(), QStringLiteral("49.9 Hz"));
    gauge.setValue(101);
    QCOMPARE(gauge.accessibleDescription(), QStringLiteral("--"));
    gauge.setValue(0);
    QCOMPARE(gauge.accessibleDescription(), QStringLiteral("0 Hz"));
}

QTEST_MAIN(TestDataChart)
#include "tst_datachart.moc"
