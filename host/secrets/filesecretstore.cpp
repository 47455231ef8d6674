#include "secrets/filesecretstore.h"

#include "private/privatefile.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>
#include <sodium.h>

namespace {

using Action = SecretStore::Action;
using Status = SecretResult::Status;

SecretStore::Results failures(int count, const QString& message)
{
    return SecretStore::Results(count, {Status::Failed, {}, message});
}

struct Content {
    QJsonObject secrets;
    QString error;
};

Content load(const QString& path)
{
    if (!isPrivateFile(path))
        return {{},
                FileSecretStore::tr("%1 is not used because others may read or write it; "
                                    "\"chmod 600\" ends that, then change the secrets in it")
                    .arg(path)};
    FileContent file = readBoundedFile(path, FileSecretStore::kMaxBytes);
    if (!file.error.isEmpty())
        return {{}, file.error};
    if (!file.bytes)
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(*file.bytes);
    sodium_memzero(file.bytes->data(), static_cast<size_t>(file.bytes->size()));
    if (!document.isObject())
        return {
            {},
            FileSecretStore::tr("%1 is not used because it is damaged; mend it, or move it away "
                                "and enter the secrets again")
                .arg(path)};
    return {document.object(), {}};
}

QString store(const QString& path, const QJsonObject& secrets)
{
    QByteArray bytes = QJsonDocument(secrets).toJson();
    const QString error = writePrivateFile(path, bytes);
    sodium_memzero(bytes.data(), static_cast<size_t>(bytes.size()));
    return error;
}

SecretResult carryOutOne(const SecretStore::Errand& errand, QJsonObject& secrets)
{
    if (errand.action == Action::Read) {
        const QJsonValue value = secrets.value(errand.key);
        if (!value.isString())
            return {Status::NotFound, {}, {}};
        return {Status::Done, SecretText(value.toString()), {}};
    }
    if (errand.action == Action::Remove || errand.secret.isEmpty())
        secrets.remove(errand.key);
    else
        secrets.insert(errand.key, errand.secret.toString());
    return {Status::Done, {}, {}};
}

SecretStore::Results carryOutAll(const SecretStore::Errands& errands, QJsonObject& secrets)
{
    SecretStore::Results results;
    for (const SecretStore::Errand& errand : errands)
        results += carryOutOne(errand, secrets);
    return results;
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

void FileSecretStore::carryOut(const Errands& errands, const Callback& done)
{
    const bool onlyReads = std::all_of(errands.begin(), errands.end(), [](const Errand& errand) {
        return errand.action == Action::Read;
    });
    if (!onlyReads)
        return done(change(errands));
    Content content = load(m_path);
    done(content.error.isEmpty() ? carryOutAll(errands, content.secrets)
                                 : failures(errands.size(), content.error));
}

SecretStore::Results FileSecretStore::change(const Errands& errands) const
{
    Results results;
    const QString error = withFileLock(m_path, [&] {
        Content content = load(m_path);
        if (!content.error.isEmpty())
            return content.error;
        const QJsonObject before = content.secrets;
        results = carryOutAll(errands, content.secrets);
        return content.secrets == before ? QString() : store(m_path, content.secrets);
    });
    return error.isEmpty() ? results : failures(errands.size(), error);
}
