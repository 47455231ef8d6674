// The detail page: formats, bounds, codes, phases, and texts from devices that mean no good.
// Touches only the page; values are looked up by the label the operator reads.

#include "globalvar.h"
#include "proPlugin.h"
#include "rateinfoform.h"

#include <QGridLayout>
#include <QLabel>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

using Snapshot = QMap<int, QVariant>;

constexpr int kIntMax = std::numeric_limits<int>::max();

class Page : public RateInfoForm
{
public:
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

} // namespace

class TestRateInfoForm : public QObject
{
    Q_OBJECT

private slots:
    void format();
    void panels();
    void boundsAndCodes();
    void phases();
    void deviceText();
};

void TestRateInfoForm::format()
{
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    const struct {
        int type;
        float factor;
        int lines;
        QVariantList raw; // from the key on
        const char* text;
        int key = 100;
        int strLength = 4;
    } rows[] = {
        {StrFormat_Int, 0.1f, 1, {}, "0 V"},                 // missing key
        {StrFormat_Int, 0.1f, 1, {-15}, "-1 V"},             // truncated toward zero
        {StrFormat_Int, 2.0f, 1, {kIntMax}, "2147483647 V"}, // saturates
        {StrFormat_Int, kNaN, 1, {5}, "0 V"},
        {StrFormat_Int2, 1.0f, 1, {1, 2, 3}, "1 V"},
        {StrFormat_Int2, 1.0f, 3, {1, 2, 3}, "1/2/3 V"},
        {StrFormat_Int3, 1.0f, 3, {1, 2, 3, 4, 5}, "1/3/5 V"},
        {StrFormat_Int3, 1.0f, 3, {}, "0/0/0 V", kIntMax}, // last key of all
        {StrFormat_Float1, 0.1f, 1, {2305}, "230.5 V"},
        {StrFormat_Float1, 1.0f, 1, {std::nan("")}, "nan V"},
        {StrFormat_Float2, 0.1f, 3, {1, 2, 3}, "0.1/0.2/0.3 V"},
        {StrFormat_Float3, 1.0f, 1, {1}, " V"},               // the unit alone
        {StrFormat_Str, 1.0f, 1, {65, 0x142, 0, 67}, "AB V"}, // low bytes up to zero
        {StrFormat_Str, 1.0f, 1, {65, 66}, "AB V", 100, kIntMax},
        {StrFormat_Str, 1.0f, 1, {}, " V", kIntMax, 9},
        {StrFormat_Str2, 1.0f, 1, {"  a \n\t %1 %s%n  "}, "a %1 %s%n V"},
        {StrFormat_combo, 1.0f, 1, {1}, "a V"}, // the first of two texts
    };
    for (const auto& row : rows) {
        ParameterInformation p;
        p.factor = row.factor;
        p.strUnit = "V";
        p.setFormat(row.key, row.type, 0);
        p.strLength = row.strLength;
        p.comboxMap = {{"b", 1}, {"a", 1}};
        p.setLines(row.lines);
        Page page;
        for (int i = 0; i < row.raw.size(); ++i)
            page.realData.insert(100 + i, row.raw.at(i));
        QCOMPARE(page.getPvalue(&p), QString(row.text));
    }
    QCOMPARE(Page().getPvalue(nullptr), QString());
}

void TestRateInfoForm::panels()
{
    const struct {
        int row, column;
        const char* shown; // the title first
    } panels[] = {
        {0, 0,
         "DEVICE, UPS model|0, Manufacturer name|1, System name|2, UPS ident attached devices|3, "
         "UPS software version|4, Agent software version|5, Agent location|6"},
        {1, 0,
         "INPUT, input voltage:|109.0 V, input current:|11.2 A, input frequency:|11.5 Hz, "
         "input PF:|118 W, Number of mains failure|107"},
        {2, 0,
         "BATTERY, battery voltage:|10.4 V, battery current:|10.5 A, battery temperature:|10 ℃, "
         "remain discharge time:|102 Min, Time on battery:|101 s, "
         "battery capacity:|103 %, battery state:|"},
        {0, 1,
         "OUTPUT, output voltage:|127.0 V, output current:|13.0 A, output frequency:|12.5 Hz, "
         "output power:|133 W, output load percentage:|139 %, Output Mode:|"},
        {1, 1,
         "BYPASS, bypass voltage:|144.0 V, bypass current:|14.7 A, bypass PF:|150 W, "
         "bypass frequency:|14.2 Hz"},
        {2, 1,
         "RATE, Rated input voltage|156.0 V, Rated input frequency|15.7 Hz, "
         "Rated output voltage|158.0 V, Rated output frequency|15.9 Hz, "
         "Rated active power|162 W, Rated apparent power|320 VA"},
    };
    Page page;
    QCOMPARE(page.value("battery voltage:"), QStringLiteral("- V"));
    Snapshot snapshot; // every key has a value of its own, so that a mixed-up key shows
    for (int key = realdata_BatteryStatus; key <= realdata_Reserve5; ++key)
        snapshot[key] = 100 + key;
    for (int key = info_ups_type; key <= info_quenta_location; ++key)
        snapshot[key] = QString::number(key - info_ups_type);
    page.RefreshRateInfo(snapshot);
    for (const auto& [row, column, shown] : panels) {
        QWidget* panel =
            static_cast<QGridLayout*>(page.layout())->itemAtPosition(row, column)->widget();
        QStringList found(panel->findChild<QLabel*>("PanelTitle")->text());
        for (const QLabel* name : panel->findChildren<QLabel*>("PanalBodyKeyName"))
            found << name->text() + '|' + page.value(name->text());
        QCOMPARE(found.join(", "), QString::fromUtf8(shown));
    }
    page.RefreshRateInfo({}); // replaces everything
    QCOMPARE(page.value("battery voltage:"), QStringLiteral("0.0 V"));
}

void TestRateInfoForm::boundsAndCodes()
{
    const struct {
        const char* label;
        int key, raw;
        const char* text;
    } rows[] = {
        {"battery temperature:", realdata_BatTemp, 1005, "100 ℃"},
        {"battery temperature:", realdata_BatTemp, 1010, "-- ℃"},
        {"battery temperature:", realdata_BatTemp, -9, "0 ℃"},
        {"battery temperature:", realdata_BatTemp, -10, "-- ℃"},
        {"battery state:", realdata_BatteryStatus, 0, ""}, // of three codes for it, the last counts
        {"battery state:", realdata_BatteryStatus, 3, "Low"},
        {"Output Mode:", realdata_OutputSource, 0, "None"},
        {"Output Mode:", realdata_OutputSource, 8, ""},
        {"Rated active power", realdata_ConfigOPW_Hi, 0, "-- W"},
        {"Rated active power", realdata_ConfigOPW_Hi, 1, "1 W"},
        {"Rated active power", realdata_ConfigOPW_Hi, 10000000, "-- W"},
    };
    Page page;
    for (const auto& [label, key, raw, text] : rows) {
        page.RefreshRateInfo({{key, raw}});
        QCOMPARE(page.value(label), QString::fromUtf8(text));
    }
}

void TestRateInfoForm::phases()
{
    const struct {
        const char* label;
        int linesKey;
        QVariant lines;
        int keyA;
        const char* text;
    } rows[] = {
        {"input voltage:", realdata_InputNumLines, 3, realdata_InputVoltage_A,
         "231.0/232.0/233.0 V"},
        {"output current:", realdata_OutputNumLines, 3, realdata_OutputCurrent_A,
         "23.1/23.2/23.3 A"},
        {"bypass current:", realdata_BypNumLines, 2, realdata_BypCurrent_A, "23.1 A"},
    };
    Page page;
    for (const auto& [label, linesKey, lines, keyA, text] : rows) {
        page.RefreshRateInfo({{linesKey, lines}, {keyA, 231}, {keyA + 1, 232}, {keyA + 2, 233}});
        QCOMPARE(page.value(label), QString(text));
    }
}

void TestRateInfoForm::deviceText()
{
    const std::pair<QVariant, QString> rows[] = {{"<h1>x</h1>&amp;", "<h1>x</h1>&amp;"},
                                                 {"a\nb\r\nc", "a b c"},
                                                 {QString(100000, 'W'), QString(100000, 'W')},
                                                 {QVariantList{1, 2}, QString()}};
    Page page;
    page.RefreshRateInfo({{info_quenta_location, "Building 3, basement"}});
    page.resize(741, 700);
    page.grab(); // lays out
    const QSize wanted = page.layout()->minimumSize();
    const int height = page.valueLabel("Agent location")->height();

    for (const auto& [raw, text] : rows) {
        Snapshot hostile;
        for (int key = info_ups_type; key <= info_quenta_location; ++key)
            hostile.insert(key, raw);
        page.RefreshRateInfo(hostile);
        page.grab(); // paints
        const QLabel* label = page.valueLabel("Agent location");
        QCOMPARE(label->text(), text);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->height(), height);
        // No text of a device makes the page wider or taller than an ordinary one does.
        QVERIFY(page.layout()->minimumSize().width() <= wanted.width());
        QCOMPARE(page.layout()->minimumSize().height(), wanted.height());
    }
}

QTEST_MAIN(TestRateInfoForm)
#include "tst_rateinfoform.moc"
