#ifndef OPERATOREDITS_H
#define OPERATOREDITS_H

// The rules by which operators are added, changed and removed.
// May touch: the configuration as a value.

#include "config/deskconfig.h"
#include "private/secrettext.h"

constexpr int kMinPasswordLength = 8;

// Why these are no level and password for an operator; empty: they are.
QString operatorFault(int level, const SecretText& password);

// Each changes the configuration and returns why it was refused; empty: done. Where there are
// operators, one who may change the desk must remain (or none at all): otherwise nobody at the desk
// could ever change it again.
QString putOperator(DeskConfig& config, const OperatorAccount& account);
QString removeOperator(DeskConfig& config, const QString& name);

#endif // OPERATOREDITS_H
