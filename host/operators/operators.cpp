#include "operators/operators.h"

#include <algorithm>

Operators::Operators(const OperatorAccounts& accounts, const HashLimits& limits)
    : m_accounts(accounts)
    , m_decoy(accounts.isEmpty() ? impossibleHash(limits) : accounts.constFirst().hash)
{}

const OperatorAccount* Operators::find(const QString& name) const
{
    const auto found = std::find_if(m_accounts.cbegin(), m_accounts.cend(),
                                    [&](const OperatorAccount& a) { return a.name == name; });
    return found == m_accounts.cend() ? nullptr : &*found;
}

std::optional<int> Operators::level(const QString& name) const
{
    const OperatorAccount* account = find(name);
    return account ? std::optional<int>(account->level) : std::nullopt;
}

std::optional<int> Operators::verify(const QString& name, const SecretText& password) const
{
    const OperatorAccount* account = find(name);
    const bool fits = verifyPassword(account ? account->hash : m_decoy, password);
    return account && fits ? std::optional<int>(account->level) : std::nullopt;
}
