#ifndef SECRETSTORE_H
#define SECRETSTORE_H

// Where passwords and keys of devices are kept.
// May touch: Qt Core. Never logs what it keeps.

#include "config/desksettings.h"
#include "private/secrettext.h"

#include <QObject>

#include <functional>
#include <memory>

struct SecretResult {
    enum class Status { Done, NotFound, Failed };

    Status status = Status::Failed;
    SecretText secret; // of a read that is Done
    QString message;   // of Failed: what is wrong and how to mend it
};
Q_DECLARE_METATYPE(SecretResult)

class SecretStore : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void(const SecretResult&)>;

    using QObject::QObject;

    // Each returns at once and calls back later, once, in the thread of `context`, which is the
    // store's; never where `context` or the store is gone by then. An unknown key is NotFound for
    // read, Done for remove. Writing an empty secret removes it.
    void read(const QString& key, QObject* context, const Callback& callback);
    void write(const QString& key, const SecretText& secret, QObject* context,
               const Callback& callback);
    void remove(const QString& key, QObject* context, const Callback& callback);

    // What the configuration chose.
    static std::unique_ptr<SecretStore> make(SecretsChoice choice);

protected:
    enum class Action { Read, Write, Remove };
    // Calls `done` at once or later, in this object's thread.
    virtual void run(Action action, const QString& key, const SecretText& secret,
                     const Callback& done) = 0;

private:
    void start(Action action, const QString& key, const SecretText& secret, QObject* context,
               const Callback& callback);
};

#endif // SECRETSTORE_H
