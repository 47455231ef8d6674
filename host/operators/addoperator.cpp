#include "operators/addoperator.h"

#include "config/deskconfig.h"

#include <QCoreApplication>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(AddOperator)
};

} // namespace

QString addOperator(const QString& path, const QString& name, int level, const SecretText& password,
                    const HashLimits& limits)
{
    if (level < OperatorAccount::kMinLevel || level > OperatorAccount::kMaxLevel)
        return Tr::tr("a level lies between %1 and %2")
            .arg(OperatorAccount::kMinLevel)
            .arg(OperatorAccount::kMaxLevel);
    if (password.toString().size() < kMinPasswordLength)
        return Tr::tr("a password has at least %1 characters").arg(kMinPasswordLength);
    const QString hash = hashPassword(password, limits);
    if (hash.isEmpty())
        return Tr::tr("not enough memory to hash the password");
    DeskConfig config = DeskConfig::load(path);
    const QString refusal = config.putOperator({name, level, hash});
    return refusal.isEmpty() ? config.save() : refusal;
}
