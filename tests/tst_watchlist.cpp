// Configuration file, secret store and fleet stay in agreement, also where one of them refuses.
// Touches a temporary folder.

#include "fleet/watchlist.h"
#include "private/passwordhash.h"
#include "secrets/devicesecrets.h"
#include "support/scriptedconnector.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Status = SecretResult::Status;

class ScriptedStore : public SecretStore
{
public:
    struct Content {
        QMap<QString, QString> secrets;
        bool broken = false;
        int calls = 0;
        int delayMs = 0; // until it answers
    };

    explicit ScriptedStore(const std::shared_ptr<Content>& content)
        : m_content(content)
    {}

protected:
    void carryOut(const Errands& errands, const Callback& done) override
    {
        ++m_content->calls;
        Results results;
        for (const Errand& errand : errands)
            results += m_content->broken
                           ? SecretResult{Status::Failed, {}, "the keychain is broken"}
                           : carryOutOne(errand);
        QTimer::singleShot(m_content->delayMs, [done, results] { done(results); });
    }

private:
    SecretResult carryOutOne(const Errand& errand)
    {
        QMap<QString, QString>& secrets = m_content->secrets;
        if (errand.action == Action::Write)
            secrets[errand.key] = errand.secret.toString();
        else if (errand.action == Action::Remove)
            secrets.remove(errand.key);
        else if (!secrets.contains(errand.key))
            return {Status::NotFound, {}, {}};
        return {Status::Done, SecretText(secrets.value(errand.key)), {}};
    }

    const std::shared_ptr<Content> m_content;
};

class NotingConnector : public ScriptedConnector
{
public:
    explicit NotingConnector(const std::function<void()>& note)
        : m_note(note)
    {}
    void poll() override { m_note(); }

private:
    const std::function<void()> m_note;
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
    std::shared_ptr<ScriptedStore::Content> file = std::make_shared<ScriptedStore::Content>();
    QVector<DeviceSettings> polled; // with what was known then
    Fleet fleet{[this](const DeviceSettings& settings) {
        return std::make_unique<NotingConnector>([this, settings] { polled += settings; });
    }};
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
                                           [this](SecretsChoice choice) {
                                               return std::make_unique<ScriptedStore>(
                                                   choice == SecretsChoice::File ? file : store);
                                           });
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
    void edits_data();
    void edits();
    void foreignFileRefuses();
    void guardRefuses();
    void secretsFollow();
    void secretsAreKept();
    void secretsAreWaitedFor();
    void secretsGoAlongToAnotherStore();
    void foreignOperatorsCount();
};

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
        "move past one of the command line",
        [](Desk& d) { return d.list->move(d.list->find("C"), 0); }, "C cli A B cli2", "C A B");
    const auto refused = [&row](const char* name, const Change& change) {
        row(
            name,
            [change](Desk& d) { return change(d).isEmpty() ? QString("accepted") : QString(); },
            "cli A B C cli2", "A B C");
    };
    refused("name twice", [](Desk& d) { return d.list->add(device("A")); });
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
}

void TestWatchList::foreignFileRefuses()
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
    QFile file(desk.path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);

    // Mended by hand while the desk runs: the next edit finds out.
    desk.write(devices({"B", "A"}));
    QVERIFY(desk.list->add(device("C")).contains("read again"));
    QCOMPARE(desk.list->add(device("C")), QString());
    QCOMPARE(desk.inFleet(), QString("B A C"));

    QVERIFY(QFile::remove(desk.path()));
    QVERIFY(desk.list->add(device("D")).contains("changed by another program"));
    QCOMPARE(desk.inFleet(), QString("B A C"));
}

// Whatever a dialog thought: who may not change the desk does not.
void TestWatchList::guardRefuses()
{
    Desk desk;
    desk.open(devices({"A", "B"}));
    desk.fleet.add(device("cli"));
    desk.list->setGuard([] { return QString("log in"); });
    QSignalSpy edited(desk.list.get(), &WatchList::edited);
    Device* a = desk.list->find("A");
    for (const QString& reason :
         {desk.list->add(device("C")), desk.list->remove(a), desk.list->change(a, device("X")),
          desk.list->move(a, 1), desk.list->remove(desk.fleet.at(2)),
          desk.list->edit("Settings", [](DeskConfig&) { return QString(); })})
        QCOMPARE(reason, QString("log in"));
    QCOMPARE(desk.inFleet(), QString("A B cli"));
    QCOMPARE(desk.inFile(), QString("A B"));
    QCOMPARE(edited.size(), 0);
    desk.list->setGuard({});
    QCOMPARE(desk.list->remove(a), QString());
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.first().at(0), QVariant("A"));
}

void TestWatchList::secretsFollow()
{
    Desk desk;
    desk.store->secrets = {{"device/A/auth", "authentic"}, {"device/A/priv", "privately"}};
    QSignalSpy replaced(&desk.fleet, &Fleet::deviceReplaced);
    desk.open(devices({"A"}, kSecured) + devices({"B"}));
    QTRY_COMPARE(replaced.size(), 1); // B needs none
    QCOMPARE(desk.inFleet(), QString("A B"));
    QCOMPARE(desk.list->find("A")->settings().authSecret, QString("authentic"));
    QCOMPARE(desk.list->find("A")->settings().privSecret, QString("privately"));
    QVERIFY(!QString(desk.list->config().document().toBytes()).contains("authentic"));

    // A store that fails keeps what it had.
    const auto before = desk.store->secrets;
    desk.store->broken = true;
    QSignalSpy failed(desk.list.get(), &WatchList::secretsFailed);
    DeviceSettings settings = desk.list->find("A")->settings();
    settings.name = "C";
    settings.privSecret = "another one";
    QCOMPARE(desk.list->change(desk.list->find("A"), settings), QString());
    QTRY_COMPARE(failed.size(), 2);
    QCOMPARE(desk.store->secrets, before);
    QCOMPARE(desk.list->find("C")->settings().privSecret, QString("another one")); // this time
}

void TestWatchList::secretsAreKept()
{
    using Secrets = QMap<QString, QString>;
    Desk desk;
    desk.open({});
    DeviceSettings settings = device("A", kSecured);
    settings.authSecret = "authentic";
    settings.privSecret = "privately";
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

    settings.address = *parseDeviceAddress(QString(kSecured) + "&level=authNoPriv").address;
    QCOMPARE(desk.list->change(desk.list->find("B"), settings), QString());
    QTRY_COMPARE(desk.store->secrets, (Secrets{{"device/B/auth", "authentic"}})); // all it needs

    QCOMPARE(desk.list->remove(desk.list->find("B")), QString());
    QTRY_VERIFY(desk.store->secrets.isEmpty());
}

// Opened at once, a device whose secrets are on their way would be refused for nothing.
void TestWatchList::secretsAreWaitedFor()
{
    for (bool known : {true, false}) {
        Desk desk;
        desk.store->delayMs = 100; // a poll would be there long before
        if (known)
            desk.store->secrets = {{"device/A/auth", "authentic"}, {"device/A/priv", "privately"}};
        desk.open(devices({"A", "B"}, kSecured));
        desk.fleet.pollNow(desk.list->find("A"));
        QTRY_VERIFY(!desk.polled.isEmpty());
        QCOMPARE(desk.store->calls, 1); // for both devices
        QCOMPARE(desk.polled.first().name, QString("A"));
        QCOMPARE(desk.polled.first().privSecret, QString(known ? "privately" : ""));
    }
}

void TestWatchList::secretsGoAlongToAnotherStore()
{
    Desk desk;
    desk.store->secrets = {{"device/A/auth", "authentic"}, {"device/A/priv", "privately"}};
    const auto secrets = desk.store->secrets;
    desk.open(devices({"A"}, kSecured));
    QTRY_COMPARE(desk.list->find("A")->settings().privSecret, QString("privately"));
    const auto choose = [&desk](SecretsChoice choice) {
        return desk.list->edit("Settings", [choice](DeskConfig& config) {
            DeskSettings settings = config.settings();
            settings.secrets = choice;
            return config.setSettings(settings);
        });
    };
    QCOMPARE(choose(SecretsChoice::File), QString());
    QTRY_COMPARE(desk.file->secrets, secrets);
    QTRY_VERIFY(desk.store->secrets.isEmpty());

    desk.store->broken = true; // the way back fails: nothing is lost
    QCOMPARE(choose(SecretsChoice::Keychain), QString());
    QSignalSpy failed(desk.list.get(), &WatchList::secretsFailed);
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(desk.file->secrets, secrets);
}

void TestWatchList::foreignOperatorsCount()
{
    const QByteArray anna =
        "[operator anna]\nlevel = 1\nhash = " + impossibleHash(HashLimits::minimal()).toLatin1() +
        '\n';
    Desk desk;
    desk.open(devices({"A"}) + anna);
    QCOMPARE(desk.list->operators().size(), 1);
    desk.write(devices({"A", "B"})); // by hand
    desk.list->readOperators();
    QVERIFY(desk.list->operators().isEmpty());
    QCOMPARE(desk.inFleet(), QString("A"));           // until the next edit
    desk.write(devices({"A"}) + "nonsense\n" + anna); // operators of a faulty file count
    desk.list->readOperators();
    QCOMPARE(desk.list->operators().size(), 1);
    QVERIFY(QFile::remove(desk.path()));
    desk.list->readOperators();
    QCOMPARE(desk.list->operators().size(), 1);
}

QTEST_GUILESS_MAIN(TestWatchList)
#include "tst_watchlist.moc"
