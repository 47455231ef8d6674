#ifndef OPERATORDIALOG_H
#define OPERATORDIALOG_H

// Name, level and password of one operator. The password is hashed in a thread of its own, so that
// the window stays free.
// May touch: Qt Widgets, operators' rules and hashes.

#include "operators/operatoredits.h"
#include "private/passwordhash.h"

#include <QDialog>

#include <functional>

class DialogMessage;
class QLineEdit;
class QPushButton;
class QSpinBox;

class OperatorDialog : public QDialog
{
    Q_OBJECT

public:
    // Keeps the account and returns why that was refused; empty: done, and the dialog closes.
    using Save = std::function<QString(const OperatorAccount&)>;

    // account: without a name it is a new one; otherwise an empty password leaves its hash.
    // taken: names of the others.
    OperatorDialog(const OperatorAccount& account, const QStringList& taken,
                   const HashLimits& limits, const Save& save, QWidget* parent = nullptr);

    void accept() override;

private:
    QString error() const;
    void keep(const QString& hash);
    void setBusy(bool busy);

    const OperatorAccount m_account;
    const QStringList m_taken;
    const HashLimits m_limits;
    const Save m_save;
    QLineEdit* m_name;
    QSpinBox* m_level;
    QLineEdit* m_password;
    QLineEdit* m_again;
    DialogMessage* m_message;
    QPushButton* m_ok;
};

#endif // OPERATORDIALOG_H
