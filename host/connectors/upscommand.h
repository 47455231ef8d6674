#ifndef UPSCOMMAND_H
#define UPSCOMMAND_H

// What an operator can tell a UPS to do, from the posted event to the outcome.
// May touch: Qt Core and the event codes.

#include <QMetaType>
#include <QString>

#include <optional>

enum class CommandKind { SelfTest, DischargeTest, CancelTest, Shutdown, Standby, WakeUp, Restart };

struct UpsCommand {
    quint64 id = 0;
    CommandKind kind = CommandKind::SelfTest;
    int standbyMinutes = 0;   // Standby only, 1 to kMaxStandbyMinutes
    int shutdownDelay = 20;   // s between the command and the load going off
    int restartDuration = 60; // s without output on Restart
};

enum class CommandOutcome {
    Done,       // the device says it did it (or has begun a test)
    Refused,    // the device or server says no, or the result is a failure
    NotOffered, // this device has no such command
    NoAnswer,   // no answer; nothing was sent
    Unknown     // it was sent, and nothing told how it ended
};

struct CommandResult {
    quint64 id = 0;
    CommandOutcome outcome = CommandOutcome::NoAnswer;
    QString message; // cause, and cure where there is one; plain text for the operator
};
Q_DECLARE_METATYPE(CommandResult)

constexpr int kMaxStandbyMinutes = 24 * 60;

// A command that an event stands for, or the reason why it stands for none.
struct CommandRequest {
    std::optional<UpsCommand> command;
    QString error;
};

// code: a CorvelEvent of the control page; value: its "controlValue". With the code that standby
// and restart share, exactly "1" is a restart and any other number is standby for so many minutes;
// an empty text, 0, no number or more than a day is an error.
CommandRequest commandFromEvent(int code, const QString& value);

// Command line names: self-test, discharge-test, cancel-test, shutdown, standby, wake-up, restart.
// value: minutes of standby; must be empty for all others.
CommandRequest commandFromName(const QString& name, const QString& value);

// The name above, and a sentence part for dialogs and logs ("UPS to standby").
QString commandName(CommandKind kind);
QString commandLabel(CommandKind kind);
// The label with its value: "Standby for 15 min".
QString commandSentence(const UpsCommand& command);
QString outcomeLabel(CommandOutcome outcome);

#endif // UPSCOMMAND_H
