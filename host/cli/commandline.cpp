#include "cli/commandline.h"

#include "cli/subcommands.h"

#include <algorithm>
#include <iterator>

namespace {

struct Subcommand {
    const char* name;
    int (*run)(const QStringList& arguments);
    bool needsWidgets = false;
};

constexpr Subcommand kSubcommands[] = {
    {"probe", runProbe},
    {"check", runCheck},
    {"picture", runPicture, true},
    {"command", runCommand},
    {"add-operator", runAddOperator},
    {"check-config", runCheckConfig},
    {"export", runExport},
    {"journal", runJournal},
};

const Subcommand* find(const QString& name)
{
    const auto* found =
        std::find_if(std::begin(kSubcommands), std::end(kSubcommands),
                     [&name](const Subcommand& s) { return name == QLatin1String(s.name); });
    return found != std::end(kSubcommands) ? found : nullptr;
}

} // namespace

QStringList subcommandNames()
{
    QStringList names;
    for (const Subcommand& subcommand : kSubcommands)
        names << QLatin1String(subcommand.name);
    return names;
}

bool isSubcommand(const QString& argument)
{
    return find(argument) != nullptr;
}

bool needsWidgets(const QString& subcommand)
{
    const Subcommand* found = find(subcommand);
    return found && found->needsWidgets;
}

int runSubcommand(const QStringList& arguments)
{
    const Subcommand* subcommand = arguments.size() > 1 ? find(arguments.at(1)) : nullptr;
    if (!subcommand)
        return ExitUsage;
    QStringList own = arguments;
    own.removeAt(1);
    return subcommand->run(own);
}
