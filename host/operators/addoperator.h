#ifndef ADDOPERATOR_H
#define ADDOPERATOR_H

// What `upsdesk add-operator` does.
// May touch: the configuration file, password hashes.

#include "private/passwordhash.h"

// Adds the operator to the file at `path`, or replaces level and password of the one that is there.
// See operatorFault() for what is asked of level and password. Returns why nothing was
// written, empty: written. Takes the time of one hash.
QString addOperator(const QString& path, const QString& name, int level, const SecretText& password,
                    const HashLimits& limits = HashLimits::standard());

#endif // ADDOPERATOR_H
