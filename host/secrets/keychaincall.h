#ifndef KEYCHAINCALL_H
#define KEYCHAINCALL_H

// Carries the answer of the keychain from the thread that asked it.
// May touch: Qt Core.

#include "secrets/secretstore.h"

class KeychainCall : public QObject
{
    Q_OBJECT

signals:
    void finished(const SecretResult& result);
};

#endif // KEYCHAINCALL_H
