#include "connectors/nut/nutcommands.h"

#include "reading/sanitize.h"

namespace {

struct CommandRow {
    CommandKind kind;
    const char* names[3]; // the first one offered is sent
    bool hasDelay;        // begins with ups.delay.shutdown
};

constexpr CommandRow kCommands[] = {
    {CommandKind::SelfTest, {"test.battery.start.quick", "test.battery.start"}, false},
    {CommandKind::DischargeTest,
     {"test.battery.start.low", "test.battery.start.deep", "calibrate.start"},
     false},
    {CommandKind::CancelTest, {"test.battery.stop", "calibrate.stop"}, false},
    {CommandKind::Shutdown, {"shutdown.stayoff"}, true},
    {CommandKind::Shutdown, {"load.off"}, false},
    {CommandKind::Standby, {"shutdown.return"}, true},
    {CommandKind::Restart, {"shutdown.reboot"}, false},
    {CommandKind::WakeUp, {"load.on"}, false},
};

constexpr char kStartDelay[] = "ups.delay.start";
constexpr char kShutdownDelay[] = "ups.delay.shutdown";
constexpr int kSecondsPerMinute = 60;

void setUnlessSet(const char* variable, int seconds, const NutVariables& writable,
                  NutCommandPlan& plan)
{
    const auto current = writable.find(variable);
    if (current == writable.end() || plausibleNumber(current.value()) == Value(seconds))
        return;
    plan.before << NutSetting{variable, QByteArray::number(seconds)};
}

// The first of the row's names that is offered, unless there is a command already.
bool chooseCommand(const CommandRow& row, const QList<QByteArray>& offered, NutCommandPlan& plan)
{
    for (const char* name : row.names) {
        if (!name || !plan.command.isEmpty())
            return false;
        plan.lookedFor << name;
        if (offered.contains(name)) {
            plan.command = name;
            return true;
        }
    }
    return false;
}

} // namespace

NutCommandPlan planNutCommand(const UpsCommand& command, const QList<QByteArray>& offered,
                              const NutVariables& writable)
{
    NutCommandPlan plan;
    for (const CommandRow& row : kCommands)
        if (row.kind == command.kind && chooseCommand(row, offered, plan) && row.hasDelay)
            setUnlessSet(kShutdownDelay, command.shutdownDelay, writable, plan);
    if (command.kind == CommandKind::Standby && !plan.command.isEmpty()) {
        setUnlessSet(kStartDelay, kSecondsPerMinute * command.standbyMinutes, writable, plan);
        plan.startDelayIsFixed = !writable.contains(kStartDelay);
    }
    return plan;
}
