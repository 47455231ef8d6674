#ifndef COMMANDDESK_H
#define COMMANDDESK_H

// The one way of a command from the views to a device: checked, sent once, followed to its
// result, written to the event list.
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

    // Lowest level that may command a real device.
    static constexpr int kCommandLevel = 1;

    // whoIsThere is asked again for every single command.
    CommandDesk(Fleet& fleet, EventLog& log, WhoIsThere whoIsThere, QObject* parent = nullptr);

    // What the operator may do at this device. The simulator is open to everybody, so that a
    // newcomer can press the buttons.
    int levelFor(const Device& device) const;

    // A wall display commands nothing, not even the simulator.
    void lock() { m_locked = true; }

    // A command as a view posts it: CorvelEvent and command map.
    void post(Device* device, int code, const QMap<QString, QVariant>& command);

signals:
    // The command is on its way.
    void sent(const QString& deviceName, const QString& command);
    // The end of a command, also of one that was never sent.
    void finished(const QString& deviceName, const QString& command, const QString& outcome,
                  const QString& message, bool isBad);

private:
    struct Pending {
        quint64 ticket = 0;
        QString device;
        QString command;
        const Device* target = nullptr;
    };

    void conclude(const Pending& pending, CommandOutcome outcome, const QString& message);
    void takeResult(Device* device, const CommandResult& result);
    void forget(const Device* device);

    Fleet& m_fleet;
    EventLog& m_log;
    WhoIsThere m_whoIsThere;
    QHash<quint64, Pending> m_pending;
    quint64 m_lastId = 0;
    bool m_locked = false;
};

#endif // COMMANDDESK_H
