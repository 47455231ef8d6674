#ifndef EVENTLOG_H
#define EVENTLOG_H

// What happened at this desk: commands with their outcome, log-ins, changes of the configuration.
// As a table the newest stands first.
// May touch: Qt Core.

#include <QAbstractTableModel>
#include <QDateTime>
#include <QString>

#include <deque>

enum class EventKind {
    Command,
    LogIn,         // also log-outs and attempts that failed
    Configuration, // devices and settings
    Fault          // of the desk itself: a notification that did not go out, metrics not served
};

struct DeskEvent {
    EventKind kind = EventKind::Command;
    QDateTime time;       // when it is appended, where it is not given
    QString operatorName; // empty: nobody logged in
    QString device;       // empty: concerns no device
    int code = 0;         // CorvelEvent; 0: no command
    QString text;         // what was done or commanded, in words and units
    QString value;        // the command's value as it was posted
    QString outcome;      // empty while it is not known
    QString message;      // cause and cure
    bool isBad = false;   // refused, failed or unanswered
};

class EventLog : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Operator, DeviceName, Event, Outcome, Message, ColumnCount };
    enum Role { BadRole = Qt::UserRole }; // bool

    static constexpr int kMostEvents = 10000; // the oldest go first

    using QAbstractTableModel::QAbstractTableModel;

    // In the order of their times: 0 is the oldest.
    int count() const { return static_cast<int>(m_events.size()); }
    const DeskEvent& at(int number) const { return m_events[static_cast<std::size_t>(number)]; }

    // Returns a ticket by which the event can be completed later.
    quint64 append(const DeskEvent& event);
    // Sets the outcome of an event; one that has been dropped by now is ignored.
    void complete(quint64 ticket, const QString& outcome, const QString& message, bool isBad);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    // With the number of the event.
    void appended(int number);
    void changed(int number);

private:
    int rowOf(int number) const { return count() - 1 - number; }

    std::deque<DeskEvent> m_events;
    quint64 m_dropped = 0;
};

#endif // EVENTLOG_H
