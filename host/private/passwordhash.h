#ifndef PASSWORDHASH_H
#define PASSWORDHASH_H

// Argon2id hashes of operators' passwords.
// May touch: Qt Core, libsodium. All functions may be called from any thread.

#include "private/secrettext.h"

#include <QString>

// Cost of one hash or check.
struct HashLimits {
    quint64 passes;
    quint64 memory; // bytes

    static HashLimits standard(); // 2 passes over 64 MiB, about a tenth of a second
    static HashLimits minimal();  // for tests
};

// The text that the configuration keeps: $argon2id$v=19$... Empty where memory is short.
QString hashPassword(const SecretText& password, const HashLimits& limits = HashLimits::standard());

// False also for a hash that isPasswordHash() does not take. Takes the time that the hash asks for.
bool verifyPassword(const QString& hash, const SecretText& password);

// Well-formed, and of a cost that a check can bear (1 GiB, 20 passes, 16 lanes): a copied hash must
// not stop the machine.
bool isPasswordHash(const QString& hash);

// A well-formed hash of that cost which no password fits.
QString impossibleHash(const HashLimits& limits = HashLimits::standard());

#endif // PASSWORDHASH_H
