// Secrets: the file, the keychain where there is none, and what devices need. Touches a temporary
// folder, the environment of this process, and a socket that never answers.

#include "config/devicesecrets.h"
#include "config/filesecretstore.h"
#include "config/keychainsecretstore.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using Status = SecretResult::Status;

constexpr int kPatience = 30 * 1000; // ms

// Waits for the answer of one call; the store must not answer before it returns.
template <typename Call>
SecretResult answer(const Call& call)
{
    std::optional<SecretResult> result;
    int answers = 0;
    call([&](const SecretResult& given) {
        result = given;
        ++answers;
    });
    if (answers || !QTest::qWaitFor([&] { return result.has_value(); }, kPatience) || answers != 1)
        return {Status::Failed, {}, "test: no answer, or an early one"};
    return *result;
}

SecretResult read(SecretStore& store, const QString& key)
{
    return answer([&](const SecretStore::Callback& done) { store.read(key, &store, done); });
}

SecretResult write(SecretStore& store, const QString& key, const QString& secret)
{
    return answer([&](const SecretStore::Callback& done) {
        store.write(key, SecretText(secret), &store, done);
    });
}

SecretResult remove(SecretStore& store, const QString& key)
{
    return answer([&](const SecretStore::Callback& done) { store.remove(key, &store, done); });
}

DeviceSettings device(const QString& name, const QString& address, const QString& user = {})
{
    DeviceSettings settings;
    settings.name = name;
    settings.user = user;
    settings.address = parseDeviceAddress(address).address.value_or(DeviceAddress());
    return settings;
}

// A socket that takes connections and says nothing.
class SilentSocket
{
public:
    explicit SilentSocket(const QByteArray& path)
        : m_socket(::socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
        m_listening =
            ::bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof(address)) == 0 &&
            ::listen(m_socket, 5) == 0;
    }
    ~SilentSocket() { ::close(m_socket); }
    bool isListening() const { return m_listening; }

private:
    int m_socket;
    bool m_listening = false;
};

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
        QCOMPARE(read(store, "a").status, Status::NotFound);
        QCOMPARE(remove(store, "a").status, Status::Done);
        QVERIFY(!QFile::exists(path));

        const QString odd = QString::fromUtf8("\" \\ \n \xf0\x9f\x94\x8b");
        QCOMPARE(write(store, "a", odd).status, Status::Done);
        QCOMPARE(write(store, "b/\"", "second").status, Status::Done);
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
        QCOMPARE(remove(store, "b/\"").status, Status::Done);
        QCOMPARE(read(store, "b/\"").status, Status::NotFound);
        QCOMPARE(QDir(m_folder.filePath("new")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"secrets.json"});
    }

    void fileOfOthersIsRefused()
    {
        const QString path = m_folder.filePath("secrets.json");
        const auto owner = QFile::ReadOwner | QFile::WriteOwner;
        FileSecretStore store(path);
        QCOMPARE(write(store, "a", "sesame").status, Status::Done);
        for (QFile::Permission others :
             {QFile::ReadGroup, QFile::WriteGroup, QFile::ReadOther, QFile::WriteOther}) {
            QVERIFY(QFile::setPermissions(path, owner | others));
            for (const SecretResult& result :
                 {read(store, "a"), write(store, "a", "x"), remove(store, "a")}) {
                QCOMPARE(result.status, Status::Failed);
                QVERIFY(result.message.contains("chmod 600") && !result.message.contains("sesame"));
                QVERIFY(result.secret.isEmpty());
            }
        }
        QVERIFY(QFile::setPermissions(path, owner));
        QCOMPARE(read(store, "a").secret.toString(), QString("sesame"));
    }

    void damagedFileStays()
    {
        const QByteArray tooLong(FileSecretStore::kMaxBytes, 'x');
        for (const QByteArray& bytes :
             {QByteArray(), QByteArray("{\"a\": \"ses"), QByteArray("[\"a\"]"),
              "{\"a\": \"" + tooLong + "\"}", QByteArray(100000, '[')}) {
            QFile file(m_folder.filePath("damaged.json"));
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(bytes);
            file.close();
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
            FileSecretStore store(file.fileName());
            QVERIFY(read(store, "a").message.contains("damaged"));
            QVERIFY(write(store, "b", "x").message.contains("damaged"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), bytes);
        }
    }

    void answersNobodyWaitsFor()
    {
        bool called = false;
        auto store = std::make_unique<FileSecretStore>(m_folder.filePath("secrets.json"));
        auto context = std::make_unique<QObject>();
        store->read("a", context.get(), [&](const SecretResult&) { called = true; });
        context.reset();
        QCoreApplication::processEvents();
        store->read("a", this, [&](const SecretResult&) { called = true; });
        store.reset();
        QCoreApplication::processEvents();
        QVERIFY(!called);
    }

    // A bus that does not answer, then none: a process asks for its bus only once.
    void keychainWithoutService()
    {
        const QByteArray path = QFile::encodeName(m_folder.filePath("bus"));
        std::optional<SilentSocket> silent;
        QVERIFY(silent.emplace(path).isListening());
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);
        for (int timeLimit : {200, KeychainSecretStore::kDefaultTimeLimit}) {
            KeychainSecretStore store(timeLimit);
            for (const SecretResult& result :
                 {read(store, "a"), write(store, "a", "sesame"), remove(store, "a")}) {
                QCOMPARE(result.status, Status::Failed);
                QCOMPARE(result.message.contains("it does not answer"), silent.has_value());
                QVERIFY2(result.message.contains("store = file"), qPrintable(result.message));
                QVERIFY(!result.message.contains("sesame"));
            }
            silent.reset();
        }
    }

    void neededSecrets()
    {
        const struct {
            const char* address;
            const char* user;
            QStringList keys;
        } rows[] = {
            {"sim:", "anna", {}},
            {"nut://h/u", "", {}},
            {"nut://h/u", "anna", {"device/D/nut"}},
            {"snmp://public@h", "anna", {}},
            {"snmp://u@h?version=3", "", {"device/D/auth", "device/D/priv"}},
            {"snmp://u@h?version=3&level=authNoPriv", "", {"device/D/auth"}},
            {"snmp://u@h?version=3&level=noAuthNoPriv", "", {}},
        };
        for (const auto& row : rows) {
            QStringList found;
            for (SecretPurpose purpose : ::neededSecrets(device("D", row.address, row.user)))
                found += secretKey("D", purpose);
            QCOMPARE(found, row.keys);
        }
    }

    void environmentComesFirst()
    {
        for (const char* variable : kVariables)
            qputenv(variable, variable);
        DeviceSettings nut = device("D", "nut://h/u", "anna");
        DeviceSettings snmp = device("D", "snmp://u@h?version=3&level=authNoPriv");
        nut.secret = snmp.authSecret = "of the store";
        applySecretOverrides(nut);
        applySecretOverrides(snmp);
        QCOMPARE(nut.secret, QString("UPSDESK_NUT_SECRET"));
        QCOMPARE(nut.authSecret, QString());
        QCOMPARE(snmp.authSecret, QString("UPSDESK_AUTH_SECRET"));
        QCOMPARE(snmp.privSecret, QString()); // its level does not use it
        init();
        applySecretOverrides(nut);
        QCOMPARE(nut.secret,
                 QString("UPSDESK_NUT_SECRET")); // an absent variable takes nothing away
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
        QVERIFY(devices.isEmpty());
        QTRY_COMPARE(devices.size(), 4);
        QCOMPARE(devices[0].secret, QString("one"));
        QCOMPARE(devices[1].authSecret, QString("two"));
        QCOMPARE(devices[1].privSecret, QString("of the command line"));
        QCOMPARE(devices[2].secret + devices[3].secret, QString());
    }

    void noticeOfAFailingStore()
    {
        FileSecretStore store(m_folder.path()); // a folder, not a file
        QString notice;
        int count = 0;
        readDeviceSecrets(store,
                          {device("N", "nut://h/u", "anna"), device("S", "snmp://u@h?version=3")},
                          this, [&](const QVector<DeviceSettings>& filled, const QString& message) {
                              count = filled.size(); // the devices come all the same
                              notice = message;
                          });
        QTRY_COMPARE(count, 2);
        QVERIFY(notice.contains("is not a file"));
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSecretStore)
#include "tst_secretstore.moc"
