// A fleet of SNMP devices on loopback, polled through the real fleet and connector with the window
// open: is every poll on time, does the GUI thread stay free, how much CPU does it take?
// May touch: everything of upsdesk, and the tests' agents.

#include "agentprocess.h"
#include "meteredapplication.h"
#include "snmp3agents.h"
#include "timedconnector.h"

#include "connectors/factory/connectorfactory.h"
#include "fleet/watchlist.h"
#include "openfilelimit.h"
#include "operators/operatorsession.h"
#include "window/mainwindow.h"
#include "window/theme.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <QTimer>
#include <QUdpSocket>

#include <cstdio>
#include <cstring>
#include <numeric>
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

struct Options {
    int seconds = 60;
    int devices = 500;
    int interval = 5;
    bool snmp3 = false;
    bool secrets = false; // they arrive when the fleet has been loaded
};

Options readOptions(const QCoreApplication& app)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption seconds("seconds", "How long to measure.", "N", "60");
    const QCommandLineOption devices("devices", "How many devices.", "N", "500");
    const QCommandLineOption interval("interval", "Seconds between two polls.", "N", "5");
    const QCommandLineOption snmp3("snmp3", "Version 3, authenticated and encrypted.");
    const QCommandLineOption secrets("secrets", "Their secrets arrive later, all together.");
    parser.addOptions({seconds, devices, interval, snmp3, secrets});
    parser.process(app);
    const auto number = [&parser](const QCommandLineOption& option) {
        return std::max(parser.value(option).toInt(), 1);
    };
    return {number(seconds), number(devices), number(interval),
            parser.isSet(snmp3) || parser.isSet(secrets), parser.isSet(secrets)};
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

quint16 closedPort()
{
    QUdpSocket probe;
    probe.bind(QHostAddress(QHostAddress::LocalHost));
    return probe.localPort();
}

// The devices, in the order of the fleet, and the far side of them.
class WatchedFleet
{
public:
    explicit WatchedFleet(const Options& options)
        : m_options(options)
        , m_polls(static_cast<std::size_t>(options.devices))
    {}

    bool startAgents()
    {
        return m_agents.start(kAgents, kSilentAgents) &&
               (!m_options.snmp3 || m_snmp3Agents.start());
    }

    void fill()
    {
        for (int i = 0; i < m_options.devices; ++i) {
            m_next = i;
            m_settings << settingsOf(i);
            if (m_options.secrets)
                fleet.add(withoutSecrets(m_settings[i]), WatchList::kSecretsPatienceMs);
            else
                fleet.add(m_settings[i]);
        }
    }

    void giveSecrets()
    {
        for (int i = 0; i < m_options.devices; ++i) {
            m_next = i;
            fleet.replace(i, m_settings[i]);
        }
    }

    // Every tenth device cannot be reached: one half of these has nobody at its port, the other
    // half somebody who swallows all.
    static bool isReachable(int number) { return number % kOneInSoManyIsUnreachable != 0; }
    const TimedConnector::Polls& pollsOf(int number) const
    {
        return m_polls[static_cast<std::size_t>(number)];
    }
    const Options& options() const { return m_options; }

    Fleet fleet{[this](const DeviceSettings& settings) {
        const int number = m_next;
        return std::make_unique<TimedConnector>(
            makeConnector(settings), m_polls[static_cast<std::size_t>(number)],
            [this, number] { return fleet.at(number)->dueMs(); });
    }};

private:
    QString addressOf(int number) const
    {
        const int turn = number / kOneInSoManyIsUnreachable;
        if (isReachable(number) && m_options.snmp3)
            return m_snmp3Agents.address(number);
        const quint16 port = isReachable(number) ? m_agents.answering()[number % kAgents]
                             : turn % 2          ? m_agents.silent()[turn % kSilentAgents]
                                                 : closedPort();
        return m_options.snmp3 ? m_snmp3Agents.address(0).replace(
                                     QRegularExpression(QStringLiteral(":\\d+\\?")),
                                     QStringLiteral(":%1?").arg(port))
                               : QStringLiteral("snmp://public@127.0.0.1:%1").arg(port);
    }

    DeviceSettings settingsOf(int number) const
    {
        DeviceSettings settings;
        settings.name = QStringLiteral("UPS %1").arg(number + 1, 3, 10, QLatin1Char('0'));
        settings.address = *parseDeviceAddress(addressOf(number)).address;
        settings.pollInterval = m_options.interval;
        settings.authSecret = "auth-secret";
        settings.privSecret = "priv-secret";
        return settings;
    }

    static DeviceSettings withoutSecrets(DeviceSettings settings)
    {
        settings.authSecret.clear();
        settings.privSecret.clear();
        return settings;
    }

    const Options m_options;
    AgentProcess m_agents;
    Snmp3Agents m_snmp3Agents;
    QVector<DeviceSettings> m_settings;
    std::vector<TimedConnector::Polls> m_polls;
    int m_next = 0; // number of the device whose connector is made next
};

struct Lateness { // worst of all good devices, ms
    qint64 start = 0;
    qint64 end = 0;
    qint64 startToStart = 0;
    int polls = 0;
    int notLive = 0;
};

void addLateness(Lateness& worst, const TimedConnector::Polls& polls, qint64 from,
                 qint64 intervalMs)
{
    const TimedConnector::Poll* before = nullptr;
    for (const TimedConnector::Poll& poll : polls) {
        if (poll.end < 0 || poll.start < from)
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

Lateness latenessOf(const WatchedFleet& watched, qint64 from)
{
    Lateness worst;
    for (int i = 0; i < watched.options().devices; ++i)
        if (WatchedFleet::isReachable(i))
            addLateness(worst, watched.pollsOf(i), from, watched.options().interval * 1000);
    return worst;
}

// Fewest and most polls of good devices that begin in one tenth of a second.
QString spreadOf(const WatchedFleet& watched, qint64 from, qint64 to)
{
    constexpr qint64 kSlotMs = 100;
    QVector<int> starts(std::max(static_cast<int>((to - from) / kSlotMs), 1));
    for (int i = 0; i < watched.options().devices; ++i)
        for (const TimedConnector::Poll& poll : watched.pollsOf(i)) {
            const auto slot = static_cast<int>((poll.start - from) / kSlotMs);
            if (WatchedFleet::isReachable(i) && poll.start >= from && slot < starts.size())
                ++starts[slot];
        }
    const int all = std::accumulate(starts.begin(), starts.end(), 0);
    return QStringLiteral("%1 to %2, even: %3")
        .arg(*std::min_element(starts.begin(), starts.end()))
        .arg(*std::max_element(starts.begin(), starts.end()))
        .arg(double(all) / starts.size(), 0, 'f', 1);
}

bool report(const char* what, const QString& figures, bool good)
{
    std::printf("%-34s %-52s %s\n", what, qPrintable(figures), good ? "ok" : "MISSED");
    return good;
}

bool reportLateness(const WatchedFleet& watched, qint64 from)
{
    const Lateness late = latenessOf(watched, from);
    const bool live = report("polls of good devices",
                             QStringLiteral("%1, not live: %2").arg(late.polls).arg(late.notLive),
                             late.polls > 0 && late.notLive == 0);
    return report("late by at most",
                  QStringLiteral("start %1 ms, end %2 ms, start to start %3 ms")
                      .arg(late.start)
                      .arg(late.end)
                      .arg(late.startToStart),
                  std::max({late.start, late.end, late.startToStart}) <= kMostLateMs) &&
           live;
}

bool reportWork(const MeteredApplication& app, double cpuPercent)
{
    const MeteredApplication::Stretch& busiest = app.busiest();
    const MeteredApplication::Stretch& longest = app.longest();
    const bool free = report("GUI thread busy at a stretch",
                             QStringLiteral("%1 ms work, %2 ms on the clock; above %3 ms: %4 of %5")
                                 .arg(busiest.cpu, 0, 'f', 1)
                                 .arg(longest.wall, 0, 'f', 1)
                                 .arg(kMostBusyMs)
                                 .arg(app.countAbove(kMostBusyMs))
                                 .arg(app.count()),
                             busiest.cpu <= kMostBusyMs);
    const bool idle = report("CPU of one core", QStringLiteral("%1 %").arg(cpuPercent, 0, 'f', 1),
                             cpuPercent < kMostCpuPercent);
    std::printf("longest work: %s\nlongest on the clock (%.1f ms work): %s\n",
                qPrintable(busiest.work), longest.cpu, qPrintable(longest.work));
    return free && idle;
}

// With the window open: the overview for one half of the time, a device for the other.
int measure(MeteredApplication& app, WatchedFleet& watched)
{
    const Options& options = watched.options();
    EventLog log;
    CommandDesk desk(watched.fleet, log, [] { return CommandDesk::Operator{}; });
    OperatorSession session;
    MainWindow window(watched.fleet, desk, log, session);
    watched.fill();
    const int shown = options.devices > 1 ? 1 : 0;
    const auto makePage = [&] {
        window.openDevice(watched.fleet.at(shown));
        window.openOverview();
    };
    makePage();
    window.resize(kScreen);
    window.show();

    // Building the window is not polling: measured from when it has been painted, and from an
    // interval after the secrets have arrived.
    qint64 arrived = 0;
    qint64 from = 0;
    double cpuFrom = 0;
    const auto start = [&] {
        app.restart();
        from = FleetClock::system().monotonicMs();
        cpuFrom = cpuSeconds();
        QTimer::singleShot(options.seconds * 500, &app,
                           [&] { window.openDevice(watched.fleet.at(shown)); });
        QTimer::singleShot(options.seconds * 1000, Qt::PreciseTimer, &app, &QCoreApplication::quit);
    };
    QTimer::singleShot(0, [&] {
        QCoreApplication::processEvents();
        if (!options.secrets)
            return start();
        watched.giveSecrets();
        makePage();
        arrived = FleetClock::system().monotonicMs();
        QTimer::singleShot(options.interval * 1000, Qt::PreciseTimer, &app, start);
    });
    QApplication::exec();
    const qint64 to = FleetClock::system().monotonicMs();
    const double cpuPercent = 100000.0 * (cpuSeconds() - cpuFrom) / double(to - from);

    std::printf("%d devices of version %s every %d s, one in %d unreachable, for %d s\n",
                options.devices, options.snmp3 ? "3" : "2c", options.interval,
                kOneInSoManyIsUnreachable, options.seconds);
    bool good = reportLateness(watched, options.secrets ? from : 0);
    good &= reportWork(app, cpuPercent);
    if (options.secrets)
        std::printf("%-34s %s\n", "... after the secrets arrived",
                    qPrintable(spreadOf(watched, arrived, from)));
    std::printf("%-34s %s\n", "poll starts per 100 ms", qPrintable(spreadOf(watched, from, to)));
    return good ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    raiseOpenFileLimit();
    if (argc == 4 && std::strcmp(argv[1], AgentProcess::kArgument) == 0) {
        QCoreApplication app(argc, argv);
        return AgentProcess::serve(std::atoi(argv[2]), std::atoi(argv[3]));
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1"); // the plain dispatcher says when it really waits
    MeteredApplication app(argc, argv);
    WatchedFleet watched(readOptions(app));
    if (!watched.startAgents()) {
        std::fprintf(stderr, "the agents do not come up\n");
        return 2;
    }
    applyTheme(Theme::Light);
    return measure(app, watched);
}
