#ifndef LOGINDIALOG_H
#define LOGINDIALOG_H

// Asks for name and password, and stays until they fit or the operator gives up.
// May touch: the operator session.

#include "operators/operatorsession.h"

#include <QDialog>

class DialogMessage;
class QLineEdit;
class QPushButton;

class LoginDialog : public QDialog
{
    Q_OBJECT

public:
    // hasOperators: false says how to make the first one instead of asking in vain.
    LoginDialog(OperatorSession& session, bool hasOperators, QWidget* parent = nullptr);

    // Why somebody is asked; plain text.
    void say(const QString& text);
    void reject() override; // also ends a check that is under way

private:
    void logIn();
    void setBusy(bool busy);

    OperatorSession& m_session;
    QLineEdit* m_name;
    QLineEdit* m_password;
    DialogMessage* m_message;
    QPushButton* m_logIn;
};

#endif // LOGINDIALOG_H
