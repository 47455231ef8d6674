// What the configuration means: ranges, faults, devices, operators and edits. Touches a temporary
// folder.

#include "config/checkconfig.h"
#include "config/deskconfig.h"
#include "config/passwordhash.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

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
    void everyKeyIsRead()
    {
        const DeskConfig config = read(kFull);
        QVERIFY2(config.faults().isEmpty(), qPrintable(config.faults().value(0).text));
        const DeskSettings& settings = config.settings();
        const Thresholds& t = settings.thresholds;
        QCOMPARE((QVector<int>{settings.pollInterval, settings.idleLogout, t.chargeLow,
                               t.chargeCritical, t.runtimeLow, t.loadHigh, t.temperatureHigh}),
                 (QVector<int>{7, 15, 30, 10, 8, 90, 35}));
        QCOMPARE(settings.secrets, SecretsChoice::File);

        QCOMPARE(names(config), QStringList({"Rack 3", "Desk"}));
        const DeviceSettings& rack = config.devices().at(0);
        QCOMPARE(rack.address.ups, QString("rack3"));
        QCOMPARE(rack.user, QString("admin"));
        QCOMPARE((QVector<int>{rack.pollInterval, rack.timeout, rack.retries, rack.shutdownDelay,
                               rack.restartDuration, rack.shutdownWholeUps}),
                 (QVector<int>{10, 3, 2, 30, 90, 1}));
        QCOMPARE(rack.scales, (QMap<QString, double>{{"input.voltage", 0.1}}));
        QCOMPARE(config.devices().at(1).pollInterval, 7); // of [poll]
        QCOMPARE(config.devices().at(1).seed, 9u);
        QCOMPARE(config.operators().size(), 1);
        QCOMPARE(config.operators().at(0).name, QString("anna"));
        QCOMPARE(config.operators().at(0).level, 4);

        const DeskConfig none = read({});
        QVERIFY(none.faults().isEmpty() && none.devices().isEmpty());
        QCOMPARE(none.settings().pollInterval, 5);
        QCOMPARE(none.settings().secrets, SecretsChoice::Keychain);
    }

    void ranges()
    {
        const struct {
            QByteArray header;
            QByteArray key;
            int minimum;
            int maximum;
            QByteArray rest;
        } rows[] = {
            {"[poll]", "interval", 1, 3600, {}},
            {"[session]", "idle-logout", 1, 1440, {}},
            {"[thresholds]", "runtime-low", 0, 1440, {}},
            {"[thresholds]", "load-high", 1, 200, {}},
            {"[thresholds]", "temperature-high", 1, 150, {}},
            {"[device x]", "interval", 1, 3600, "address = sim:\n"},
            {"[device x]", "timeout", 1, 120, "address = sim:\n"},
            {"[device x]", "retries", 0, 10, "address = sim:\n"},
            {"[device x]", "shutdown-delay", 0, 86400, "address = sim:\n"},
            {"[device x]", "restart-duration", 0, 86400, "address = sim:\n"},
            {"[operator x]", "level", 0, 9, kHash},
        };
        for (const auto& row : rows) {
            const auto faults = [&](const QByteArray& value) {
                return read(row.header + '\n' + row.key + " = " + value + '\n' + row.rest).faults();
            };
            for (int good : {row.minimum, row.maximum})
                QVERIFY2(faults(QByteArray::number(good)).isEmpty(), row.key);
            for (const QByteArray& bad :
                 {QByteArray::number(row.minimum - 1), QByteArray::number(row.maximum + 1),
                  QByteArray(), QByteArray("5 s"), QByteArray("1.5"), QByteArray(20, '9')}) {
                const ConfigFaults found = faults(bad);
                QVERIFY2(found.size() == 1 && found[0].line == 2 && hasErrors(found), row.key);
            }
        }
    }

    void faults()
    {
        const auto only = [](const QByteArray& bytes, int line, const char* part, bool error) {
            const ConfigFaults found = read(bytes).faults();
            return found.size() == 1 && found[0].line == line && found[0].text.contains(part) &&
                   !found[0].text.contains("sesame") && hasErrors(found) == error;
        };
        const auto error = [&](const QByteArray& bytes, int line, const char* part) {
            return only(bytes, line, part, true);
        };
        const auto warning = [&](const QByteArray& bytes, int line, const char* part) {
            return only(bytes, line, part, false);
        };
        const QByteArray dev = "[device A]\naddress = sim:\n";
        QVERIFY(error("[thresholds]\ncharge-low = 10\ncharge-critical = 11\n", 3, "10"));
        QVERIFY(error("[secrets]\nstore = paper\n", 2, "keychain or file"));
        QVERIFY(error("[device]\naddress = sim:\n", 1, "needs a name"));
        QVERIFY(error("[device A]\n", 1, "no address"));
        QVERIFY(error("[device A]\naddress = ftp://x\n", 2, "left out"));
        QVERIFY(error("[device A]\naddress = snmp://a:b@h\n", 2, "secrets"));
        QVERIFY(error(dev + "shutdown-whole-ups = maybe\n", 3, "yes or no"));
        QVERIFY(error(dev + "seed = -1\n", 3, "seed"));
        QVERIFY(error(dev + "scale.input.voltage = 0\n", 3, "above 0"));
        QVERIFY(error(dev + "scale.input.voltage = 0,1\n", 3, "above 0"));
        QVERIFY(error("[device \"a\\n\"]\n", 1, "control"));
        QVERIFY(error("[device \"a \"]\n", 1, "blank"));
        QVERIFY(error("[operator a]\nlevel = 1\n", 1, "hash"));
        QVERIFY(error("[operator a]\nlevel = 1\nhash = sesame\n", 3, "no valid hash"));
        QVERIFY(
            error("[operator a]\nlevel = 1\n" + QByteArray(kHash).replace("m=8", "m=4294967295"), 3,
                  "no valid hash"));
        QVERIFY(warning("[poll]\nintervall = 5\n", 2, "interval"));
        QVERIFY(warning(dev + "scale.volts = 2\n", 3, "input.voltage"));
        QVERIFY(warning("[colours]\nred = 1\n", 1, "colours"));
        QVERIFY(warning("[poll \"x\"]\ninterval = 0\n", 1, "no name"));
        QVERIFY(warning(dev + "password = sesame\n", 3, "keychain"));
    }

    void deviceEdits()
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

    void unchangedValuesGetNoLine()
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

    void settingsEdits()
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

    void operatorEdits()
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

    void refusedEdits()
    {
        const auto refused = [](const std::function<QString(DeskConfig&)>& edit) {
            DeskConfig config = read(kFull);
            return !edit(config).isEmpty() && config.document().toBytes() == kFull &&
                   config.devices().size() == 2;
        };
        for (const DeviceSettings& bad :
             {device("Desk"), device(""), device("a\nb"), device("B", "gopher://x")})
            QVERIFY(refused([&](DeskConfig& c) { return c.addDevice(bad); }));
        DeviceSettings bad = device("B");
        bad.pollInterval = 0;
        QVERIFY(refused([&](DeskConfig& c) { return c.addDevice(bad); }));
        bad = device("B");
        bad.scales = {{"input.voltage", -1.0}};
        QVERIFY(refused([&](DeskConfig& c) { return c.addDevice(bad); }));
        QVERIFY(refused([](DeskConfig& c) { return c.changeDevice("Rack 3", device("Desk")); }));
        QVERIFY(refused([](DeskConfig& c) { return c.changeDevice("B", device("B")); }));
        QVERIFY(refused([](DeskConfig& c) { return c.removeDevice("B"); }));
        QVERIFY(refused([](DeskConfig& c) { return c.moveDevice(0, 2); }));
        QVERIFY(refused([](DeskConfig& c) {
            DeskSettings settings = c.settings();
            settings.thresholds.chargeCritical = 31;
            return c.setSettings(settings);
        }));
        QVERIFY(refused([](DeskConfig& c) { return c.putOperator({"b", 10, impossibleHash()}); }));
        QVERIFY(refused([](DeskConfig& c) { return c.putOperator({"b", 1, "sesame"}); }));
    }

    void faultyFileIsNotWritten()
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

    void check()
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
        QVERIFY(
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
        QCOMPARE(checkConfig(path).size(), 1);
        QVERIFY(checkConfig(path).at(0).text.contains("chmod 600"));
    }
};

QTEST_GUILESS_MAIN(TestDeskConfig)
#include "tst_deskconfig.moc"
