#ifndef OPERATORS_H
#define OPERATORS_H

// Who may log in, and at which level.
// May touch: accounts, libsodium through passwordhash.h. A value: copies may be used in any thread.

#include "config/operatoraccount.h"
#include "private/passwordhash.h"

#include <optional>

class Operators
{
public:
    // `limits`: cost of a check while there is no account to take it from.
    explicit Operators(const OperatorAccounts& accounts = {},
                       const HashLimits& limits = HashLimits::standard());

    const OperatorAccounts& accounts() const { return m_accounts; }
    std::optional<int> level(const QString& name) const;

    // The operator's level, or nothing. Takes about a tenth of a second: call it off the GUI
    // thread. An unknown name costs as much as a wrong password, so that the time tells no names.
    std::optional<int> verify(const QString& name, const SecretText& password) const;

private:
    const OperatorAccount* find(const QString& name) const;

    OperatorAccounts m_accounts;
    QString m_decoy; // hash that is checked for names that are not there
};

#endif // OPERATORS_H
