// One paint of each view that paints much, at the size that upsdesk gives it.
// May touch: the views and QtTest.

#include "datachart.h"
#include "dynamicchart.h"
#include "energyline.h"
#include "globalvar.h"
#include "threedynamicchart.h"

#include <QtTest>

namespace {

constexpr QSize kDiagramSize(775, 690);
constexpr QSize kChartSize(720, 520);
constexpr QSize kGaugeSize(200, 200);
constexpr int kLastRealTimeKey = 72;
constexpr int kSamples = 1000; // more than a chart is wide

std::unique_ptr<QWidget> diagram()
{
    auto view = std::make_unique<Energyline>();
    QMap<int, QVariant> snapshot;
    for (int key = 0; key <= kLastRealTimeKey; ++key)
        snapshot[key] = 100;
    snapshot[realdata_OutputSource] = 3;
    view->flushData(snapshot);
    view->resize(kDiagramSize);
    return view;
}

template <typename Chart>
std::unique_ptr<QWidget> chart(int series)
{
    auto view = std::make_unique<Chart>();
    view->resize(kChartSize);
    view->grab(); // its width decides how many samples it keeps
    for (int i = 0; i < kSamples; ++i)
        for (int id = 0; id < series; ++id)
            view->addData(id, 200 + 10 * id + i % 17);
    return view;
}

std::unique_ptr<QWidget> gauge()
{
    auto view = std::make_unique<DataChart>();
    view->resize(kGaugeSize);
    view->setValue(230);
    return view;
}

} // namespace

class BenchViews : public QObject
{
    Q_OBJECT

private slots:
    void paint_data()
    {
        QTest::addColumn<int>("view");
        int number = 0;
        for (const char* name : {"energy flow", "single-phase chart", "three-phase chart", "gauge"})
            QTest::newRow(name) << number++;
    }
    void paint()
    {
        QFETCH(int, view);
        const auto widget = view == 0   ? diagram()
                            : view == 1 ? chart<DynamicChart>(4)
                            : view == 2 ? chart<ThreeDynamicChart>(6)
                                        : gauge();
        QPixmap target(widget->size());
        QBENCHMARK
        {
            widget->render(&target);
        }
    }
};

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    BenchViews bench;
    return QTest::qExec(&bench, argc, argv);
}
#include "bench_views.moc"
