#ifndef COMMANDDESK_H
#define COMMANDDESK_H

// The one way of a command from the views to a device: checked, asked about where load hangs on it,
// checked again, sent once, followed to its result, written to the event list.
// May touch: the fleet and the event list; no widget.

#include "fleet/eventlog.h"
#include "fleet/fleet.h"

#include <QHash>
#include <QObject>
#include <QVariant>

#include <functional>

class CommandDesk : public QObject
{
    Q_OBJECT

public:
    struct Operator {
        QString name;
        int level = 0;
    };
    using WhoIsThere = std::function<Operator()>;

    // What stands in the way of commands; an empty reason: nothing.
    struct Barrier {
        QString reason; // plain text for the operator
        bool logInHelps = false;
    };
    // What is asked before power is taken from a load.
    struct Question {
        QString command; // "Shutdown"
        QString text;    // "Plant room: output off in 20 s; 12 kW of load lose power"
    };
    // Calls back once, or never where nobody answers.
    using Answer = std::function<void(bool yes)>;
    using Confirm = std::function<void(const Question& question, const Answer& answer)>;

    // A command that was sent and has no result yet.
    struct UnderWay {
        QString device;
        QString command;
        QDateTime since;
    };

    // Lowest level that may command a real device.
    static constexpr int kCommandLevel = 1;

    // whoIsThere is asked again for every single command, at the very moment of sending.
    CommandDesk(Fleet& fleet, EventLog& log, WhoIsThere whoIsThere, QObject* parent = nullptr);

    // Where nobody can be asked, no command that takes load down is sent.
    void setConfirm(const Confirm& confirm) { m_confirm = confirm; }

    // What the operator may do at this device. The simulator is open to everybody, so that a
    // newcomer can press the buttons.
    int levelFor(const Device& device) const;
    Barrier barrierFor(const Device& device) const;

    // From here on nothing is commanded, not even the simulator; why, for the operator.
    void lock(const QString& reason) { m_lockedBecause = reason; }

    // A command as a view posts it: CorvelEvent and command map.
    void post(Device* device, int code, const QMap<QString, QVariant>& command);

    QVector<UnderWay> underWay() const;

    // Somebody who may not command wants to.
    void askForLogIn() { emit logInWanted(); }

signals:
    // The command is on its way.
    void sent(const QString& deviceName, const QString& command);
    // The end of a command, also of one that was never sent.
    void finished(const QString& deviceName, const QString& command, const QString& outcome,
                  const QString& message, bool isBad);
    void logInWanted();

private:
    struct Pending {
        quint64 ticket = 0;
        Device* target = nullptr;
        QString device;
        QString label;
        UpsCommand command;
        QDateTime since;
    };
    using PendingById = QHash<quint64, Pending>;

    quint64 writeDown(const Device& device, int code, const QString& label, const QString& value);
    void ask(const Pending& pending);
    void takeAnswer(quint64 id, bool yes);
    void send(Pending pending);
    void conclude(const Pending& pending, CommandOutcome outcome, const QString& message);
    void close(const Pending& pending, const QString& outcome, const QString& message, bool isBad);
    void takeResult(Device* device, const CommandResult& result);
    void forget(PendingById& pending, const Device* device);

    Fleet& m_fleet;
    EventLog& m_log;
    WhoIsThere m_whoIsThere;
    Confirm m_confirm;
    PendingById m_asked; // waiting for the operator's answer
    PendingById m_sent;  // waiting for the device's result
    quint64 m_lastId = 0;
    QString m_lockedBecause; // empty: it is not
};

#endif // COMMANDDESK_H
