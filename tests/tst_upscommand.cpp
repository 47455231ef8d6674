// From a posted event or a command line name to a command, and device addresses: what is accepted
// and what is refused before anything is sent.

#include "connectors/deviceaddress.h"
#include "connectors/upscommand.h"

#include <QtTest>

class TestUpsCommand : public QObject
{
    Q_OBJECT

private slots:
    void events_data();
    void events();
    void names_data();
    void names();
    void addresses_data();
    void addresses();
    void communityIsNotShown();
};

void TestUpsCommand::events_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("name"); // empty: refused
    QTest::addColumn<int>("minutes");
    const auto row = [](const char* title, int code, const char* value, const char* name,
                        int minutes) {
        QTest::newRow(title) << code << QString(value) << QString(name) << minutes;
    };
    row("self-test", 1003, "", "self-test", 0);
    row("shutdown, opaque value", 1007, "12", "shutdown", 0);
    row("restart is exactly 1", 1008, "1", "restart", 0);
    row("01 is standby for a minute", 1008, "01", "standby", 1);
    row("standby", 1008, "15", "standby", 15);
    row("a whole day", 1008, "1440", "standby", 1440);
    row("more than a day", 1008, "1441", "", 0);
    row("no minutes", 1008, "0", "", 0);
    row("negative", 1008, "-5", "", 0);
    row("blank after the number", 1008, "60 ", "standby", 60);
    row("words", 1008, "ten", "", 0);
    row("no command", 1012, "5", "", 0);
}

void TestUpsCommand::events()
{
    QFETCH(int, code);
    QFETCH(QString, value);
    QFETCH(QString, name);
    QFETCH(int, minutes);
    const CommandRequest request = commandFromEvent(code, value);
    QCOMPARE(request.command.has_value(), !name.isEmpty());
    QCOMPARE(request.error.isEmpty(), !name.isEmpty());
    if (request.command) {
        QCOMPARE(commandName(request.command->kind), name);
        QCOMPARE(request.command->standbyMinutes, minutes);
    }
}

void TestUpsCommand::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("ok");
    const auto row = [](const char* name, const char* value, bool ok) {
        QTest::addRow("%s %s", name, value) << QString(name) << QString(value) << ok;
    };
    row("standby", "1", true);
    row("standby", "", false);   // no minutes
    row("shutdown", "5", false); // a value where none belongs
    row("explode", "", false);
}

void TestUpsCommand::names()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(bool, ok);
    const CommandRequest request = commandFromName(name, value);
    QCOMPARE(request.command.has_value(), ok);
    QCOMPARE(request.error.isEmpty(), ok);
    if (ok)
        QCOMPARE(commandName(request.command->kind), name);
}

void TestUpsCommand::addresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("host"); // "-": refused
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("who"); // scenario, UPS, community or user
    const auto row = [](const char* text, const char* host, int port, const char* who) {
        QTest::newRow(text) << QString(text) << QString(host) << port << QString(who);
    };
    row("sim:low-battery", "", 0, "low-battery");
    row("nut://localhost:13493/a.b", "localhost", 13493, "a.b");
    row("nut://[::1]:13493/ups", "::1", 13493, "ups");
    row("nut://host/", "host", 3493, "");
    row("snmp://10.1.1.1:1161", "10.1.1.1", 1161, "public");
    row("snmp://eve@h?version=3&level=authPriv", "h", 161, "eve");
    row("snmp://h?version=3", "-", 0, ""); // no user
    row("snmp://a@h?versoin=3", "-", 0, "");
    row("nut://admin:secret@h/ups", "-", 0, "");
    row("snmp://a:b@h", "-", 0, ""); // a secret
    row("nut://h:99999/ups", "-", 0, "");
    row("nut://h/../etc", "-", 0, ""); // a path
}

void TestUpsCommand::addresses()
{
    QFETCH(QString, text);
    QFETCH(QString, host);
    QFETCH(QString, who);
    QFETCH(int, port);
    const ParsedAddress parsed = parseDeviceAddress(text);
    const bool ok = host != QLatin1String("-");
    QCOMPARE(parsed.address.has_value(), ok);
    QCOMPARE(parsed.error.isEmpty(), ok);
    QVERIFY(!parsed.error.contains("secret@"));
    if (!ok)
        return;
    QCOMPARE(parsed.address->host, host);
    QCOMPARE(int(parsed.address->port), port);
    QCOMPARE(parsed.address->scenario + parsed.address->ups + parsed.address->community +
                 parsed.address->user,
             who);
}

void TestUpsCommand::communityIsNotShown()
{
    const auto shown = [](const char* text) {
        return shownAddress(*parseDeviceAddress(text).address);
    };
    QCOMPARE(shown("snmp://private@h:1161?version=1"), QString("snmp://h:1161?version=1"));
    QCOMPARE(shown("snmp://eve@h?version=3"), QString("snmp://eve@h?version=3"));
    QCOMPARE(shown("nut://h/ups"), QString("nut://h/ups"));
}

QTEST_APPLESS_MAIN(TestUpsCommand)
#include "tst_upscommand.moc"
