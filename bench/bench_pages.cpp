// What it costs to open devices: the longest stretch of the GUI thread while pages are opened one
// by one, while all views of a page are gone through, and while Down is held through the whole
// list. May touch: the window rooms, the fleet, the simulator.

#include "meteredapplication.h"

#include "connectors/factory/connectorfactory.h"
#include "operators/operatorsession.h"
#include "window/devicepage.h"
#include "window/mainwindow.h"
#include "window/theme.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QKeyEvent>
#include <QListView>
#include <QTimer>

#include <cstdio>

namespace {

constexpr QSize kWindow(1240, 900);
constexpr int kKeyRepeatMs = 33; // a keyboard's 30 strokes a second
constexpr int kRestMs = 400;     // after which a page has been built
constexpr int kOpenedOneByOne = 20;

// What is asked of upsdesk.
constexpr double kMostBusyMs = 16;
constexpr int kMostPages = 8;

void rest(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

bool report(const char* what, const MeteredApplication& app)
{
    const bool good = app.busiest().cpu <= kMostBusyMs;
    std::printf("%-24s %5.1f ms work, %5.1f ms on the clock; above %.0f ms: %d of %d  %s\n", what,
                app.busiest().cpu, app.longest().wall, kMostBusyMs, app.countAbove(kMostBusyMs),
                app.count(), good ? "ok" : "MISSED");
    std::printf("    %s\n", qPrintable(app.busiest().work));
    return good;
}

bool openOneByOne(MeteredApplication& app, MainWindow& window, Fleet& fleet)
{
    app.restart();
    for (int i = 0; i < std::min(kOpenedOneByOne, fleet.count()); ++i) {
        QTimer::singleShot(0, &window, [&] { window.openDevice(fleet.at(i)); });
        rest(kRestMs);
    }
    return report("open one by one", app);
}

bool goThroughViews(MeteredApplication& app, MainWindow& window)
{
    app.restart();
    for (auto view : {DevicePage::ChartView, DevicePage::TableView, DevicePage::DeviceView}) {
        QTimer::singleShot(0, &window, [&] { window.currentPage()->showView(view); });
        rest(kRestMs);
    }
    for (int tab : {1, 2, 3, 0}) {
        QTimer::singleShot(0, &window, [&] { window.currentPage()->showTab(tab); });
        rest(kRestMs);
    }
    return report("go through its views", app);
}

bool holdDown(MeteredApplication& app, MainWindow& window, Fleet& fleet)
{
    auto* list = window.findChild<QListView*>(QStringLiteral("DeviceList"));
    window.openDevice(fleet.at(0));
    rest(kRestMs);
    app.restart();
    QElapsedTimer clock;
    clock.start();
    QEventLoop loop;
    QTimer keyboard;
    int strokes = 0;
    keyboard.setTimerType(Qt::PreciseTimer);
    QObject::connect(&keyboard, &QTimer::timeout, &loop, [&] {
        if (++strokes >= fleet.count())
            return loop.quit();
        const bool repeated = strokes > 1;
        for (auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(
                list, new QKeyEvent(type, Qt::Key_Down, Qt::NoModifier, QString(), repeated));
    });
    keyboard.start(kKeyRepeatMs);
    loop.exec();
    const double late = 100.0 * double(clock.elapsed()) / (kKeyRepeatMs * fleet.count()) - 100.0;
    rest(kRestMs);
    const bool arrived =
        window.currentPage() && &window.currentPage()->device() == fleet.at(fleet.count() - 1);
    const int pages = window.findChildren<DevicePage*>().size();
    const bool good = report("hold Down through all", app);
    std::printf("    behind the keyboard by %.1f %%, last device on show: %s, pages kept: %d\n",
                late, arrived ? "yes" : "NO", pages);
    return good && arrived && pages <= kMostPages;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1"); // the plain dispatcher says when it really waits
    MeteredApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption devicesOption("devices", "How many devices.", "N", "500");
    parser.addOption(devicesOption);
    parser.process(app);
    const int devices = std::max(parser.value(devicesOption).toInt(), 2);

    applyTheme(Theme::Light);
    Fleet fleet(makeConnector);
    EventLog log;
    CommandDesk desk(fleet, log, [] { return CommandDesk::Operator{}; });
    OperatorSession session;
    MainWindow window(fleet, desk, log, session);
    for (int i = 0; i < devices; ++i) {
        DeviceSettings settings;
        const char* address = i % 3 == 0 ? "sim:three-phase" : "sim:";
        settings.address = *parseDeviceAddress(QLatin1String(address)).address;
        settings.name = QStringLiteral("UPS %1").arg(i + 1, 3, 10, QLatin1Char('0'));
        fleet.add(settings);
    }
    window.resize(kWindow);
    window.show();
    rest(6000); // until every device has answered once

    std::printf("%d simulated devices, window of %d x %d\n", devices, kWindow.width(),
                kWindow.height());
    bool good = openOneByOne(app, window, fleet);
    good &= goThroughViews(app, window);
    good &= holdDown(app, window, fleet);
    return good ? 0 : 1;
}
