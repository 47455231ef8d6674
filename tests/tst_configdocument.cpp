// The configuration file as lines: round trip, faults, edits and saving. Touches a temporary
// folder.

#include "config/configdocument.h"

#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace {

const ConfigSection kPoll{"poll", {}};
const ConfigSection kRack{"device", "Rack 3"};
const ConfigSection kDesk{"device", "Desk"};

const char kTwoDevices[] = "# my desk\n"
                           "\n"
                           "[poll]\n"
                           "interval = 5   # seconds\n"
                           "colour = blue\n"
                           "\n"
                           "# in the cellar\n"
                           "[device \"Rack 3\"]\n"
                           "address=nut://10.0.0.5/rack3\n"
                           "\n"
                           "# nobody remembers this one\n"
                           "\n"
                           "[device \"Desk\"] # mine\n"
                           "address = sim:\n";

// The two devices after an edit: the same with either line end, else what went wrong.
QString edited(const std::function<void(ConfigDocument&)>& edit)
{
    ConfigDocument plain{QByteArray(kTwoDevices)};
    edit(plain);
    const QByteArray bytes = plain.toBytes();
    ConfigDocument dos(QByteArray(kTwoDevices).replace("\n", "\r\n"));
    edit(dos);
    if (dos.toBytes() != QByteArray(bytes).replace("\n", "\r\n") || !dos.faults().isEmpty())
        return "other line ends: " + dos.toBytes();
    return QString::fromUtf8(bytes);
}

} // namespace

class TestConfigDocument : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip()
    {
        for (const QByteArray& bytes :
             {QByteArray(), QByteArray(kTwoDevices), QByteArray("[poll]\ninterval = 5"),
              QByteArray("[poll]\r\ninterval = 5\n\r\n\n"), "\xef\xbb\xbf" + QByteArray("[poll]\n"),
              QByteArray("[poll\nx\n\xff\xfe\n[[["), QByteArray("[po\0ll]\n\0\0 = 1\n# \0\n", 20)})
            QCOMPARE(ConfigDocument(bytes).toBytes(), bytes);
    }

    void values()
    {
        const std::pair<const char*, const char*> rows[] = {
            {"interval = 5 # s", "5"},
            {"interval = \" 5 # \" # s", " 5 # "},
            {"interval = \"a\\\"\\\\\\n\\t\\u00e9\"", "a\"\\\n\t\xc3\xa9"},
        };
        for (const auto& row : rows) {
            const ConfigDocument document(QByteArray("\xef\xbb\xbf[Poll] # comment\n") + row.first +
                                          '\n');
            QVERIFY2(document.faults().isEmpty(), row.first);
            QCOMPARE(document.value(kPoll, "interval").value_or("none"), QString(row.second));
        }
    }

    void faults()
    {
        const struct {
            const char* name;
            QByteArray bytes;
            QVector<int> lines;
            bool kept; // [poll] b = 2 is still read
        } rows[] = {
            {"no equals sign", "[poll]\na\nb = 2\n", {2}, true},
            {"not UTF-8", "[poll]\na = \xff\nb = 2\n", {2}, true},
            {"UTF-8 cut short", "[poll]\na = \xc3\nb = 2\n", {2}, true},
            {"open quote", "[poll]\na = \"1\nb = 2\n", {2}, true},
            {"equal keys: the first counts", "[poll]\nb = 2\nB = 3\n", {3}, true},
            {"header not closed: whole section", "[poll\nb = 2\nc\n", {1, 3}, false},
            {"section twice: the first counts",
             "[poll]\nb = 2\n[x]\n[poll]\nb = 3\nc = 4\n",
             {4},
             true},
        };
        for (const auto& row : rows) {
            const ConfigDocument document(row.bytes);
            QVector<int> found;
            for (const ConfigFault& fault : document.faults()) {
                found += fault.line;
                QCOMPARE(fault.severity, ConfigSeverity::Error);
            }
            QVERIFY2(found == row.lines, row.name);
            QVERIFY2((document.value(kPoll, "b").value_or("none") == "2") == row.kept, row.name);
        }
    }

    void anyTextComesBack()
    {
        for (const QString& text :
             {QString("nut://10.0.0.5/rack3"), QString(), QString(" a"), QString("a #1"),
              QString("\"a\" b"), QString("a\n[operator \"eve\"]\nlevel = 9"),
              QString("a") + QChar(0) + "b"}) {
            const ConfigSection section{"device", "d" + text};
            ConfigDocument document;
            document.setValue(section, "address", text);
            document.setValue(section, "user", "anna");

            const ConfigDocument again(document.toBytes());
            QVERIFY(again.faults().isEmpty());
            QCOMPARE(again.sections(), QVector<ConfigSection>{section});
            QCOMPARE(again.value(section, "address").value_or("none"), text);
            QCOMPARE(again.value(section, "user").value_or("none"), "anna");
        }
    }

    void editsTouchTheirLinesOnly()
    {
        using Document = ConfigDocument;
        const QString text = kTwoDevices;
        QCOMPARE(edited([](Document& d) { d.setValue(kPoll, "interval", "5"); }), text);
        QCOMPARE(edited([](Document& d) { d.setValue(kPoll, "interval", "10"); }),
                 QString(text).replace("interval = 5 ", "interval = 10 "));
        QCOMPARE(edited([](Document& d) { d.setValue(kRack, "address", "sim:"); }),
                 QString(text).replace("=nut://10.0.0.5/rack3", "= sim:"));
        QCOMPARE(edited([](Document& d) { d.setValue(kRack, "user", "anna"); }),
                 QString(text).replace("rack3\n", "rack3\nuser = anna\n"));
        QCOMPARE(edited([](Document& d) { d.removeValue(kPoll, "interval"); }),
                 QString(text).remove("interval = 5   # seconds\n"));
        QCOMPARE(edited([](Document& d) { d.renameSection(kDesk, "a\"]"); }),
                 QString(text).replace("[device \"Desk\"] # mine", "[device \"a\\\"]\"] # mine"));
        const QString rack = "# in the cellar\n[device \"Rack 3\"]\naddress=nut://10.0.0.5/rack3\n";
        const QString desk = "[device \"Desk\"] # mine\naddress = sim:\n";
        QCOMPARE(edited([](Document& d) { d.removeSection(kRack); }),
                 QString(text).remove(rack + '\n'));
        QCOMPARE(edited([](Document& d) { d.removeSection(kDesk); }), QString(text).remove(desk));
        QCOMPARE(edited([](Document& d) {
                     d.reorderSections("device", {"Desk", "Rack 3"});
                 }),
                 "# my desk\n\n[poll]\ninterval = 5   # seconds\ncolour = blue\n\n" + desk +
                     "\n# nobody remembers this one\n\n" + rack);
        QCOMPARE(edited([](Document& d) {
                     d.setValue({"device", "B"}, "address", "sim:b");
                 }),
                 text + "\n[device \"B\"]\naddress = sim:b\n");
    }

    void saving()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("new/upsdesk.conf");
        ConfigDocument document = ConfigDocument::load(path);
        document.setValue(kRack, "address", "sim:");
        QCOMPARE(document.save(), QString());
        document.setValue(kRack, "user", "anna");
        QCOMPARE(document.save(), QString());

        QCOMPARE(ConfigDocument::load(path).toBytes(), document.toBytes());
        const auto others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QVERIFY(!(QFile::permissions(path) & others));
        QCOMPARE(QDir(folder.filePath("new")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"upsdesk.conf"});
    }

    void savingReplacesTheFileUnderALock()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("upsdesk.conf");
        ConfigDocument document = ConfigDocument::load(path);
        document.setValue(kPoll, "interval", "5");
        QCOMPARE(document.save(), QString());
        // Another name for the file keeps the old content where the file is replaced in one step.
        const QString other = folder.filePath("other");
        QCOMPARE(::link(qPrintable(path), qPrintable(other)), 0);
        document.setValue(kPoll, "interval", "6");
        QCOMPARE(document.save(), QString());
        QVERIFY(ConfigDocument::load(other).value(kPoll, "interval") == QString("5"));

        QLockFile lock(path + ".lock");
        QVERIFY(lock.lock());
        document.setValue(kPoll, "interval", "7");
        QVERIFY(document.save().contains("another upsdesk"));
        QVERIFY(ConfigDocument::load(path).value(kPoll, "interval") == QString("6"));
    }

    void faultyFileIsNotWritten()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("upsdesk.conf"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[poll]\nnonsense\n");
        file.close();
        ConfigDocument document = ConfigDocument::load(file.fileName());
        document.setValue(kRack, "user", "anna");
        QVERIFY(document.save().contains("line 2"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("[poll]\nnonsense\n"));
    }

    void changedByAnotherProgram()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("upsdesk.conf");
        ConfigDocument first = ConfigDocument::load(path);
        ConfigDocument second = ConfigDocument::load(path);
        first.setValue(kPoll, "interval", "5");
        second.setValue(kPoll, "interval", "6");
        QCOMPARE(first.save(), QString());
        QVERIFY(second.save().contains("changed by another program"));
        QVERIFY(QFile::remove(path));
        QVERIFY(first.save().contains("changed by another program"));
        QVERIFY(!QFile::exists(path));
    }
};

QTEST_GUILESS_MAIN(TestConfigDocument)
#include "tst_configdocument.moc"
