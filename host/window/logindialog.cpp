#include "window/logindialog.h"

#include "window/dialogmessage.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kLongestInput = 200;
constexpr int kWidth = 380; // px

} // namespace

LoginDialog::LoginDialog(OperatorSession& session, bool hasOperators, QWidget* parent)
    : QDialog(parent)
    , m_session(session)
    , m_name(new QLineEdit)
    , m_password(new QLineEdit)
    , m_message(new DialogMessage)
    , m_logIn(new QPushButton(tr("Log in")))
{
    setObjectName(QStringLiteral("LoginDialog"));
    setWindowTitle(tr("Log in"));
    setMinimumWidth(kWidth);
    m_name->setObjectName(QStringLiteral("LoginName"));
    m_password->setObjectName(QStringLiteral("LoginPassword"));
    m_name->setMaxLength(kLongestInput);
    m_password->setMaxLength(kLongestInput);
    m_password->setEchoMode(QLineEdit::Password);

    auto* form = new QFormLayout(this);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Password"), m_password);
    form->addRow(m_message);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(m_logIn, QDialogButtonBox::AcceptRole);
    m_logIn->setObjectName(QStringLiteral("LoginAccept"));
    form->addRow(buttons);
    m_logIn->setDefault(true); // within the dialog only: before, Cancel would keep it

    connect(buttons, &QDialogButtonBox::accepted, this, &LoginDialog::logIn);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&session, &OperatorSession::changed, this, [this] {
        if (m_session.isLoggedIn())
            accept();
    });
    connect(&session, &OperatorSession::refused, this, [this](const QString& reason) {
        setBusy(false);
        m_password->clear();
        m_password->setFocus();
        m_message->say(reason, DialogMessage::Tone::Bad);
    });
    if (!hasOperators) {
        m_name->setEnabled(false);
        m_password->setEnabled(false);
        m_logIn->setEnabled(false);
        say(tr("There are no operators yet. Add one in the settings, under Operators."));
    }
}

void LoginDialog::say(const QString& text)
{
    m_message->say(text, DialogMessage::Tone::Hint);
}

void LoginDialog::reject()
{
    m_session.cancelLogIn();
    QDialog::reject();
}

void LoginDialog::logIn()
{
    if (m_name->text().isEmpty()) {
        m_name->setFocus();
        return;
    }
    setBusy(true);
    m_session.logIn(m_name->text(), SecretText(m_password->text()));
}

void LoginDialog::setBusy(bool busy)
{
    m_logIn->setEnabled(!busy);
    say(busy ? tr("Checking \u2026") : QString());
}
