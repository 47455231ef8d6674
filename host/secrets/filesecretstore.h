#ifndef FILESECRETSTORE_H
#define FILESECRETSTORE_H

// Secrets in a file that only the user can read, for desktops without a keychain.
// May touch: the file system. Not encrypted: who is this user, or root, can read it.

#include "secrets/secretstore.h"

class FileSecretStore : public SecretStore
{
    Q_OBJECT

public:
    // upsdesk/secrets.json in the user's data folder.
    static QString defaultPath();

    // A JSON object of texts. A file that others may read or write, or that is not such an object,
    // is neither read nor overwritten: every errand fails and says so. Errands that come together
    // read the file once and write it once, all of them or none.
    explicit FileSecretStore(const QString& path = defaultPath(), QObject* parent = nullptr);

    static constexpr qint64 kMaxBytes = 4 * 1024 * 1024;

protected:
    void carryOut(const Errands& errands, const Callback& done) override;

private:
    Results change(const Errands& errands) const;

    QString m_path;
};

#endif // FILESECRETSTORE_H
