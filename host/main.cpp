// upsdesk: watches UPSes and commands them. This file only chooses the mode.
// May touch: the modes; the rooms meet in the desk and in the collector.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/languageoption.h"
#include "collector/collector.h"
#include "collector/servicemanager.h"
#include "connectors/factory/connectorfactory.h"
#include "desk.h"
#include "openfilelimit.h"
#include "promptexit.h"
#include "quitsignals.h"

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

// Without a display Qt would end the program; pictures and probes need none.
void fallBackToOffscreen()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
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

// Nothing after telling what is wrong with the arguments.
std::optional<DeskOptions> readOptions()
{
    CliParser parser((QString()));
    parser.addVersionOption();
    const QCommandLineOption kiosk(
        QStringLiteral("kiosk"),
        QStringLiteral("Wall display: all devices, full screen, no commands."));
    const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Dark theme."));
    const LanguageOption language;
    parser.addOptions({kiosk, dark, language});
    if (!parser.read(QApplication::arguments()))
        return {};
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    const auto spoken = language.choice(parser);
    const auto devices = spoken ? devicesOf(parser.positionalArguments()) : std::nullopt;
    if (!devices)
        return {};
    return DeskOptions{*devices, parser.isSet(kiosk), parser.isSet(dark), *spoken};
}

int runWindow()
{
    const auto options = readOptions();
    if (!options)
        return ExitUsage;
    Desk desk(*options, DeskConfig::load());
    desk.open();
    quitOnSignals();
    return QApplication::exec();
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
    return endPromptly(runWindow());
}
