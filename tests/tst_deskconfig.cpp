// What the configuration means: ranges, faults, devices, operators and edits. Touches a temporary
// folder.

#include "config/checkconfig.h"
#include "config/deskconfig.h"
#include "config/passwordhash.h"
#include "reading/readingscale.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(std::function<QString(DeskConfig&)>)

namespace
{

const QByteArray kHash = "hash = "
                         "$argon2id$v=19$m=8,t=1,p=1$AAAAAAAAAAAAAAAAAAAAAA$"
                         "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA\n";

const QByteArray kFull = "[poll]\ninterval = 7\n"
                         "[thresholds]\ncharge-low = 30\ncharge-critical = 10\nruntime-low = 8\n"
                         "load-high = 90\ntemperature-high = 35\n"
                         "[session]\nidle-logout = 15\n"
                         "[secrets]\nstore = file\n"
                         "[device \"Rack 3\"]\naddress = nut://10.0.0.5/rack3\nuser = admin\n"
                         "interval = 10\ntimeout = 3\nretries = 2\nshutdown-delay = 30\n"
                         "restart-duration = 90\nshutdown-whole-ups = yes\n"
                         "scale.input.voltage = 0.1\n"
                         "[operator \"anna\"]\nlevel = 4\n" +
                         kHash + "[device Desk]\naddress = sim:\nseed = 9\n";

DeskConfig read(const QByteArray& bytes)
{
    return DeskConfig(ConfigDocument(bytes));
}

QStringList names(const DeskConfig& config)
{
    QStringList result;
    for (const DeviceSettings& device : config.devices())
        result += device.name;
    return result;
}

DeviceSettings device(const QString& name, const QString& address = "sim:")
{
    DeviceSettings settings;
    settings.name = name;
    settings.address = parseDeviceAddress(address).address.value_or(DeviceAddress());
    settings.address.text = address;
    return settings;
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

class TestDeskConfig : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyIsRead();
    void defaults();
    void ranges_data();
    void ranges();
    void faults_data();
    void faults();
    void everyScaleNameIsKnown();
    void deviceEdits();
    void unchangedValuesGetNoLine();
    void settingsEdits();
    void operatorEdits();
    void refusedEdits_data();
    void refusedEdits();
    void faultyFileIsNotWritten();
    void check();
};

void TestDeskConfig::everyKeyIsRead()
{
    const DeskConfig config = read(kFull);
    QVERIFY2(config.faults().isEmpty(), qPrintable(config.faults().value(0).text));
    const DeskSettings& settings = config.settings();
    QCOMPARE(settings.pollInterval, 7);
    QCOMPARE(settings.idleLogout, 15);
    QCOMPARE(settings.secrets, SecretsChoice::File);
    QCOMPARE(settings.thresholds.chargeLow, 30);
    QCOMPARE(settings.thresholds.chargeCritical, 10);
    QCOMPARE(settings.thresholds.runtimeLow, 8);
    QCOMPARE(settings.thresholds.loadHigh, 90);
    QCOMPARE(settings.thresholds.temperatureHigh, 35);

    QCOMPARE(names(config), QStringList({"Rack 3", "Desk"}));
    const DeviceSettings& rack = config.devices().at(0);
    QCOMPARE(rack.address.text, QString("nut://10.0.0.5/rack3"));
    QCOMPARE(rack.address.ups, QString("rack3"));
    QCOMPARE(rack.user, QString("admin"));
    QCOMPARE(rack.pollInterval, 10);
    QCOMPARE(rack.timeout, 3);
    QCOMPARE(rack.retries, 2);
    QCOMPARE(rack.shutdownDelay, 30);
    QCOMPARE(rack.restartDuration, 90);
    QVERIFY(rack.shutdownWholeUps);
    QCOMPARE(rack.scales, (QMap<QString, double>{{"input.voltage", 0.1}}));
    QCOMPARE(config.devices().at(1).pollInterval, 7); // of [poll]
    QCOMPARE(config.devices().at(1).seed, 9u);

    QCOMPARE(config.operators().size(), 1);
    QCOMPARE(config.operators().at(0).name, QString("anna"));
    QCOMPARE(config.operators().at(0).level, 4);
}

void TestDeskConfig::defaults()
{
    const DeskConfig config = read({});
    QVERIFY(config.faults().isEmpty() && config.devices().isEmpty());
    QCOMPARE(config.settings().pollInterval, 5);
    QCOMPARE(config.settings().idleLogout, 10);
    QCOMPARE(config.settings().secrets, SecretsChoice::Keychain);
    QVERIFY(DeskConfig::defaultPath().endsWith("/upsdesk/upsdesk.conf"));
}

void TestDeskConfig::ranges_data()
{
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    const auto row = [](const char* section, const char* key, int minimum, int maximum) {
        QTest::addRow("%s %s", section, key)
            << QByteArray(section) << QByteArray(key) << minimum << maximum;
    };
    row("poll", "interval", 1, 3600);
    row("session", "idle-logout", 1, 1440);
    row("thresholds", "runtime-low", 0, 1440);
    row("thresholds", "load-high", 1, 200);
    row("thresholds", "temperature-high", 1, 150);
    row("device", "interval", 1, 3600);
    row("device", "timeout", 1, 120);
    row("device", "retries", 0, 10);
    row("device", "shutdown-delay", 0, 86400);
    row("device", "restart-duration", 0, 86400);
    row("operator", "level", 0, 9);
}

void TestDeskConfig::ranges()
{
    QFETCH(QByteArray, section);
    QFETCH(QByteArray, key);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    const auto faults = [&](const QByteArray& value) {
        const QByteArray name = section == "device" || section == "operator" ? " \"x\"" : "";
        const QByteArray rest = section == "device"     ? "address = sim:\n"
                                : section == "operator" ? kHash
                                                        : QByteArray();
        const ConfigFaults found =
            read('[' + section + name + "]\n" + key + " = " + value + '\n' + rest).faults();
        return found.size() == 1 && found[0].line == 2 && hasErrors(found) ? 1 : -found.size();
    };
    QCOMPARE(faults(QByteArray::number(minimum)), 0);
    QCOMPARE(faults(QByteArray::number(maximum)), 0);
    for (const QByteArray& value :
         {QByteArray::number(minimum - 1), QByteArray::number(maximum + 1), QByteArray(),
          QByteArray("5 s"), QByteArray("1.5"), QByteArray("99999999999999999999")})
        QCOMPARE(faults(value), 1);
}

void TestDeskConfig::faults_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("part");
    QTest::addColumn<bool>("error");
    const auto error = [](const char* name, const QByteArray& bytes, int line, const char* part) {
        QTest::newRow(name) << bytes << line << part << true;
    };
    const auto warning = [](const char* name, const QByteArray& bytes, int line, const char* part) {
        QTest::newRow(name) << bytes << line << part << false;
    };
    const QByteArray dev = "[device A]\naddress = sim:\n";
    error("critical above low", "[thresholds]\ncharge-low = 10\ncharge-critical = 11\n", 3, "10");
    error("store unknown", "[secrets]\nstore = paper\n", 2, "keychain or file");
    error("device without name", "[device]\naddress = sim:\n", 1, "needs a name");
    error("device without address", "[device A]\n", 1, "no address");
    error("bad address", "[device A]\naddress = ftp://x\n", 2, "left out");
    error("secret in the address", "[device A]\naddress = snmp://a:b@h\n", 2, "secrets");
    error("switch", dev + "shutdown-whole-ups = maybe\n", 3, "yes or no");
    error("seed", dev + "seed = -1\n", 3, "seed");
    error("user", dev + "user = \"a\\n\"\n", 3, "user");
    error("factor 0", dev + "scale.input.voltage = 0\n", 3, "above 0");
    error("factor infinite", dev + "scale.input.voltage = inf\n", 3, "above 0");
    error("factor with comma", dev + "scale.input.voltage = 0,1\n", 3, "above 0");
    error("control character in a name", "[device \"a\\n\"]\n", 1, "control");
    error("blank at a name's end", "[device \"a \"]\n", 1, "blank");
    error("name too long", "[device \"" + QByteArray(101, 'x') + "\"]\n", 1, "longer");
    error("operator without level", "[operator a]\n" + kHash, 1, "no level");
    error("operator without hash", "[operator a]\nlevel = 1\n", 1, "hash");
    error("plain password", "[operator a]\nlevel = 1\nhash = sesame\n", 3, "no valid hash");
    error("hash that takes 4 TiB",
          "[operator a]\nlevel = 1\n" + QByteArray(kHash).replace("m=8", "m=4294967295"), 3,
          "no valid hash");
    warning("unknown key", "[poll]\nintervall = 5\n", 2, "interval");
    warning("unknown key of a device", dev + "adress = x\n", 3, "address");
    warning("unknown quantity", dev + "scale.volts = 2\n", 3, "input.voltage");
    warning("unknown section", "[colours]\nred = 1\n", 1, "colours");
    warning("name that is not wanted", "[poll \"x\"]\ninterval = 0\n", 1, "no name");
    warning("secret in the file", dev + "password = sesame\n", 3, "keychain");
}

void TestDeskConfig::faults()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, line);
    QFETCH(QString, part);
    QFETCH(bool, error);
    const ConfigFaults faults = read(bytes).faults();
    QCOMPARE(faults.size(), 1);
    QCOMPARE(faults[0].line, line);
    QVERIFY2(faults[0].text.contains(part), qPrintable(faults[0].text));
    QVERIFY(!faults[0].text.contains("sesame"));
    QCOMPARE(hasErrors(faults), error);
}

void TestDeskConfig::everyScaleNameIsKnown()
{
    QByteArray bytes = "[device A]\naddress = sim:\n";
    for (const QString& name : scaleNames())
        bytes += "scale." + name.toUtf8() + " = 10\n";
    const DeskConfig config = read(bytes);
    QVERIFY(config.faults().isEmpty());
    QStringList expected = scaleNames();
    expected.sort();
    QCOMPARE(config.devices().at(0).scales.keys(), expected);
}

void TestDeskConfig::deviceEdits()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    write(path, kFull);
    DeskConfig config = DeskConfig::load(path);

    DeviceSettings added = device("Lab # \"2\"", "snmp://public@10.0.0.9");
    added.pollInterval = 60;
    added.scales = {{"output.power", 0.1}, {"battery.charge", 1.0 / 3.0}};
    added.secret = added.authSecret = added.privSecret = "sesame";
    QCOMPARE(config.addDevice(added), QString());

    DeviceSettings rack = config.devices().at(0);
    rack.name = "Rack 4";
    rack.user.clear();
    rack.scales = {{"input.current", 10.0}};
    rack.shutdownWholeUps = false;
    QCOMPARE(config.changeDevice("Rack 3", rack), QString());
    QCOMPARE(config.moveDevice(2, 0), QString());
    QCOMPARE(config.removeDevice("Desk"), QString());
    QCOMPARE(config.save(), QString());

    const DeskConfig again = DeskConfig::load(path);
    QVERIFY(again.faults().isEmpty());
    QCOMPARE(names(again), QStringList({"Lab # \"2\"", "Rack 4"}));
    QCOMPARE(again.devices().at(0).pollInterval, 60);
    QCOMPARE(again.devices().at(0).scales, added.scales); // to the last bit
    QCOMPARE(again.devices().at(1).user, QString());
    QCOMPARE(again.devices().at(1).scales, rack.scales);
    QCOMPARE(again.devices().at(1).shutdownWholeUps, false);
    QCOMPARE(again.devices().at(1).retries, 2);
    QCOMPARE(again.operators().size(), 1);
    QVERIFY(!again.document().toBytes().contains("sesame"));
}

void TestDeskConfig::unchangedValuesGetNoLine()
{
    const QByteArray bytes =
        "[poll]\ninterval = 7\n\n[device \"A\"]\naddress = sim:\nretries = 01\n";
    DeskConfig config = read(bytes);
    QCOMPARE(config.changeDevice("A", config.devices().at(0)), QString());
    QCOMPARE(config.setSettings(config.settings()), QString());
    QCOMPARE(config.document().toBytes(), bytes);

    DeviceSettings added = device("B");
    added.pollInterval = 7;
    QCOMPARE(config.addDevice(added), QString());
    QCOMPARE(config.document().toBytes(), bytes + "\n[device \"B\"]\naddress = sim:\n");
}

void TestDeskConfig::settingsEdits()
{
    DeskConfig config = read("[poll]\ninterval = 7 # s\n");
    DeskSettings settings;
    settings.thresholds.chargeLow = 90;
    settings.secrets = SecretsChoice::File;
    QCOMPARE(config.setSettings(settings), QString());
    QCOMPARE(config.document().toBytes(),
             QByteArray("[poll]\ninterval = 5 # s\n\n[thresholds]\ncharge-low = 90\n\n"
                        "[secrets]\nstore = file\n"));
}

void TestDeskConfig::operatorEdits()
{
    DeskConfig config = read(kFull);
    const QString hash = impossibleHash(HashLimits::minimal());
    QCOMPARE(config.putOperator({"anna", 9, hash}), QString());
    QCOMPARE(config.putOperator({"bert", 0, hash}), QString());
    QCOMPARE(config.operators().size(), 2);
    QCOMPARE(config.operators().at(0).level, 9);
    QCOMPARE(config.operators().at(1).name, QString("bert"));
    QCOMPARE(config.removeOperator("anna"), QString());
    QCOMPARE(config.operators().size(), 1);
    QVERIFY(!config.removeOperator("anna").isEmpty());
}

void TestDeskConfig::refusedEdits_data()
{
    using Edit = std::function<QString(DeskConfig&)>;
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char* name, const Edit& edit) { QTest::newRow(name) << edit; };
    row("name taken", [](DeskConfig& c) { return c.addDevice(device("Desk")); });
    row("no name", [](DeskConfig& c) { return c.addDevice(device("")); });
    row("line break in the name", [](DeskConfig& c) { return c.addDevice(device("a\nb")); });
    row("bad address", [](DeskConfig& c) { return c.addDevice(device("B", "gopher://x")); });
    row("renamed to a name that is taken",
        [](DeskConfig& c) { return c.changeDevice("Rack 3", device("Desk")); });
    row("unknown device", [](DeskConfig& c) { return c.changeDevice("B", device("B")); });
    row("unknown device removed", [](DeskConfig& c) { return c.removeDevice("B"); });
    row("moved out of the list", [](DeskConfig& c) { return c.moveDevice(0, 2); });
    row("interval 0", [](DeskConfig& c) {
        DeviceSettings settings = device("B");
        settings.pollInterval = 0;
        return c.addDevice(settings);
    });
    row("factor below 0", [](DeskConfig& c) {
        DeviceSettings settings = device("B");
        settings.scales = {{"input.voltage", -1.0}};
        return c.addDevice(settings);
    });
    row("charge-critical above charge-low", [](DeskConfig& c) {
        DeskSettings settings = c.settings();
        settings.thresholds.chargeCritical = 31;
        return c.setSettings(settings);
    });
    row("level 10", [](DeskConfig& c) { return c.putOperator({"b", 10, impossibleHash()}); });
    row("plain password", [](DeskConfig& c) { return c.putOperator({"b", 1, "sesame"}); });
}

void TestDeskConfig::refusedEdits()
{
    using Edit = std::function<QString(DeskConfig&)>;
    QFETCH(Edit, edit);
    DeskConfig config = read(kFull);
    QVERIFY(!edit(config).isEmpty());
    QCOMPARE(config.document().toBytes(), kFull);
    QCOMPARE(config.devices().size(), 2);
}

void TestDeskConfig::faultyFileIsNotWritten()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    const QByteArray bytes = "[poll]\ninterval = 0\n[device A]\naddress = sim:\n";
    write(path, bytes);
    DeskConfig config = DeskConfig::load(path);
    QCOMPARE(names(config), QStringList{"A"}); // the rest is used
    DeskSettings settings;
    settings.pollInterval = 6; // an edit is no repair: the file may mean something else
    QCOMPARE(config.setSettings(settings), QString());
    QVERIFY(config.save().contains("line 2"));
    QCOMPARE(ConfigDocument::load(path).toBytes(), bytes);

    write(path, "[poll]\ncolour = blue\n"); // a warning does not stand in the way
    config = DeskConfig::load(path);
    QCOMPARE(config.addDevice(device("A")), QString());
    QCOMPARE(config.save(), QString());
    QVERIFY(ConfigDocument::load(path).toBytes().contains("colour = blue"));
}

void TestDeskConfig::check()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    QCOMPARE(checkConfig(path).size(), 1);
    QVERIFY(!hasErrors(checkConfig(path)));
    write(path, kFull);
    QVERIFY(checkConfig(path).isEmpty());

    write(path, "x\n[device A]\n[poll]\ninterval = 0\n[y]\n");
    QVector<int> lines;
    for (const ConfigFault& fault : checkConfig(path))
        lines += fault.line;
    QCOMPARE(lines, QVector<int>({1, 2, 4, 5}));

    write(path, kFull);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    QCOMPARE(checkConfig(path).size(), 1);
    QVERIFY(checkConfig(path).at(0).text.contains("chmod 600"));
}

QTEST_GUILESS_MAIN(TestDeskConfig)
#include "tst_deskconfig.moc"
