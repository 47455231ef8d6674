// upsdesk: watches UPSes and commands them. This file only chooses the mode.
// May touch: the command line and the window rooms.

#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "connectors/connectorfactory.h"
#include "window/mainwindow.h"
#include "window/theme.h"

#include <QApplication>
#include <QCommandLineParser>

namespace
{

constexpr int kSimulatorPollSeconds = 1;

// Without a display Qt would end the program; pictures and probes need none.
void fallBackToOffscreen()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int runWindow(QApplication& app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate(
        "main", "Watches uninterruptible power supplies.\n\n"
                "Other modes: probe, picture, command; each explains itself with --help."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("ADDRESS"),
        QApplication::translate("main", "sim:[NAME], nut://HOST[:PORT]/UPS, "
                                        "snmp://COMMUNITY@HOST[:PORT]; the simulator without one"),
        QStringLiteral("[ADDRESS...]"));
    parser.process(app);

    QStringList addresses = parser.positionalArguments();
    if (addresses.isEmpty())
        addresses << QStringLiteral("sim:");
    QVector<DeviceSettings> devices;
    for (const QString& address : qAsConst(addresses)) {
        const auto settings = settingsForAddress(address);
        if (!settings)
            return ExitUsage;
        devices << *settings;
        if (settings->address.scheme == DeviceAddress::Scheme::Simulator)
            devices.last().pollInterval = kSimulatorPollSeconds;
    }

    applyTheme(Theme::Light);
    Fleet fleet(makeConnector);
    EventLog log;
    CommandDesk desk(fleet, log, [] { return CommandDesk::Operator{}; });
    MainWindow window(fleet, desk, log);
    for (const DeviceSettings& settings : qAsConst(devices))
        fleet.add(settings);
    window.openDevice(fleet.at(0));
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    fallBackToOffscreen();
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("upsdesk"));
    QApplication::setApplicationVersion(QStringLiteral(UPSDESK_VERSION));
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 1 && isSubcommand(arguments.at(1)))
        return runSubcommand(arguments);
    return runWindow(app);
}
