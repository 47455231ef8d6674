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
    // is neither read nor overwritten: every call fails and says so.
    explicit FileSecretStore(const QString& path = defaultPath(), QObject* parent = nullptr);

    static constexpr qint64 kMaxBytes = 1024 * 1024;

protected:
    void run(Action action, const QString& key, const SecretText& secret,
             const Callback& done) override;

private:
    SecretResult readKey(const QString& key) const;
    SecretResult change(const QString& key, const SecretText& secret) const; // empty: removes

    QString m_path;
};

#endif // FILESECRETSTORE_H
