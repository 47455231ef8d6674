#include "secrets/secretstore.h"

#include "secrets/filesecretstore.h"
#include "secrets/keychainsecretstore.h"

#include <QPointer>

void SecretStore::run(const Errands& errands, QObject* context, const Callback& callback)
{
    const QPointer<QObject> receiver(context);
    const Callback done = [receiver, callback](const Results& results) {
        if (receiver)
            callback(results);
    };
    QMetaObject::invokeMethod(
        this, [this, errands, done] { carryOut(errands, done); }, Qt::QueuedConnection);
}

std::unique_ptr<SecretStore> SecretStore::make(SecretsChoice choice)
{
    if (choice == SecretsChoice::File)
        return std::make_unique<FileSecretStore>();
    return std::make_unique<KeychainSecretStore>();
}
