#include "rateinfoform.h"

#include "elidedlabel.h"
#include "proPlugin.h"
#include "realtimeblock.h"
#include "ui_rateinfoform.h"
#include "valuetext.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <cmath>
#include <iterator>
#include <limits>

namespace {

enum Group { Device, Battery, Input, Output, Bypass, Rate };

constexpr const char* kNone = nullptr;
constexpr char kDash[] = QT_TRANSLATE_NOOP("RateInfoForm", "-");
constexpr char kVolt[] = QT_TRANSLATE_NOOP("RateInfoForm", "V");
constexpr char kAmpere[] = QT_TRANSLATE_NOOP("RateInfoForm", "A");
constexpr char kCelsius[] = QT_TRANSLATE_NOOP("RateInfoForm", "℃");
constexpr char kMinute[] = QT_TRANSLATE_NOOP("RateInfoForm", "Min");
constexpr char kSecond[] = QT_TRANSLATE_NOOP("RateInfoForm", "s");
constexpr char kPercent[] = QT_TRANSLATE_NOOP("RateInfoForm", "%");
constexpr char kHertz[] = QT_TRANSLATE_NOOP("RateInfoForm", "Hz");
constexpr char kWatt[] = QT_TRANSLATE_NOOP("RateInfoForm", "W");
constexpr char kVoltAmpere[] = QT_TRANSLATE_NOOP("RateInfoForm", "VA");

// Texts of a code, its index; closed by kNone. A text stands for its last code only, so of the
// battery codes 0, 2 and 9 just 9 reads "Normal". Devices are known by that; keep it.
constexpr const char* kBatteryStates[] = {
    QT_TRANSLATE_NOOP("RateInfoForm", "Normal"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Unknown"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Normal"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Low"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Depleted"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Selftest"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Boost"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Floating"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Discharge"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Normal"),
    kNone,
};
constexpr const char* kOutputModes[] = {
    QT_TRANSLATE_NOOP("RateInfoForm", "None"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Other Supply"),
    QT_TRANSLATE_NOOP("RateInfoForm", "None Supply"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Utility Supply"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Bypass Supply"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Battery Supply"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Booster Supply"),
    QT_TRANSLATE_NOOP("RateInfoForm", "Reducer Supply"),
    kNone,
};

struct Row {
    Group group;
    const char* label;
    const char* placeholder;
    const char* unit;
    float factor;
    int key;     // of phase A where the format reads three
    int format;  // a StrFormatType
    int min = 0; // with max the valid range of StrFormat_Int4
    int max = 0;
    const char* const* comboTexts = nullptr;
};

// In the order of display. The "PF" rows show the power word of phase A, the rated apparent power
// counts in units of 2 VA, and powers read their _Hi word alone: settled with the hosts.
constexpr Row kCatalogue[] = {
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "UPS model"), kDash, kNone, 1.0f, info_ups_type,
     StrFormat_Str2},
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "Manufacturer name"), kDash, kNone, 1.0f,
     info_copo_name, StrFormat_Str2},
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "System name"), kDash, kNone, 1.0f, info_quenta_name,
     StrFormat_Str2},
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "UPS ident attached devices"), kDash, kNone, 1.0f,
     info_ups_description, StrFormat_Str2},
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "UPS software version"), kDash, kNone, 1.0f,
     info_ups_soft_ver, StrFormat_Str2},
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "Agent software version"), kDash, kNone, 1.0f,
     info_quenta_soft_ver, StrFormat_Str2},
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "Agent location"), kDash, kNone, 1.0f,
     info_quenta_location, StrFormat_Str2},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "battery voltage:"), kDash, kVolt, 0.1f,
     realdata_BatVoltage, StrFormat_Float1},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "battery current:"), kDash, kAmpere, 0.1f,
     realdata_BatCurrent, StrFormat_Float1},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "battery temperature:"), kDash, kCelsius, 0.1f,
     realdata_BatTemp, StrFormat_Int4, 0, 100},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "remain discharge time:"), kDash, kMinute, 1.0f,
     realdata_MinutesRemaining, StrFormat_Int},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "Time on battery:"), kNone, kSecond, 1.0f,
     realdata_SecondsOnBat, StrFormat_Int},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "battery capacity:"), kDash, kPercent, 1.0f,
     realdata_ChargeRemaining, StrFormat_Int},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "battery state:"), kDash, kNone, 1.0f,
     realdata_BatteryStatus, StrFormat_combo, 0, 0, kBatteryStates},
    {Input, QT_TRANSLATE_NOOP("RateInfoForm", "input voltage:"), kDash, kVolt, 1.0f,
     realdata_InputVoltage_A, StrFormat_Float2},
    {Input, QT_TRANSLATE_NOOP("RateInfoForm", "input current:"), kDash, kAmpere, 0.1f,
     realdata_InputCurrent_A, StrFormat_Float2},
    {Input, QT_TRANSLATE_NOOP("RateInfoForm", "input frequency:"), kDash, kHertz, 0.1f,
     realdata_InputFre_A, StrFormat_Float2},
    {Input, QT_TRANSLATE_NOOP("RateInfoForm", "input PF:"), kDash, kWatt, 1.0f,
     realdata_InputPower_A_Hi, StrFormat_Int},
    {Input, QT_TRANSLATE_NOOP("RateInfoForm", "Number of mains failure"), kNone, kNone, 1.0f,
     realdata_InputLineBads, StrFormat_Int},
    {Output, QT_TRANSLATE_NOOP("RateInfoForm", "output voltage:"), kDash, kVolt, 1.0f,
     realdata_OutputVoltage_A, StrFormat_Float2},
    {Output, QT_TRANSLATE_NOOP("RateInfoForm", "output current:"), kDash, kAmpere, 0.1f,
     realdata_OutputCurrent_A, StrFormat_Float2},
    {Output, QT_TRANSLATE_NOOP("RateInfoForm", "output frequency:"), kDash, kHertz, 0.1f,
     realdata_OutputFre, StrFormat_Float1},
    {Output, QT_TRANSLATE_NOOP("RateInfoForm", "output power:"), kDash, kWatt, 1.0f,
     realdata_OutputPower_A_Hi, StrFormat_Int},
    {Output, QT_TRANSLATE_NOOP("RateInfoForm", "output load percentage:"), kNone, kPercent, 1.0f,
     realdata_OutputLoad_A, StrFormat_Int},
    {Output, QT_TRANSLATE_NOOP("RateInfoForm", "Output Mode:"), kDash, kNone, 1.0f,
     realdata_OutputSource, StrFormat_combo, 0, 0, kOutputModes},
    {Bypass, QT_TRANSLATE_NOOP("RateInfoForm", "bypass voltage:"), kDash, kVolt, 1.0f,
     realdata_BypVoltage_A, StrFormat_Float2},
    {Bypass, QT_TRANSLATE_NOOP("RateInfoForm", "bypass current:"), kDash, kAmpere, 0.1f,
     realdata_BypCurrent_A, StrFormat_Float2},
    {Bypass, QT_TRANSLATE_NOOP("RateInfoForm", "bypass PF:"), kDash, kWatt, 1.0f,
     realdata_BypPower_A_Hi, StrFormat_Int},
    {Bypass, QT_TRANSLATE_NOOP("RateInfoForm", "bypass frequency:"), kDash, kHertz, 0.1f,
     realdata_BypFre, StrFormat_Float1},
    {Rate, QT_TRANSLATE_NOOP("RateInfoForm", "Rated input voltage"), kDash, kVolt, 1.0f,
     realdata_ConfigIPVol, StrFormat_Float1},
    {Rate, QT_TRANSLATE_NOOP("RateInfoForm", "Rated input frequency"), kDash, kHertz, 0.1f,
     realdata_ConfigIPFre, StrFormat_Float1},
    {Rate, QT_TRANSLATE_NOOP("RateInfoForm", "Rated output voltage"), kDash, kVolt, 1.0f,
     realdata_ConfigOPVol, StrFormat_Float1},
    {Rate, QT_TRANSLATE_NOOP("RateInfoForm", "Rated output frequency"), kDash, kHertz, 0.1f,
     realdata_ConfigOPFre, StrFormat_Float1},
    {Rate, QT_TRANSLATE_NOOP("RateInfoForm", "Rated active power"), kDash, kWatt, 1.0f,
     realdata_ConfigOPW_Hi, StrFormat_Int4, 1, 9999999},
    {Rate, QT_TRANSLATE_NOOP("RateInfoForm", "Rated apparent power"), kDash, kVoltAmpere, 2.0f,
     realdata_ConfigOPVA_Hi, StrFormat_Int},
};
static_assert(std::size(kCatalogue) == 35, "every row of the detail page");

constexpr int kPageMargin = 20; // px; none at the bottom
constexpr int kPageSpacing = 20;
constexpr int kRowBelowPanels = 3; // takes what height is left
constexpr int kTitleIndent = 20;
constexpr char kTitleFamily[] = "Microsoft YaHei";
constexpr char kTitleStyle[] = "background-color:#DDDFF5;";

constexpr int kNoKey = -1;

// A cut number misleads, a cut text does not: numbers keep room for three phases and a unit.
constexpr int kNumberRoom = 22; // characters
constexpr int kTextRoom = 10;

int roomFor(int formatType)
{
    const bool isText = formatType == StrFormat_Str || formatType == StrFormat_Str2;
    return isText ? kTextRoom : kNumberRoom;
}

enum BodyColumn { NameColumn, ValueColumn };

// Toward zero; what no int can hold becomes the nearest int, and NaN becomes 0.
int truncated(float value)
{
    using Int = std::numeric_limits<int>;
    constexpr float kBound = 2147483648.0f; // 2^31, the first value above int
    if (std::isnan(value))
        return 0;
    if (value >= kBound)
        return Int::max();
    return value < -kBound ? Int::min() : static_cast<int>(value);
}

} // namespace

struct RateInfoForm::Panel {
    Group group;
    const char* title;
    QList<ParameterInformation*> RateInfoForm::*rows;
    QList<QLabel*> RateInfoForm::*labels;
    int row; // in the grid of the page
    int column;
    int linesKey; // data key of the number of phases
};

// The rated values follow the bypass line count; none of their formats shows it today.
const RateInfoForm::Panel RateInfoForm::kPanels[] = {
    {Device, QT_TRANSLATE_NOOP("RateInfoForm", "DEVICE"), &RateInfoForm::data_device,
     &RateInfoForm::m_label_device, 0, 0, kNoKey},
    {Battery, QT_TRANSLATE_NOOP("RateInfoForm", "BATTERY"), &RateInfoForm::data_battery,
     &RateInfoForm::m_label_battery, 2, 0, kNoKey},
    {Input, QT_TRANSLATE_NOOP("RateInfoForm", "INPUT"), &RateInfoForm::data_input,
     &RateInfoForm::m_label_input, 1, 0, realdata_InputNumLines},
    {Output, QT_TRANSLATE_NOOP("RateInfoForm", "OUTPUT"), &RateInfoForm::data_output,
     &RateInfoForm::m_label_output, 0, 1, realdata_OutputNumLines},
    {Bypass, QT_TRANSLATE_NOOP("RateInfoForm", "BYPASS"), &RateInfoForm::data_bypass,
     &RateInfoForm::m_label_bypass, 1, 1, realdata_BypNumLines},
    {Rate, QT_TRANSLATE_NOOP("RateInfoForm", "RATE"), &RateInfoForm::data_rate,
     &RateInfoForm::m_label_rate, 2, 1, realdata_BypNumLines},
};

RateInfoForm::RateInfoForm(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui_RateInfoForm)
{
    ui->setupUi(this);
    InitRateData();
}

RateInfoForm::~RateInfoForm()
{
    for (const Panel& panel : kPanels)
        qDeleteAll(this->*panel.rows);
    delete ui;
}

void RateInfoForm::setCurrentName(QString name)
{
    currentName = name;
}

ParameterInformation* RateInfoForm::addDataDesc(QList<ParameterInformation*>& list, QString name,
                                                QString value, QString unit, float factor)
{
    auto* p = new ParameterInformation;
    p->strName = name;
    p->strValue = value;
    p->strUnit = unit;
    p->factor = factor;
    list.append(p);
    return p;
}

void RateInfoForm::fillCatalogue(const Panel& panel)
{
    const auto text = [](const char* source) { return source ? tr(source) : QString(); };
    for (const Row& row : kCatalogue) {
        if (row.group != panel.group)
            continue;
        ParameterInformation* p = addDataDesc(this->*panel.rows, text(row.label),
                                              text(row.placeholder), text(row.unit), row.factor);
        p->setFormat(row.key, row.format, row.min, row.max);
        QStringList comboTexts;
        for (const char* const* combo = row.comboTexts; combo && *combo; ++combo)
            comboTexts << text(*combo);
        p->addCombo(comboTexts);
    }
}

void RateInfoForm::InitRateData()
{
    setObjectName(QStringLiteral("realDataTable"));
    auto* page = new QGridLayout(this);
    page->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, 0);
    page->setSpacing(kPageSpacing);
    page->setRowStretch(kRowBelowPanels, 1);

    for (const Panel& panel : kPanels) {
        fillCatalogue(panel);
        auto* widget = new QWidget(this); // in its place from the start, as all parts are: a part
                                          // that moves is styled anew with all that is in it
        ShowPanalView(widget, tr(panel.title), this->*panel.rows, this->*panel.labels);
        page->addWidget(widget, panel.row, panel.column);
        page->setColumnStretch(panel.column, 1);
    }
}

namespace {

QLabel* titleOf(const QString& text, QWidget* panel)
{
    auto* title = new QLabel(text, panel);
    title->setObjectName(QStringLiteral("PanelTitle"));
    title->setStyleSheet(QString::fromLatin1(kTitleStyle));
    QFont font;
    font.setBold(true);
    font.setFamily(QString::fromLatin1(kTitleFamily));
    title->setFont(font);
    title->setIndent(kTitleIndent);
    return title;
}

// Returns the label of the value.
QLabel* addRow(QGridLayout* grid, int row, const ParameterInformation& p)
{
    QWidget* body = grid->parentWidget();
    auto* name = new QLabel(p.strName, body);
    name->setObjectName(QStringLiteral("PanalBodyKeyName"));
    name->setTextFormat(Qt::PlainText);
    auto* value = new ElidedLabel(
        p.strUnit.isEmpty() ? p.strValue : RateInfoForm::tr("%1 %2").arg(p.strValue, p.strUnit),
        roomFor(p.formatType), body);
    value->setObjectName(QStringLiteral("PanalBodyKeyValue"));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(name, row, NameColumn);
    grid->addWidget(value, row, ValueColumn);
    return value;
}

} // namespace

void RateInfoForm::ShowPanalView(QWidget* panel, QString title, QList<ParameterInformation*> rows,
                                 QList<QLabel*>& labels)
{
    auto* body = new QWidget(panel);
    body->setObjectName(QStringLiteral("PanelBody"));
    auto* layout = new QVBoxLayout(panel);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(titleOf(title, panel));
    layout->addWidget(body, 1); // all height beyond the title

    auto* grid = new QGridLayout(body);
    grid->setAlignment(Qt::AlignTop);
    grid->setColumnStretch(ValueColumn, 1);
    labels.clear();
    for (int i = 0; i < rows.size(); ++i)
        labels.append(addRow(grid, i, *rows.at(i)));
}

void RateInfoForm::RefreshRateInfo(QMap<int, QVariant> data)
{
    realData = data;
    for (const Panel& panel : kPanels) {
        const QList<ParameterInformation*>& rows = this->*panel.rows;
        const QList<QLabel*>& labels = this->*panel.labels;
        for (int i = 0; i < rows.size(); ++i) {
            if (panel.linesKey != kNoKey)
                rows.at(i)->setLines(realData.value(panel.linesKey).toInt());
            const QString value = getPvalue(rows.at(i));
            labels.at(i)->setText(value);
            labels.at(i)->setAccessibleName(rows.at(i)->strName + QLatin1Char(' ') + value);
        }
    }
}

// A key past the end of int cannot be in a snapshot and reads as missing.
QVariant RateInfoForm::rawAt(int key, int offset) const
{
    return key > std::numeric_limits<int>::max() - offset ? QVariant()
                                                          : realData.value(key + offset);
}

int RateInfoForm::scaledInt(const ParameterInformation& p, int offset) const
{
    return truncated(static_cast<float>(rawAt(p.sigNo, offset).toInt()) * p.factor);
}

double RateInfoForm::scaledFloat(const ParameterInformation& p, int offset) const
{
    return static_cast<double>(p.factor * rawAt(p.sigNo, offset).toFloat());
}

// Ends at the first zero byte. A missing key is one, so no declared length outlasts the snapshot.
QString RateInfoForm::characterText(const ParameterInformation& p) const
{
    QByteArray bytes;
    for (int i = 0; i < p.strLength; ++i) {
        const char byte = static_cast<char>(rawAt(p.sigNo, i).toInt() & 0xff);
        if (byte == 0)
            break;
        bytes.append(byte);
    }
    return QString::fromUtf8(bytes);
}

QString RateInfoForm::valueText(const ParameterInformation& p) const
{
    const auto asInt = [&](int offset) { return valuetext::whole(scaledInt(p, offset)); };
    const auto asFloat = [&](int offset) { return valuetext::oneDecimal(scaledFloat(p, offset)); };
    const auto phases = [&](const auto& format, int stride) {
        return isThreePhaseOnlyIfThree(p.lines)
                   ? valuetext::joined(format(0), format(stride), format(2 * stride))
                   : format(0);
    };

    switch (p.formatType) {
    case StrFormat_Int:
        return asInt(0);
    case StrFormat_Int2:
        return phases(asInt, 1);
    case StrFormat_Int3:
        return phases(asInt, 2);
    case StrFormat_Int4: {
        const int value = scaledInt(p);
        return value > p.max || value < p.min ? valuetext::outOfRange() : valuetext::whole(value);
    }
    case StrFormat_Float1:
        return asFloat(0);
    case StrFormat_Float2:
        return phases(asFloat, 1);
    case StrFormat_Str:
        return characterText(p);
    case StrFormat_Str2:
        return rawAt(p.sigNo, 0).toString().simplified();
    case StrFormat_combo:
        return p.comboxMap.key(rawAt(p.sigNo, 0).toInt());
    default:
        return QString();
    }
}

QString RateInfoForm::getPvalue(ParameterInformation* p)
{
    if (!p)
        return QString();
    const QString value = valueText(*p);
    return p->strUnit.isEmpty() ? value : value + QLatin1Char(' ') + p->strUnit;
}
