// Secrets: the file and what devices need. Touches a temporary folder and the environment of this
// process.

#include "secrets/devicesecrets.h"
#include "secrets/filesecretstore.h"
#include "secrets/keychainsecretstore.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

using Status = SecretResult::Status;

constexpr int kPatience = 30 * 1000; // ms

// Waits for the answer of one errand; the store must not answer before it returns.
SecretResult answer(SecretStore& store, const SecretStore::Errand& errand)
{
    SecretStore::Results results;
    int answers = 0;
    store.run({errand}, &store, [&](const SecretStore::Results& given) {
        results = given;
        ++answers;
    });
    if (answers || !QTest::qWaitFor([&] { return answers > 0; }, kPatience) || answers != 1 ||
        results.size() != 1)
        return {Status::Failed, {}, "test: no answer, or an early one"};
    return results.first();
}

SecretResult read(SecretStore& store, const QString& key)
{
    return answer(store, {SecretStore::Action::Read, key, {}});
}

SecretResult write(SecretStore& store, const QString& key, const QString& secret)
{
    return answer(store, {SecretStore::Action::Write, key, SecretText(secret)});
}

SecretResult remove(SecretStore& store, const QString& key)
{
    return answer(store, {SecretStore::Action::Remove, key, {}});
}

DeviceSettings device(const QString& name, const QString& address, const QString& user = {})
{
    DeviceSettings settings;
    settings.name = name;
    settings.user = user;
    settings.address = parseDeviceAddress(address).address.value_or(DeviceAddress());
    return settings;
}

const char* const kVariables[] = {"UPSDESK_NUT_SECRET", "UPSDESK_AUTH_SECRET",
                                  "UPSDESK_PRIV_SECRET"};

} // namespace

class TestSecretStore : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        for (const char* variable : kVariables)
            qunsetenv(variable);
    }

    void fileKeepsSecrets()
    {
        const QString path = m_folder.filePath("new/secrets.json");
        FileSecretStore store(path);
        const QString odd = QString::fromUtf8("\" \\ \n \xf0\x9f\x94\x8b");
        QCOMPARE(write(store, "a", odd).status, Status::Done);
        const QFile::Permissions others(QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther |
                                        QFile::WriteOther);
        QVERIFY(!(QFile::permissions(path) & others));
        QVERIFY(!(QFile::permissions(m_folder.filePath("new")) & others));

        FileSecretStore again(path);
        QCOMPARE(read(again, "a").secret.toString(), odd);
        QCOMPARE(write(again, "a", "other").status, Status::Done);
        QCOMPARE(read(store, "a").secret.toString(), QString("other"));
        QCOMPARE(write(store, "a", "").status, Status::Done); // nothing to keep
        QCOMPARE(read(store, "a").status, Status::NotFound);
        QCOMPARE(QDir(m_folder.filePath("new")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"secrets.json"});
    }

    void fileOfOthersIsRefused()
    {
        const QString path = m_folder.filePath("secrets.json");
        const auto owner = QFile::ReadOwner | QFile::WriteOwner;
        FileSecretStore store(path);
        QCOMPARE(write(store, "a", "sesame").status, Status::Done);
        for (QFile::Permission others : {QFile::ReadGroup, QFile::WriteOther}) {
            QVERIFY(QFile::setPermissions(path, owner | others));
            for (const SecretResult& result :
                 {read(store, "a"), write(store, "a", "x"), remove(store, "a")}) {
                QCOMPARE(result.status, Status::Failed);
                QVERIFY(result.message.contains("chmod 600") && !result.message.contains("sesame"));
            }
        }
        QVERIFY(QFile::setPermissions(path, owner));
        QCOMPARE(read(store, "a").secret.toString(), QString("sesame"));
    }

    void damagedFileStays()
    {
        const QByteArray tooLong(FileSecretStore::kMaxBytes, 'x');
        for (const QByteArray& bytes :
             {QByteArray("{\"a\": \"ses"), "{\"a\": \"" + tooLong + "\"}"}) {
            QFile file(m_folder.filePath("damaged.json"));
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(bytes);
            file.close();
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
            FileSecretStore store(file.fileName());
            const char* cause = bytes.size() > tooLong.size() ? "longer" : "damaged";
            QVERIFY(read(store, "a").message.contains(cause));
            QVERIFY(write(store, "b", "x").message.contains(cause));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), bytes);
        }
    }

    void keychainWithoutService()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
        KeychainSecretStore store;
        for (const SecretResult& result : {read(store, "a"), write(store, "a", "sesame")}) {
            QCOMPARE(result.status, Status::Failed);
            QVERIFY2(result.message.contains("store = file"), qPrintable(result.message));
            QVERIFY(!result.message.contains("sesame"));
        }
    }

    void neededSecrets()
    {
        const struct {
            const char* address;
            const char* user;
            QStringList keys;
        } rows[] = {
            {"nut://h/u", "anna", {"device/D/nut"}},
            {"snmp://public@h", "anna", {}},
            {"snmp://u@h?version=3", "", {"device/D/auth", "device/D/priv"}},
            {"snmp://u@h?version=3&level=authNoPriv", "", {"device/D/auth"}},
        };
        for (const auto& row : rows) {
            QStringList found;
            for (SecretPurpose purpose : ::neededSecrets(device("D", row.address, row.user)))
                found += secretKey("D", purpose);
            QCOMPARE(found, row.keys);
        }
    }

    void secretsOfDevices()
    {
        FileSecretStore store(m_folder.filePath("devices.json"));
        QCOMPARE(write(store, "device/N/nut", "one").status, Status::Done);
        QCOMPARE(write(store, "device/S/auth", "two").status, Status::Done);
        QCOMPARE(write(store, "device/S/priv", "three").status, Status::Done);
        qputenv("UPSDESK_PRIV_SECRET", "of the command line");

        QVector<DeviceSettings> devices;
        readDeviceSecrets(store,
                          {device("N", "nut://h/u", "anna"), device("S", "snmp://u@h?version=3"),
                           device("other", "nut://h/u", "anna"), device("", "nut://h/u", "anna")},
                          this, [&](const QVector<DeviceSettings>& filled, const QString& message) {
                              QCOMPARE(message, QString());
                              devices = filled;
                          });
        QTRY_COMPARE(devices.size(), 4);
        QCOMPARE(devices[0].secret, QString("one"));
        QCOMPARE(devices[1].authSecret, QString("two"));
        QCOMPARE(devices[1].privSecret, QString("of the command line"));
        QCOMPARE(devices[2].secret + devices[3].secret, QString());
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSecretStore)
#include "tst_secretstore.moc"
