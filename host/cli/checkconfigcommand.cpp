// upsdesk check-config [FILE]: says what is wrong in the configuration, line by line.
// May touch: the configuration room, for reading.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/subcommands.h"
#include "config/checkconfig.h"
#include "config/deskconfig.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

void printFault(const QString& path, const ConfigFault& fault)
{
    const bool isError = fault.severity == ConfigSeverity::Error;
    printOut(QStringLiteral("%1:%2: %3: %4")
                 .arg(path)
                 .arg(fault.line)
                 .arg(isError ? QStringLiteral("error") : QStringLiteral("warning"), fault.text));
}

} // namespace

int runCheckConfig(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("check-config"));
    if (!parser.read(arguments))
        return ExitUsage;
    const QString path = parser.positionalArguments().value(0, DeskConfig::defaultPath());
    // Without a file of one's own the defaults apply; a file that was named ought to be there.
    if (!parser.positionalArguments().isEmpty() && !QFileInfo(path).isFile()) {
        printError(QCoreApplication::translate("CheckConfig", "there is no file %1").arg(path));
        return ExitUsage;
    }
    const ConfigFaults faults = checkConfig(path);
    for (const ConfigFault& fault : faults)
        printFault(path, fault);
    if (faults.isEmpty())
        printOut(QCoreApplication::translate("CheckConfig", "%1: no faults").arg(path));
    return hasErrors(faults) ? ExitUsage : ExitOk;
}
