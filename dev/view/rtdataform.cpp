#include "rtdataform.h"

#include "ui_rtdataform.h"
#include "valuetext.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace {

enum Column { GroupColumn, LabelColumn, ValueColumn, ColumnCount };
constexpr int kColumnWidths[] = {150, 350}; // px, until the contents are known
constexpr int kRowCount = 23;               // row 0 is the title
constexpr int kFirstValueRow = 1;

constexpr int kMinTemperature = 0; // degrees; both are valid
constexpr int kMaxTemperature = 100;

struct Group {
    int row;
    int rowCount;
    const char* title;
};
constexpr Group kGroups[] = {
    {1, 7, QT_TRANSLATE_NOOP("RTDataForm", "Battery Info")},
    {8, 5, QT_TRANSLATE_NOOP("RTDataForm", "Input Info")},
    {13, 6, QT_TRANSLATE_NOOP("RTDataForm", "Output Info")},
    {19, 4, QT_TRANSLATE_NOOP("RTDataForm", "Bypass Info")},
};

// Times, currents and powers; battery voltage and temperature stay.
constexpr int kRowsOfLongTable[] = {2, 3, 6, 10, 12, 16, 17, 21, 22};

constexpr const char* kBatteryStates[] = {
    QT_TRANSLATE_NOOP("RTDataForm", "Unknown"),
    QT_TRANSLATE_NOOP("RTDataForm", "Normal"),
    QT_TRANSLATE_NOOP("RTDataForm", "Low"),
    QT_TRANSLATE_NOOP("RTDataForm", "Depleted"),
};
constexpr int kNormalState = 1;

constexpr const char* kSupplyModes[] = {
    QT_TRANSLATE_NOOP("RTDataForm", "Other supply"),
    QT_TRANSLATE_NOOP("RTDataForm", "None supply"),
    QT_TRANSLATE_NOOP("RTDataForm", "Utility supply"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass supply"),
    QT_TRANSLATE_NOOP("RTDataForm", "Battery supply"),
    QT_TRANSLATE_NOOP("RTDataForm", "Booster supply"),
    QT_TRANSLATE_NOOP("RTDataForm", "Reducer supply"),
};
constexpr int kNoSupply = 1;

// 0 to 21: rows 1 to 22 for one phase; from 22 on: the rows of a block for three phases.
constexpr const char* kLabels[] = {
    QT_TRANSLATE_NOOP("RTDataForm", "Battery state"),
    QT_TRANSLATE_NOOP("RTDataForm", "Time on battery(s)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Remaining battery time(Min)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Remaining battery capacity(%)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Battery voltage(V)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Battery current(A)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Battery temperature(C)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Number of mains failure"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input voltage(V)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input current(A)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input frequency(Hz)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input power(W)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output mode"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output frequency(Hz)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output voltage(V)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output current(A)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output power(W)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output load(%)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass frequency(Hz)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass voltage(V)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass current(A)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass power(W)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input voltage R/S/T(V)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input current R/S/T(A)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input frequency R/S/T(Hz)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Input power R/S/T(W)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output voltage R/S/T(V)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output current R/S/T(A)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output power R/S/T(W)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Output load R/S/T(%)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass voltage R/S/T(V)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass current R/S/T(A)"),
    QT_TRANSLATE_NOOP("RTDataForm", "Bypass power R/S/T(W)"),
};
static_assert(std::size(kLabels) == 33);

// Through float: the last digit of very large values is that of single precision.
QString tenths(int tenthsOfUnit)
{
    return valuetext::oneDecimal(static_cast<float>(tenthsOfUnit / 10.0));
}

QString degrees(int value)
{
    const bool valid = value >= kMinTemperature && value <= kMaxTemperature;
    return valid ? valuetext::whole(value) : valuetext::outOfRange();
}

using Format = QString (*)(int);

struct SingleValue {
    int row;
    int key;
    Format format;
};
constexpr SingleValue kSingleValues[] = {
    {2, realdata_SecondsOnBat, valuetext::whole},
    {3, realdata_MinutesRemaining, valuetext::whole},
    {4, realdata_ChargeRemaining, valuetext::whole},
    {5, realdata_BatVoltage, tenths},
    {6, realdata_BatCurrent, tenths},
    {7, realdata_BatTemp, degrees},
    {8, realdata_InputLineBads, valuetext::whole},
    {14, realdata_OutputFre, tenths},
    {19, realdata_BypFre, tenths},
};

// One quantity of a block of phases; the keys of phases B and C follow `stride` apart.
struct PhaseValue {
    int row;
    int singleLabel;
    int threeLabel;
    int keyA;
    int stride;
    Format format;
};
constexpr int kWords = 2; // powers come as _Hi and _Lo; the table shows _Hi

constexpr PhaseValue kInput[] = {
    {9, 8, 22, realdata_InputVoltage_A, 1, valuetext::whole},
    {10, 9, 23, realdata_InputCurrent_A, 1, tenths},
    {11, 10, 24, realdata_InputFre_A, 1, tenths},
    {12, 11, 25, realdata_InputPower_A_Hi, kWords, valuetext::whole},
};
constexpr PhaseValue kOutput[] = {
    {15, 14, 26, realdata_OutputVoltage_A, 1, valuetext::whole},
    {16, 15, 27, realdata_OutputCurrent_A, 1, tenths},
    {17, 16, 28, realdata_OutputPower_A_Hi, kWords, valuetext::whole},
    {18, 17, 29, realdata_OutputLoad_A, 1, valuetext::whole},
};
constexpr PhaseValue kBypass[] = {
    {20, 19, 30, realdata_BypVoltage_A, 1, valuetext::whole},
    {21, 20, 31, realdata_BypCurrent_A, 1, tenths},
    {22, 21, 32, realdata_BypPower_A_Hi, kWords, valuetext::whole},
};

// A code that counts from 1 to its text; `otherwise` stands for all codes without one.
QString textOfCode(const QVector<QString>& texts, int code, int otherwise)
{
    const bool known = code >= 1 && code <= texts.size();
    return texts.at(known ? code - 1 : otherwise);
}

// Tells the row's label, which has the unit, with the value. Put together when a reader asks.
class ValueItem : public QTableWidgetItem
{
public:
    using QTableWidgetItem::QTableWidgetItem;

    QVariant data(int role) const override
    {
        if (role != Qt::AccessibleTextRole)
            return QTableWidgetItem::data(role);
        const QTableWidgetItem* label = tableWidget()->item(row(), LabelColumn);
        return QString(label->text() + QLatin1String(": ") + text());
    }
};

// Lets the columns follow their contents once, after all texts are written: else each text
// measures all columns anew.
class HeldColumns
{
public:
    explicit HeldColumns(QTableWidget* table)
        : m_header(table->horizontalHeader())
    {
        m_header->setSectionResizeMode(QHeaderView::Fixed);
    }
    ~HeldColumns() { m_header->setSectionResizeMode(QHeaderView::ResizeToContents); }
    Q_DISABLE_COPY(HeldColumns)

private:
    QHeaderView* m_header;
};

void setupTable(QTableWidget* table)
{
    table->setColumnCount(ColumnCount);
    table->setRowCount(kRowCount);
    table->setColumnWidth(GroupColumn, kColumnWidths[GroupColumn]);
    table->setColumnWidth(LabelColumn, kColumnWidths[LabelColumn]);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setTextElideMode(Qt::ElideMiddle);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setTabKeyNavigation(false); // Tab leads on, out of the table
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
}

} // namespace

RTDataForm::RTDataForm(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui_RTDataForm)
    , isSinglePhase(true)
{
    ui->setupUi(this);
    setupTable(ui->tableWidget);
    ui->tableWidget->setAccessibleName(ui->label_10->text());

    for (const char* text : kBatteryStates)
        bat_fault.append(tr(text));
    for (const char* text : kLabels)
        rtDataArray.append(tr(text));
    for (const char* text : kSupplyModes)
        supply_mode.append(tr(text));
    setupContentsInfo();
}

RTDataForm::~RTDataForm()
{
    delete ui;
}

void RTDataForm::setupContentsInfo()
{
    constexpr int kTitlePoints = 14;
    static const QColor kTitleBackground(250, 250, 250);

    QTableWidget* table = ui->tableWidget;
    for (int row = 0; row < kRowCount; ++row)
        setText(row, GroupColumn, QString());
    for (int column = 0; column < ColumnCount; ++column) {
        setText(0, column, QString());
        table->item(0, column)->setBackground(kTitleBackground);
    }
    QTableWidgetItem* title = table->item(0, GroupColumn);
    title->setText(tr("Real-time Info"));
    title->setForeground(Qt::black);
    title->setFont(QFont(QStringLiteral("Arial"), kTitlePoints));

    for (const Group& group : kGroups) {
        table->item(group.row, GroupColumn)->setText(tr(group.title));
        table->setSpan(group.row, GroupColumn, group.rowCount, 1);
    }
    for (int row = kFirstValueRow; row < kRowCount; ++row)
        setText(row, LabelColumn, rtDataArray.at(row - kFirstValueRow));
}

void RTDataForm::InitRTData()
{
    setValue(kFirstValueRow, bat_fault.at(kNormalState));
    for (int row = kFirstValueRow + 1; row < kRowCount; ++row)
        setValue(row, valuetext::whole(0));
    for (int row : kRowsOfLongTable)
        ui->tableWidget->hideRow(row);
}

void RTDataForm::InitRTDataFormInfo()
{
    RefreshRTDataInfo({});
}

void RTDataForm::RefreshRTDataInfo(QMap<int, QVariant> data)
{
    const HeldColumns held(ui->tableWidget);
    Show_RTData_View(data);
}

void RTDataForm::setCurrentName(QString name)
{
    currentName = name;
}

void RTDataForm::Show_RTData_View(QMap<int, QVariant> data)
{
    constexpr int kBatteryStateRow = 1;
    constexpr int kOutputModeRow = 13;

    const RealTimeBlock values(data);
    const auto showPhases = [&](const auto& block, bool threePhase) {
        for (const PhaseValue& line : block) {
            setText(line.row, LabelColumn,
                    rtDataArray.at(threePhase ? line.threeLabel : line.singleLabel));
            setValue(line.row,
                     valuetext::phases(values, threePhase, line.keyA, line.stride, line.format));
        }
    };

    setValue(kBatteryStateRow, textOfCode(bat_fault, values[realdata_BatteryStatus], kNormalState));
    setValue(kOutputModeRow, textOfCode(supply_mode, values[realdata_OutputSource], kNoSupply));
    for (const SingleValue& line : kSingleValues)
        setValue(line.row, line.format(values[line.key]));

    const bool inputThreePhase = isThreePhaseOnlyIfThree(values[realdata_InputNumLines]);
    isSinglePhase = !inputThreePhase;
    markPhaseColumns(inputThreePhase);
    showPhases(kInput, inputThreePhase);

    const bool outputThreePhase = isThreePhaseOnlyIfThree(values[realdata_OutputNumLines]);
    if (!isSinglePhase)
        markPhaseColumns(outputThreePhase);
    showPhases(kOutput, outputThreePhase);

    const bool bypassThreePhase = isThreePhaseOnlyIfThree(values[realdata_BypNumLines]);
    if (!isSinglePhase)
        markPhaseColumns(bypassThreePhase);
    showPhases(kBypass, bypassThreePhase);
}

void RTDataForm::setText(int row, int column, const QString& text)
{
    setItem(row, column, new QTableWidgetItem(text));
}

void RTDataForm::setValue(int row, const QString& text)
{
    setItem(row, ValueColumn, new ValueItem(text));
}

// A cell whose text stays the same is not painted again.
void RTDataForm::setItem(int row, int column, QTableWidgetItem* item)
{
    QTableWidget* table = ui->tableWidget;
    const QTableWidgetItem* shown = table->item(row, column);
    const bool same = shown && shown->text() == item->text();
    const QSignalBlocker quiet(same ? table->model() : nullptr);
    table->setItem(row, column, item);
}

// The columns of phases S and T. The table has none since it joins the phases in one cell; the
// calls take effect as soon as the table had them.
void RTDataForm::markPhaseColumns(bool shown)
{
    constexpr int kPhaseColumns[] = {3, 4};
    for (int column : kPhaseColumns)
        ui->tableWidget->setColumnHidden(column, !shown);
}
