#ifndef OPERATORACCOUNT_H
#define OPERATORACCOUNT_H

// One operator as the configuration names them.
// May touch: Qt Core.

#include <QString>
#include <QVector>

struct OperatorAccount {
    QString name;
    int level = 0; // kMinLevel..kMaxLevel, as the control page counts them
    QString hash;  // Argon2id, see passwordhash.h

    static constexpr int kMinLevel = 0; // may look; also: nobody is logged in
    static constexpr int kMaxLevel = 9;
};

using OperatorAccounts = QVector<OperatorAccount>;

#endif // OPERATORACCOUNT_H
