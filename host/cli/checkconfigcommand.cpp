#include "cli/checkconfigcommand.h"

#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "config/checkconfig.h"
#include "config/deskconfig.h"

#include <QCommandLineParser>

int runCheckConfig(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate(
        "CheckConfig", "Says what is wrong in the configuration, line by line."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("the user's own without one"),
                                 QStringLiteral("[FILE]"));
    if (!readArguments(parser, arguments))
        return ExitUsage;
    if (parser.positionalArguments().size() > 1) {
        printError(
            QCoreApplication::translate("CheckConfig", "usage: upsdesk check-config [FILE]"));
        return ExitUsage;
    }
    const QString path = parser.positionalArguments().value(0, DeskConfig::defaultPath());
    const ConfigFaults faults = checkConfig(path);
    for (const ConfigFault& fault : faults)
        printOut(QStringLiteral("%1:%2: %3: %4")
                     .arg(path)
                     .arg(fault.line)
                     .arg(fault.severity == ConfigSeverity::Error ? QStringLiteral("error")
                                                                  : QStringLiteral("warning"),
                          fault.text));
    if (faults.isEmpty())
        printOut(QCoreApplication::translate("CheckConfig", "%1: no faults").arg(path));
    return hasErrors(faults) ? ExitUsage : ExitOk;
}
