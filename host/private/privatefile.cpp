#include "private/privatefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(PrivateFile)
};

constexpr int kLockWait = 500; // ms
constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                       QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

} // namespace

FileStamp FileStamp::of(const QString& path)
{
    constexpr qint64 kNsPerSecond = 1000 * 1000 * 1000;
    struct stat info = {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    return {info.st_mtim.tv_sec * kNsPerSecond + info.st_mtim.tv_nsec, info.st_size, info.st_ino};
}

FileContent readBoundedFile(const QString& path, qint64 maxBytes)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (!QFileInfo(path).isFile())
        return {std::nullopt, Tr::tr("%1 is not a file").arg(path)};
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, Tr::tr("cannot read %1: %2").arg(path, file.errorString())};
    const QByteArray bytes = file.read(maxBytes + 1);
    if (bytes.size() > maxBytes)
        return {std::nullopt,
                Tr::tr("%1 is longer than %2 bytes; it is not read").arg(path).arg(maxBytes)};
    return {bytes.isNull() ? QByteArray("") : bytes, {}};
}

QString withFileLock(const QString& path, const std::function<QString()>& change)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!makePrivateFolder(folder))
        return Tr::tr("cannot make the folder %1").arg(folder);
    QLockFile lock(path + QStringLiteral(".lock"));
    if (!lock.tryLock(kLockWait))
        return Tr::tr(
                   "%1 is not written: another upsdesk is writing it, or its folder is read-only")
            .arg(path);
    return change();
}

bool makePrivateFolder(const QString& folder)
{
    if (QFileInfo(folder).isDir())
        return true;
    return QDir().mkpath(folder) && QFile::setPermissions(folder, kOwnerOnly | QFile::ExeOwner);
}

QString writePrivateFile(const QString& path, const QByteArray& bytes)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!makePrivateFolder(folder))
        return Tr::tr("cannot make the folder %1").arg(folder);
    QSaveFile file(path);
    // Without a file beside it a full disk could cost the old one too.
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(kOwnerOnly) ||
        file.write(bytes) != bytes.size() || !file.commit())
        return Tr::tr("cannot write %1: %2").arg(path, file.errorString());
    return {};
}

bool isPrivateFile(const QString& path)
{
    const QFileInfo info(path);
    return !info.exists() || (info.ownerId() == ::geteuid() && !(info.permissions() & kOthers));
}
