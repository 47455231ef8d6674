// Charts and gauge put pixels of earlier paints back where nothing has changed below and in them:
// whatever happens in between, the picture is that of a paint without memory. Touches the widgets
// through probes that make them forget.

#include "datachart.h"
#include "dynamicchart.h"
#include "threedynamicchart.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

namespace {

constexpr QPoint kPlace(13, 7); // in the window
constexpr QSize kSize(330, 300);

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
        switch (dice.bounded(7)) {
        case 0:
            m_now = m_now.addSecs(1);
            break;
        case 1:
            this->max_Y_Left = 400 - this->max_Y_Left;
            break;
        case 2:
            this->max_Y_Right = 100 - this->max_Y_Right;
            break;
        case 3:
            this->m_bShowHLine = !this->m_bShowHLine;
            break;
        case 4:
            this->setUseAntialiasing(!this->getUseAntialiasing());
            break;
        default:
            this->addData(dice.bounded(6), dice.bounded(450));
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
        switch (dice.bounded(6)) {
        case 0:
            return setMaxValue(dice.bounded(2) ? 300 : 350);
        case 1:
            return setMinValue(dice.bounded(2) ? 60 : 0);
        case 2:
            return setRadioValue({0, 1, 2}, {dice.bounded(2) ? 150 : 250, 250, 300});
        case 3:
            m_currentValue = kStep * dice.bounded(8); // the arc runs past the value
            return;
        default:
            setValue(kStep * dice.bounded(9));
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

// What can happen to any widget.
void changeAtRandom(QWidget& window, QWidget& widget, QRandomGenerator& dice)
{
    const bool even = dice.bounded(2) == 0;
    switch (dice.bounded(8)) {
    case 0:
        return widget.resize(kSize - QSize(dice.bounded(3), dice.bounded(3)));
    case 1:
        return window.setPalette(even ? Qt::white : QColor(30, 40, 50));
    case 2:
        return window.setStyleSheet(even ? "" : "* { font: 14pt; color: red }");
    case 3:
        return widget.setStyleSheet(even ? "" : "background: rgba(255, 0, 0, 90)");
    case 4: {
        QFont font(even ? QStringLiteral("Liberation Sans") : QStringLiteral("Liberation Serif"));
        font.setPointSize(dice.bounded(7, 9));
        return widget.setFont(font);
    }
    case 5:
        return widget.move(kPlace + QPoint(even, 0));
    case 6:
        return widget.setEnabled(even);
    default:
        return widget.setAttribute(Qt::WA_StyledBackground, even);
    }
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
    int ratio = 1;
    QImage::Format format = QImage::Format_RGB32;
    for (int i = 0; i < 250; ++i) {
        for (int again = 0; again < 3; ++again) // noted, remembered, put back
            painted(window, ratio, format);
        if (dice.bounded(3) == 0)
            changeAtRandom(window, widget, dice);
        else
            widget.changeAtRandom(dice);
        ratio = dice.bounded(9) ? ratio : 3 - ratio;
        format = dice.bounded(9) ? format : QImage::Format_RGB16;
        const QImage shown = painted(window, ratio, format);
        const QImage screen = window.grab().toImage();
        widget.forget();
        QVERIFY2(shown == painted(window, ratio, format), qPrintable(QString::number(i)));
        widget.forget();
        QVERIFY2(screen == window.grab().toImage(), qPrintable(QString::number(i)));
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
