#include "secrets/secretstore.h"

#include "secrets/filesecretstore.h"
#include "secrets/keychainsecretstore.h"

#include <QPointer>

void SecretStore::read(const QString& key, QObject* context, const Callback& callback)
{
    start(Action::Read, key, {}, context, callback);
}

void SecretStore::write(const QString& key, const SecretText& secret, QObject* context,
                        const Callback& callback)
{
    start(secret.isEmpty() ? Action::Remove : Action::Write, key, secret, context, callback);
}

void SecretStore::remove(const QString& key, QObject* context, const Callback& callback)
{
    start(Action::Remove, key, {}, context, callback);
}

void SecretStore::start(Action action, const QString& key, const SecretText& secret,
                        QObject* context, const Callback& callback)
{
    const QPointer<QObject> receiver(context);
    const Callback done = [receiver, callback](const SecretResult& result) {
        if (receiver)
            callback(result);
    };
    QMetaObject::invokeMethod(
        this, [=] { run(action, key, secret, done); }, Qt::QueuedConnection);
}

std::unique_ptr<SecretStore> SecretStore::make(SecretsChoice choice)
{
    if (choice == SecretsChoice::File)
        return std::make_unique<FileSecretStore>();
    return std::make_unique<KeychainSecretStore>();
}
