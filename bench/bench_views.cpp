// One paint of each view that paints much, at the size that upsdesk gives it.
// May touch: the views, the overview with a simulated fleet, and QtTest.

#include "datachart.h"
#include "dynamicchart.h"
#include "energyline.h"
#include "globalvar.h"
#include "threedynamicchart.h"

#include "connectors/factory/connectorfactory.h"
#include "window/devicelistmodel.h"
#include "window/overviewpage.h"
#include "window/theme.h"

#include <QtTest>

namespace {

constexpr QSize kDiagramSize(775, 690);
constexpr QSize kChartSize(720, 520);
constexpr QSize kGaugeSize(200, 200);
constexpr QSize kScreen(1920, 1080);
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

// Live devices, more than a screen shows.
class Overview
{
public:
    Overview()
    {
        DeviceSettings settings;
        settings.address = *parseDeviceAddress(QStringLiteral("sim:three-phase")).address;
        for (int i = 0; i < 100; ++i)
            m_fleet.add(settings);
        for (int i = 0; i < m_fleet.count(); ++i)
            m_fleet.pollNow(m_fleet.at(i));
        m_page.resize(kScreen);
    }

    QWidget& page() { return m_page; }
    bool isLive() const { return m_fleet.at(m_fleet.count() - 1)->link() == LinkState::Live; }

private:
    Fleet m_fleet{makeConnector};
    DeviceListModel m_model{m_fleet};
    OverviewPage m_page{m_model};
};

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

    void overview()
    {
        Overview overview;
        QTRY_VERIFY(overview.isLive());
        QPixmap target(kScreen);
        QBENCHMARK
        {
            overview.page().render(&target);
        }
    }
};

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    applyTheme(Theme::Light);
    BenchViews bench;
    return QTest::qExec(&bench, argc, argv);
}
#include "bench_views.moc"
