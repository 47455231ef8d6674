#include "connectors/upscommand.h"

#include "connectors/nearestname.h"

#include "e_event.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(UpsCommand)
};

struct CommandRow {
    CommandKind kind;
    int code; // the event the control page posts
    const char* name;
    const char* label;
};

// Standby and restart share a code; the value tells them apart.
constexpr CommandRow kCommands[] = {
    {CommandKind::SelfTest, eEvent_Control_selfTest, "self-test",
     QT_TRANSLATE_NOOP("UpsCommand", "Self-test")},
    {CommandKind::DischargeTest, eEvent_Control_disChargeToLow, "discharge-test",
     QT_TRANSLATE_NOOP("UpsCommand", "Discharge test to low voltage")},
    {CommandKind::CancelTest, eEvent_Control_cancelTest, "cancel-test",
     QT_TRANSLATE_NOOP("UpsCommand", "Cancel test")},
    {CommandKind::Shutdown, eEvent_Control_shutdownUps, "shutdown",
     QT_TRANSLATE_NOOP("UpsCommand", "Shutdown")},
    {CommandKind::Standby, eEvent_Control_openUps, "standby",
     QT_TRANSLATE_NOOP("UpsCommand", "Standby")},
    {CommandKind::WakeUp, eEvent_Control_wakeupUps, "wake-up",
     QT_TRANSLATE_NOOP("UpsCommand", "Wake up from standby")},
    {CommandKind::Restart, eEvent_Control_openUps, "restart",
     QT_TRANSLATE_NOOP("UpsCommand", "Restart")},
};

const CommandRow& rowOf(CommandKind kind)
{
    return *std::find_if(std::begin(kCommands), std::end(kCommands),
                         [kind](const CommandRow& row) { return row.kind == kind; });
}

CommandRequest request(CommandKind kind)
{
    UpsCommand command;
    command.kind = kind;
    return {command, {}};
}

CommandRequest standbyFor(const QString& minutesText)
{
    bool ok = false;
    const int minutes = minutesText.toInt(&ok);
    if (!ok || minutes < 1 || minutes > kMaxStandbyMinutes)
        return {std::nullopt,
                Tr::tr("Standby takes a number of minutes from 1 to %1; nothing was sent.")
                    .arg(kMaxStandbyMinutes)};
    CommandRequest result = request(CommandKind::Standby);
    result.command->standbyMinutes = minutes;
    return result;
}

} // namespace

CommandRequest commandFromEvent(int code, const QString& value)
{
    if (code == eEvent_Control_openUps)
        return value == QLatin1String("1") ? request(CommandKind::Restart) : standbyFor(value);
    for (const CommandRow& row : kCommands)
        if (row.code == code)
            return request(row.kind);
    return {std::nullopt,
            Tr::tr("The event %1 is no command that this desk carries out.").arg(code)};
}

CommandRequest commandFromName(const QString& name, const QString& value)
{
    for (const CommandRow& row : kCommands) {
        if (name != QLatin1String(row.name))
            continue;
        if (row.kind == CommandKind::Standby)
            return standbyFor(value);
        if (!value.isEmpty())
            return {std::nullopt, Tr::tr("The command %1 takes no value.").arg(name)};
        return request(row.kind);
    }
    QStringList names;
    for (const CommandRow& row : kCommands)
        names << QLatin1String(row.name);
    return {std::nullopt,
            Tr::tr("Unknown command \"%1\"; known are %2%3")
                .arg(name.left(40), names.join(QStringLiteral(", ")), didYouMean(name, names))};
}

QString commandName(CommandKind kind)
{
    return QLatin1String(rowOf(kind).name);
}

QString commandLabel(CommandKind kind)
{
    return Tr::tr(rowOf(kind).label);
}

QString commandSentence(const UpsCommand& command)
{
    const QString label = commandLabel(command.kind);
    return command.kind == CommandKind::Standby
               ? Tr::tr("%1 for %2 min").arg(label).arg(command.standbyMinutes)
               : label;
}

QString outcomeLabel(CommandOutcome outcome)
{
    switch (outcome) {
    case CommandOutcome::Done:
        return Tr::tr("done");
    case CommandOutcome::Refused:
        return Tr::tr("refused");
    case CommandOutcome::NotOffered:
        return Tr::tr("not offered by this device");
    case CommandOutcome::NoAnswer:
        return Tr::tr("no answer");
    case CommandOutcome::Unknown:
        break;
    }
    return Tr::tr("sent, result unknown");
}
