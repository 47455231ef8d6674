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
    void snmpV3Options();
};

void TestUpsCommand::events_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("name"); // empty: refused
    QTest::addColumn<int>("minutes");
    QTest::newRow("self-test") << 1003 << ""
                               << "self-test" << 0;
    QTest::newRow("discharge test") << 1005 << ""
                                    << "discharge-test" << 0;
    QTest::newRow("cancel") << 1006 << ""
                            << "cancel-test" << 0;
    QTest::newRow("shutdown, opaque value") << 1007 << "12"
                                            << "shutdown" << 0;
    QTest::newRow("wake-up") << 1013 << ""
                             << "wake-up" << 0;
    QTest::newRow("restart is exactly 1") << 1008 << "1"
                                          << "restart" << 0;
    QTest::newRow("01 is standby for a minute") << 1008 << "01"
                                                << "standby" << 1;
    QTest::newRow("standby") << 1008 << "15"
                             << "standby" << 15;
    QTest::newRow("a whole day") << 1008 << "1440"
                                 << "standby" << 1440;
    QTest::newRow("more than a day") << 1008 << "1441"
                                     << "" << 0;
    QTest::newRow("eight digits") << 1008 << "99999999"
                                  << "" << 0;
    QTest::newRow("no minutes") << 1008 << "0"
                                << "" << 0;
    QTest::newRow("empty") << 1008 << ""
                           << "" << 0;
    QTest::newRow("negative") << 1008 << "-5"
                              << "" << 0;
    QTest::newRow("no number") << 1008 << "60 "
                               << "standby" << 60;
    QTest::newRow("words") << 1008 << "ten"
                           << "" << 0;
    QTest::newRow("no command") << 1012 << "5"
                                << "" << 0;
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
    QTest::newRow("restart") << "restart"
                             << "" << true;
    QTest::newRow("standby for a minute") << "standby"
                                          << "1" << true;
    QTest::newRow("standby without minutes") << "standby"
                                             << "" << false;
    QTest::newRow("value where none belongs") << "shutdown"
                                              << "5" << false;
    QTest::newRow("unknown") << "explode"
                             << "" << false;
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
    QTest::newRow("simulator") << "sim:"
                               << "" << 0 << "";
    QTest::newRow("scenario") << "sim:low-battery"
                              << "" << 0 << "low-battery";
    QTest::newRow("nut") << "nut://10.0.0.5/rack3"
                         << "10.0.0.5" << 3493 << "rack3";
    QTest::newRow("nut, port") << "nut://localhost:13493/a.b"
                               << "localhost" << 13493 << "a.b";
    QTest::newRow("nut, IPv6") << "nut://[::1]:13493/ups"
                               << "::1" << 13493 << "ups";
    QTest::newRow("nut, no name") << "nut://host/"
                                  << "host" << 3493 << "";
    QTest::newRow("snmp") << "snmp://private@10.1.1.1"
                          << "10.1.1.1" << 161 << "private";
    QTest::newRow("snmp, no community") << "snmp://10.1.1.1:1161"
                                        << "10.1.1.1" << 1161 << "public";
    QTest::newRow("snmp 1") << "snmp://a%40b@h?version=1"
                            << "h" << 161 << "a@b";
    QTest::newRow("snmp 3") << "snmp://eve@h?version=3&level=authPriv"
                            << "h" << 161 << "eve";
    QTest::newRow("snmp 3 without user") << "snmp://h?version=3"
                                         << "-" << 0 << "";
    QTest::newRow("unknown option") << "snmp://a@h?versoin=3"
                                    << "-" << 0 << "";
    QTest::newRow("unknown digest") << "snmp://a@h?version=3&auth=ROT13"
                                    << "-" << 0 << "";
    QTest::newRow("secret in nut") << "nut://admin:secret@h/ups"
                                   << "-" << 0 << "";
    QTest::newRow("secret in snmp") << "snmp://a:b@h"
                                    << "-" << 0 << "";
    QTest::newRow("no host") << "nut:///ups"
                             << "-" << 0 << "";
    QTest::newRow("no port") << "nut://h:0/ups"
                             << "-" << 0 << "";
    QTest::newRow("port too high") << "nut://h:99999/ups"
                                   << "-" << 0 << "";
    QTest::newRow("path in a name") << "nut://h/../etc"
                                    << "-" << 0 << "";
    QTest::newRow("other scheme") << "http://h/"
                                  << "-" << 0 << "";
    QTest::newRow("empty") << ""
                           << "-" << 0 << "";
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

void TestUpsCommand::snmpV3Options()
{
    const auto parsed =
        parseDeviceAddress("snmp://eve@h?version=3&level=authnopriv&auth=sha-256&context=a%20b");
    QVERIFY(parsed.address);
    QCOMPARE(parsed.address->snmpVersion, 3);
    QCOMPARE(parsed.address->securityLevel, QStringLiteral("authNoPriv"));
    QCOMPARE(parsed.address->authProtocol, QStringLiteral("SHA-256"));
    QCOMPARE(parsed.address->privProtocol, QStringLiteral("AES"));
    QCOMPARE(parsed.address->context, QStringLiteral("a b"));
}

QTEST_APPLESS_MAIN(TestUpsCommand)
#include "tst_upscommand.moc"
