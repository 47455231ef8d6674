#include "secrets/filesecretstore.h"

#include "private/privatefile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QStandardPaths>

#include <sodium.h>

namespace {

constexpr int kLockWait = 1000; // ms

SecretResult failure(const QString& message)
{
    return {SecretResult::Status::Failed, {}, message};
}

SecretResult done()
{
    return {SecretResult::Status::Done, {}, {}};
}

struct Content {
    QJsonObject secrets;
    QString error;
};

Content load(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (!QFileInfo(path).isFile())
        return {{}, FileSecretStore::tr("%1 is not a file").arg(path)};
    if (!isPrivateFile(path))
        return {{},
                FileSecretStore::tr("%1 is not used because others may read or write it; "
                                    "\"chmod 600\" ends that, then change the secrets in it")
                    .arg(path)};
    if (!file.open(QIODevice::ReadOnly))
        return {{}, FileSecretStore::tr("cannot read %1: %2").arg(path, file.errorString())};
    QByteArray bytes = file.read(FileSecretStore::kMaxBytes + 1);
    const QJsonDocument document = bytes.size() > FileSecretStore::kMaxBytes
                                       ? QJsonDocument()
                                       : QJsonDocument::fromJson(bytes);
    sodium_memzero(bytes.data(), static_cast<size_t>(bytes.size()));
    if (!document.isObject())
        return {
            {},
            FileSecretStore::tr("%1 is not used because it is damaged; mend it, or move it away "
                                "and enter the secrets again")
                .arg(path)};
    return {document.object(), {}};
}

} // namespace

QString FileSecretStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/upsdesk/secrets.json");
}

FileSecretStore::FileSecretStore(const QString& path, QObject* parent)
    : SecretStore(parent)
    , m_path(path)
{}

void FileSecretStore::run(Action action, const QString& key, const SecretText& secret,
                          const Callback& done)
{
    done(action == Action::Read ? readKey(key) : change(key, secret));
}

SecretResult FileSecretStore::readKey(const QString& key) const
{
    const Content content = load(m_path);
    if (!content.error.isEmpty())
        return failure(content.error);
    const QJsonValue value = content.secrets.value(key);
    if (!value.isString())
        return {SecretResult::Status::NotFound, {}, {}};
    return {SecretResult::Status::Done, SecretText(value.toString()), {}};
}

SecretResult FileSecretStore::change(const QString& key, const SecretText& secret) const
{
    const QString folder = QFileInfo(m_path).absolutePath();
    if (!makePrivateFolder(folder))
        return failure(tr("cannot make the folder %1").arg(folder));
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lock.tryLock(kLockWait))
        return failure(tr("%1 is not written: another upsdesk is writing it, or its folder is "
                          "read-only")
                           .arg(m_path));
    Content content = load(m_path);
    if (!content.error.isEmpty())
        return failure(content.error);
    if (secret.isEmpty() && !content.secrets.contains(key))
        return done();
    if (secret.isEmpty())
        content.secrets.remove(key);
    else
        content.secrets.insert(key, secret.toString());
    QByteArray bytes = QJsonDocument(content.secrets).toJson();
    const QString error = writePrivateFile(m_path, bytes);
    sodium_memzero(bytes.data(), static_cast<size_t>(bytes.size()));
    return error.isEmpty() ? done() : failure(error);
}
