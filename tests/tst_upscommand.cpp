// From a posted event or a command line name to a command, and device addresses: what is accepted
// and what is refused before anything is sent.

#include "connectors/deviceaddress.h"
#include "connectors/upscommand.h"

#include <QtTest>

class TestUpsCommand : public QObject
{
    Q_OBJECT

private slots:
    void events();
    void names();
    void addresses();
    void communityIsNotShown();
};

void TestUpsCommand::events()
{
    const struct {
        const char* title;
        int code;
        const char* value;
        const char* name; // empty: refused
        int minutes;
    } rows[] = {
        {"self-test", 1003, "", "self-test", 0},
        {"shutdown, opaque value", 1007, "12", "shutdown", 0},
        {"restart is exactly 1", 1008, "1", "restart", 0},
        {"01 is standby for a minute", 1008, "01", "standby", 1},
        {"standby", 1008, "15", "standby", 15},
        {"a whole day", 1008, "1440", "standby", 1440},
        {"more than a day", 1008, "1441", "", 0},
        {"no minutes", 1008, "0", "", 0},
        {"negative", 1008, "-5", "", 0},
        {"blank after the number", 1008, "60 ", "standby", 60},
        {"words", 1008, "ten", "", 0},
        {"no command", 1012, "5", "", 0},
    };
    for (const auto& row : rows) {
        const CommandRequest request = commandFromEvent(row.code, row.value);
        const bool ok = row.name[0];
        QVERIFY2(request.command.has_value() == ok && request.error.isEmpty() == ok, row.title);
        if (!ok)
            continue;
        QVERIFY2(commandName(request.command->kind) == row.name, row.title);
        QVERIFY2(request.command->standbyMinutes == row.minutes, row.title);
    }
}

void TestUpsCommand::names()
{
    const struct {
        const char* name;
        const char* value;
        bool ok;
    } rows[] = {
        {"standby", "1", true},
        {"standby", "", false},   // no minutes
        {"shutdown", "5", false}, // a value where none belongs
        {"explode", "", false},
    };
    for (const auto& row : rows) {
        const CommandRequest request = commandFromName(row.name, row.value);
        QVERIFY2(request.command.has_value() == row.ok, row.name);
        QVERIFY2(request.error.isEmpty() == row.ok, row.name);
        QVERIFY2(!row.ok || commandName(request.command->kind) == row.name, row.name);
    }
}

void TestUpsCommand::addresses()
{
    const struct {
        const char* text;
        const char* host; // null: refused
        int port;
        const char* who; // scenario, UPS, community or user
    } rows[] = {
        {"sim:low-battery", "", 0, "low-battery"},
        {"nut://localhost:13493/a.b", "localhost", 13493, "a.b"},
        {"nut://[::1]:13493/ups", "::1", 13493, "ups"},
        {"nut://host/", "host", 3493, ""},
        {"snmp://10.1.1.1:1161", "10.1.1.1", 1161, "public"},
        {"snmp://eve@h?version=3&level=authPriv", "h", 161, "eve"},
        {"snmp://h?version=3", nullptr, 0, ""}, // no user
        {"snmp://a@h?versoin=3", nullptr, 0, ""},
        {"nut://admin:secret@h/ups", nullptr, 0, ""},
        {"snmp://a:b@h", nullptr, 0, ""}, // a secret
        {"nut://h:99999/ups", nullptr, 0, ""},
        {"nut://h/../etc", nullptr, 0, ""}, // a path
    };
    for (const auto& row : rows) {
        const auto [address, error] = parseDeviceAddress(row.text);
        QVERIFY2(address.has_value() == bool(row.host), row.text);
        QVERIFY2(error.isEmpty() == bool(row.host) && !error.contains("secret@"), row.text);
        if (!address)
            continue;
        QVERIFY2(address->host == row.host && address->port == row.port, row.text);
        QVERIFY2(address->scenario + address->ups + address->community + address->user == row.who,
                 row.text);
    }
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
