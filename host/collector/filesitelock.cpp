#include "collector/filesitelock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

FileSiteLock::FileSiteLock(const QString& storePath)
    : m_file(storePath + QStringLiteral(".collector"))
{
    QDir().mkpath(QFileInfo(storePath).path());
    m_file.setStaleLockTime(0);
}

bool FileSiteLock::isOnDuty() const
{
    return m_file.isLocked() || m_file.tryLock(0);
}

QString FileSiteLock::reason() const
{
    if (m_file.isLocked())
        return {};
    if (m_file.error() == QLockFile::LockFailedError)
        return QCoreApplication::translate("FileSiteLock", "another collector writes this store");
    return QCoreApplication::translate("FileSiteLock",
                                       "the lock file beside the store cannot be made");
}
