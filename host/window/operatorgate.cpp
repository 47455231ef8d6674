#include "window/operatorgate.h"

#include "window/logindialog.h"

OperatorGate::OperatorGate(OperatorSession& session, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_window(window)
{}

void OperatorGate::pass(const std::function<void()>& then)
{
    const QString reason = m_session.whyNoChange();
    if (reason.isEmpty())
        return then();
    LoginDialog* dialog = openDialog();
    dialog->say(reason);
    connect(dialog, &QDialog::accepted, this, [this, then] {
        if (m_session.whyNoChange().isEmpty())
            then();
    });
}

void OperatorGate::askWhoIsThere()
{
    openDialog();
}

LoginDialog* OperatorGate::openDialog()
{
    m_session.check();
    delete m_dialog;
    m_dialog = new LoginDialog(m_session, m_session.hasOperators(), m_window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->open();
    return m_dialog;
}
