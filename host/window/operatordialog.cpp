#include "window/operatordialog.h"

#include "window/dialogmessage.h"
#include "window/secretedit.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QThreadPool>

namespace {

constexpr int kWidth = 420; // px

} // namespace

OperatorDialog::OperatorDialog(const OperatorAccount& account, const QStringList& taken,
                               const HashLimits& limits, const Save& save, QWidget* parent)
    : QDialog(parent)
    , m_account(account)
    , m_taken(taken)
    , m_limits(limits)
    , m_save(save)
    , m_name(new QLineEdit(account.name))
    , m_level(new QSpinBox)
    , m_password(new SecretEdit)
    , m_again(new SecretEdit)
    , m_message(new DialogMessage)
{
    setObjectName(QStringLiteral("OperatorDialog"));
    const bool isNew = account.name.isEmpty();
    setWindowTitle(isNew ? tr("Add an operator") : tr("Operator %1").arg(account.name));
    setMinimumWidth(kWidth);
    m_name->setObjectName(QStringLiteral("OperatorName"));
    m_name->setMaxLength(DeskConfig::kMaxName);
    m_name->setEnabled(isNew);
    m_level->setObjectName(QStringLiteral("OperatorLevel"));
    m_level->setRange(OperatorAccount::kMinLevel, OperatorAccount::kMaxLevel);
    m_level->setValue(isNew ? 1 : account.level);
    m_level->setToolTip(tr("0 may look; 1 and above may command and change the desk"));
    m_password->setObjectName(QStringLiteral("OperatorPassword"));
    m_again->setObjectName(QStringLiteral("OperatorPasswordAgain"));
    if (!isNew)
        m_password->setPlaceholderText(tr("kept"));

    auto* form = new QFormLayout(this);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Level (0 looks, from 1 on commands)"), m_level);
    form->addRow(tr("&Password"), m_password);
    form->addRow(tr("Once &more"), m_again);
    form->addRow(m_message);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    form->addRow(buttons);
    m_ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &OperatorDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &OperatorDialog::reject);
}

QString OperatorDialog::error() const
{
    const QString name = m_name->text().trimmed();
    if (name.isEmpty())
        return tr("Enter a name.");
    if (m_taken.contains(name))
        return tr("There is an operator \"%1\" already.").arg(name);
    const QString password = m_password->text();
    if (password != m_again->text())
        return tr("The two passwords differ.");
    if (password.isEmpty() && !m_account.hash.isEmpty())
        return {};
    return operatorFault(m_level->value(), SecretText(password));
}

void OperatorDialog::accept()
{
    const QString wrong = error();
    if (!wrong.isEmpty())
        return m_message->say(wrong, DialogMessage::Tone::Bad);
    if (m_password->text().isEmpty())
        return keep(m_account.hash);
    setBusy(true);
    const auto hashed = [dialog = QPointer<OperatorDialog>(this)](const QString& hash) {
        if (dialog) // it may have been closed meanwhile
            dialog->keep(hash);
    };
    QThreadPool::globalInstance()->start([hashed, password = SecretText(m_password->text()),
                                          limits = m_limits] {
        const QString hash = hashPassword(password, limits);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [hashed, hash] { hashed(hash); }, Qt::QueuedConnection);
    });
}

void OperatorDialog::keep(const QString& hash)
{
    setBusy(false);
    const QString reason = hash.isEmpty()
                               ? tr("There is not enough memory to hash the password.")
                               : m_save({m_name->text().trimmed(), m_level->value(), hash});
    if (reason.isEmpty())
        QDialog::accept();
    else
        m_message->say(reason, DialogMessage::Tone::Bad);
}

void OperatorDialog::setBusy(bool busy)
{
    m_ok->setEnabled(!busy);
    m_message->say(busy ? tr("Hashing the password \u2026") : QString(), DialogMessage::Tone::Hint);
}
