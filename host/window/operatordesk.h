#ifndef OPERATORDESK_H
#define OPERATORDESK_H

// What stands between an operator and the desk: who may change it, what is asked before power is
// taken from a load and before the window closes, and what of it is written down.
// May touch: the operator session, the watch list, the command desk, the event log.

#include "fleet/watchlist.h"
#include "window/operatorgate.h"

class CommandDesk;
class QAction;
class EventLog;

class OperatorDesk : public QObject
{
    Q_OBJECT

public:
    // All must outlive it; the window owns it and is the parent of the dialogs.
    OperatorDesk(OperatorSession& session, WatchList& list, CommandDesk& commands, EventLog& log,
                 QWidget* window);

    // "Settings...": asks for a log-in where that is needed. For a menu, and a button.
    QAction* settingsAction() const { return m_settings; }

private:
    void openSettings();
    void noteFailure(const QString& name);
    void noteEdit(const QString& device, const QString& what);

    OperatorSession& m_session;
    WatchList& m_list;
    EventLog& m_log;
    QWidget* m_window;
    OperatorGate* m_gate;
    QAction* m_settings;
};

#endif // OPERATORDESK_H
