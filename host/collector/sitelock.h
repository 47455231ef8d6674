#ifndef SITELOCK_H
#define SITELOCK_H

// Which of several collectors of one site is on duty.
// May touch: the store's address.

#include "history/storeaddress.h"

#include <memory>

// All collectors of the site share one store, and the store knows the one that holds the lock.
class SiteLock
{
public:
    // Begins to ask for the lock at once and never gives up; never waits for anybody.
    static std::unique_ptr<SiteLock> make(const StoreAddress& store, const QString& site);
    SiteLock() = default;
    virtual ~SiteLock(); // gives the lock back
    SiteLock(const SiteLock&) = delete;
    SiteLock& operator=(const SiteLock&) = delete;

    // Whether this collector may poll, write and notify at this moment. From any thread; ask again
    // before each of these: it ends by itself when the store is not heard of any more.
    virtual bool isOnDuty() const = 0;
    // Why it is not on duty, plain text for the log; empty: it is, or nothing is known yet.
    virtual QString reason() const = 0;
};

#endif // SITELOCK_H
