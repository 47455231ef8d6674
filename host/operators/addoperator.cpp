#include "operators/addoperator.h"

#include "operators/operatoredits.h"

#include <QCoreApplication>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(AddOperator)
};

} // namespace

QString addOperator(const QString& path, const QString& name, int level, const SecretText& password,
                    const HashLimits& limits)
{
    const QString fault = operatorFault(level, password);
    if (!fault.isEmpty())
        return fault;
    const QString hash = hashPassword(password, limits);
    if (hash.isEmpty())
        return Tr::tr("not enough memory to hash the password");
    DeskConfig config = DeskConfig::load(path);
    const QString refusal = config.putOperator({name, level, hash});
    return refusal.isEmpty() ? config.save() : refusal;
}
