#ifndef EVENTLOG_H
#define EVENTLOG_H

// What happened at this desk, newest last: commands with their outcome, log-ins.
// May touch: Qt Core.

#include <QDateTime>
#include <QObject>
#include <QString>

#include <deque>
#include <optional>

struct DeskEvent {
    QDateTime time;
    QString operatorName; // empty: nobody logged in
    QString device;       // empty: concerns no device
    int code = 0;         // CorvelEvent; 0: no command
    QString text;         // what was done or commanded
    QString value;        // the command's value
    QString outcome;      // empty while it is not known
    QString message;      // cause and cure
    bool isBad = false;   // refused, failed or unanswered
};

class EventLog : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMostEvents = 10000; // the oldest go first

    using QObject::QObject;

    int count() const { return static_cast<int>(m_events.size()); }
    const DeskEvent& at(int row) const { return m_events[static_cast<std::size_t>(row)]; }

    // Returns a ticket by which the event can be completed later.
    quint64 append(const DeskEvent& event);
    // Sets the outcome of an event; one that has been dropped by now is ignored.
    void complete(quint64 ticket, const QString& outcome, const QString& message, bool isBad);

signals:
    void aboutToAppend(int row);
    void appended(int row);
    void aboutToDropOldest();
    void droppedOldest();
    void changed(int row);

private:
    std::deque<DeskEvent> m_events;
    quint64 m_dropped = 0;
};

#endif // EVENTLOG_H
