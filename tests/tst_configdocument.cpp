// The configuration file as lines: round trip, faults, edits and saving. Touches a temporary
// folder.

#include "config/configdocument.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

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

QString withoutLine(const QString& text, const QString& line)
{
    return QString(text).remove(line);
}

// The two devices after an edit: the same with either line end and with a file that ends without
// one, else what went wrong.
QString edited(const std::function<void(ConfigDocument&)>& edit)
{
    ConfigDocument plain{QByteArray(kTwoDevices)};
    edit(plain);
    const QByteArray bytes = plain.toBytes();
    ConfigDocument dos(QByteArray(kTwoDevices).replace("\n", "\r\n"));
    edit(dos);
    if (dos.toBytes() != QByteArray(bytes).replace("\n", "\r\n") || !dos.faults().isEmpty())
        return "other line ends: " + dos.toBytes();
    ConfigDocument open(QByteArray(kTwoDevices).chopped(1));
    edit(open);
    if (open.toBytes() != bytes && open.toBytes() + '\n' != bytes)
        return "no end of line: " + open.toBytes();
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
            {"  interval =  5  ", "5"},
            {"Interval=5", "5"},
            {"interval = 5 # s", "5"},
            {"interval = a#b", "a#b"},
            {"interval = # 5", ""},
            {"interval = $a$m=1,t=2", "$a$m=1,t=2"},
            {"interval = \" 5 # \" # s", " 5 # "},
            {"interval = \"a\\\"\\\\\\n\\t\\u00e9\"", "a\"\\\n\t\xc3\xa9"},
            {"interval = a\\nb", "a\\nb"},
            {"interval = K\xc3\xbc\r", "K\xc3\xbc"},
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
            {"blank in a key", "[poll]\na c = 1\nb = 2\n", {2}, true},
            {"open quote", "[poll]\na = \"1\nb = 2\n", {2}, true},
            {"unknown escape", "[poll]\na = \"\\x\"\nb = 2\n", {2}, true},
            {"backslash at the end", "[poll]\na = \"\\\nb = 2\n", {2}, true},
            {"equal keys: the first counts", "[poll]\nb = 2\nB = 3\n", {3}, true},
            {"control character", "[poll]\na = \x1b[0m\nb = 2\n", {2}, true},
            {"old Mac line ends", "[poll]\rb = 2\r", {1}, false},
            {"cut UTF-8", "[poll]\na = \xc3\nb = 2\n", {2}, true},
            {"header not closed: whole section", "[poll\nb = 2\nc\n", {1, 3}, false},
            {"empty header", "[]\na = 1\n[poll]\nb = 2\n", {1}, true},
            {"section twice: the first counts",
             "[poll]\nb = 2\n[x]\n[poll]\nb = 3\nc = 4\n",
             {4},
             true},
            {"device twice", "[poll]\nb = 2\n[device A]\n[device \"A\"]\n", {4}, true},
            {"UTF-16", QByteArray("\xff\xfe[\0p\0o\0l\0l\0]\0\n\0", 16), {1, 2}, false},
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

    void hostileBytes()
    {
        const QByteArray longLine(1024 * 1024, 'x');
        const ConfigDocument one("[poll]\na = " + longLine + "\nb = 2");
        QCOMPARE(one.faults().size(), 1);
        QCOMPARE(one.faults().at(0).line, 2);
        QVERIFY(one.faults().at(0).text.size() < 200);
        QCOMPARE(one.value(kPoll, "b").value_or("none"), "2");

        const ConfigDocument many(QByteArray("x\n").repeated(100000));
        QCOMPARE(many.faults().size(), ConfigDocument::kMaxFaults + 1);

        QByteArray noise;
        quint32 state = 1;
        for (int i = 0; i < 200000; ++i) {
            state = state * 1664525u + 1013904223u;
            noise += "\"[]=#\\\n\r\0 u0a\xc3"[(state >> 24) % 15];
        }
        ConfigDocument document(noise);
        document.setValue(kRack, "user", "x");
        for (const ConfigSection& section : document.sections())
            document.renameSection(section, section.name + "'");
        QCOMPARE(document.value(kRack, "user").has_value(), false); // it is called Rack 3' now
    }

    void anyTextComesBack()
    {
        const std::pair<QString, bool> rows[] = {
            // true: quoted
            {"nut://10.0.0.5/rack3", false},
            {"", false},
            {" a", true},
            {"a\t", true},
            {"#1", true},
            {"a #1", true},
            {"a#1", false},
            {"\"a\" b", true},
            {"a \"b\" \\", false},
            {"[x]", false},
            {"a\n[operator \"eve\"]\nlevel = 9", true},
            {"a\rb", true},
            {QString("a") + QChar(0) + "b", true},
            {QString("a") + QChar(0xd800), true}, // half of a pair
            {QString::fromUtf8("\xf0\x9f\x94\x8b\xc2\xa0"), false},
        };
        for (const auto& row : rows) {
            const ConfigSection section{"device", "d" + row.first};
            ConfigDocument document;
            document.setValue(section, "address", row.first);
            document.setValue(section, "user", "anna");

            const ConfigDocument again(document.toBytes());
            QVERIFY(again.faults().isEmpty());
            QCOMPARE(again.sections(), QVector<ConfigSection>{section});
            QCOMPARE(again.value(section, "address").value_or("none"), row.first);
            QCOMPARE(again.value(section, "user").value_or("none"), "anna");
            QCOMPARE(again.toBytes().contains("address = \""), row.second);
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
                 withoutLine(text, "interval = 5   # seconds\n"));
        QCOMPARE(edited([](Document& d) { d.renameSection(kDesk, "a\"]"); }),
                 QString(text).replace("[device \"Desk\"] # mine", "[device \"a\\\"]\"] # mine"));
        const QString rack = "# in the cellar\n[device \"Rack 3\"]\naddress=nut://10.0.0.5/rack3\n";
        const QString desk = "[device \"Desk\"] # mine\naddress = sim:\n";
        QCOMPARE(edited([](Document& d) { d.removeSection(kRack); }),
                 withoutLine(text, rack + '\n'));
        QCOMPARE(edited([](Document& d) { d.removeSection(kDesk); }), withoutLine(text, desk));
        QCOMPARE(edited([](Document& d) {
                     d.reorderSections("device", {"Desk", "Rack 3"});
                 }),
                 "# my desk\n\n[poll]\ninterval = 5   # seconds\ncolour = blue\n\n" + desk +
                     "\n# nobody remembers this one\n\n" + rack);
        QCOMPARE(edited([](Document& d) {
                     d.setValue({"device", "B"}, "address", "sim:b");
                 }),
                 text + "\n[device \"B\"]\naddress = sim:b\n");
        QCOMPARE(edited([](Document& d) {
                     d.setValue({"session", {}}, "a", "1");
                 }),
                 text + "\n[session]\na = 1\n");

        ConfigDocument unset("[poll]\ninterval =# s\n");
        unset.setValue(kPoll, "interval", "5");
        QCOMPARE(unset.toBytes(), QByteArray("[poll]\ninterval = 5 # s\n"));
    }

    void refusedEditsChangeNothing()
    {
        ConfigDocument document{QByteArray(kTwoDevices)};
        QVERIFY(!document.removeSection({"device", "desk"}));
        QVERIFY(!document.renameSection({"device", "Desk"}, "Rack 3"));
        QVERIFY(!document.reorderSections("device", {"Desk", "Desk"}));
        QVERIFY(!document.reorderSections("device", {"Desk", "other"}));
        document.removeValue(kPoll, "none");
        document.addSection(kRack);
        QCOMPARE(document.toBytes(), QByteArray(kTwoDevices));
    }

    void saving()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("new/upsdesk.conf");
        ConfigDocument document = ConfigDocument::load(path);
        QVERIFY(document.isNew());
        document.setValue(kRack, "address", "sim:");
        QCOMPARE(document.save(), QString());
        document.setValue(kRack, "user", "anna");
        QCOMPARE(document.save(), QString());

        QCOMPARE(ConfigDocument::load(path).toBytes(), document.toBytes());
        QVERIFY(!document.toBytes().startsWith('\n'));
        const auto others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QVERIFY(!(QFile::permissions(path) & others));
        QCOMPARE(QDir(folder.filePath("new")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"upsdesk.conf"});

        // Through a link, into the file that it names.
        const QString link = folder.filePath("link.conf");
        QVERIFY(QFile::link(path, link));
        ConfigDocument linked = ConfigDocument::load(link);
        linked.setValue(kRack, "user", "bert");
        QCOMPARE(linked.save(), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(ConfigDocument::load(path).value(kRack, "user").value_or("none"), "bert");
    }

    void savingRefused()
    {
        for (const QByteArray& bytes :
             {QByteArray("[poll]\nnonsense\n"),
              QByteArray("# \n").repeated(ConfigDocument::kMaxBytes / 3 + 1)}) {
            QTemporaryDir folder;
            QFile file(folder.filePath("upsdesk.conf"));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
            file.close();

            ConfigDocument document = ConfigDocument::load(file.fileName());
            document.setValue(kRack, "user", "anna");
            const QString message = document.save();
            QVERIFY2(message.contains(bytes.size() < 100 ? "line 2" : "longer than"),
                     qPrintable(message));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), bytes);
        }
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

        QVERIFY(QDir().mkdir(path));
        QVERIFY(ConfigDocument::load(path).save().contains("not a file"));
    }
};

QTEST_GUILESS_MAIN(TestConfigDocument)
#include "tst_configdocument.moc"
