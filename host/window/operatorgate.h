#ifndef OPERATORGATE_H
#define OPERATORGATE_H

// Asks for a log-in where something takes an operator.
// May touch: the operator session.

#include "operators/operatorsession.h"

#include <QPointer>

#include <functional>

class LoginDialog;
class QWidget;

class OperatorGate : public QObject
{
    Q_OBJECT

public:
    // Both must outlive the gate; the window is the parent of the dialogs.
    OperatorGate(OperatorSession& session, QWidget* window);

    // Runs `then` at once where the desk may be changed, else after somebody has logged in who may;
    // never where that is cancelled.
    void pass(const std::function<void()>& then);
    void askWhoIsThere();

private:
    LoginDialog* openDialog();

    OperatorSession& m_session;
    QWidget* m_window;
    QPointer<LoginDialog> m_dialog;
};

#endif // OPERATORGATE_H
