#ifndef STOREDHISTORY_H
#define STOREDHISTORY_H

// The store of the configuration, opened for a subcommand that reads it.
// May touch: the configuration, addresses, the secret store, the history.

#include "history/historyqueries.h"

#include <memory>

// Null after saying why: the caller ends with ExitNotReachable. Runs an event loop while the secret
// store answers.
std::unique_ptr<HistoryStore> openStoredHistory();

// The device of that name or address. Empty after saying that nothing is stored of it.
std::optional<StoredDevice> storedDevice(HistoryStore& store, const QString& nameOrAddress);

// The time that an option gives, or `absent` where it is not given. Empty after saying what is
// wrong: the caller ends with ExitUsage.
std::optional<qint64> timeOption(const QString& option, const QString& text, qint64 absent);

#endif // STOREDHISTORY_H
