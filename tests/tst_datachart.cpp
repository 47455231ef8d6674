// The gauge: what a value does to its state, its bands, and what is painted. Reads protected
// members through a probe and the painting through a recording device.

#include "datachart.h"
#include "support/recordingdevice.h"

#include <QPainter>
#include <QPicture>
#include <QTimer>
#include <QtTest>

#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class Probe : public DataChart
{
public:
    using DataChart::bandColour, DataChart::coveredSpan, DataChart::m_bReverse;
    using DataChart::m_currentValue, DataChart::m_invalidValue, DataChart::m_value;
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
    void values();
    void repaintsOnlyWhenTheValueChanges();
    void bands();
    void covered();
    void geometry();
    void looksAsPaintedInOneGo();
};

void TestDataChart::values()
{
    const struct {
        double minimum, maximum, value;
        const char* text;
    } rows[] = {{60, 300, 60, "60"},     {60, 300, 59.999, "--"},          {0, 100, 100, "100"},
                {0, 100, 100.001, "--"}, {0, 1000, 123.456789, "123.457"}, // six digits
                {0, 100, kNaN, "--"},    {0, kInfinity, kInfinity, "--"},  {50, 50, 50, "--"},
                {100, 0, 50, "--"}}; // upside down
    for (const auto& [minimum, maximum, value, text] : rows) {
        Probe gauge(minimum, maximum);
        gauge.setValue(value);
        QCOMPARE(gauge.m_invalidValue, text == QString("--"));
        QCOMPARE(gauge.m_value, gauge.m_invalidValue ? 0.0 : value);
        QCOMPARE(gauge.m_currentValue, gauge.m_value); // jumps at once
        QCOMPARE(gauge.texts().last(), QString(text));
        QCOMPARE(gauge.accessibleName(), text + QString(gauge.m_invalidValue ? "" : " V"));
    }
}

void TestDataChart::repaintsOnlyWhenTheValueChanges()
{
    Probe gauge(0, 100);
    gauge.show();
    QVERIFY(QTest::qWaitForWindowExposed(&gauge));
    QTRY_VERIFY(!gauge.updateTimer->isActive()); // it runs once; no value starts it again
    QCoreApplication::processEvents();
    gauge.paints = 0;
    QMetaObject::invokeMethod(&gauge, "UpdateGraph");
    QTRY_VERIFY(gauge.paints > 0); // each step shows
    const auto paintsOf = [&](double value) {
        QCoreApplication::processEvents();
        gauge.paints = 0;
        gauge.setValue(value);
        QCoreApplication::processEvents();
        return gauge.paints;
    };
    QVERIFY(paintsOf(50) > 0);
    QCOMPARE(paintsOf(50), 0);
    QVERIFY(!gauge.m_bReverse && !gauge.updateTimer->isActive());
    QVERIFY(paintsOf(101) > 0); // a fall to 0
    QVERIFY(gauge.m_bReverse);
    QCOMPARE(gauge.m_value, 0.0);
    QCOMPARE(paintsOf(0), 0);
    QCOMPARE(paintsOf(101), 0); // counts as 0 again: its "--" waits for the next paint, meant so
    QCOMPARE(gauge.texts().last(), QStringLiteral("--"));
}

void TestDataChart::bands()
{
    const QList<int> three{2, 1, 0};
    const QList<int> limits{30, 60, 100};
    const struct {
        QList<int> colours, limits;
        double value;
        int colour;
    } rows[] = {
        {three, limits, 29.9, 2}, {three, limits, 30.0, 1}, {three, limits, 60.0, 1},
        {three, limits, 60.1, 0}, {three, {30}, 50.0, 1},   {{0, 2}, limits, 30.0, 2},
        {{1}, limits, 130.0, 1},  {{}, {}, 50.0, 3},        {{-7, 99}, {10}, 50.0, 99}, // unknown
    };
    for (const auto& row : rows) {
        Probe gauge(0, 200);
        gauge.setRadioValue(row.colours, row.limits);
        gauge.setValue(row.value);
        QCOMPARE(gauge.bandColour(), row.colour);
    }
}

void TestDataChart::covered()
{
    const struct {
        double minimum, maximum, drawnFor;
        int span;
    } rows[] = {
        {0, 100, 0, 2560},
        {0, 100, 33.33, 1706}, // truncated
        {0, 100, 100.5, 0},    // half a unit past the end
        {60, 300, 0, 2560},    // below the scale
        {50, 50, 50, 2560},    // no width
        {-kInfinity, kInfinity, 1.0, 2560},
    };
    for (const auto& row : rows) {
        Probe gauge(row.minimum, row.maximum);
        gauge.m_currentValue = row.drawnFor;
        QCOMPARE(gauge.coveredSpan(), row.span);
    }
}

void TestDataChart::geometry()
{
    const struct {
        QSize size;
        double maximum;
        QStringList texts; // the value last
    } rows[] = {{{200, 100}, 300, {"60", "108", "156", "204", "252", "300", "0"}},
                {{500, 400}, 68, {"60", "61", "62", "63", "64", "65", "0"}}}; // truncated each
    for (const auto& [size, maximum, texts] : rows) {
        Probe gauge(60, maximum);
        gauge.resize(size);
        RecordingDevice recorder(size);
        gauge.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
        QCOMPARE(recorder.texts(), texts);

        const double pie = 0.7 * qMin(size.height(), size.width() / 2);
        int sectors = 0;
        for (const PaintStep& line : recorder.stepsOf(PaintStep::Line)) {
            QCOMPARE(line.transform.map(QPointF(0, 0)),
                     QPointF(size.width() / 2, size.height() - 10));
            const double from = line.points.first().y();
            const double length = line.points.last().y() - from;
            if (qFuzzyCompare(from, pie) && qFuzzyCompare(length, -0.25 * pie)) {
                const double degrees = line.transform.map(QLineF(0, 0, 0, 1)).angle();
                QCOMPARE(qRound(degrees), 170 - 32 * sectors++); // from left to right
            }
        }
        QCOMPARE(sectors, 6);

        const int k = static_cast<int>((pie - 0.5 * pie) / 3);
        const QVector<PaintStep> boxes = recorder.stepsOf(PaintStep::RoundedRect);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes.first().rect,
                 QRectF(size.width() / 2 - 3 * k, size.height() - 2 * k, 6 * k, 2 * k));
    }
    for (const QSize size : {QSize(1, 1), QSize(400, 5), QSize(3, 400)}) { // no room to paint
        Probe gauge;
        gauge.resize(size);
        gauge.texts();
    }
}

// On a screen the pixels come from two pictures of the dial, open and covered; for other devices
// the arc is painted over the dial.
void TestDataChart::looksAsPaintedInOneGo()
{
    constexpr int kLevels = 16; // of 255, where the edge of the arc meets other edges
    for (double value : {0.0, 0.4, 33.0, 50.0, 78.6, 99.8, 100.0}) {
        Probe gauge(0, 100);
        gauge.resize(300, 200);
        gauge.setRadioValue({0, 1, 2}, {30, 60, 100});
        gauge.setValue(value);
        QPicture record;
        gauge.render(&record, QPoint(), QRegion(), QWidget::RenderFlags());
        QImage inOneGo(gauge.size(), QImage::Format_RGB32);
        inOneGo.fill(Qt::white);
        QImage shown = inOneGo;
        QPainter(&inOneGo).drawPicture(0, 0, record);
        gauge.render(&shown, QPoint(), QRegion(), QWidget::RenderFlags());
        int most = 0;
        const auto compare = [&](int a, int b) { most = qMax(most, qAbs(a - b)); };
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const QRgb a = shown.pixel(x, y);
                const QRgb b = inOneGo.pixel(x, y);
                compare(qRed(a), qRed(b));
                compare(qGreen(a), qGreen(b));
                compare(qBlue(a), qBlue(b));
            }
        }
        QVERIFY2(most <= kLevels, qPrintable(QString("%1 at %2").arg(most).arg(value)));
    }
}

QTEST_MAIN(TestDataChart)
#include "tst_datachart.moc"
