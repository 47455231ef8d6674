// upsdesk command ADDRESS NAME [VALUE]: one command, asked about first, followed to its result.
// May touch: devices, their connectors and the terminal.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/onepoll.h"
#include "cli/subcommands.h"
#include "connectors/factory/connectorfactory.h"
#include "connectors/upscommand.h"
#include "fleet/commandterms.h"

#include <QTextStream>

#include <cstdio>
#include <unistd.h>

namespace {

// A result may be a test's begin or a tracked command's end; nothing takes longer to be told.
constexpr int kResultLimitSeconds = 90;

// In the desk's words: what becomes of the output, and how much load loses power.
QString questionAbout(const UpsCommand& command, Device& device)
{
    if (!takesLoadDown(command.kind))
        return QStringLiteral("%1: %2?").arg(device.name(), commandSentence(command));
    pollOnce(device);
    return QCoreApplication::translate("Command", "%1. Send it?")
        .arg(commandWarning(command, device));
}

// Only a person at a terminal can say yes.
bool isConfirmed(const UpsCommand& command, Device& device)
{
    if (!isatty(STDIN_FILENO)) {
        printError(QCoreApplication::translate(
            "Command", "nobody to ask: run it on a terminal, or say --yes"));
        return false;
    }
    QTextStream(stdout) << questionAbout(command, device) << QStringLiteral(" [y/N] ") << Qt::flush;
    const QString answer = QTextStream(stdin).readLine().trimmed().toLower();
    return answer == QLatin1String("y") || answer == QLatin1String("yes");
}

int exitCodeOf(CommandOutcome outcome)
{
    switch (outcome) {
    case CommandOutcome::Done:
        return ExitOk;
    case CommandOutcome::Refused:
    case CommandOutcome::NotOffered:
        return ExitRefused;
    case CommandOutcome::Unknown:
        return ExitResultUnknown;
    case CommandOutcome::NoAnswer:
        break;
    }
    return ExitNotReachable;
}

int carryOut(Device& device, const UpsCommand& command)
{
    const CommandResult result = sendOnce(device, command, kResultLimitSeconds);
    printOut(result.message.isEmpty()
                 ? outcomeLabel(result.outcome)
                 : outcomeLabel(result.outcome) + QStringLiteral(": ") + result.message);
    return exitCodeOf(result.outcome);
}

} // namespace

int runCommand(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("command"));
    const QCommandLineOption yes(QStringLiteral("yes"),
                                 QCoreApplication::translate("Command", "Do not ask."));
    parser.addOption(yes);
    parser.addPositionalArgument(QStringLiteral("NAME"),
                                 QStringLiteral("self-test, discharge-test, cancel-test, shutdown, "
                                                "standby, wake-up, restart"));
    parser.addPositionalArgument(QStringLiteral("VALUE"), QStringLiteral("minutes of standby"),
                                 QStringLiteral("[VALUE]"));
    if (!parser.read(arguments))
        return ExitUsage;
    const QStringList given = parser.positionalArguments();
    const auto settings = settingsForAddress(given.at(0));
    CommandRequest request = commandFromName(given.at(1), given.value(2));
    if (!request.command)
        printError(request.error);
    if (!settings || !request.command)
        return ExitUsage;

    request.command->id = 1;
    Device device(*settings, makeConnector(*settings), FleetClock::system(), 0);
    if (!parser.isSet(yes) && !isConfirmed(*request.command, device))
        return ExitRefused;
    return carryOut(device, *request.command);
}
