#ifndef FILESITELOCK_H
#define FILESITELOCK_H

// The lock of a store that is a file: two collectors of one machine do not write it together.
// May touch: a lock file beside the store.

#include "collector/sitelock.h"

#include <QLockFile>

class FileSiteLock : public SiteLock
{
public:
    explicit FileSiteLock(const QString& storePath);

    bool isOnDuty() const override; // takes the lock where it is free by now
    QString reason() const override;

private:
    // A lock is free again when its process has ended, however that came.
    mutable QLockFile m_file;
};

#endif // FILESITELOCK_H
