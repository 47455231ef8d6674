#ifndef EVENTDOCK_H
#define EVENTDOCK_H

// What happened at this desk, below the devices. It shows itself with the first event, unless the
// operator has closed it.
// May touch: the event log.

#include <QDockWidget>

class EventLog;

class EventDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit EventDock(EventLog& log, QWidget* parent = nullptr);

    // As the operator wants it: by the menu, by its own button, or remembered.
    void setWanted(bool wanted);
    bool isWanted() const { return m_isWanted; }

signals:
    void wantedChanged(bool wanted);
    void cameUp();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void comeUp();

    EventLog& m_log;
    bool m_isWanted = true;
};

#endif // EVENTDOCK_H
