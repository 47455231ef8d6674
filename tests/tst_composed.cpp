// Charts and gauge repaint what has changed only, and put pixels of earlier paints back: whatever
// happens in between, the picture is that of a whole paint without memory. Touches the widgets
// through probes that make them forget.

#include "datachart.h"
#include "dynamicchart.h"
#include "threedynamicchart.h"

#include <QBackingStore>
#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

#include <limits>

namespace {

constexpr QPoint kPlace(13, 7); // in the window
constexpr QSize kSize(330, 300);
constexpr int kAside = -150; // so far out of the window at most

template <typename Chart>
class Probe : public Chart
{
public:
    explicit Probe(QWidget* parent)
        : Chart(parent)
    {}
    void forget()
    {
        QHideEvent hidden;
        this->hideEvent(&hidden);
    }
    void changeAtRandom(QRandomGenerator& dice)
    {
        constexpr double kVolts = 230;
        constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
        switch (dice.bounded(12)) {
        case 0:
            m_now = m_now.addSecs(1);
            [[fallthrough]];
        case 1: // as where something lay over it; between whole pixels lines are cut there
            if (this->devicePixelRatioF() != qRound(this->devicePixelRatioF()))
                return this->update();
            return this->update(QRect(-kAside + dice.bounded(-kAside), 0, 40, kSize.height()));
        case 2:
            this->m_bShowHLine = !this->m_bShowHLine;
            return this->update();
        case 3:
            return this->setUseAntialiasing(!this->getUseAntialiasing());
        case 4:
            return this->addData(dice.bounded(7), dice.bounded(3) ? dice.bounded(500) : kNaN);
        case 5:
            return dice.bounded(9) ? this->update() : this->initValue();
        default:
            for (int times = dice.bounded(1, 3); times > 0; --times) { // as a poll does
                m_now = m_now.addSecs(dice.bounded(2));
                for (int id = 0; id < this->color_pen.size(); ++id)
                    this->addData(id, (kVolts - 50 * id + dice.bounded(3)) / (id < 3 ? 1 : 4));
            }
        }
    }

protected:
    QTime wallClock() const override { return m_now; }

private:
    QTime m_now{12, 0};
};

class GaugeProbe : public DataChart
{
public:
    explicit GaugeProbe(QWidget* parent)
        : DataChart(parent)
    {
        updateTimer->stop();
        setRadioValue({0, 1, 2}, {150, 250, 300});
    }
    void forget()
    {
        QHideEvent hidden;
        hideEvent(&hidden);
    }
    void changeAtRandom(QRandomGenerator& dice)
    {
        constexpr int kStep = 50; // few values, so that some come again
        constexpr int kLeast = 100;
        switch (dice.bounded(6)) {
        case 0:
            setMaxValue(dice.bounded(2) ? 300 : 350);
            return update();
        case 1:
            setMinValue(dice.bounded(2) ? 60 : 0);
            return update();
        case 2:
            setRadioValue({0, 1, 2}, {dice.bounded(2) ? 150 : 250, 250, 300});
            return update();
        case 3:
            m_currentValue = kStep * dice.bounded(8); // the arc runs past the value
            return update();
        default:
            setValue(kLeast + kStep * dice.bounded(5));
        }
    }
};

QImage painted(QWidget& window, int ratio, QImage::Format format)
{
    QImage image(window.size() * ratio, format);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    window.render(&image);
    return image;
}

// The second has an edge just where new samples come in.
constexpr const char* kGrounds[] = {"background: rgba(255, 0, 0, 90)",
                                    "background: red; border-right: 27px solid blue"};

// What can happen to any widget.
void changeAtRandom(QWidget& window, QWidget& widget, QRandomGenerator& dice)
{
    const bool even = dice.bounded(2) == 0;
    switch (dice.bounded(8)) {
    case 0:
        return widget.resize(kSize - QSize(dice.bounded(27), dice.bounded(27)));
    case 1:
        return window.setPalette(even ? Qt::white : QColor(30, 40, 50));
    case 2:
        return window.setStyleSheet(even ? "" : "* { font: 14pt; color: red }");
    case 3:
        return widget.setStyleSheet(dice.bounded(3) ? kGrounds[dice.bounded(2)] : "");
    case 4: {
        QFont font(even ? QStringLiteral("Liberation Sans") : QStringLiteral("Liberation Serif"));
        font.setPointSize(dice.bounded(7, 9));
        return widget.setFont(font);
    }
    case 5:
        return widget.move(kPlace + QPoint(even ? 0 : kAside, dice.bounded(2)));
    case 6:
        return widget.setEnabled(even);
    default:
        widget.setAttribute(Qt::WA_StyledBackground, even);
        return widget.update();
    }
}

QImage onScreen(const QWidget& window)
{
    for (int i = 0; i < 3; ++i) // a paint may ask for another
        QCoreApplication::processEvents();
    const auto* image = dynamic_cast<QImage*>(window.backingStore()->paintDevice());
    return image ? image->copy() : QImage();
}

template <typename Widget>
void comparePaints(quint32 seed)
{
    QRandomGenerator dice(seed);
    QWidget window;
    Widget widget(&window);
    window.resize(kSize + QSize(30, 20));
    widget.setGeometry(QRect(kPlace, kSize));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(!onScreen(window).isNull());
    int ratio = 1;
    QImage::Format format = QImage::Format_RGB32;
    for (int i = 0; i < 500; ++i) {
        if (dice.bounded(8) == 0)
            changeAtRandom(window, widget, dice);
        else
            widget.changeAtRandom(dice);
        const QImage shown = onScreen(window);
        ratio = dice.bounded(9) ? ratio : 3 - ratio;
        format = dice.bounded(9) ? format : QImage::Format_RGB16;
        const bool isElsewhereToo = dice.bounded(4) == 0;
        const QImage elsewhere = isElsewhereToo ? painted(window, ratio, format) : QImage();
        if (dice.bounded(4) == 0) { // else what is remembered goes on
            widget.forget();
            window.update();
            QVERIFY2(shown == onScreen(window), qPrintable(QString::number(i)));
        }
        if (!isElsewhereToo)
            continue;
        widget.forget();
        QVERIFY2(elsewhere == painted(window, ratio, format), qPrintable(QString::number(i)));
    }
}

} // namespace

class TestComposed : public QObject
{
    Q_OBJECT

private slots:
    void paintsAreThoseWithoutMemory_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<quint32>("seed");
        for (const char* widget : {"trend chart", "three-phase trend chart", "gauge"})
            for (quint32 seed : {1, 2, 3})
                QTest::addRow("%s, %u", widget, seed) << QString(widget) << seed;
    }
    void paintsAreThoseWithoutMemory()
    {
        QFETCH(QString, widget);
        QFETCH(quint32, seed);
        if (widget == "trend chart")
            comparePaints<Probe<DynamicChart>>(seed);
        else if (widget == "gauge")
            comparePaints<GaugeProbe>(seed);
        else
            comparePaints<Probe<ThreeDynamicChart>>(seed);
    }
};

QTEST_MAIN(TestComposed)
#include "tst_composed.moc"
