// Adding and changing devices: address and fields in step, what is wrong is said, secrets are not
// shown, a connection is tried without waiting, and the list's actions reach file and fleet.

#include "connectors/addressrange.h"
#include "connectors/factory/connectorfactory.h"
#include "fleet/watchlist.h"
#include "secrets/filesecretstore.h"
#include "support/lineserver.h"
#include "support/nutanswers.h"
#include "support/quietplatform.h"
#include "support/scriptedconnector.h"
#include "window/deviceactions.h"
#include "window/devicedialog.h"
#include "window/finddevicesdialog.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const char kSecured[] = "snmp://anna@10.0.0.9?version=3&level=authPriv&auth=SHA&priv=AES";

DeviceSettings device(const QString& name, const QString& address)
{
    DeviceSettings settings;
    settings.name = name;
    settings.address = *parseDeviceAddress(address).address;
    return settings;
}

// A dialog with connectors that answer when the test says so.
struct Desk {
    explicit Desk(const DeviceSettings& settings = {})
        : dialog(std::make_unique<DeviceDialog>(
              settings, QStringList{"Taken", "ups1"},
              [this](const DeviceSettings&) {
                  auto made = std::make_unique<ScriptedConnector>();
                  connector = made.get();
                  return made;
              },
              [this](const DeviceSettings& kept) {
                  saved << kept;
                  return refusal;
              }))
    {
        dialog->show();
    }

    template <typename T = QLineEdit>
    T* field(const char* name) const
    {
        return dialog->findChild<T*>(name);
    }
    // "Key=value" by object name; combo boxes by their data or text.
    void set(const QString& assignment) const
    {
        const QString name = assignment.section('=', 0, 0);
        const QString value = assignment.section('=', 1);
        QList<QWidget*> found = dialog->findChildren<QWidget*>(name);
        auto shown =
            std::find_if(found.begin(), found.end(), [](QWidget* w) { return w->isVisible(); });
        QVERIFY2(shown != found.end(), qPrintable(name));
        if (auto* box = qobject_cast<QComboBox*>(*shown); box && box->isEditable())
            box->setEditText(value);
        else if (box)
            box->setCurrentIndex(std::max(box->findText(value), box->findData(value)));
        else if (auto* number = qobject_cast<QSpinBox*>(*shown))
            number->setValue(value.toInt());
        else
            qobject_cast<QLineEdit*>(*shown)->setText(value);
    }
    QString addressText() const { return field("AddressEdit")->text(); }
    QString message() const { return dialog->findChild<DialogMessage*>()->text(); }
    void test() const { QTest::mouseClick(field<QPushButton>("TestButton"), Qt::LeftButton); }

    QPointer<ScriptedConnector> connector;
    QVector<DeviceSettings> saved;
    QString refusal;
    std::unique_ptr<DeviceDialog> dialog;
};

} // namespace

class TestDeviceDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fieldsAndAddress();
    void errors();
    void settingsAreKept();
    void secretsAreNotShown();
    void connectionTest();
    void aCertificateIsPinned();
    void refusalStaysInTheDialog();
    void nameIsWhatTheDeviceSays();
    void kindAloneIsNoMistake();
    void ranges_data();
    void ranges();
    void onlyTickedDevicesAreAdded();
    void devicesOfNutServerAreListed();
    void actionsReachFileAndFleet();
};

void TestDeviceDialog::initTestCase()
{
    dropRemarksOfThePlatform();
}

void TestDeviceDialog::fieldsAndAddress()
{
    const QString nut("KindBox=Network UPS Tools");
    const QString snmp("KindBox=SNMP");
    const QStringList v3{snmp, "HostEdit=10.0.0.9", "VersionBox=3", "SnmpUserEdit=anna"};
    const struct {
        QStringList fields;
        QString address;
    } rows[] = {
        {{"KindBox=Simulator"}, "sim:"},
        {{"KindBox=Simulator", "ScenarioBox=three-phase-outage"}, "sim:three-phase-outage"},
        {{nut, "HostEdit=fd00::5", "PortEdit=4000", "UpsBox=a"}, "nut://[fd00::5]:4000/a"},
        {{nut, "HostEdit=h", "UpsBox=50%#?"}, "nut://h/50%25%23%3F"},
        {v3, kSecured},
        {v3 + QStringList{"LevelBox=authNoPriv", "AuthProtocolBox=SHA-256", "ContextEdit=a&b +c"},
         "snmp://anna@10.0.0.9?version=3&level=authNoPriv&auth=SHA-256&context=a%26b%20%2Bc"},
    };
    for (const auto& row : rows) {
        Desk typed;
        for (const QString& assignment : row.fields)
            typed.set(assignment);
        QCOMPARE(typed.dialog->error(), QString());
        QCOMPARE(typed.addressText(), row.address);

        // The other way: a pasted address fills the fields, which make the same address again.
        Desk pasted;
        pasted.set("AddressEdit=" + row.address);
        for (const QString& assignment : row.fields)
            pasted.set(assignment); // changes nothing
        QCOMPARE(pasted.addressText(), row.address);
        pasted.set("NameEdit=x");
        QCOMPARE(pasted.dialog->settings().address.text, row.address);
    }
}

void TestDeviceDialog::errors()
{
    const QStringList nut{"KindBox=Network UPS Tools", "HostEdit=h"};
    const QStringList v3{"KindBox=SNMP", "HostEdit=h", "VersionBox=3", "SnmpUserEdit=anna"};
    const struct {
        QStringList fields;
        const char* message; // part of it
    } rows[] = {
        {{}, "Enter the name or the IP address"},
        {{"KindBox=SNMP", "HostEdit=13571"}, "neither a host name nor an IP address"},
        {{"AddressEdit=nut://13571/a"}, "No valid host"},
        {nut + QStringList{"PasswordEdit=x"}, "Enter the user"},
        {v3 + QStringList{"PrivSecretEdit=1234567"}, "at least 8"},
        {{"AddressEdit=snmp://a:b@h?version=3"}, "SNMP secrets belong"},
        {nut + QStringList{"FingerprintEdit=sha256:12"}, "64 hexadecimal digits"},
        {nut + QStringList{"CaFileEdit=/no/such.pem"}, "cannot be read: /no/such.pem"},
        {nut + QStringList{"NameEdit= Taken "}, "\"Taken\" already"},
    };
    for (const auto& row : rows) {
        Desk desk;
        for (const QString& assignment : row.fields)
            desk.set(assignment);
        QVERIFY2(desk.message().contains(row.message), qPrintable(desk.message()));
        desk.dialog->accept();
        QVERIFY(desk.saved.isEmpty());
        desk.set("NameEdit=free");
        desk.set("AddressEdit=sim:mains"); // mends all of them
        desk.dialog->accept();
        QCOMPARE(desk.saved.size(), 1);
    }
}

void TestDeviceDialog::settingsAreKept()
{
    DeviceSettings settings = device("A", "snmp://h");
    settings.pollInterval = 30;
    settings.timeout = 7;
    settings.retries = 3;
    settings.shutdownDelay = 90;
    settings.restartDuration = 120;
    settings.shutdownWholeUps = true;
    settings.seed = 9;
    settings.scales = {{"input.voltage", 0.1}, {"battery.charge", 10}};
    const Desk desk(settings);
    const DeviceSettings same = desk.dialog->settings();
    QCOMPARE((QVector<int>{same.pollInterval, same.timeout, same.retries, same.shutdownDelay,
                           same.restartDuration, same.shutdownWholeUps, int(same.seed)}),
             (QVector<int>{30, 7, 3, 90, 120, 1, 9}));
    QCOMPARE(same.scales, settings.scales);
}

void TestDeviceDialog::secretsAreNotShown()
{
    DeviceSettings settings = device("A", kSecured);
    settings.authSecret = "authentic";
    settings.privSecret = "privately";
    Desk desk(settings);
    for (const char* name : {"AuthSecretEdit", "PrivSecretEdit"}) {
        auto* edit = desk.field(name);
        QCOMPARE(edit->echoMode(), QLineEdit::Password);
        QCOMPARE(edit->text(), QString());
    }
    desk.set("PrivSecretEdit=another one");
    QCOMPARE(desk.dialog->settings().authSecret, QString("authentic"));
    QCOMPARE(desk.dialog->settings().privSecret, QString("another one"));
    // A community is one, too.
    for (const char* address : {"snmp://sesame@h:1161?version=1", "snmp://sesame@h/"}) {
        Desk other(device("A", address));
        QVERIFY(other.addressText().startsWith("snmp://***@h"));
        QCOMPARE(other.field("CommunityEdit")->echoMode(), QLineEdit::Password);
        QCOMPARE(other.field("CommunityEdit")->text(), QString());
        QCOMPARE(other.dialog->settings().address.text, QString(address));
        other.set("HostEdit=k");
        QVERIFY(other.dialog->settings().address.text.startsWith("snmp://sesame@k"));
        other.set("CommunityEdit=p@ss:w/1");
        QVERIFY(other.dialog->settings().address.text.startsWith("snmp://p%40ss%3Aw%2F1@k"));
        QVERIFY(!other.addressText().contains("ss"));
        other.set("AddressEdit=snmp://h"); // no longer any
        QCOMPARE(other.dialog->settings().address.community, QString("public"));
    }
    desk.set("AddressEdit=nut://h/a"); // secrets do not go along to another kind
    QCOMPARE(desk.dialog->settings().authSecret, QString());
}

void TestDeviceDialog::connectionTest()
{
    Desk desk(device("A", "nut://h/ups"));
    desk.test();
    QCOMPARE(desk.connector->polls, 1);
    UpsReading reading;
    reading.model = "Model <b>7</b>";
    reading.outputSource = OutputSource::Utility;
    desk.connector->answer(LinkState::Live, reading, {});
    QVERIFY2(desk.message().startsWith("Live: Model <b>7</b>"), qPrintable(desk.message()));
    QCOMPARE(desk.dialog->findChild<DialogMessage*>()->textFormat(), Qt::PlainText);
    QTRY_VERIFY(!desk.connector);
    desk.test();
    desk.set("HostEdit=other"); // its answer would speak of another host
    desk.connector->answer(LinkState::Live);
    QCOMPARE(desk.message(), QString());
}

void TestDeviceDialog::aCertificateIsPinned()
{
    DeviceSettings settings = device("A", "nut://h/ups");
    settings.tls = TlsUse::Required;
    Desk desk(settings);
    LinkSecurity link;
    link.isEncrypted = true;
    link.holder = "<b>ups</b>";
    link.fingerprint = "sha256:" + QString("0123456789abcdef").repeated(4);
    desk.test();
    desk.connector->answer(LinkState::Refused, {}, "not trusted", link);
    const auto* shown = desk.field<QLabel>("CertificateLabel");
    QVERIFY2(shown->isVisible() && shown->text().startsWith("<b>ups</b>, not trusted") &&
                 shown->text().contains("0123456789abcdef 0123456789abcdef"),
             qPrintable(shown->text()));
    QCOMPARE(shown->textFormat(), Qt::PlainText);
    auto* pin = desk.field<QPushButton>("PinButton");
    QTest::mouseClick(pin, Qt::LeftButton);
    QVERIFY(!pin->isVisible());
    QCOMPARE(desk.dialog->settings().fingerprint, link.fingerprint);
    QCOMPARE(desk.dialog->settings().tls, TlsUse::Required);

    desk.set("HostEdit=other"); // whose certificate nobody has seen
    QVERIFY(!shown->isVisible());
    desk.set("AddressEdit=sim:mains");
    QCOMPARE(desk.dialog->settings().fingerprint, QString());
}

void TestDeviceDialog::refusalStaysInTheDialog()
{
    Desk desk(device("A", "nut://h/ups"));
    desk.refusal = "line 7";
    desk.dialog->accept();
    QCOMPARE(desk.saved.size(), 1);
    QVERIFY(desk.dialog->isVisible());
    desk.refusal.clear();
    desk.dialog->accept();
    QVERIFY(!desk.dialog->isVisible());
}

void TestDeviceDialog::nameIsWhatTheDeviceSays()
{
    Desk desk;
    desk.set("AddressEdit=snmp://public@10.0.0.7");
    QCOMPARE(desk.dialog->settings().name, QString("UPS")); // an IP address says nothing
    desk.test();
    UpsReading reading;
    reading.model = "Model 7";
    desk.connector->answer(LinkState::Live, reading);
    QCOMPARE(desk.dialog->settings().name, QString("Model 7"));
    desk.test();
    reading.name = "Taken";
    desk.connector->answer(LinkState::Live, reading);
    QCOMPARE(desk.dialog->settings().name, QString("Taken 2"));
    desk.set("HostEdit=10.0.0.8");
    QCOMPARE(desk.dialog->settings().name, QString("UPS"));
}

void TestDeviceDialog::kindAloneIsNoMistake()
{
    Desk desk;
    const auto tone = [&desk] {
        return desk.dialog->findChild<DialogMessage*>()->property("tone").toString();
    };
    for (const char* kind : {"SNMP", "Simulator", "Network UPS Tools"}) {
        desk.set(QString("KindBox=") + kind);
        QVERIFY2(tone() != "bad", kind);
    }
    desk.set("UserEdit=x");
    QCOMPARE(tone(), QString("bad"));
}

void TestDeviceDialog::ranges_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("hosts"); // first, last, number; empty: an error
    const char* const rows[][2] = {
        {"10.0.0.0/24", "10.0.0.1 10.0.0.254 254"},
        {"10.0.0.77/30", "10.0.0.77 10.0.0.78 2"},
        {"10.0.0.4/31", "10.0.0.4 10.0.0.5 2"},
        {"10.0.0.4/32", "10.0.0.4 10.0.0.4 1"},
        {" 10.0.0.250 - 10.0.1.3 ", "10.0.0.250 10.0.1.3 10"},
        {"10.0.0.5-60", "10.0.0.5 10.0.0.60 56"},
        {"255.255.255.255", "255.255.255.255 255.255.255.255 1"},
        {"10.0.0.1-10.0.4.0", "10.0.0.1 10.0.4.0 1024"},
        {"10.0.0.0-10.0.4.0", ""},
        {"0.0.0.0/0", ""},
        {"10.0.0.60-5", ""},
        {"10.0.0.0/33", ""},
        {"10.0.0.256", ""},
        {"10.0.0", ""},
        {"10.0.0.1-2-3", ""},
        {"-", ""},
        {"", ""},
    };
    for (const auto& row : rows)
        QTest::newRow(row[0]) << row[0] << row[1];
}

void TestDeviceDialog::ranges()
{
    QFETCH(QString, text);
    QFETCH(QString, hosts);
    const AddressRange range = AddressRange::parse(text);
    QCOMPARE(range.error.isEmpty(), !hosts.isEmpty());
    QCOMPARE(range.hosts.isEmpty(), hosts.isEmpty());
    if (!hosts.isEmpty())
        QCOMPARE(QString("%1 %2 %3")
                     .arg(range.hosts.first(), range.hosts.last())
                     .arg(range.hosts.size()),
                 hosts);
}

void TestDeviceDialog::devicesOfNutServerAreListed()
{
    LineServer server([](const QByteArray& line) { return orderlyNutAnswer(line); });
    QVector<DeviceSettings> saved;
    FindDevicesDialog dialog({}, {"unit"}, makeConnector, [&](const auto& devices) {
        saved = devices;
        return QString();
    });
    dialog.show();
    auto* table = dialog.findChild<QTableWidget*>("FoundTable");
    auto* search = dialog.findChild<QPushButton*>("SearchButton");
    const QString message = dialog.findChild<DialogMessage*>()->text();
    search->click();
    QVERIFY(dialog.findChild<DialogMessage*>()->text() != message); // no host
    for (auto* edit : dialog.findChildren<QLineEdit*>("HostEdit"))
        edit->setText("127.0.0.1");
    for (auto* edit : dialog.findChildren<QSpinBox*>("PortEdit"))
        edit->setValue(server.serverPort());
    search->click();
    QTRY_COMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 2)->text(), QString("The only one"));
    dialog.findChild<QCheckBox*>("AllBox")->click();
    dialog.accept();
    QCOMPARE(saved.size(), 1);
    QCOMPARE(saved[0].name, QString("unit 2"));
    QCOMPARE(saved[0].address.text, QString("nut://127.0.0.1:%1/unit").arg(server.serverPort()));
}

void TestDeviceDialog::onlyTickedDevicesAreAdded()
{
    QMap<QString, QPointer<ScriptedConnector>> asked;
    QVector<DeviceSettings> saved;
    FindDevicesDialog dialog(
        {}, {"Model 7"},
        [&](const DeviceSettings& settings) {
            auto made = std::make_unique<ScriptedConnector>();
            asked[settings.address.host] = made.get();
            return made;
        },
        [&](const QVector<DeviceSettings>& devices) {
            saved = devices;
            return QString();
        });
    dialog.show();
    dialog.findChild<QComboBox*>("KindBox")->setCurrentIndex(1);
    for (auto* edit : dialog.findChildren<QLineEdit*>("HostEdit"))
        edit->setText("127.0.0.0/26");
    dialog.findChild<QLineEdit*>("GroupEdit")->setText("Hall 2");
    auto* search = dialog.findChild<QPushButton*>("SearchButton");
    search->click();
    QCOMPARE(asked.size(), RangeScan::kAtATime); // never all at once
    UpsReading reading;
    reading.model = "Model 7";
    for (int number = 1; number <= 62; ++number) {
        ScriptedConnector* connector = asked.value("127.0.0." + QString::number(number));
        QVERIFY(connector);
        QCOMPARE(connector->polls, 1);
        const bool ups = number == 5 || number == 40;
        connector->answer(ups ? LinkState::Live : LinkState::Lost, reading);
    }
    QCOMPARE(asked.size(), 62);
    auto* table = dialog.findChild<QTableWidget*>("FoundTable");
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->item(1, 0)->text(), QString("Model 7 3"));
    QVERIFY(dialog.chosen().isEmpty());
    table->item(1, 0)->setCheckState(Qt::Checked);
    dialog.accept();
    QCOMPARE(saved.size(), 1);
    QCOMPARE(saved.first().address.host, QString("127.0.0.40"));
    QCOMPARE(saved.first().name, QString("Model 7 3"));
    QCOMPARE(saved.first().group, QString("Hall 2"));
    QCOMPARE(saved.first().timeout, DeviceSettings().timeout); // the hurry was the search's
}

void TestDeviceDialog::actionsReachFileAndFleet()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    Fleet fleet([](const DeviceSettings&) { return std::make_unique<ScriptedConnector>(); });
    WatchList list(fleet, DeskConfig::load(path), [&](SecretsChoice) {
        return std::make_unique<FileSecretStore>(folder.filePath("secrets"));
    });
    list.load();
    QWidget window;
    OperatorSession session; // without operators everybody may
    auto* actions = new DeviceActions(
        fleet, list, [](const DeviceSettings&) { return std::make_unique<ScriptedConnector>(); },
        session, &window);
    const auto fill = [&](const char* address) {
        auto* dialog = window.findChild<DeviceDialog*>();
        dialog->findChild<QLineEdit*>("AddressEdit")->setText(address);
        dialog->accept();
        QTRY_VERIFY(!window.findChild<DeviceDialog*>());
    };
    for (const char* address : {"nut://h/a", "nut://h/b"}) {
        actions->addAction()->trigger();
        fill(address);
    }
    QCOMPARE(fleet.count(), 2);
    actions->setCurrent(fleet.at(1));

    actions->editAction()->trigger();
    QCOMPARE(window.findChild<DeviceDialog*>()->settings().name, QString("b"));
    QCOMPARE(list.change(fleet.at(1), fleet.at(1)->settings()), QString()); // another Device now
    fill("nut://h/c");
    QCOMPARE(actions->current(), fleet.at(1));
    actions->moveUpAction()->trigger();
    QCOMPARE(actions->current(), fleet.at(0));
    QCOMPARE(DeskConfig::load(path).devices().size(), 2);
    QCOMPARE(DeskConfig::load(path).devices().at(0).address.text, QString("nut://h/c"));

    actions->removeAction()->trigger();
    auto* box = window.findChild<QMessageBox*>();
    QTest::keyClick(box, Qt::Key_Escape);
    QTRY_VERIFY(!window.findChild<QMessageBox*>());
    QCOMPARE(fleet.count(), 2);
    actions->removeAction()->trigger();
    for (QAbstractButton* button : window.findChild<QMessageBox*>()->buttons())
        if (button->text() == "&Remove")
            button->click();
    QCOMPARE(fleet.count(), 1);
    QCOMPARE(DeskConfig::load(path).devices().size(), 1);
}

QTEST_MAIN(TestDeviceDialog)
#include "tst_devicedialog.moc"
