// What the configuration means: ranges, faults, devices, operators and edits. Touches a temporary
// folder.

#include "config/checkconfig.h"
#include "config/deskconfig.h"
#include "private/passwordhash.h"

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
        QCOMPARE(config.operators().at(0).level, 4);
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
            {"[device x]", "interval", 1, 3600, "address = sim:\n"},
            {"[operator x]", "level", 0, 9, kHash},
        };
        for (const auto& row : rows) {
            const auto faults = [&](const QByteArray& value) {
                return read(row.header + '\n' + row.key + " = " + value + '\n' + row.rest).faults();
            };
            for (int good : {row.minimum, row.maximum})
                QVERIFY2(faults(QByteArray::number(good)).isEmpty(), row.key);
            for (const QByteArray& bad : {QByteArray::number(row.minimum - 1),
                                          QByteArray::number(row.maximum + 1), QByteArray("5 s")}) {
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
        const QByteArray dev = "[device A]\naddress = sim:\n";
        QVERIFY(only("[thresholds]\ncharge-low = 10\ncharge-critical = 11\n", 3, "10", true));
        QVERIFY(only("[device A]\naddress = ftp://x\n", 2, "left out", true));
        QVERIFY(only("[device A]\nretries = 1\n", 1, "left out", true));
        QVERIFY(read("[device A]\nretries = 1\n").devices().isEmpty());
        QVERIFY(only("[device A]\naddress = snmp://a:b@h\n", 2, "secrets", true));
        QVERIFY(only(dev + "scale.input.voltage = 0\n", 3, "above 0", true));
        QVERIFY(only("[device \"a\\n\"]\n", 1, "control", true));
        QVERIFY(only("[operator a]\nlevel = 1\nhash = sesame\n", 3, "no valid hash", true));
        QVERIFY(only("[poll]\nintervall = 5\n", 2, "interval", false));
        QVERIFY(only(dev + "password = sesame\n", 3, "keychain", false));
    }

    void deviceEdits()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("upsdesk.conf");
        write(path, kFull);
        DeskConfig config = DeskConfig::load(path);

        DeviceSettings added = device("Lab # \"2\"", "snmp://public@10.0.0.9");
        added.scales = {{"output.power", 0.1}, {"battery.charge", 1.0 / 3.0}};
        added.secret = added.authSecret = added.privSecret = "sesame";
        QCOMPARE(config.addDevice(added), QString());

        DeviceSettings rack = config.devices().at(0);
        rack.name = "Rack 4";
        rack.scales = {{"input.current", 10.0}};
        rack.user.clear();
        QCOMPARE(config.changeDevice("Rack 3", rack), QString());
        QCOMPARE(config.moveDevice(2, 0), QString());
        QCOMPARE(config.removeDevice("Desk"), QString());
        QCOMPARE(config.putOperator({"bert", 9, impossibleHash(HashLimits::minimal())}), QString());
        QCOMPARE(config.removeOperator("anna"), QString());
        QCOMPARE(config.save(), QString());

        const DeskConfig again = DeskConfig::load(path);
        QVERIFY(again.faults().isEmpty());
        QCOMPARE(again.devices().size(), 2);
        QCOMPARE(again.devices().at(0).name, added.name);
        QCOMPARE(again.devices().at(1).name, rack.name);
        QCOMPARE(again.devices().at(0).scales, added.scales); // to the last bit
        QCOMPARE(again.devices().at(1).scales, rack.scales);
        QCOMPARE(again.devices().at(1).retries, 2);
        QCOMPARE(again.devices().at(1).user, QString());
        QCOMPARE(again.operators().size(), 1);
        QCOMPARE(again.operators().at(0).name, QString("bert"));
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
        QVERIFY(refused([](DeskConfig& c) { return c.changeDevice("Rack 3", device("Desk")); }));
        QVERIFY(refused([](DeskConfig& c) { return c.putOperator({"b", 1, "sesame"}); }));
    }

    void faultyFileIsNotWritten()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("upsdesk.conf");
        const QByteArray bytes = "[poll]\ninterval = 0\n[device A]\naddress = sim:\n";
        write(path, bytes);
        DeskConfig config = DeskConfig::load(path);
        QCOMPARE(config.devices().size(), 1); // the rest is used
        DeskSettings settings;
        settings.pollInterval = 6; // an edit is no repair: the file may mean something else
        QCOMPARE(config.setSettings(settings), QString());
        QVERIFY(config.save().contains("line 2"));
        QCOMPARE(ConfigDocument::load(path).toBytes(), bytes);
    }

    void check()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("upsdesk.conf");
        write(path, kFull);
        QVERIFY(checkConfig(path).isEmpty());
        QVERIFY(
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
        QCOMPARE(checkConfig(path).size(), 1);
        QVERIFY(checkConfig(path).at(0).text.contains("chmod 600"));
    }
};

QTEST_GUILESS_MAIN(TestDeskConfig)
#include "tst_deskconfig.moc"
