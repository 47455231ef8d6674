#include "private/privatefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(PrivateFile)
};

constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                       QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

} // namespace

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
