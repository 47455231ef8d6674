// A fleet of SNMP devices on loopback, polled through the real fleet and connector with the window
// open: is every poll on time, does the GUI thread stay free, how much CPU does it take?
// May touch: everything of upsdesk, and the tests' agents.

#include "agentprocess.h"
#include "meteredapplication.h"
#include "timedconnector.h"

#include "connectors/connectorfactory.h"
#include "operators/operatorsession.h"
#include "window/mainwindow.h"
#include "window/theme.h"

#include <QCommandLineParser>
#include <QTimer>
#include <QUdpSocket>

#include <cstdio>
#include <cstring>
#include <sys/resource.h>

namespace {

constexpr int kAgents = 50;
constexpr int kSilentAgents = 5;
constexpr int kOneInSoManyIsUnreachable = 10;

constexpr QSize kScreen(1920, 1080);

// What is asked of upsdesk.
constexpr double kMostLateMs = 1000;
constexpr double kMostBusyMs = 16;
constexpr double kMostCpuPercent = 50;

struct Watched {
    TimedConnector* connector = nullptr;
    bool reachable = true;
};

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) {
        return double(t.tv_sec) + double(t.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

quint16 closedPort()
{
    QUdpSocket probe;
    probe.bind(QHostAddress(QHostAddress::LocalHost));
    return probe.localPort();
}

// Every tenth device cannot be reached: one half of these has nobody at its port, the other half
// somebody who swallows all.
DeviceSettings settingsOf(int number, const AgentProcess& agents, int interval, bool& reachable)
{
    const int turn = number / kOneInSoManyIsUnreachable;
    reachable = number % kOneInSoManyIsUnreachable != 0;
    const quint16 port = reachable  ? agents.answering()[number % kAgents]
                         : turn % 2 ? agents.silent()[turn % kSilentAgents]
                                    : closedPort();
    DeviceSettings settings;
    settings.name = QStringLiteral("UPS %1").arg(number + 1, 3, 10, QLatin1Char('0'));
    settings.address =
        *parseDeviceAddress(QStringLiteral("snmp://public@127.0.0.1:%1").arg(port)).address;
    settings.pollInterval = interval;
    return settings;
}

struct Lateness { // worst of all good devices, ms
    qint64 start = 0;
    qint64 end = 0;
    qint64 startToStart = 0;
    int polls = 0;
    int notLive = 0;
};

Lateness latenessOf(const std::vector<Watched>& fleet, qint64 intervalMs)
{
    Lateness worst;
    for (const Watched& watched : fleet) {
        if (!watched.reachable)
            continue;
        const TimedConnector::Poll* before = nullptr;
        for (const TimedConnector::Poll& poll : watched.connector->polls) {
            if (poll.end < 0)
                continue;
            ++worst.polls;
            worst.notLive += poll.state != LinkState::Live;
            worst.start = std::max(worst.start, poll.start - poll.due);
            worst.end = std::max(worst.end, poll.end - poll.due);
            if (before)
                worst.startToStart =
                    std::max(worst.startToStart, poll.start - before->start - intervalMs);
            before = &poll;
        }
    }
    return worst;
}

// Fewest and most polls of good devices that begin in one tenth of a second.
QPair<int, int> spreadOf(const std::vector<Watched>& fleet, qint64 from, qint64 to)
{
    constexpr qint64 kSlotMs = 100;
    QVector<int> starts(static_cast<int>((to - from) / kSlotMs));
    for (const Watched& watched : fleet)
        for (const TimedConnector::Poll& poll : watched.connector->polls) {
            const auto slot = static_cast<int>((poll.start - from) / kSlotMs);
            if (watched.reachable && poll.start >= from && slot < starts.size())
                ++starts[slot];
        }
    if (starts.isEmpty())
        return {0, 0};
    return {*std::min_element(starts.begin(), starts.end()),
            *std::max_element(starts.begin(), starts.end())};
}

bool report(const char* what, const QString& figures, bool good)
{
    std::printf("%-34s %-52s %s\n", what, qPrintable(figures), good ? "ok" : "MISSED");
    return good;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::strcmp(argv[1], AgentProcess::kArgument) == 0) {
        QCoreApplication app(argc, argv);
        return AgentProcess::serve(std::atoi(argv[2]), std::atoi(argv[3]));
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1"); // the plain dispatcher says when it really waits
    MeteredApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption secondsOption("seconds", "How long to measure.", "N", "60");
    const QCommandLineOption devicesOption("devices", "How many devices.", "N", "500");
    const QCommandLineOption intervalOption("interval", "Seconds between two polls.", "N", "5");
    parser.addOptions({secondsOption, devicesOption, intervalOption});
    parser.process(app);
    const int seconds = std::max(parser.value(secondsOption).toInt(), 1);
    const int devices = std::max(parser.value(devicesOption).toInt(), 1);
    const int interval = std::max(parser.value(intervalOption).toInt(), 1);

    AgentProcess agents;
    if (!agents.start(kAgents, kSilentAgents)) {
        std::fprintf(stderr, "the agents do not come up\n");
        return 2;
    }

    applyTheme(Theme::Light);
    std::vector<Watched> watched;
    Fleet fleet([&](const DeviceSettings& settings) {
        auto connector = std::make_unique<TimedConnector>(makeConnector(settings));
        watched.push_back({connector.get(), true});
        return connector;
    });
    EventLog log;
    CommandDesk desk(fleet, log, [] { return CommandDesk::Operator{}; });
    OperatorSession session;
    MainWindow window(fleet, desk, log, session);
    for (int i = 0; i < devices; ++i) {
        bool reachable = true;
        const Device* device = fleet.add(settingsOf(i, agents, interval, reachable));
        watched.back().connector->device = device;
        watched.back().reachable = reachable;
    }
    Device* const shown = fleet.at(devices > 1 ? 1 : 0);
    window.openDevice(shown); // makes its page
    window.openOverview();
    window.resize(kScreen);
    window.show();

    // Building the window is not polling: measured from when it has been painted. The overview
    // for one half of the time, a device for the other.
    qint64 from = 0;
    double cpuFrom = 0;
    QTimer::singleShot(0, [&] {
        QCoreApplication::processEvents();
        app.restart();
        from = FleetClock::system().monotonicMs();
        cpuFrom = cpuSeconds();
        QTimer::singleShot(seconds * 500, &app, [&] { window.openDevice(shown); });
        QTimer::singleShot(seconds * 1000, Qt::PreciseTimer, &app, &QCoreApplication::quit);
    });
    QApplication::exec();
    const qint64 to = FleetClock::system().monotonicMs();
    const double cpu = 100000.0 * (cpuSeconds() - cpuFrom) / double(to - from);

    const Lateness late = latenessOf(watched, interval * 1000);
    const auto spread = spreadOf(watched, from, to);
    const MeteredApplication::Stretch& busiest = app.busiest();
    const MeteredApplication::Stretch& longest = app.longest();
    std::printf("%d devices every %d s, one in %d unreachable, for %d s\n", devices, interval,
                kOneInSoManyIsUnreachable, seconds);
    bool good = report("polls of good devices",
                       QStringLiteral("%1, not live: %2").arg(late.polls).arg(late.notLive),
                       late.polls > 0 && late.notLive == 0);
    good &= report("late by at most",
                   QStringLiteral("start %1 ms, end %2 ms, start to start %3 ms")
                       .arg(late.start)
                       .arg(late.end)
                       .arg(late.startToStart),
                   std::max({late.start, late.end, late.startToStart}) <= kMostLateMs);
    good &= report("GUI thread busy at a stretch",
                   QStringLiteral("%1 ms work, %2 ms on the clock; above %3 ms: %4 of %5")
                       .arg(busiest.cpu, 0, 'f', 1)
                       .arg(longest.wall, 0, 'f', 1)
                       .arg(kMostBusyMs)
                       .arg(app.countAbove(kMostBusyMs))
                       .arg(app.count()),
                   busiest.cpu <= kMostBusyMs);
    good &= report("CPU of one core", QStringLiteral("%1 %").arg(cpu, 0, 'f', 1),
                   cpu < kMostCpuPercent);
    std::printf("%-34s %d to %d, even: %.1f\n", "poll starts per 100 ms", spread.first,
                spread.second, double(late.polls) * 100.0 / double(to - from));
    std::printf("longest work: %s\nlongest on the clock (%.1f ms work): %s\n",
                qPrintable(busiest.work), longest.cpu, qPrintable(longest.work));
    return good ? 0 : 1;
}
