// The detail page: formats, catalogue, phases, and texts from devices that mean no good.
// Touches only the page; values are looked up by the label the operator reads.

#include "globalvar.h"
#include "proPlugin.h"
#include "rateinfoform.h"

#include <QGridLayout>
#include <QLabel>
#include <QtTest>

#include <limits>

namespace
{

using Snapshot = QMap<int, QVariant>;

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class Page : public RateInfoForm
{
public:
    using RateInfoForm::data_device;
    using RateInfoForm::data_rate;
    using RateInfoForm::data_recinv;
    using RateInfoForm::realData;

    // The label beside the name; none: null.
    QLabel* valueLabel(const QString& name) const
    {
        for (QLabel* label : findChildren<QLabel*>(QStringLiteral("PanalBodyKeyName"))) {
            auto* grid = static_cast<QGridLayout*>(label->parentWidget()->layout());
            int row = 0, column = 0, rowSpan = 0, columnSpan = 0;
            grid->getItemPosition(grid->indexOf(label), &row, &column, &rowSpan, &columnSpan);
            if (label->text() == name)
                return qobject_cast<QLabel*>(grid->itemAtPosition(row, 1)->widget());
        }
        return nullptr;
    }
    QString value(const QString& name) const
    {
        const QLabel* label = valueLabel(name);
        return label ? label->text() : QStringLiteral("no such label");
    }
};

struct Format {
    int type;
    float factor = 1.0f;
    int lines = 1;
    int key = 100;
    int min = 0;
    int max = 0;
    int strLength = 0;
    const char* unit = "";
};

} // namespace
Q_DECLARE_METATYPE(Format)

class TestRateInfoForm : public QObject
{
    Q_OBJECT

private slots:
    void format_data();
    void format();
    void noDescriptor();
    void comboKeepsLastCode();
    void placeholders();
    void panelsInPlace();
    void catalogue_data();
    void catalogue();
    void phases_data();
    void phases();
    void refreshReplacesEverything();
    void deviceText_data();
    void deviceText();
};

void TestRateInfoForm::format_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QVariantList>("raw"); // from key 100 on
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const Format& format, const QVariantList& raw,
                        const char* text) {
        QTest::newRow(name) << format << raw << QString::fromUtf8(text);
    };
    const Format tenths{StrFormat_Int, 0.1f};
    const Format whole{StrFormat_Int};
    const Format float1{StrFormat_Float1, 0.1f};
    const Format ranged{StrFormat_Int4, 1.0f, 1, 100, 0, 100};
    const Format chars4{StrFormat_Str, 1.0f, 1, 100, 0, 0, 4};
    const Format text{StrFormat_Str2};
    const auto withUnit = [](Format format, const char* unit) {
        format.unit = unit;
        return format;
    };

    row("Int: missing key", withUnit(tenths, "V"), {}, "0 V");
    row("Int: truncated", tenths, {2305}, "230");
    row("Int: truncated toward zero", tenths, {-15}, "-1");
    row("Int: INT_MAX stays", whole, {kIntMax}, "2147483647");
    row("Int: INT_MIN stays", whole, {kIntMin}, "-2147483648");
    row("Int: saturates above", {StrFormat_Int, 2.0f}, {kIntMax}, "2147483647");
    row("Int: saturates below", {StrFormat_Int, 1e30f}, {-1}, "-2147483648");
    row("Int: infinite factor times 0", {StrFormat_Int, std::numeric_limits<float>::infinity()},
        {0}, "0");
    row("Int: NaN factor", {StrFormat_Int, std::numeric_limits<float>::quiet_NaN()}, {5}, "0");
    row("Int: no number", whole, {"%d"}, "0");
    row("Int: list", whole, {QVariant(QVariantList{7})}, "0");
    row("Int2: one line", {StrFormat_Int2}, {1, 2, 3}, "1");
    row("Int2: three lines", {StrFormat_Int2, 1.0f, 3}, {1, 2, 3}, "1/2/3");
    row("Int2: two lines are one", {StrFormat_Int2, 1.0f, 2}, {1, 2, 3}, "1");
    row("Int3: three lines, stride two", {StrFormat_Int3, 1.0f, 3}, {1, 2, 3, 4, 5}, "1/3/5");
    row("Int3: three lines, short snapshot", {StrFormat_Int3, 1.0f, 3}, {1, 2, 3}, "1/3/0");
    row("Int3: last key of all", {StrFormat_Int3, 1.0f, 3, kIntMax}, {}, "0/0/0");
    row("Int4: upper bound", ranged, {100}, "100");
    row("Int4: lower bound", ranged, {0}, "0");
    row("Int4: above", withUnit(ranged, "%"), {101}, "-- %");
    row("Int4: below", ranged, {-1}, "--");
    row("Float1", float1, {2305}, "230.5");
    row("Float1: missing key", float1, {}, "0.0");
    row("Float1: negative", float1, {-15}, "-1.5");
    row("Float1: INT_MAX", float1, {kIntMax}, "214748368.0");
    row("Float1: NaN", float1, {kNaN}, "nan");
    row("Float2: three lines", {StrFormat_Float2, 0.1f, 3}, {1, 2, 3}, "0.1/0.2/0.3");
    row("Float2: one line", {StrFormat_Float2, 0.1f}, {1, 2, 3}, "0.1");
    row("Float3: unit alone", withUnit({StrFormat_Float3}, "V"), {1}, " V");
    row("Float4: nothing", {StrFormat_Float4}, {1}, "");
    row("Time: unit alone", withUnit({StrFormat_Time}, "s"), {1}, " s");
    row("unknown format: unit alone", withUnit({99}, "W"), {1}, " W");
    row("negative format: unit alone", withUnit({-1}, "W"), {1}, " W");
    row("Str: ends at zero", chars4, {65, 66, 0, 67}, "AB");
    row("Str: ends at length", chars4, {65, 66, 67, 68, 69}, "ABCD");
    row("Str: low byte", chars4, {0x141, -191}, "AA");
    row("Str: UTF-8", chars4, {0xe2, 0x84, 0x83}, "\u2103");
    row("Str: no length", {StrFormat_Str}, {65}, "");
    row("Str: negative length", {StrFormat_Str, 1.0f, 1, 100, 0, 0, -1}, {65}, "");
    row("Str: endless length", {StrFormat_Str, 1.0f, 1, 100, 0, 0, kIntMax}, {65, 66}, "AB");
    row("Str: length past the last key", {StrFormat_Str, 1.0f, 1, kIntMax, 0, 0, 9}, {}, "");
    row("Str2: simplified", text, {"  a \n\t b  "}, "a b");
    row("Str2: number", text, {42}, "42");
    row("Str2: list", text, {QVariant(QVariantList{1, 2})}, "");
    row("Str2: format string", text, {"%1 %s%n %%"}, "%1 %s%n %%");
}

void TestRateInfoForm::format()
{
    QFETCH(Format, format);
    QFETCH(QVariantList, raw);
    QFETCH(QString, text);
    ParameterInformation p;
    p.factor = format.factor;
    p.strUnit = QString::fromUtf8(format.unit);
    p.setFormat(format.key, format.type, format.min, format.max);
    p.strLength = format.strLength;
    p.setLines(format.lines);
    Page page;
    for (int i = 0; i < raw.size(); ++i)
        page.realData.insert(100 + i, raw.at(i));
    QCOMPARE(page.getPvalue(&p), text);
}

void TestRateInfoForm::noDescriptor()
{
    Page page;
    QCOMPARE(page.getPvalue(nullptr), QString());
}

void TestRateInfoForm::comboKeepsLastCode()
{
    ParameterInformation p;
    p.setFormat(100, StrFormat_combo, 0);
    p.addCombo({"Normal", "Unknown", "Normal"});
    p.strUnit = "u";
    Page page;
    const auto shown = [&](int code) {
        page.realData[100] = code;
        return page.getPvalue(&p);
    };
    QCOMPARE(shown(0), QStringLiteral(" u"));
    QCOMPARE(shown(1), QStringLiteral("Unknown u"));
    QCOMPARE(shown(2), QStringLiteral("Normal u"));
    QCOMPARE(shown(5), QStringLiteral(" u"));
    // Two texts of one code: the first in the order of the alphabet.
    p.comboxMap = {{"b", 1}, {"a", 1}};
    QCOMPARE(shown(1), QStringLiteral("a u"));
}

void TestRateInfoForm::placeholders()
{
    Page page;
    QCOMPARE(page.objectName(), QStringLiteral("realDataTable"));
    QCOMPARE(page.value("UPS model"), QStringLiteral("-"));
    QCOMPARE(page.value("battery voltage:"), QStringLiteral("- V"));
    QCOMPARE(page.value("Time on battery:"), QStringLiteral(" s"));
    QCOMPARE(page.value("Number of mains failure"), QString());
    QVERIFY(page.data_recinv.isEmpty());
}

void TestRateInfoForm::panelsInPlace()
{
    Page page;
    auto* grid = static_cast<QGridLayout*>(page.layout());
    const QStringList titles[] = {{"DEVICE", "OUTPUT"}, {"INPUT", "BYPASS"}, {"BATTERY", "RATE"}};
    const int rows[][2] = {{7, 6}, {5, 4}, {7, 6}};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 2; ++column) {
            QWidget* panel = grid->itemAtPosition(row, column)->widget();
            QCOMPARE(panel->findChild<QLabel*>("PanelTitle")->text(), titles[row].at(column));
            QCOMPARE(panel->findChildren<QLabel*>("PanalBodyKeyValue").size(), rows[row][column]);
        }
    }
}

void TestRateInfoForm::catalogue_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QVariant>("raw");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* label, int key, const QVariant& raw, const char* text) {
        QTest::addRow("%s %s", label, qPrintable(raw.toString()))
            << key << raw << QString(label) << QString::fromUtf8(text);
    };
    row("UPS model", info_ups_type, "Example  10kVA", "Example 10kVA");
    row("Manufacturer name", info_copo_name, "M", "M");
    row("System name", info_quenta_name, "S", "S");
    row("UPS ident attached devices", info_ups_description, "D", "D");
    row("UPS software version", info_ups_soft_ver, 2.5, "2.5");
    row("Agent software version", info_quenta_soft_ver, "A", "A");
    row("Agent location", info_quenta_location, "L", "L");
    row("battery voltage:", realdata_BatVoltage, 2184, "218.4 V");
    row("battery current:", realdata_BatCurrent, -12, "-1.2 A");
    row("battery temperature:", realdata_BatTemp, 1005, "100 ℃");
    row("battery temperature:", realdata_BatTemp, 1010, "-- ℃");
    row("battery temperature:", realdata_BatTemp, -9, "0 ℃");
    row("battery temperature:", realdata_BatTemp, -10, "-- ℃");
    row("remain discharge time:", realdata_MinutesRemaining, 42, "42 Min");
    row("Time on battery:", realdata_SecondsOnBat, 90, "90 s");
    row("battery capacity:", realdata_ChargeRemaining, 98, "98 %");
    row("battery state:", realdata_BatteryStatus, 0, "");
    row("battery state:", realdata_BatteryStatus, 1, "Unknown");
    row("battery state:", realdata_BatteryStatus, 2, "");
    row("battery state:", realdata_BatteryStatus, 3, "Low");
    row("battery state:", realdata_BatteryStatus, 8, "Discharge");
    row("battery state:", realdata_BatteryStatus, 9, "Normal");
    row("battery state:", realdata_BatteryStatus, kIntMax, "");
    row("input PF:", realdata_InputPower_A_Hi, 3100, "3100 W");
    row("Number of mains failure", realdata_InputLineBads, 3, "3");
    row("output frequency:", realdata_OutputFre, 499, "49.9 Hz");
    row("output power:", realdata_OutputPower_A_Hi, 2900, "2900 W");
    row("output load percentage:", realdata_OutputLoad_A, 48, "48 %");
    row("Output Mode:", realdata_OutputSource, 0, "None");
    row("Output Mode:", realdata_OutputSource, 3, "Utility Supply");
    row("Output Mode:", realdata_OutputSource, 7, "Reducer Supply");
    row("Output Mode:", realdata_OutputSource, 8, "");
    row("bypass PF:", realdata_BypPower_A_Hi, 5, "5 W");
    row("bypass frequency:", realdata_BypFre, 500, "50.0 Hz");
    row("Rated input voltage", realdata_ConfigIPVol, 230, "230.0 V");
    row("Rated input frequency", realdata_ConfigIPFre, 500, "50.0 Hz");
    row("Rated output voltage", realdata_ConfigOPVol, 231, "231.0 V");
    row("Rated output frequency", realdata_ConfigOPFre, 501, "50.1 Hz");
    row("Rated active power", realdata_ConfigOPW_Hi, 0, "-- W");
    row("Rated active power", realdata_ConfigOPW_Hi, 1, "1 W");
    row("Rated active power", realdata_ConfigOPW_Hi, 9999999, "9999999 W");
    row("Rated active power", realdata_ConfigOPW_Hi, 10000000, "-- W");
    row("Rated apparent power", realdata_ConfigOPVA_Hi, 1500, "3000 VA");
    row("Rated apparent power", realdata_ConfigOPVA_Hi, kIntMin, "-2147483648 VA");
}

void TestRateInfoForm::catalogue()
{
    QFETCH(int, key);
    QFETCH(QVariant, raw);
    QFETCH(QString, label);
    QFETCH(QString, text);
    Page page;
    page.RefreshRateInfo({{key, raw}});
    QCOMPARE(page.value(label), text);
}

void TestRateInfoForm::phases_data()
{
    QTest::addColumn<QVariant>("lines");
    QTest::addColumn<bool>("three");
    QTest::newRow("missing") << QVariant() << false;
    QTest::newRow("1") << QVariant(1) << false;
    QTest::newRow("2") << QVariant(2) << false;
    QTest::newRow("3") << QVariant(3) << true;
    QTest::newRow("INT_MAX") << QVariant(kIntMax) << false;
    QTest::newRow("text 3") << QVariant("3") << true;
}

void TestRateInfoForm::phases()
{
    QFETCH(QVariant, lines);
    QFETCH(bool, three);
    const struct {
        const char* label;
        int key;
        int linesKey;
        const char* one;
        const char* all;
    } rows[] = {
        {"input voltage:", realdata_InputVoltage_A, realdata_InputNumLines, "231.0 V",
         "231.0/232.0/233.0 V"},
        {"input current:", realdata_InputCurrent_A, realdata_InputNumLines, "23.1 A",
         "23.1/23.2/23.3 A"},
        {"input frequency:", realdata_InputFre_A, realdata_InputNumLines, "23.1 Hz",
         "23.1/23.2/23.3 Hz"},
        {"output voltage:", realdata_OutputVoltage_A, realdata_OutputNumLines, "231.0 V",
         "231.0/232.0/233.0 V"},
        {"output current:", realdata_OutputCurrent_A, realdata_OutputNumLines, "23.1 A",
         "23.1/23.2/23.3 A"},
        {"bypass voltage:", realdata_BypVoltage_A, realdata_BypNumLines, "231.0 V",
         "231.0/232.0/233.0 V"},
        {"bypass current:", realdata_BypCurrent_A, realdata_BypNumLines, "23.1 A",
         "23.1/23.2/23.3 A"},
    };
    for (const auto& row : rows) {
        Page page;
        page.RefreshRateInfo(
            {{row.linesKey, lines}, {row.key, 231}, {row.key + 1, 232}, {row.key + 2, 233}});
        QCOMPARE(page.value(row.label), QString(three ? row.all : row.one));
        // The rated values follow the bypass lines, without a visible effect.
        const bool ratedThree = three && row.linesKey == realdata_BypNumLines;
        QCOMPARE(page.data_rate.first()->lines == 3, ratedThree);
        QCOMPARE(page.value("Rated input voltage"), QStringLiteral("0.0 V"));
    }
}

void TestRateInfoForm::refreshReplacesEverything()
{
    Page page;
    page.RefreshRateInfo({{info_ups_type, "old"},
                          {realdata_BatVoltage, 1},
                          {realdata_BatteryStatus, 3},
                          {realdata_InputNumLines, 3}});
    page.RefreshRateInfo({});
    QCOMPARE(page.value("UPS model"), QString());
    QCOMPARE(page.value("battery voltage:"), QStringLiteral("0.0 V"));
    QCOMPARE(page.value("battery state:"), QString());
    QCOMPARE(page.value("input voltage:"), QStringLiteral("0.0 V"));
    QCOMPARE(page.value("Output Mode:"), QStringLiteral("None"));
    QCOMPARE(page.value("Rated active power"), QStringLiteral("-- W"));
}

void TestRateInfoForm::deviceText_data()
{
    QTest::addColumn<QVariant>("raw");
    QTest::addColumn<QString>("text");
    const QString endless(100000, 'W');
    const QString words = QStringLiteral("word ").repeated(20000);
    QTest::newRow("rich text") << QVariant("<h1>x</h1><img src='x'>") << "<h1>x</h1><img src='x'>";
    QTest::newRow("entity") << QVariant("&amp;&lt;") << "&amp;&lt;";
    QTest::newRow("format string") << QVariant("%s%n%1") << "%s%n%1";
    QTest::newRow("several lines") << QVariant("a\nb\r\nc") << "a b c";
    QTest::newRow("100,000 characters") << QVariant(endless) << endless;
    QTest::newRow("20,000 words") << QVariant(words) << words.trimmed();
    QTest::newRow("list") << QVariant(QVariantList{1, 2}) << QString();
    QTest::newRow("bytes that are no UTF-8") << QVariant(QByteArray("\xff\xfe")) << "\ufffd\ufffd";
}

void TestRateInfoForm::deviceText()
{
    QFETCH(QVariant, raw);
    QFETCH(QString, text);
    Page page;
    page.RefreshRateInfo({{info_quenta_location, "Building 3, basement"}});
    page.resize(741, 700);
    page.grab(); // lays out
    const QSize wanted = page.layout()->minimumSize();
    const int height = page.valueLabel("Agent location")->height();

    Snapshot hostile;
    for (int key = info_ups_type; key <= info_quenta_location; ++key)
        hostile.insert(key, raw);
    page.RefreshRateInfo(hostile);
    QVERIFY(!page.grab().isNull());

    const QLabel* label = page.valueLabel("Agent location");
    QCOMPARE(label->text(), text);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->height(), height);
    // No text of a device makes the page wider or taller than an ordinary one does.
    QVERIFY(page.layout()->minimumSize().width() <= wanted.width());
    QCOMPARE(page.layout()->minimumSize().height(), wanted.height());
}

QTEST_MAIN(TestRateInfoForm)
#include "tst_rateinfoform.moc"
