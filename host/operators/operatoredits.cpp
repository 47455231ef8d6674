#include "operators/operatoredits.h"

#include "operators/operatorsession.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(OperatorEdits)
};

QString reviewed(const QString& refusal, const DeskConfig& config)
{
    const OperatorAccounts& all = config.operators();
    const bool somebodyMay =
        std::any_of(all.begin(), all.end(), [](const OperatorAccount& account) {
            return account.level >= OperatorSession::kChangeLevel;
        });
    if (!refusal.isEmpty() || all.isEmpty() || somebodyMay)
        return refusal;
    return Tr::tr("one operator of level %1 or above must remain, or nobody could change the desk "
                  "any more")
        .arg(OperatorSession::kChangeLevel);
}

} // namespace

QString operatorFault(int level, const SecretText& password)
{
    if (level < OperatorAccount::kMinLevel || level > OperatorAccount::kMaxLevel)
        return Tr::tr("a level lies between %1 and %2")
            .arg(OperatorAccount::kMinLevel)
            .arg(OperatorAccount::kMaxLevel);
    if (password.toString().size() < kMinPasswordLength)
        return Tr::tr("a password has at least %1 characters").arg(kMinPasswordLength);
    return {};
}

QString putOperator(DeskConfig& config, const OperatorAccount& account)
{
    const QString refusal = config.putOperator(account);
    return reviewed(refusal, config);
}

QString removeOperator(DeskConfig& config, const QString& name)
{
    const QString refusal = config.removeOperator(name);
    return reviewed(refusal, config);
}
