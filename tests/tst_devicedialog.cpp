// Adding and changing devices: address and fields in step, what is wrong is said, secrets are not
// shown, a connection is tried without waiting, and the list's actions reach file and fleet.

#include "config/filesecretstore.h"
#include "fleet/watchlist.h"
#include "support/lineserver.h"
#include "support/scriptedconnector.h"
#include "window/deviceactions.h"
#include "window/devicedialog.h"
#include "window/scaletable.h"
#include "window/theme.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
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

QtMessageHandler testHandler = nullptr;

// The offscreen platform complains of windows with a least size and of menus; all other warnings
// end the test, as they do in the other programs.
void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool harmless = text.startsWith("This plugin does not support");
    if (!harmless)
        testHandler(type == QtWarningMsg ? QtFatalMsg : type, context, text);
}

// A dialog with connectors that answer when the test says so.
struct Desk {
    explicit Desk(const DeviceSettings& settings = {})
        : dialog(std::make_unique<DeviceDialog>(
              settings, QStringList{"Taken", "ups1"},
              [this](const DeviceSettings& tried) {
                  auto made = std::make_unique<ScriptedConnector>();
                  connector = made.get();
                  triedSettings = tried;
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
    T* field(const char* name, const QString& page = {}) const
    {
        QWidget* in = page.isEmpty() ? dialog.get() : dialog->findChild<QWidget*>(page);
        return in->findChild<T*>(name);
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
    QPushButton* ok() const
    {
        return dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }
    void test() const { QTest::mouseClick(field<QPushButton>("TestButton"), Qt::LeftButton); }

    QPointer<ScriptedConnector> connector;
    DeviceSettings triedSettings;
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
    void fieldsAndAddress_data();
    void fieldsAndAddress();
    void errors_data();
    void errors();
    void nameIsProposed();
    void advanced();
    void secretsAreNotShown();
    void connectionTest_data();
    void connectionTest();
    void testIsBrokenOff();
    void serverIsAskedForItsList();
    void refusalStaysInTheDialog();
    void keyboardFollowsTheEye();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void actionsReachFileAndFleet();
};

void TestDeviceDialog::initTestCase()
{
    qunsetenv("QT_FATAL_WARNINGS");
    testHandler = qInstallMessageHandler(passOn);
}

void TestDeviceDialog::fieldsAndAddress_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("address");
    const QString nut("KindBox=Network UPS Tools");
    const QString snmp("KindBox=SNMP");
    QTest::newRow("simulator") << QStringList{"KindBox=Simulator"} << "sim:";
    QTest::newRow("scenario") << QStringList{"KindBox=Simulator", "ScenarioBox=three-phase-outage"}
                              << "sim:three-phase-outage";
    QTest::newRow("nut") << QStringList{nut, "HostEdit=ups.example.org", "UpsBox=rack3"}
                         << "nut://ups.example.org/rack3";
    QTest::newRow("only one, port")
        << QStringList{nut, "HostEdit=10.0.0.5", "PortEdit=4000"} << "nut://10.0.0.5:4000/";
    QTest::newRow("IPv6") << QStringList{nut, "HostEdit=fd00::5", "UpsBox=a"}
                          << "nut://[fd00::5]/a";
    QTest::newRow("odd UPS name") << QStringList{nut, "HostEdit=h", "UpsBox=50%#?"}
                                  << "nut://h/50%25%23%3F";
    QTest::newRow("community") << QStringList{snmp, "HostEdit=h", "CommunityEdit=p@ss:w/1"}
                               << "snmp://p%40ss%3Aw%2F1@h";
    QTest::newRow("public, version 1")
        << QStringList{snmp, "HostEdit=h", "VersionBox=1"} << "snmp://h?version=1";
    const QStringList v3{snmp, "HostEdit=10.0.0.9", "VersionBox=3", "SnmpUserEdit=anna"};
    QTest::newRow("version 3") << v3 << kSecured;
    QTest::newRow("no security") << v3 + QStringList{"LevelBox=noAuthNoPriv"}
                                 << "snmp://anna@10.0.0.9?version=3&level=noAuthNoPriv";
    QTest::newRow("authentication only, context")
        << v3 + QStringList{"LevelBox=authNoPriv", "AuthProtocolBox=SHA-256", "ContextEdit=a&b +c"}
        << "snmp://anna@10.0.0.9?version=3&level=authNoPriv&auth=SHA-256&context=a%26b%20%2Bc";
    QTest::newRow("other ciphers")
        << v3 + QStringList{"AuthProtocolBox=MD5", "PrivProtocolBox=DES"}
        << "snmp://anna@10.0.0.9?version=3&level=authPriv&auth=MD5&priv=DES";
}

void TestDeviceDialog::fieldsAndAddress()
{
    QFETCH(QStringList, fields);
    QFETCH(QString, address);
    Desk typed;
    for (const QString& assignment : fields)
        typed.set(assignment);
    QCOMPARE(typed.dialog->error(), QString());
    QCOMPARE(typed.addressText(), address);

    // The other way: a pasted address fills the fields, which make the same address again.
    Desk pasted;
    pasted.field("AddressEdit")->setText(address);
    QCOMPARE(pasted.dialog->error(), QString());
    for (const QString& assignment : fields)
        pasted.set(assignment); // changes nothing
    QCOMPARE(pasted.addressText(), address);
    pasted.set("NameEdit=x");
    QCOMPARE(pasted.dialog->settings().address.text, address);
    const DeviceAddress again = *parseDeviceAddress(pasted.addressText()).address;
    QCOMPARE(deviceAddressText(again), address);
}

void TestDeviceDialog::errors_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("message"); // part of it
    const QStringList nut{"KindBox=Network UPS Tools", "HostEdit=h"};
    const QStringList v3{"KindBox=SNMP", "HostEdit=h", "VersionBox=3", "SnmpUserEdit=anna"};
    QTest::newRow("nothing yet") << QStringList{} << "Enter the name or the IP address";
    QTest::newRow("blank in the host") << nut + QStringList{"HostEdit=a b"} << "\"a b\" is neither";
    QTest::newRow("port in the host") << nut + QStringList{"HostEdit=h:3493"} << "is neither";
    QTest::newRow("blank in the UPS")
        << nut + QStringList{"UpsBox=a b"} << "A NUT address looks like";
    QTest::newRow("password alone") << nut + QStringList{"PasswordEdit=x"} << "Enter the user";
    QTest::newRow("no user") << v3 + QStringList{"SnmpUserEdit="} << "Enter the user of SNMPv3";
    QTest::newRow("short secret") << v3 + QStringList{"PrivSecretEdit=1234567"} << "at least 8";
    QTest::newRow("no address") << nut + QStringList{"AddressEdit=http://h"}
                                << "An address starts with";
    QTest::newRow("secret in the address")
        << QStringList{"AddressEdit=snmp://a:b@h?version=3"} << "SNMP secrets belong";
    QTest::newRow("unknown scenario")
        << QStringList{"AddressEdit=sim:nonsense"} << "no such scenario";
    QTest::newRow("name twice") << nut + QStringList{"NameEdit= Taken "} << "\"Taken\" already";
}

void TestDeviceDialog::errors()
{
    QFETCH(QStringList, fields);
    QFETCH(QString, message);
    Desk desk;
    for (const QString& assignment : fields)
        desk.set(assignment);
    QVERIFY2(desk.message().contains(message), qPrintable(desk.message()));
    QVERIFY(!desk.ok()->isEnabled());
    QVERIFY(!desk.field<QPushButton>("TestButton")->isEnabled());
    desk.dialog->accept();
    QVERIFY(desk.saved.isEmpty());

    desk.set("NameEdit=free");
    desk.set("AddressEdit=sim:mains"); // mends all of them
    QCOMPARE(desk.message(), QString());
    QVERIFY(desk.ok()->isEnabled());
}

void TestDeviceDialog::nameIsProposed()
{
    Desk desk;
    desk.set("AddressEdit=nut://h/rack3");
    QCOMPARE(desk.dialog->settings().name, QString("rack3"));
    desk.set("UpsBox=ups1"); // taken
    QCOMPARE(desk.dialog->settings().name, QString("ups1 2"));
    QCOMPARE(desk.field("NameEdit")->placeholderText(), QString("ups1 2"));
    desk.set("NameEdit= Mine ");
    QCOMPARE(desk.dialog->settings().name, QString("Mine"));
}

void TestDeviceDialog::advanced()
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
    Desk desk(settings);
    const DeviceSettings same = desk.dialog->settings();
    QCOMPARE(same.pollInterval, 30);
    QCOMPARE(same.timeout, 7);
    QCOMPARE(same.retries, 3);
    QCOMPARE(same.shutdownDelay, 90);
    QCOMPARE(same.restartDuration, 120);
    QVERIFY(same.shutdownWholeUps);
    QCOMPARE(same.seed, 9u);
    QCOMPARE(same.scales, settings.scales);

    auto* table = desk.field<ScaleTable>("ScaleTable");
    const auto factor = [table](const char* quantity) {
        return table->item(table->findItems(quantity, Qt::MatchExactly).first()->row(), 1);
    };
    factor("input.voltage")->setText("");
    factor("battery.charge")->setText("0,01");
    QCOMPARE(desk.dialog->settings().scales, (QMap<QString, double>{{"battery.charge", 0.01}}));
    for (const char* wrong : {"0", "-1", "inf", "ten"}) {
        factor("battery.charge")->setText(wrong);
        QVERIFY2(desk.message().contains("factor of battery.charge"), wrong);
        QVERIFY(!desk.ok()->isEnabled());
    }
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
        QCOMPARE(edit->placeholderText(), QString("kept"));
    }
    desk.set("PrivSecretEdit=another one");
    QCOMPARE(desk.dialog->settings().authSecret, QString("authentic"));
    QCOMPARE(desk.dialog->settings().privSecret, QString("another one"));
    desk.set("LevelBox=authNoPriv");
    QCOMPARE(desk.dialog->settings().privSecret, QString());
    desk.set("AddressEdit=nut://h/a"); // secrets do not go along to another kind
    QCOMPARE(desk.dialog->settings().authSecret, QString());
}

void TestDeviceDialog::connectionTest_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QString>("message");
    const auto row = [](LinkState state, const char* cause, const char* message) {
        QTest::newRow(message) << static_cast<int>(state) << QString(cause) << QString(message);
    };
    row(LinkState::Live, "",
        "Live: Model <b>7</b>  \u00b7  On mains  \u00b7  Battery 87 %\nThe server looks at user "
        "and password only when a command is sent.");
    row(LinkState::Lost, "There is no host named h.", "No answer: There is no host named h.");
    row(LinkState::Refused, "Unknown UPS.", "Refused: Unknown UPS.");
    row(LinkState::Stale, "", "No new data");
}

void TestDeviceDialog::connectionTest()
{
    QFETCH(int, state);
    QFETCH(QString, cause);
    DeviceSettings settings = device("A", "nut://h/ups");
    settings.user = "admin";
    settings.secret = "stored";
    Desk desk(settings);
    desk.test();
    QVERIFY(desk.connector);
    QCOMPARE(desk.connector->polls, 1);
    QCOMPARE(desk.triedSettings.secret, QString("stored"));
    QVERIFY(desk.message().startsWith("Asking"));
    UpsReading reading;
    reading.model = "Model <b>7</b>";
    reading.outputSource = OutputSource::Utility;
    reading.batteryState = BatteryState::Normal;
    reading.charge = 87;
    desk.connector->answer(static_cast<LinkState>(state), reading, cause);
    QTEST(desk.message(), "message");
    QCOMPARE(desk.dialog->findChild<DialogMessage*>()->textFormat(), Qt::PlainText);
    QTRY_VERIFY(!desk.connector);
    QVERIFY(desk.dialog->isVisible());
    desk.test();
    QVERIFY(desk.connector); // and again
}

void TestDeviceDialog::testIsBrokenOff()
{
    Desk desk(device("A", "nut://h/ups"));
    desk.test();
    desk.test(); // the same button
    QCOMPARE(desk.message(), QString());
    QTRY_VERIFY(!desk.connector);

    desk.test();
    desk.set("HostEdit=other"); // its answer would speak of another host
    desk.connector->answer(LinkState::Live);
    QCOMPARE(desk.message(), QString());

    desk.test();
    QPointer<ScriptedConnector> last = desk.connector;
    desk.dialog->reject();
    last->answer(LinkState::Lost);
    QTRY_VERIFY(!last);
    desk.dialog->show();
    desk.test();
    desk.dialog.reset();
    QTRY_VERIFY(!desk.connector);
}

void TestDeviceDialog::serverIsAskedForItsList()
{
    LineServer server([](const QByteArray& line) -> QByteArray {
        if (line != "LIST UPS")
            return "ERR UNKNOWN-COMMAND\n";
        return "BEGIN LIST UPS\nUPS rack3 \"<b>Rack</b>\"\nUPS desk \"\"\nEND LIST UPS\n";
    });
    Desk desk;
    const auto ask = [&desk] {
        QTest::mouseClick(desk.field<QPushButton>("ListButton"), Qt::LeftButton);
    };
    ask();
    QVERIFY(desk.message().startsWith("Enter the name")); // no host yet
    desk.set("HostEdit=127.0.0.1");
    desk.set(QStringLiteral("PortEdit=%1").arg(server.serverPort()));
    ask();
    auto* box = desk.field<QComboBox>("UpsBox");
    QTRY_COMPARE(box->count(), 2);
    QCOMPARE(box->itemText(1), QString("desk"));
    QVERIFY(!box->itemData(0, Qt::ToolTipRole).toString().contains("<b>"));
    QVERIFY(desk.addressText().endsWith("/rack3"));
    QVERIFY(desk.message().contains("UPSes: 2"));

    ask();
    desk.set("HostEdit=localhost"); // the answer of the other host is not waited for
    QVERIFY(desk.field<QPushButton>("ListButton")->isEnabled());
    ask();
    desk.dialog.reset(); // in the middle of it
}

void TestDeviceDialog::refusalStaysInTheDialog()
{
    Desk desk(device("A", "nut://h/ups"));
    desk.refusal = "upsdesk.conf is not written (line 7: <i>x</i>)";
    desk.dialog->accept();
    QCOMPARE(desk.saved.size(), 1);
    QVERIFY(desk.dialog->isVisible());
    QCOMPARE(desk.message(), QString("Upsdesk.conf is not written (line 7: <i>x</i>)."));
    desk.refusal.clear();
    desk.dialog->accept();
    QVERIFY(!desk.dialog->isVisible());
}

void TestDeviceDialog::keyboardFollowsTheEye()
{
    Desk desk(device("A", kSecured));
    QVERIFY(QTest::qWaitForWindowActive(desk.dialog.get()));
    QPoint last(0, -1);
    QWidget* first = QApplication::focusWidget();
    QCOMPARE(first, static_cast<QWidget*>(desk.field("NameEdit")));
    int stops = 0;
    for (QWidget* focus = first; stops == 0 || focus != first;
         focus = QApplication::focusWidget()) {
        QVERIFY(++stops < 40);
        const QPoint at = focus->mapTo(desk.dialog.get(), focus->rect().center());
        constexpr int sameRow = 8; // px
        QVERIFY2(at.y() > last.y() + sameRow ||
                     (qAbs(at.y() - last.y()) <= sameRow && at.x() > last.x()),
                 qPrintable(focus->objectName()));
        last = at;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QVERIFY(stops > 15);
    QTest::keyClick(desk.dialog.get(), Qt::Key_Return);
    QCOMPARE(desk.saved.size(), 1);
    desk.dialog->show();
    QTest::keyClick(desk.dialog.get(), Qt::Key_Escape);
    QVERIFY(!desk.dialog->isVisible());
}

void TestDeviceDialog::nothingIsClipped_data()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << static_cast<int>(Theme::Light);
    QTest::newRow("dark") << static_cast<int>(Theme::Dark);
}

void TestDeviceDialog::nothingIsClipped()
{
    QFETCH(int, theme);
    applyTheme(static_cast<Theme>(theme));
    Desk desk;
    for (const char* address : {"nut://h/a", "snmp://h", kSecured, "sim:"})
        for (int tab : {0, 1}) {
            desk.set(QStringLiteral("AddressEdit=") + address);
            desk.dialog->findChild<QTabWidget*>()->setCurrentIndex(tab);
            desk.test();
            desk.connector->answer(LinkState::Lost, {}, QString("a long cause ").repeated(19));
            QCoreApplication::processEvents();
            for (QWidget* widget : desk.dialog->findChildren<QWidget*>()) {
                const bool speaks = qobject_cast<QLabel*>(widget) ||
                                    qobject_cast<QAbstractButton*>(widget) ||
                                    qobject_cast<QSpinBox*>(widget);
                if (!speaks || !widget->isVisible())
                    continue;
                const int needed = widget->hasHeightForWidth()
                                       ? widget->heightForWidth(widget->width())
                                       : widget->minimumSizeHint().height();
                QVERIFY2(widget->height() >= needed &&
                             widget->width() >= widget->minimumSizeHint().width(),
                         qPrintable(
                             QString("%1 at %2").arg(widget->metaObject()->className(), address)));
            }
        }
    qApp->setStyleSheet({});
}

void TestDeviceDialog::actionsReachFileAndFleet()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    Fleet fleet([](const DeviceSettings&) { return std::make_unique<ScriptedConnector>(); });
    WatchList list(fleet, DeskConfig::load(path),
                   std::make_unique<FileSecretStore>(folder.filePath("secrets")));
    list.load();
    QWidget window;
    auto* actions = new DeviceActions(
        fleet, list, [](const DeviceSettings&) { return std::make_unique<ScriptedConnector>(); },
        &window);
    QSignalSpy chosen(actions, &DeviceActions::chosen);
    const auto enabled = [actions] {
        QString letters;
        for (QAction* action : actions->actions())
            letters += action->isEnabled() ? '1' : '0';
        return letters;
    };
    const auto fill = [&](const char* address) {
        auto* dialog = window.findChild<DeviceDialog*>();
        dialog->findChild<QLineEdit*>("AddressEdit")->setText(address);
        dialog->accept();
        QTRY_VERIFY(!window.findChild<DeviceDialog*>());
    };
    QCOMPARE(enabled(), QString("10000"));
    for (const char* address : {"nut://h/a", "nut://h/b"}) {
        actions->addAction()->trigger();
        fill(address);
    }
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(fleet.count(), 2);
    actions->setCurrent(fleet.at(1));
    QCOMPARE(enabled(), QString("11110"));

    actions->editAction()->trigger();
    QCOMPARE(window.findChild<DeviceDialog*>()->settings().name, QString("b"));
    QCOMPARE(list.change(fleet.at(1), fleet.at(1)->settings()), QString()); // another Device now
    fill("nut://h/c");
    QVERIFY(actions->current());
    QCOMPARE(actions->current(), fleet.at(1));
    actions->moveUpAction()->trigger();
    QCOMPARE(enabled(), QString("11101"));
    QCOMPARE(actions->current(), fleet.at(0));
    QCOMPARE(DeskConfig::load(path).devices().size(), 2);
    QCOMPARE(DeskConfig::load(path).devices().at(0).address.text, QString("nut://h/c"));

    actions->removeAction()->trigger();
    auto* box = window.findChild<QMessageBox*>();
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QTest::keyClick(box, Qt::Key_Escape);
    QTRY_VERIFY(!window.findChild<QMessageBox*>());
    QCOMPARE(fleet.count(), 2);
    actions->removeAction()->trigger();
    for (QAbstractButton* button : window.findChild<QMessageBox*>()->buttons())
        if (button->text() == "&Remove")
            button->click();
    QCOMPARE(fleet.count(), 1);
    QCOMPARE(DeskConfig::load(path).devices().size(), 1);
    QCOMPARE(enabled(), QString("10000"));
}

QTEST_MAIN(TestDeviceDialog)
#include "tst_devicedialog.moc"
