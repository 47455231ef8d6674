// A desk that polls nothing, with the devices of many sites: their collectors are a process of
// their own, PostgreSQL is started here. Does the GUI thread stay free, how much CPU does the desk
// take, how old is what it shows? May touch: everything of upsdesk, and the tests' PostgreSQL.

#include "meteredapplication.h"

#include "collector/livewriter.h"
#include "connectors/factory/connectorfactory.h"
#include "operators/operatorsession.h"
#include "support/postgresfixture.h"
#include "viewer/relayconnector.h"
#include "viewer/viewer.h"
#include "window/mainwindow.h"
#include "window/theme.h"

#include <QCommandLineParser>
#include <QProcess>

#include <csignal>
#include <cstdio>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace {

constexpr QSize kScreen(1920, 1080);
constexpr int kStartMs = 120000;

// What is asked of upsdesk.
constexpr double kMostBusyMs = 50;
constexpr double kMostCpuPercent = 50;
constexpr qint64 kMostLateMs = 3000; // of a reading, beyond its interval

struct Options {
    int seconds = 60;
    int devices = 5000;
    int sites = 20;
    int interval = 5;
    QString store; // of the process that plays the collectors
};

Options readOptions(const QCoreApplication& app)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption seconds("seconds", "How long to measure.", "N", "60");
    const QCommandLineOption devices("devices", "How many devices.", "N", "5000");
    const QCommandLineOption sites("sites", "Of how many sites.", "N", "20");
    const QCommandLineOption interval("interval", "Seconds between two polls.", "N", "5");
    QCommandLineOption collect("collect", "Be the collectors.", "STORE");
    collect.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions({seconds, devices, sites, interval, collect});
    parser.process(app);
    const auto number = [&parser](const QCommandLineOption& option) {
        return std::max(parser.value(option).toInt(), 1);
    };
    return {number(seconds), number(devices), number(sites), number(interval),
            parser.value(collect)};
}

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) {
        return double(t.tv_sec) + double(t.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Collectors as they are, but for what viewers have no use of.
int collect(const Options& options)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // also where the measuring is killed
    std::vector<std::unique_ptr<Fleet>> fleets;
    std::vector<std::unique_ptr<LiveWriter>> writers;
    const StoreAddress store = parseStoreAddress(options.store).address;
    for (int site = 0; site < options.sites; ++site) {
        fleets.push_back(std::make_unique<Fleet>(makeConnector));
        for (int i = site; i < options.devices; i += options.sites) {
            DeviceSettings settings;
            settings.name = QStringLiteral("UPS %1").arg(i / options.sites + 1);
            settings.address = *parseDeviceAddress(i % 10 ? "sim:three-phase" : "sim:").address;
            settings.seed = static_cast<quint32>(i);
            settings.pollInterval = options.interval;
            fleets.back()->add(settings);
        }
        writers.push_back(std::make_unique<LiveWriter>(
            *fleets.back(), store, QStringLiteral("Site %1").arg(site + 1, 2, 10, QChar('0')),
            [] { return true; }));
    }
    return QCoreApplication::exec();
}

bool report(const char* what, const QString& figures, bool good)
{
    std::printf("%-34s %-60s %s\n", what, qPrintable(figures), good ? "ok" : "MISSED");
    return good;
}

// Pumps events until it is so.
bool waitFor(const std::function<bool()>& isSo, int ms)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (!isSo() && elapsed.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return isSo();
}

bool reportShown(const Fleet& fleet, const Options& options)
{
    int live = 0;
    qint64 oldest = 0;
    for (int i = 0; i < fleet.count(); ++i) {
        live += fleet.at(i)->link() == LinkState::Live;
        oldest = std::max(oldest, fleet.at(i)->ageMs());
    }
    const bool all =
        report("devices on show", QStringLiteral("%1, live: %2").arg(fleet.count()).arg(live),
               live == options.devices);
    return report("oldest reading", QStringLiteral("%1 ms").arg(oldest),
                  oldest <= options.interval * 1000 + kMostLateMs) &&
           all;
}

bool reportWork(const MeteredApplication& app, const char* where, double cpuPercent)
{
    const QByteArray gui = QByteArray(where) + ": GUI busy at a stretch";
    const QByteArray cpu = QByteArray(where) + ": CPU of one core";
    const bool free = report(gui,
                             QStringLiteral("%1 ms work; above %2 ms: %3 of %4")
                                 .arg(app.busiest().cpu, 0, 'f', 1)
                                 .arg(kMostBusyMs)
                                 .arg(app.countAbove(kMostBusyMs))
                                 .arg(app.count()),
                             app.busiest().cpu <= kMostBusyMs);
    std::printf("  %s\n", qPrintable(app.busiest().work));
    return report(cpu, QStringLiteral("%1 %").arg(cpuPercent, 0, 'f', 1),
                  cpuPercent < kMostCpuPercent) &&
           free;
}

bool measureFor(MeteredApplication& app, const char* where, int ms)
{
    app.restart();
    const double cpuFrom = cpuSeconds();
    QTimer::singleShot(ms, Qt::PreciseTimer, &app, &QCoreApplication::quit);
    QApplication::exec();
    return reportWork(app, where, 100000.0 * (cpuSeconds() - cpuFrom) / ms);
}

int measure(MeteredApplication& app, const Options& options, const StoreAddress& store)
{
    Fleet fleet(RelayConnector::make);
    EventLog log;
    CommandDesk desk(fleet, log, [] { return CommandDesk::Operator{}; });
    OperatorSession session;
    MainWindow window(fleet, desk, log, session);
    Viewer viewer(fleet);
    window.setViewer(viewer);
    window.resize(kScreen);
    window.show();
    QElapsedTimer filling;
    filling.start();
    viewer.start(store);
    const auto isLive = [&fleet](int devices) {
        int live = 0;
        for (int i = 0; i < fleet.count(); ++i)
            live += fleet.at(i)->link() == LinkState::Live;
        return live == devices;
    };
    const bool filled = waitFor([&] { return isLive(options.devices); }, kStartMs);
    std::printf("%d devices of %d sites every %d s; all on show after %lld ms\n", options.devices,
                options.sites, options.interval, filling.elapsed());
    bool good =
        report("while they came: GUI busy",
               QStringLiteral("%1 ms work at most").arg(app.busiest().cpu, 0, 'f', 1), filled);
    measureFor(app, "(settling)", 3000);
    good &= measureFor(app, "overview", options.seconds * 500);
    window.openDevice(fleet.at(1));
    good &= measureFor(app, "one device", options.seconds * 500);
    good &= reportShown(fleet, options);
    return good ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1"); // the plain dispatcher says when it really waits
    MeteredApplication app(argc, argv);
    const Options options = readOptions(app);
    if (!options.store.isEmpty())
        return collect(options);
    PostgresFixture postgres;
    if (const QString reason = postgres.start(); !reason.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(reason));
        return 2;
    }
    applyTheme(Theme::Light);
    QProcess collectors;
    collectors.setProcessChannelMode(QProcess::ForwardedChannels);
    const auto numbered = [](const char* option, int number) {
        return QStringLiteral("--%1=%2").arg(QLatin1String(option)).arg(number);
    };
    collectors.start(QCoreApplication::applicationFilePath(),
                     {"--collect=" + postgres.address().text(),
                      numbered("devices", options.devices), numbered("sites", options.sites),
                      numbered("interval", options.interval)});
    const int result = measure(app, options, postgres.address());
    collectors.kill();
    collectors.waitForFinished();
    return result;
}
