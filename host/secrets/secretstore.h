#ifndef SECRETSTORE_H
#define SECRETSTORE_H

// Where passwords and keys of devices are kept.
// May touch: Qt Core, the settings of the desk. Never logs what it keeps.

#include "config/desksettings.h"
#include "private/secrettext.h"

#include <QObject>
#include <QVector>

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
    enum class Action { Read, Write, Remove };
    struct Errand {
        Action action = Action::Read;
        QString key;
        SecretText secret; // of Write
    };
    using Errands = QVector<Errand>;
    using Results = QVector<SecretResult>; // one for each errand, in their order
    using Callback = std::function<void(const Results&)>;

    using QObject::QObject;

    // Returns at once and calls back later, once, in the thread of `context`, which is the store's;
    // never where `context` or the store is gone by then. An unknown key is NotFound for read, Done
    // for remove. Writing an empty secret removes it. After one that failed the rest is not tried:
    // it would fail for the same reason, perhaps after another time limit.
    void run(const Errands& errands, QObject* context, const Callback& callback);

    // What the configuration chose.
    static std::unique_ptr<SecretStore> make(SecretsChoice choice);

protected:
    // Calls `done` at once or later, in this object's thread.
    virtual void carryOut(const Errands& errands, const Callback& done) = 0;
};

#endif // SECRETSTORE_H
