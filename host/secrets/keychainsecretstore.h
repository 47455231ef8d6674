#ifndef KEYCHAINSECRETSTORE_H
#define KEYCHAINSECRETSTORE_H

// Secrets in the desktop's keychain, under the service name "upsdesk".
// May touch: QtKeychain, in a thread of its own: reaching a desktop bus that does not answer
// blocks.

#include "secrets/secretstore.h"

class KeychainSecretStore : public SecretStore
{
    Q_OBJECT

public:
    // ms; long enough to type the keychain's own password when it asks for it.
    static constexpr int kDefaultTimeLimit = 60 * 1000;

    // One errand after the other, so that a keychain that is locked asks its own password once. One
    // that has no answer within the limit fails; what it asked for may still happen later.
    explicit KeychainSecretStore(int timeLimit = kDefaultTimeLimit, QObject* parent = nullptr);

protected:
    void carryOut(const Errands& errands, const Callback& done) override;

private:
    using Answer = std::function<void(const SecretResult&)>;
    void next(const Errands& errands, const Results& results, const Callback& done);
    void ask(const Errand& errand, const Answer& answer);

    int m_timeLimit;
};

#endif // KEYCHAINSECRETSTORE_H
