// upsdesk as a program: what each subcommand ends with and says, on the simulator, on a port where
// nobody listens, and by names of a configuration.

#include "support/lineserver.h"
#include "support/nutanswers.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// Nobody listens on the port of tcpmux.
constexpr char kNobody[] = "nut://127.0.0.1:1/unit";

constexpr char kConfig[] = "[thresholds]\nload-high = 45\n"
                           "[device \"Rack 3\"]\naddress = sim:mains\n"
                           "[device \"A|B\"]\naddress = sim:silent\n"
                           "[device Mute]\naddress = snmp://public@127.0.0.1:1\ntimeout = 1\n"
                           "retries = 0\n";
constexpr char kFaulty[] = "[poll]\ninterval = 0\n";

struct Ended {
    int code = -1;
    QString out;
    QString error;
};

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;

    void write(const QString& name, const QByteArray& bytes)
    {
        QDir(m_home.path()).mkpath(QStringLiteral("upsdesk"));
        QFile file(m_home.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        file.write(bytes);
    }

    Ended run(const QStringList& arguments, const QByteArray& input = {})
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.path());
        environment.remove(QStringLiteral("QT_FATAL_WARNINGS"));
        for (const auto& [name, value] :
             {std::pair("USER", "anna"), {"SECRET", "secret"}, {"TLS", "off"}})
            environment.insert(QStringLiteral("UPSDESK_NUT_") + name, value);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_home.path());
        process.start(QStringLiteral(UPSDESK), arguments);
        process.write(input);
        process.closeWriteChannel();
        constexpr int kPatience = 60000;
        const auto hasEnded = [&] { return process.state() == QProcess::NotRunning; };
        if (!QTest::qWaitFor(hasEnded, kPatience) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

private slots:
    void init() { write(QStringLiteral("upsdesk/upsdesk.conf"), kConfig); }

    void ends_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("said"); // on either stream
        const auto row = [](const char* name, const QStringList& arguments, int code,
                            const char* said) {
            QTest::newRow(name) << arguments << code << QString(said);
        };
        row("probe by address", {"probe", "sim:mains"}, 0, "realdata_OutputFre");
        row("probe by name", {"probe", "Rack 3"}, 0, "sim:mains: live");
        row("probe, nobody there", {"probe", kNobody}, 3, "lost");
        row("probe without an address", {"probe"}, 2, "usage: upsdesk probe ADDRESS");
        row("probe with too much", {"probe", "sim:", "sim:"}, 2, "too many");
        row("probe with a wrong option", {"probe", "sim:", "--jsn"}, 2, "jsn");
        row("help", {"probe", "--help"}, 0, "3 not live");
        row("help of the window", {"--help"}, 0, "/upsdesk/upsdesk.conf");
        row("version", {"--version"}, 0, "upsdesk ");
        row("misspelt subcommand", {"prob", "sim:"}, 2, "did you mean \"probe\"");
        row("misspelt name", {"probe", "Rack3"}, 2, "did you mean \"Rack 3\"");
        row("misspelt situation", {"probe", "sim:outag"}, 2, "did you mean \"outage\"");
        row("misspelt command", {"command", "sim:", "self-tst"}, 2, "did you mean \"self-test\"");
        row("nothing near", {"probe", "zzzzzz"}, 2, "or snmp://\n");

        row("command done", {"command", "sim:mains", "self-test", "--yes"}, 0, "done");
        row("command refused", {"command", "Rack 3", "cancel-test", "--yes"}, 4, "No test");
        row("command, nobody to ask", {"command", "sim:mains", "restart"}, 4, "nobody to ask");
        row("command without a value", {"command", "sim:mains", "standby", "--yes"}, 2, "minutes");
        row("command without a name", {"command", "sim:mains"}, 2, "usage: upsdesk command");
        row("command, nobody there", {"command", "Mute", "cancel-test", "--yes"}, 3, "no answer");

        row("check-config", {"check-config"}, 0, "no faults");
        row("check-config with faults", {"check-config", "faulty.conf"}, 2, "faulty.conf:2: error");
        row("check-config without the file", {"check-config", "none.conf"}, 2, "no file none.conf");
        row("picture without a folder", {"picture", "sim:"}, 2, "usage: upsdesk picture");
        row("picture of a bad size", {"picture", "sim:", "--out", ".", "--size", "1x1"}, 2, "200");
        row("add-operator without a level", {"add-operator", "anna"}, 2, "level");

        row("check: well", {"check", "sim:three-phase-mains", "--warning", "load=60"}, 0,
            "UPS OK - ");
        row("check: configured threshold", {"check", "Rack 3"}, 1,
            "UPS WARNING - Rack 3: On mains");
        row("check: by its address", {"check", "sim:mains"}, 1, "UPS WARNING - Rack 3: On mains");
        row("check: other thresholds", {"check", "Rack 3", "--warning", "load=90"}, 0, "%;90;;0 ");
        row("check: beyond a limit", {"check", "sim:mains", "--critical", "charge=@99:"}, 2,
            "charge 100 % (limit @99:)");
        row("check: on battery", {"check", "sim:outage"}, 2, "UPS CRITICAL - ");
        row("check: nobody there", {"check", kNobody}, 2, "No answer");
        row("check: no such name", {"check", "Rack 33"}, 3, "UPS UNKNOWN - ");
        row("check: no address", {"check"}, 3, "UPS UNKNOWN - ");
        row("check: no limit", {"check", "sim:", "--warning", "load=x"}, 3, "UPS UNKNOWN - ");
        row("check: no range", {"check", "sim:", "--warning", "load=9:1"}, 3, "UPS UNKNOWN - ");
    }
    void ends()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, said);
        write(QStringLiteral("faulty.conf"), kFaulty);
        const Ended ended = run(arguments);
        QVERIFY2((ended.out + ended.error).contains(said), qPrintable(ended.out + ended.error));
        QCOMPARE(ended.code, code);
        if (arguments.first() == QLatin1String("check"))
            QVERIFY2(ended.out.count('\n') == 1 && ended.out.count('|') <= 1,
                     qPrintable(ended.out));
    }

    // Neither the bar nor a line's end of a name or of a device's text ends the text before time.
    void lineOfCheckCannotBeBroken()
    {
        const Ended ended = run({"check", "A|B"});
        QVERIFY2(ended.out.contains("A/B: On mains"), qPrintable(ended.out));
        QCOMPARE(ended.out.count('|'), 1);
    }

    // A server of before tracking takes the order and never tells how it ended.
    void commandOfUnknownResult()
    {
        LineServer server([](const QByteArray& line) {
            return line.startsWith("INSTCMD") ? QByteArray("OK\n") : orderlyNutAnswer(line);
        });
        const QString port = QString::number(server.serverPort());
        const Ended ended =
            run({"command", "nut://127.0.0.1:" + port + "/unit", "self-test", "--yes"});
        QVERIFY2(ended.code == 5, qPrintable(ended.out + ended.error));
        QCOMPARE(server.count("INSTCMD"), 1);
    }

    void jsonHasPhysicalValuesBesideTheKeys()
    {
        const QByteArray json = run({"probe", "sim:mains", "--json"}).out.toUtf8();
        const QJsonObject probe = QJsonDocument::fromJson(json).object();
        const QJsonObject power = probe["physical"].toObject()["realdata_OutputPower_A"].toObject();
        QCOMPARE(power["unit"].toString(), QString("W"));
        QCOMPARE(qRound(power["value"].toDouble()),
                 probe["values"].toObject()["realdata_OutputPower_A_Hi"].toInt());
        QCOMPARE(probe["state"].toString(), QString("live"));
    }

    void operatorIsAddedFromAPipe()
    {
        const QStringList add{"add-operator", "anna", "--level", "1"};
        QCOMPARE(run(add, "short\n").code, 4);
        const Ended added = run(add, "correct horse battery\n");
        QVERIFY2(added.code == 0, qPrintable(added.error));
        QCOMPARE(run({"check-config"}).code, 0);
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
