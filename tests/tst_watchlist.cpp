// Configuration file, secret store and fleet stay in agreement, also where one of them refuses.
// Touches a temporary folder.

#include "config/devicesecrets.h"
#include "fleet/watchlist.h"
#include "support/scriptedconnector.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Status = SecretResult::Status;

// Answers at once, or when the test says so.
class ScriptedStore : public SecretStore
{
public:
    struct Content {
        QMap<QString, QString> secrets;
        bool silent = false;
        bool broken = false;
        std::vector<std::function<void()>> waiting;

        void answerAll()
        {
            for (const auto& answer : std::exchange(waiting, {}))
                answer();
        }
    };

    explicit ScriptedStore(const std::shared_ptr<Content>& content)
        : m_content(content)
    {}

protected:
    void run(Action action, const QString& key, const SecretText& secret,
             const Callback& done) override
    {
        const auto answer = [=] { done(carryOut(action, key, secret)); };
        if (m_content->silent)
            m_content->waiting.push_back(answer);
        else
            answer();
    }

private:
    SecretResult carryOut(Action action, const QString& key, const SecretText& secret) const
    {
        if (m_content->broken)
            return {Status::Failed, {}, "the keychain is broken"};
        if (action == Action::Write)
            m_content->secrets[key] = secret.toString();
        else if (action == Action::Remove)
            m_content->secrets.remove(key);
        else if (!m_content->secrets.contains(key))
            return {Status::NotFound, {}, {}};
        return {Status::Done, SecretText(m_content->secrets.value(key)), {}};
    }

    const std::shared_ptr<Content> m_content;
};

const char kSecured[] = "snmp://anna@127.0.0.1?version=3";

DeviceSettings device(const QString& name, const QString& address = QStringLiteral("sim:"))
{
    DeviceSettings settings;
    settings.name = name;
    settings.address = *parseDeviceAddress(address).address;
    return settings;
}

struct Desk {
    QTemporaryDir folder;
    std::shared_ptr<ScriptedStore::Content> store = std::make_shared<ScriptedStore::Content>();
    Fleet fleet{[](const DeviceSettings&) { return std::make_unique<ScriptedConnector>(); }};
    std::unique_ptr<WatchList> list;

    QString path() const { return folder.filePath("upsdesk.conf"); }

    void write(const QByteArray& bytes) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }

    // A file with these devices, all simulated unless they are secured.
    void open(const QByteArray& bytes)
    {
        write(bytes);
        list = std::make_unique<WatchList>(fleet, DeskConfig::load(path()),
                                           std::make_unique<ScriptedStore>(store));
        list->load();
    }

    QString inFleet() const
    {
        QStringList names;
        for (int i = 0; i < fleet.count(); ++i)
            names << fleet.at(i)->name();
        return names.join(' ');
    }
    QString inFile() const
    {
        QStringList names;
        const DeskConfig config = DeskConfig::load(path());
        for (const DeviceSettings& found : config.devices())
            names << found.name;
        return names.join(' ');
    }
};

QByteArray devices(const QStringList& names, const QByteArray& address = "sim:")
{
    QByteArray bytes;
    for (const QString& name : names)
        bytes += "[device " + name.toUtf8() + "]\naddress = " + address + "\n";
    return bytes;
}

} // namespace

class TestWatchList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void edits_data();
    void edits();
    void moves_data();
    void moves();
    void faultyFileRefuses();
    void fileChangedMeanwhile_data();
    void fileChangedMeanwhile();
    void secretsFollow();
    void silentKeychainHoldsNobodyElse();
    void secretsAreKept();
    void failedStoreKeepsTheOldSecret();
};

void TestWatchList::initTestCase()
{
    for (const char* variable :
         {"UPSDESK_NUT_SECRET", "UPSDESK_AUTH_SECRET", "UPSDESK_PRIV_SECRET"})
        qunsetenv(variable);
}

using Change = std::function<QString(Desk&)>;
Q_DECLARE_METATYPE(Change)

void TestWatchList::edits_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("fleet");
    QTest::addColumn<QString>("file");
    const auto row = [](const char* name, const Change& change, const char* fleet,
                        const char* file) {
        QTest::newRow(name) << change << QString(fleet) << QString(file);
    };
    row(
        "add", [](Desk& d) { return d.list->add(device("D")); }, "cli A B C cli2 D", "A B C D");
    row(
        "rename", [](Desk& d) { return d.list->change(d.list->find("B"), device("X")); },
        "cli A X C cli2", "A X C");
    row(
        "remove", [](Desk& d) { return d.list->remove(d.list->find("A")); }, "cli B C cli2", "B C");
    row(
        "remove one of the command line", [](Desk& d) { return d.list->remove(d.fleet.at(0)); },
        "A B C cli2", "A B C");
    row(
        "keep one of the command line",
        [](Desk& d) { return d.list->change(d.fleet.at(0), device("cli")); }, "cli A B C cli2",
        "cli A B C");
    row(
        "any other edit",
        [](Desk& d) { return d.list->edit([](DeskConfig& c) { return c.removeDevice("B"); }); },
        "cli A C cli2", "A C");
    // refused
    const auto refused = [&row](const char* name, const Change& change) {
        row(
            name,
            [change](Desk& d) { return change(d).isEmpty() ? QString("accepted") : QString(); },
            "cli A B C cli2", "A B C");
    };
    refused("name twice", [](Desk& d) { return d.list->add(device("A")); });
    refused("no name", [](Desk& d) { return d.list->add(device("")); });
    refused("renamed to a name that is taken",
            [](Desk& d) { return d.list->change(d.list->find("B"), device("C")); });
    refused("beyond the end", [](Desk& d) { return d.list->move(d.list->find("A"), 5); });
}

void TestWatchList::edits()
{
    QFETCH(Change, change);
    QFETCH(QString, fleet);
    QFETCH(QString, file);
    Desk desk;
    desk.fleet.add(device("cli"));
    desk.open(devices({"A", "B", "C"}));
    desk.fleet.add(device("cli2"));
    QCOMPARE(desk.inFleet(), QString("cli A B C cli2"));
    QCOMPARE(change(desk), QString());
    QCOMPARE(desk.inFleet(), fleet);
    QCOMPARE(desk.inFile(), file);
    for (const DeviceSettings& configured : desk.list->config().devices())
        QVERIFY(desk.list->isConfigured(desk.list->find(configured.name)));
}

void TestWatchList::moves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("fleet");
    QTest::addColumn<QString>("file");
    QTest::newRow("down") << "A" << 4 << "cli B cli2 C A"
                          << "B C A";
    QTest::newRow("up") << "C" << 1 << "cli C A B cli2"
                        << "C A B";
    QTest::newRow("past one of the command line") << "C" << 0 << "C cli A B cli2"
                                                  << "C A B";
    QTest::newRow("only past one of the command line") << "A" << 0 << "A cli B cli2 C"
                                                       << "A B C";
}

void TestWatchList::moves()
{
    QFETCH(QString, name);
    QFETCH(int, to);
    Desk desk;
    desk.fleet.add(device("cli"));
    desk.open(devices({"A", "B", "C"}));
    desk.fleet.add(device("cli2"));
    desk.fleet.move(3, 4);
    QCOMPARE(desk.inFleet(), QString("cli A B cli2 C"));
    QCOMPARE(desk.list->move(desk.list->find(name), to), QString());
    QTEST(desk.inFleet(), "fleet");
    QTEST(desk.inFile(), "file");
}

void TestWatchList::faultyFileRefuses()
{
    Desk desk;
    const QByteArray bytes = devices({"A", "B"}) + "interval = never\n";
    desk.open(bytes);
    for (const QString& reason :
         {desk.list->add(device("C")), desk.list->remove(desk.list->find("A")),
          desk.list->change(desk.list->find("A"), device("X")),
          desk.list->move(desk.list->find("A"), 1)})
        QVERIFY2(reason.contains("line 5"), qPrintable(reason));
    QCOMPARE(desk.inFleet(), QString("A B"));
    QVERIFY(desk.store->secrets.isEmpty());
    QFile file(desk.path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);

    // Mended by hand while the desk runs: the next edit finds out.
    desk.write(devices({"B", "A"}));
    QVERIFY(desk.list->add(device("C")).contains("read again"));
    QCOMPARE(desk.list->add(device("C")), QString());
    QCOMPARE(desk.inFleet(), QString("B A C"));
}

void TestWatchList::fileChangedMeanwhile_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: deleted
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("fleet");
    QTest::newRow("other devices") << devices({"C", "A"}) << "read again"
                                   << "cli C A";
    QTest::newRow("other address") << devices({"A", "B"}, "sim:outage") << "read again"
                                   << "cli A B";
    QTest::newRow("faulty") << QByteArray("[device A]\naddress = x\n") << "line 2"
                            << "cli A B";
    QTest::newRow("gone") << QByteArray() << "changed by another program"
                          << "cli A B";
}

void TestWatchList::fileChangedMeanwhile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    Desk desk;
    desk.fleet.add(device("cli"));
    desk.open(devices({"A", "B"}));
    if (bytes.isNull())
        QVERIFY(QFile::remove(desk.path()));
    else
        desk.write(bytes);
    const QString given = desk.list->add(device("D"));
    QVERIFY2(given.contains(reason), qPrintable(given));
    QTEST(desk.inFleet(), "fleet");
    if (bytes.contains("outage"))
        QCOMPARE(desk.list->find("B")->address(), QString("sim:outage"));
}

void TestWatchList::secretsFollow()
{
    Desk desk;
    desk.store->secrets = {{"device/A/auth", "authentic"}, {"device/A/priv", "privately"}};
    QSignalSpy replaced(&desk.fleet, &Fleet::deviceReplaced);
    desk.open(devices({"A", "B"}, kSecured));
    QCOMPARE(desk.inFleet(), QString("A B"));
    QTRY_COMPARE(replaced.size(), 1); // B has none
    QCOMPARE(desk.inFleet(), QString("A B"));
    QCOMPARE(desk.list->find("A")->settings().authSecret, QString("authentic"));
    QCOMPARE(desk.list->find("A")->settings().privSecret, QString("privately"));
    QVERIFY(!QString(desk.list->config().document().toBytes()).contains("authentic"));
}

void TestWatchList::silentKeychainHoldsNobodyElse()
{
    Desk desk;
    desk.store->silent = true;
    desk.open(devices({"A"}, kSecured) + devices({"B"}));
    Device* secured = desk.list->find("A");
    Device* plain = desk.list->find("B");
    QVERIFY(secured->dueMs() >= plain->dueMs() + WatchList::kSecretsPatienceMs / 2);
    QTRY_VERIFY(plain->isPolling());
    QVERIFY(!secured->isPolling());

    QTRY_VERIFY(!desk.store->waiting.empty());
    QSignalSpy failed(desk.list.get(), &WatchList::secretsFailed);
    desk.store->broken = true;
    desk.store->answerAll();
    QCOMPARE(failed.size(), 1);
    QVERIFY(failed.at(0).at(0).toString().contains("broken"));
    QTRY_VERIFY(secured->isPolling()); // to say what is missing
}

void TestWatchList::secretsAreKept()
{
    using Secrets = QMap<QString, QString>;
    Desk desk;
    desk.open({});
    DeviceSettings settings = device("A", kSecured);
    settings.authSecret = "authentic";
    settings.privSecret = "privately";
    settings.secret = "not needed";
    QCOMPARE(desk.list->add(settings), QString());
    QTRY_COMPARE(desk.store->secrets,
                 (Secrets{{"device/A/auth", "authentic"}, {"device/A/priv", "privately"}}));

    settings = desk.list->find("A")->settings();
    QCOMPARE(settings.privSecret, QString("privately"));
    settings.name = "B";
    settings.privSecret = "new and private";
    QCOMPARE(desk.list->change(desk.list->find("A"), settings), QString());
    QTRY_COMPARE(desk.store->secrets,
                 (Secrets{{"device/B/auth", "authentic"}, {"device/B/priv", "new and private"}}));

    settings.address =
        *parseDeviceAddress("snmp://anna@127.0.0.1?version=3&level=authNoPriv").address;
    QCOMPARE(desk.list->change(desk.list->find("B"), settings), QString());
    QTRY_COMPARE(desk.store->secrets, (Secrets{{"device/B/auth", "authentic"}}));

    QCOMPARE(desk.list->remove(desk.list->find("B")), QString());
    QTRY_VERIFY(desk.store->secrets.isEmpty());
}

void TestWatchList::failedStoreKeepsTheOldSecret()
{
    Desk desk;
    desk.store->secrets = {{"device/A/auth", "authentic"}, {"device/A/priv", "privately"}};
    desk.open(devices({"A"}, kSecured));
    QTRY_COMPARE(desk.list->find("A")->settings().privSecret, QString("privately"));
    const auto before = desk.store->secrets;
    desk.store->broken = true;
    QSignalSpy failed(desk.list.get(), &WatchList::secretsFailed);
    DeviceSettings settings = desk.list->find("A")->settings();
    settings.name = "B";
    settings.privSecret = "another one";
    QCOMPARE(desk.list->change(desk.list->find("A"), settings), QString());
    QTRY_COMPARE(failed.size(), 2);
    QCOMPARE(desk.store->secrets, before);
    QCOMPARE(desk.list->find("B")->settings().privSecret, QString("another one")); // this time
}

QTEST_GUILESS_MAIN(TestWatchList)
#include "tst_watchlist.moc"
