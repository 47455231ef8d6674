#include "cli/cliparser.h"

#include "cli/clisupport.h"
#include "config/deskconfig.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>

struct CliUsage {
    const char* name;
    const char* syntax; // what follows the name
    int least;          // positional arguments
    int most;
    const char* description;
    const char* exitCodes;
    const char* examples; // a line each, what follows "upsdesk "
};

namespace {

constexpr int kAny = std::numeric_limits<int>::max();

constexpr CliUsage kUsages[] = {
    {"", "[ADDRESS...]", 0, kAny,
     QT_TRANSLATE_NOOP(
         "Cli",
         "Watches uninterruptible power supplies: those given, or else those of the "
         "configuration, or else a\nsimulated one. Other modes, each with a --help of "
         "its own: probe, check, picture, command,\nadd-operator, check-config, export, journal.\n"
         "upsdesk --collector polls, records and notifies without a window."),
     QT_TRANSLATE_NOOP("Cli", "0 closed, 2 usage"),
     "nut://10.0.0.5/rack3 snmp://public@10.0.0.7\nsim: sim:outage\n--kiosk --dark"},
    {"probe", "ADDRESS [--json]", 1, 1,
     QT_TRANSLATE_NOOP("Cli", "Asks a device once and prints every value with its unit."),
     QT_TRANSLATE_NOOP("Cli", "0 live, 3 not live, 2 usage"),
     "probe sim:\nprobe nut://10.0.0.5/rack3 --json\nprobe \"Rack 3\""},
    {"check", "ADDRESS [--warning QUANTITY=RANGE]... [--critical QUANTITY=RANGE]...", 1, 1,
     QT_TRANSLATE_NOOP(
         "Cli",
         "A plug-in for monitoring systems: one line with the condition of a device and its "
         "performance\ndata. Quantities are load and charge (%), runtime (s) and "
         "temperature (degrees Celsius). A value that\nlies outside its range alerts: 10 is "
         "0 to 10, 10: is 10 and more, ~:10 is 10 and less, 10:20 is between;\n@10:20 alerts "
         "inside. A range given here takes the place of the configured thresholds for "
         "its\nquantity."),
     QT_TRANSLATE_NOOP("Cli", "0 OK, 1 WARNING, 2 CRITICAL (also: no answer, no new data, source "
                              "unknown), 3 UNKNOWN (also: refused, usage)"),
     "check nut://10.0.0.5/rack3\ncheck \"Rack 3\" --warning load=80 --critical "
     "load=95,runtime=300:"},
    {"picture", "ADDRESS --out DIR [--size WxH] [--theme light|dark] [--language CODE] [--widgets]",
     1, 1, QT_TRANSLATE_NOOP("Cli", "Writes one picture per page of a device; needs no display."),
     QT_TRANSLATE_NOOP("Cli", "0 live, 3 not live, 2 usage or a file that cannot be written"),
     "picture sim:outage --out pictures --size 1280x900 --theme dark"},
    {"command", "ADDRESS NAME [VALUE] [--yes]", 2, 3,
     QT_TRANSLATE_NOOP("Cli", "Asks, sends one command once and waits for its result."),
     QT_TRANSLATE_NOOP("Cli", "0 done, 4 refused, 3 not reachable (nothing was sent), 5 sent but "
                              "the result is unknown, 2 usage"),
     "command nut://10.0.0.5/rack3 self-test\ncommand \"Rack 3\" standby 15 --yes"},
    {"add-operator", "NAME --level N", 1, 1,
     QT_TRANSLATE_NOOP("Cli", "Adds an operator, or gives one a new password and level."),
     QT_TRANSLATE_NOOP("Cli", "0 done, 4 refused, 2 usage"), "add-operator anna --level 1"},
    {"check-config", "[FILE]", 0, 1,
     QT_TRANSLATE_NOOP("Cli", "Says what is wrong in the configuration, line by line."),
     QT_TRANSLATE_NOOP("Cli", "0 no errors, 2 errors, no such file, or usage"),
     "check-config\ncheck-config /etc/upsdesk.conf"},
    {"export", "DEVICE [--from T] [--to T] [--csv|--json]", 1, 1,
     QT_TRANSLATE_NOOP("Cli", "Prints what is stored of a device, oldest first. T is a time, as "
                              "2026-03-29T14:00, or an\nage: 90m, 36h, 7d, 2w."),
     QT_TRANSLATE_NOOP("Cli", "0 printed, 3 the store cannot be read, 2 usage, or nothing is "
                              "stored of the device"),
     "export \"Rack 3\" --from 7d\nexport nut://10.0.0.5/rack3 --json --from 2026-03-29 "
     "--to 2026-03-30"},
    {"journal", "[--device D] [--since T] [--json]", 0, 0,
     QT_TRANSLATE_NOOP("Cli", "Prints what happened, oldest first, and what has lasted since "
                              "before. T is a time, as\n2026-03-29T14:00, or an age: 90m, 36h, "
                              "7d, 2w."),
     QT_TRANSLATE_NOOP("Cli", "0 printed, 3 the store cannot be read, 2 usage, or nothing is "
                              "stored of the device"),
     "journal --since 36h\njournal --device \"Rack 3\" --json"},
};

const CliUsage& usageOf(const QString& name)
{
    const auto* found =
        std::find_if(std::begin(kUsages), std::end(kUsages),
                     [&name](const CliUsage& u) { return name == QLatin1String(u.name); });
    return found != std::end(kUsages) ? *found : kUsages[0];
}

QString told(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

} // namespace

CliParser::CliParser(const QString& name)
    : m_usage(usageOf(name))
{
    addOption({{QStringLiteral("h"), QStringLiteral("help")}, told("Shows this help.")});
}

QString CliParser::fault(const QStringList& arguments)
{
    if (!parse(arguments))
        return errorText();
    if (isSet(QStringLiteral("help")))
        return {};
    const int given = positionalArguments().size();
    if (given < m_usage.least)
        return told("an argument is missing");
    return given > m_usage.most ? told("too many arguments") : QString();
}

bool CliParser::read(const QStringList& arguments)
{
    const QString wrong = fault(arguments);
    if (!wrong.isEmpty())
        return tellUsage(wrong);
    if (isSet(QStringLiteral("help"))) {
        printOut(page());
        std::exit(EXIT_SUCCESS);
    }
    return true;
}

bool CliParser::tellUsage(const QString& fault) const
{
    printError(fault);
    printError(usageLine());
    return false;
}

QString CliParser::usageLine() const
{
    QStringList words{QStringLiteral("usage: upsdesk"), QLatin1String(m_usage.name),
                      QLatin1String(m_usage.syntax)};
    words.removeAll(QString());
    return words.join(QLatin1Char(' '));
}

QString CliParser::page() const
{
    const QString blank = QStringLiteral("\n\n");
    const QString indent = QStringLiteral("\n  ");
    // The first paragraph of Qt's own is a usage line that knows no subcommands.
    const QString options = helpText().section(blank, 1).trimmed();
    QString examples;
    for (const QString& example : QString::fromLatin1(m_usage.examples).split(QLatin1Char('\n')))
        examples += indent + QStringLiteral("upsdesk ") + example;
    const QString addresses =
        told("An ADDRESS is sim:[SITUATION], nut://HOST[:PORT]/UPS, "
             "snmp://COMMUNITY@HOST[:PORT][?version=1],\nsnmp://USER@HOST?version=3&level=authPriv"
             "&auth=SHA&priv=AES, or the name of a configured device.");
    QStringList parts{usageLine(), told(m_usage.description), options};
    if (QLatin1String(m_usage.syntax).contains(QLatin1String("ADDRESS")))
        parts << addresses;
    parts << told("Exit codes: %1").arg(told(m_usage.exitCodes)) << told("Examples:") + examples
          << told("Configuration: %1").arg(DeskConfig::defaultPath());
    return parts.join(blank);
}
