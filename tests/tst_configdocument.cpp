// The configuration file as lines: round trip, faults, edits and saving. Touches a temporary
// folder.

#include "config/configdocument.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(std::function<void(ConfigDocument&)>)

namespace
{

const ConfigSection kPoll{"poll", {}};
const ConfigSection kRack{"device", "Rack 3"};

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

} // namespace

class TestConfigDocument : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip_data();
    void roundTrip();
    void values_data();
    void values();
    void faults_data();
    void faults();
    void hostileBytes();
    void anyTextComesBack_data();
    void anyTextComesBack();
    void editsTouchTheirLinesOnly_data();
    void editsTouchTheirLinesOnly();
    void refusedEditsChangeNothing();
    void saving();
    void savingRefused_data();
    void savingRefused();
    void changedByAnotherProgram();
};

void TestConfigDocument::roundTrip_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("two devices") << QByteArray(kTwoDevices);
    QTest::newRow("no newline at the end") << QByteArray("[poll]\ninterval = 5");
    QTest::newRow("CRLF") << QByteArray("[poll]\r\ninterval = 5\r\n\r\n");
    QTest::newRow("mixed line ends") << QByteArray("[poll]\r\ninterval = 5\n\r\n\n");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf[poll]\ninterval = 5\n");
    QTest::newRow("faulty") << QByteArray("[poll\nx\n\xff\xfe\n[[[");
    QTest::newRow("NUL bytes") << QByteArray("[po\0ll]\n\0\0 = 1\n# \0\n", 20);
    QTest::newRow("Latin-1 in a comment") << QByteArray("# K\xfc"
                                                        "che\n[poll]\n");
}

void TestConfigDocument::roundTrip()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(ConfigDocument(bytes).toBytes(), bytes);
}

void TestConfigDocument::values_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("value");
    QTest::newRow("spaced") << QByteArray("  interval =  5  ") << "5";
    QTest::newRow("tight") << QByteArray("interval=5") << "5";
    QTest::newRow("key in capitals") << QByteArray("Interval = 5") << "5";
    QTest::newRow("comment") << QByteArray("interval = 5 # s") << "5";
    QTest::newRow("# inside a word") << QByteArray("interval = a#b") << "a#b";
    QTest::newRow("empty") << QByteArray("interval =") << "";
    QTest::newRow("only a comment") << QByteArray("interval = # 5") << "";
    QTest::newRow("= inside") << QByteArray("interval = $a$m=1,t=2") << "$a$m=1,t=2";
    QTest::newRow("quotes keep blanks") << QByteArray("interval = \" 5 # \" # s") << " 5 # ";
    QTest::newRow("escapes") << QByteArray(R"(interval = "a\"\\\n\t\u00e9")") << "a\"\\\n\t\u00e9";
    QTest::newRow("backslash without quotes") << QByteArray(R"(interval = a\nb)") << "a\\nb";
    QTest::newRow("UTF-8") << QByteArray("interval = K\xc3\xbc") << "K\u00fc";
    QTest::newRow("CRLF is no part of it") << QByteArray("interval = 5\r") << "5";
}

void TestConfigDocument::values()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, value);
    const ConfigDocument document("\xef\xbb\xbf[Poll] # comment\n" + line + '\n');
    QVERIFY(document.faults().isEmpty());
    QCOMPARE(document.value(kPoll, "interval").value_or("none"), value);
}

void TestConfigDocument::faults_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<int>>("lines");
    QTest::addColumn<bool>("kept"); // [poll] b = 2 is still read

    const auto row = [](const char* name, const QByteArray& bytes, const QVector<int>& lines,
                        bool kept) { QTest::newRow(name) << bytes << lines << kept; };
    row("no equals sign", "[poll]\na\nb = 2\n", {2}, true);
    row("no key", "[poll]\n= 1\nb = 2\n", {2}, true);
    row("blank in a key", "[poll]\na c = 1\nb = 2\n", {2}, true);
    row("open quote", "[poll]\na = \"1\nb = 2\n", {2}, true);
    row("unknown escape", "[poll]\na = \"\\x\"\nb = 2\n", {2}, true);
    row("short code", "[poll]\na = \"\\u00\"\nb = 2\n", {2}, true);
    row("backslash at the end", "[poll]\na = \"\\\nb = 2\n", {2}, true);
    row("text after quotes", "[poll]\na = \"1\" 2\nb = 2\n", {2}, true);
    row("equal keys: the first counts", "[poll]\nb = 2\nB = 3\n", {3}, true);
    row("before any section", "a = 1\n[poll]\nb = 2\n", {1}, true);
    row("control character", "[poll]\na = \x1b[0m\nb = 2\n", {2}, true);
    row("old Mac line ends", "[poll]\rb = 2\r", {1}, false);
    row("not UTF-8", "[poll]\na = \xff\nb = 2\n", {2}, true);
    row("cut UTF-8", "[poll]\na = \xc3\nb = 2\n", {2}, true);
    row("header not closed: whole section", "[poll\nb = 2\nc\n", {1, 3}, false);
    row("header with text behind", "[poll] x\nb = 2\n", {1}, false);
    row("empty header", "[]\na = 1\n[poll]\nb = 2\n", {1}, true);
    row("section twice: the first counts", "[poll]\nb = 2\n[x]\n[poll]\nb = 3\nc = 4\n", {4}, true);
    row("device twice", "[poll]\nb = 2\n[device A]\n[device \"A\"]\n", {4}, true);
    row("UTF-16", QByteArray("\xff\xfe[\0p\0o\0l\0l\0]\0\n\0", 16), {1, 2}, false);
}

void TestConfigDocument::faults()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QVector<int>, lines);
    QFETCH(bool, kept);
    const ConfigDocument document(bytes);
    QVector<int> found;
    for (const ConfigFault& fault : document.faults()) {
        found += fault.line;
        QVERIFY(!fault.text.isEmpty());
        QCOMPARE(fault.severity, ConfigSeverity::Error);
    }
    QCOMPARE(found, lines);
    QCOMPARE(document.value(kPoll, "b").value_or("none"), kept ? "2" : "none");
}

void TestConfigDocument::hostileBytes()
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

void TestConfigDocument::anyTextComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("quoted");
    QTest::newRow("plain") << "nut://10.0.0.5/rack3" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("leading blank") << " a" << true;
    QTest::newRow("trailing tab") << "a\t" << true;
    QTest::newRow("comment sign first") << "#1" << true;
    QTest::newRow("comment sign after a blank") << "a #1" << true;
    QTest::newRow("comment sign inside") << "a#1" << false;
    QTest::newRow("quote first") << "\"a\" b" << true;
    QTest::newRow("quote inside") << "a \"b\"" << false;
    QTest::newRow("backslash") << "a\\" << false;
    QTest::newRow("bracket") << "[x]" << false;
    QTest::newRow("line break") << "a\n[operator \"eve\"]\nlevel = 9" << true;
    QTest::newRow("carriage return") << "a\rb" << true;
    QTest::newRow("NUL") << QString("a") + QChar(0) + "b" << true;
    QTest::newRow("lone surrogate") << QString("a") + QChar(0xd800) << true;
    QTest::newRow("outside the first plane") << QString::fromUtf8("\xf0\x9f\x94\x8b") << false;
    QTest::newRow("no-break space at the end") << QString("a") + QChar(0xa0) << false;
}

void TestConfigDocument::anyTextComesBack()
{
    QFETCH(QString, text);
    QFETCH(bool, quoted);
    const ConfigSection section{"device", "d" + text};
    ConfigDocument document;
    document.setValue(section, "address", text);
    document.setValue(section, "user", "anna");

    const ConfigDocument again(document.toBytes());
    QVERIFY(again.faults().isEmpty());
    QCOMPARE(again.sections(), QVector<ConfigSection>{section});
    QCOMPARE(again.value(section, "address").value_or("none"), text);
    QCOMPARE(again.value(section, "user").value_or("none"), "anna");
    QCOMPARE(again.toBytes().contains("address = \""), quoted);
}

void TestConfigDocument::editsTouchTheirLinesOnly_data()
{
    using Edit = std::function<void(ConfigDocument&)>;
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("expected");
    const QString text = kTwoDevices;
    const auto row = [](const char* name, const Edit& edit, const QString& expected) {
        QTest::newRow(name) << edit << expected;
    };
    row(
        "same value", [](ConfigDocument& d) { d.setValue(kPoll, "interval", "5"); }, text);
    row(
        "value before a comment", [](ConfigDocument& d) { d.setValue(kPoll, "interval", "10"); },
        QString(text).replace("interval = 5 ", "interval = 10 "));
    row(
        "value without blanks", [](ConfigDocument& d) { d.setValue(kRack, "address", "sim:"); },
        QString(text).replace("=nut://10.0.0.5/rack3", "= sim:"));
    row(
        "new value after the last", [](ConfigDocument& d) { d.setValue(kRack, "user", "anna"); },
        QString(text).replace("rack3\n", "rack3\nuser = anna\n"));
    row(
        "value removed", [](ConfigDocument& d) { d.removeValue(kPoll, "interval"); },
        withoutLine(text, "interval = 5   # seconds\n"));
    row(
        "device renamed",
        [](ConfigDocument& d) {
            d.renameSection({"device", "Desk"}, "a\"]");
        },
        QString(text).replace("[device \"Desk\"] # mine", "[device \"a\\\"]\"] # mine"));
    row(
        "device removed with its comment", [](ConfigDocument& d) { d.removeSection(kRack); },
        withoutLine(text,
                    "# in the cellar\n[device \"Rack 3\"]\naddress=nut://10.0.0.5/rack3\n\n"));
    row(
        "last device removed",
        [](ConfigDocument& d) {
            d.removeSection({"device", "Desk"});
        },
        withoutLine(text, "[device \"Desk\"] # mine\naddress = sim:\n"));
    row(
        "devices exchanged",
        [](ConfigDocument& d) {
            d.reorderSections("device", {"Desk", "Rack 3"});
        },
        "# my desk\n\n[poll]\ninterval = 5   # seconds\ncolour = blue\n\n"
        "[device \"Desk\"] # mine\naddress = sim:\n\n# nobody remembers this one\n\n"
        "# in the cellar\n[device \"Rack 3\"]\naddress=nut://10.0.0.5/rack3\n");
    row(
        "order kept",
        [](ConfigDocument& d) {
            d.reorderSections("device", {"Rack 3", "Desk"});
        },
        text);
    row(
        "device added",
        [](ConfigDocument& d) {
            d.setValue({"device", "B"}, "address", "sim:b");
        },
        text + "\n[device \"B\"]\naddress = sim:b\n");
    row(
        "new kind of section",
        [](ConfigDocument& d) {
            d.setValue({"session", {}}, "a", "1");
        },
        text + "\n[session]\na = 1\n");
}

void TestConfigDocument::editsTouchTheirLinesOnly()
{
    using Edit = std::function<void(ConfigDocument&)>;
    QFETCH(Edit, edit);
    QFETCH(QString, expected);
    // The same with either line end and with a file that ends without one.
    for (const char* end : {"\n", "\r\n"}) {
        const auto withEnds = [end](QString text) { return text.replace("\n", end).toUtf8(); };
        ConfigDocument document(withEnds(kTwoDevices));
        edit(document);
        QCOMPARE(document.toBytes(), withEnds(expected));
        QVERIFY(document.faults().isEmpty());
    }
    ConfigDocument open(QByteArray(kTwoDevices).chopped(1));
    edit(open);
    QVERIFY(expected.startsWith(QString(open.toBytes())));
    QVERIFY(expected.size() - open.toBytes().size() <= 1);
}

void TestConfigDocument::refusedEditsChangeNothing()
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

void TestConfigDocument::saving()
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
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
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

void TestConfigDocument::savingRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("part");
    QTest::newRow("faulty line") << QByteArray("[poll]\nnonsense\n") << "line 2";
    QTest::newRow("device twice") << QByteArray("[device A]\n[device A]\n") << "line 2";
    QTest::newRow("too long") << QByteArray("# \n").repeated(ConfigDocument::kMaxBytes / 3 + 1)
                              << "longer than";
}

void TestConfigDocument::savingRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, part);
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    ConfigDocument document = ConfigDocument::load(path);
    document.setValue(kRack, "user", "anna");
    const QString message = document.save();
    QVERIFY2(message.contains(part), qPrintable(message));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);
}

void TestConfigDocument::changedByAnotherProgram()
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

QTEST_GUILESS_MAIN(TestConfigDocument)
#include "tst_configdocument.moc"
