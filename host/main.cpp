// upsdesk: watches UPSes and commands them. This file only chooses the mode.
// May touch: everything; it is where the rooms meet.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "collector/collector.h"
#include "collector/servicemanager.h"
#include "config/deskconfig.h"
#include "connectors/factory/connectorfactory.h"
#include "fleet/watchlist.h"
#include "history/deskhistory.h"
#include "metrics/metricsserver.h"
#include "notify/notifier.h"
#include "openfilelimit.h"
#include "operators/operatorsession.h"
#include "promptexit.h"
#include "quitsignals.h"
#include "viewer/relayconnector.h"
#include "viewer/viewer.h"
#include "window/activitywatch.h"
#include "window/deviceactions.h"
#include "window/mainwindow.h"
#include "window/operatordesk.h"
#include "window/themechoice.h"
#include "window/trayicon.h"

#include <QApplication>
#include <QIcon>

static QIcon applicationIcon() // outside: the macro does not work in a namespace
{
    Q_INIT_RESOURCE(upsdesk);
    QIcon icon;
    for (const char* file : {":/upsdesk/upsdesk-48.png", ":/upsdesk/upsdesk-256.png"})
        icon.addFile(QLatin1String(file));
    return icon;
}

namespace {

constexpr int kMsPerMinute = 60 * 1000;

// Without a display Qt would end the program; pictures and probes need none.
void fallBackToOffscreen()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

struct WindowOptions {
    QStringList addresses;
    bool kiosk = false;
    bool dark = false;
};

std::optional<WindowOptions> readOptions()
{
    CliParser parser((QString()));
    parser.addVersionOption();
    const QCommandLineOption kiosk(
        QStringLiteral("kiosk"),
        QApplication::translate("main", "Wall display: all devices, full screen, no commands."));
    const QCommandLineOption dark(QStringLiteral("dark"),
                                  QApplication::translate("main", "Dark theme."));
    parser.addOptions({kiosk, dark});
    if (!parser.read(QApplication::arguments()))
        return {};
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    return WindowOptions{parser.positionalArguments(), parser.isSet(kiosk), parser.isSet(dark)};
}

// What is wrong in the configuration, for the operator; empty when nothing is.
QString faultText(const DeskConfig& config)
{
    QStringList lines;
    for (const ConfigFault& fault : config.faults())
        if (fault.severity == ConfigSeverity::Error)
            lines << QApplication::translate("main", "line %1: %2").arg(fault.line).arg(fault.text);
    if (lines.isEmpty())
        return {};
    return QApplication::translate("main",
                                   "The configuration has faults and is used without them: ") +
           lines.join(QStringLiteral("; "));
}

// As it was left; a wall display leaves no traces, and is none of the desk's.
void openWindow(MainWindow& window, const WindowOptions& options, const WindowState& state)
{
    if (options.kiosk)
        return window.showFullScreen();
    window.restore(state);
    window.show();
}

// The menu's choice goes into the file; a change of the file, from wherever, dresses the window.
void followTheme(MainWindow& window, WatchList& list, ThemeChoice shown)
{
    window.markTheme(shown);
    const auto dress = [&window](ThemeChoice choice) {
        applyThemeChoice(choice);
        window.markTheme(choice);
    };
    auto inFile = std::make_shared<ThemeChoice>(list.config().settings().theme);
    QObject::connect(&list, &WatchList::changed, &window, [&list, dress, inFile] {
        const ThemeChoice now = list.config().settings().theme;
        if (now != *inFile)
            dress(now);
        *inFile = now;
    });
    QObject::connect(&window, &MainWindow::themeChosen, &window, [&, dress](ThemeChoice choice) {
        dress(choice);
        const QString reason = list.edit(MainWindow::tr("Theme"), [choice](DeskConfig& edited) {
            DeskSettings settings = edited.settings();
            settings.theme = choice;
            return edited.setSettings(settings);
        });
        if (!reason.isEmpty())
            window.tell(reason, true);
    });
}

// Notifications and metrics as the settings want them; what fails stands in the event list.
void followOutside(Notifier& notifier, MetricsServer& metrics, WatchList& list, EventLog& log)
{
    const auto note = [&log](const QString& text, const QString& reason) {
        DeskEvent event;
        event.kind = EventKind::Fault;
        event.text = text;
        event.outcome = MainWindow::tr("failed");
        event.message = reason;
        event.isBad = true;
        log.append(event);
    };
    QObject::connect(&notifier, &Notifier::failed, &notifier,
                     [note](Notifier::Channel channel, const QString& reason) {
                         note(Notifier::channelName(channel), reason);
                     });
    QObject::connect(&notifier, &Notifier::beep, &notifier, &QApplication::beep);
    auto listening = std::make_shared<QString>();
    const auto follow = [&notifier, &metrics, &list, note, listening] {
        const DeskSettings& settings = list.config().settings();
        notifier.setSettings(settings.notify);
        if (settings.metrics == *listening)
            return;
        *listening = settings.metrics;
        if (const QString reason = metrics.listen(settings.metrics); !reason.isEmpty())
            note(MainWindow::tr("Metrics"), reason);
    };
    follow();
    QObject::connect(&list, &WatchList::changed, &notifier, follow);
}

// Empty where one of the addresses is none; why has been said.
std::optional<QVector<DeviceSettings>> devicesOf(const QStringList& addresses)
{
    QVector<DeviceSettings> devices;
    for (const QString& address : addresses) {
        const auto settings = settingsForAddress(address, subcommandNames());
        if (!settings)
            return {};
        devices << *settings;
    }
    return devices;
}

// Those of the command line, else those of the configuration, else the simulator.
void watchDevices(const QVector<DeviceSettings>& devices, Fleet& fleet, WatchList& list,
                  MainWindow& window, bool isWall)
{
    for (const DeviceSettings& settings : devices)
        fleet.add(settings);
    if (devices.isEmpty())
        list.load();
    if (fleet.count() == 0)
        window.setSimulation(fleet.add(*settingsForAddress(QStringLiteral("sim:"))));
    if (fleet.count() == 1 && !isWall)
        window.openDevice(fleet.at(0));
}

// What the configuration says at the start and whenever it has changed.
void follow(const DeskConfig& config, OperatorSession& session, Fleet& fleet)
{
    session.setOperators(Operators(config.operators()));
    session.setIdleTime(config.settings().idleLogout * kMsPerMinute);
    fleet.setThresholds(config.settings().thresholds);
}

// Who names a device wants to see that one, whatever others collect.
bool isViewer(const DeskConfig& config, const QVector<DeviceSettings>& devices)
{
    return config.settings().history.mode == HistoryMode::Viewer && devices.isEmpty();
}

// A desk that shows what the collectors tell, and polls nothing.
std::unique_ptr<Viewer> view(const DeskSettings& settings, Fleet& fleet, DeskHistory& history,
                             MainWindow& window)
{
    auto viewer = std::make_unique<Viewer>(fleet);
    window.setViewer(*viewer);
    viewer->start(settings.history, settings.secrets);
    // What collectors have written is news for the journal, too.
    QObject::connect(&history, &DeskHistory::started, viewer.get(), [&history, v = viewer.get()] {
        QObject::connect(v, &Viewer::heard, history.writer(), &HistoryWriter::committed);
    });
    history.startReading(settings.history, settings.secrets);
    return viewer;
}

std::unique_ptr<Viewer> beginWatching(const QVector<DeviceSettings>& devices, Fleet& fleet,
                                      WatchList& list, DeskHistory& history, MainWindow& window,
                                      bool isWall)
{
    const DeskSettings& settings = list.config().settings();
    if (isViewer(list.config(), devices)) {
        list.leaveDevices();
        return view(settings, fleet, history, window);
    }
    watchDevices(devices, fleet, list, window, isWall);
    if (settings.history.mode == HistoryMode::Desk)
        history.start(settings.history, settings.secrets);
    return {};
}

int runWindow(const WindowOptions& options)
{
    const auto devices = devicesOf(options.addresses);
    if (!devices)
        return ExitUsage;

    const WindowState state = options.kiosk ? WindowState() : WindowState::load();
    const DeskConfig config = DeskConfig::load();
    const ThemeChoice theme = options.dark ? ThemeChoice::Dark : config.settings().theme;
    applyThemeChoice(theme);
    OperatorSession session;
    ActivityWatch watch(session);
    Fleet fleet(isViewer(config, *devices) ? RelayConnector::make : makeConnector);
    follow(config, session, fleet);
    EventLog log;
    CommandDesk desk(fleet, log, [&session] {
        session.check();
        return CommandDesk::Operator{session.name(), session.level()};
    });
    const auto mode = options.kiosk ? MainWindow::Mode::Kiosk : MainWindow::Mode::Desk;
    MainWindow window(fleet, desk, log, session, mode);
    if (const QString faults = faultText(config); !faults.isEmpty())
        window.tell(faults, true);

    WatchList list(fleet, config);
    QObject::connect(&list, &WatchList::secretsFailed, &window,
                     [&window](const QString& text) { window.tell(text, true); });
    QObject::connect(&list, &WatchList::changed, &session,
                     [&] { follow(list.config(), session, fleet); });
    followTheme(window, list, theme);
    const auto* operators = new OperatorDesk(session, list, desk, log, &window);
    if (!options.kiosk)
        window.setActions(new DeviceActions(fleet, list, makeConnector, session, &window),
                          operators->settingsAction());
    Notifier notifier(fleet, config.settings().notify);
    MetricsServer metrics(fleet);
    followOutside(notifier, metrics, list, log);
    const Attention attention(fleet);
    QObject::connect(&attention, &Attention::changed, &window,
                     [&] { window.setTroubleCount(attention.count()); });
    TrayIcon tray(attention, window);
    QObject::connect(&tray, &TrayIcon::muted, &notifier, &Notifier::setMuted);
    // A simulation is worth keeping only where somebody has put it into the configuration.
    DeskHistory history(fleet, log, [&list](const Device& device) {
        return !device.isSimulated() || list.isConfigured(&device);
    });
    QObject::connect(&history, &DeskHistory::told, &window, &MainWindow::tell);
    window.setHistory(history);
    const auto viewer = beginWatching(*devices, fleet, list, history, window, options.kiosk);
    openWindow(window, options, state);
    quitOnSignals();
    const int result = QApplication::exec();
    if (!options.kiosk)
        window.state().save();
    return result;
}

int runCollector()
{
    if (QCoreApplication::arguments().size() > 2) {
        logLine(LogLevel::Error, QCoreApplication::translate(
                                     "main", "--collector takes its devices from the configuration "
                                             "and no further arguments"));
        return ExitUsage;
    }
    Collector collector(makeConnector);
    if (const QString reason = collector.start(); !reason.isEmpty()) {
        logLine(LogLevel::Error, reason);
        return ExitUsage;
    }
    quitOnSignals([&collector] { collector.reload(); });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    raiseOpenFileLimit();
    QCoreApplication::setApplicationName(QStringLiteral("upsdesk"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UPSDESK_VERSION));
    const QString mode = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (isSubcommand(mode) && !needsWidgets(mode)) {
        QCoreApplication app(argc, argv);
        return endPromptly(runSubcommand(QCoreApplication::arguments()));
    }

    if (mode == QLatin1String("--collector")) {
        QCoreApplication app(argc, argv);
        return endPromptly(runCollector());
    }

    fallBackToOffscreen();
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QApplication::setWindowIcon(applicationIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("upsdesk"));
    if (isSubcommand(mode))
        return endPromptly(runSubcommand(QApplication::arguments()));
    const auto options = readOptions();
    return endPromptly(options ? runWindow(*options) : ExitUsage);
}
