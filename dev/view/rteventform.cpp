#include "rteventform.h"

#include "globalvar.h"
#include "ui_rteventform.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include <iterator>

namespace {

struct AlarmText {
    const char* shown;   // while raised; none: never listed
    const char* cleared; // kept in step, never displayed
};

// Row p belongs to key kFirstAlarm + p, whatever that key's name says: from row 20 on the texts run
// ahead of the names, and hosts rely on that pairing. Do not "repair" the order.
constexpr AlarmText kAlarmTexts[] = {
    {QT_TRANSLATE_NOOP("RTEventForm", "Communication between agent and UPS fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "Communications between agent and UPS normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Battery fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "Battery normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Battery powered"),
     QT_TRANSLATE_NOOP("RTEventForm", "Utility supply normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Battery low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Battery voltage normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Battery EOD"),
     QT_TRANSLATE_NOOP("RTEventForm", "Battery resume")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature overrun MAX-value"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Input fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "Input normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Output fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "Output normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Load overrun MAX-value"),
     QT_TRANSLATE_NOOP("RTEventForm", "The output load normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Bypass powered"),
     QT_TRANSLATE_NOOP("RTEventForm", "Inverter operation")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Bypass fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "Bypass normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "The UPS output has shutdown as requested"),
     QT_TRANSLATE_NOOP("RTEventForm", "The UPS output not shutdown as requested")},
    {QT_TRANSLATE_NOOP("RTEventForm", "The entire UPS has shutdown as commanded"),
     QT_TRANSLATE_NOOP("RTEventForm", "The entire UPS not shutdown as commanded")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Charger subsystem fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "Charger subsystem normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "The output of the UPS is in the off state"),
     QT_TRANSLATE_NOOP("RTEventForm", "UPS output on")},
    {QT_TRANSLATE_NOOP("RTEventForm", "The UPS system is in the off state"),
     QT_TRANSLATE_NOOP("RTEventForm", "UPS on")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Fan fault"), QT_TRANSLATE_NOOP("RTEventForm", "Fan normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Fuse fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "Fuse normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "UPS fault"), QT_TRANSLATE_NOOP("RTEventForm", "UPS normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Last diagnostic test failed"),
     QT_TRANSLATE_NOOP("RTEventForm", "Last diagnostic test success")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Communications between the agent and the UPS fault"),
     QT_TRANSLATE_NOOP("RTEventForm", "UPS is not awaiting the return of input power")},
    {QT_TRANSLATE_NOOP("RTEventForm", "UPS shutdown after delay countdown is underway"),
     QT_TRANSLATE_NOOP("RTEventForm", "UPS shutdown after delay ended")},
    {QT_TRANSLATE_NOOP("RTEventForm", "The UPS will turn off power to the load"),
     QT_TRANSLATE_NOOP("RTEventForm", "The UPS will not turn off power to the load")},
    {QT_TRANSLATE_NOOP("RTEventForm", "A test is in progress"),
     QT_TRANSLATE_NOOP("RTEventForm", "No a test is in progress")},
    {nullptr, nullptr},
    {nullptr, nullptr},
    {QT_TRANSLATE_NOOP("RTEventForm", "Battery Discharge"), nullptr},
    {QT_TRANSLATE_NOOP("RTEventForm", "Battery equalization"), nullptr},
    {QT_TRANSLATE_NOOP("RTEventForm", "Battery switch is off"),
     QT_TRANSLATE_NOOP("RTEventForm", "Battery switch on")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Input switch is off"),
     QT_TRANSLATE_NOOP("RTEventForm", "Input switch on")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Output switch is off"),
     QT_TRANSLATE_NOOP("RTEventForm", "Output switch is on")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Bypass switch is off"),
     QT_TRANSLATE_NOOP("RTEventForm", "Bypass switch is on")},
    {nullptr, nullptr},
    {nullptr, nullptr},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 communication lost"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 communication normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 temperature is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 temperature is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 temperature is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 temperature is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 humidity is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 humidity is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 humidity is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 1 humidity is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 communication lost"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 communication normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 temperature is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 temperature normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 temperature is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 temperature normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 humidity is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 humidity is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 humidity is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 2 humidity is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 communication lost"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 communication normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 temperature is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 temperature is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 temperature is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 temperature is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 humidity is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 humidity is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 humidity is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 3 humidity is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 communication lost"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 communication normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 temperature is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 temperature is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 temperature is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 temperature is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 humidity is too high"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 humidity is normal")},
    {QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 humidity is too low"),
     QT_TRANSLATE_NOOP("RTEventForm", "Temperature and humidity module 4 humidity is normal")},
};
static_assert(std::size(kAlarmTexts) == 54, "one row per alarm that the page lists");

constexpr int kFirstAlarm = alarm_CommunicationsLost;
constexpr int kCleared = 0;
constexpr int kRaised = 1;

enum Column { TimeColumn, TextColumn, ColumnCount };

constexpr int kTablePointSize = 11;
constexpr int kTableMinimumHeight = 610; // px

QTableWidgetItem* newCell(const QString& text)
{
    auto* cell = new QTableWidgetItem(text);
    if (!text.isEmpty())
        cell->setTextAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    return cell;
}

} // namespace

RTEventForm::RTEventForm(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui_RTEventForm)
{
    ui->setupUi(this);
    stateArray << tr("Yes") << tr("No");

    const auto append = [this](const char* text) {
        eventLogArray_buff << (text ? tr(text) : QString());
    };
    for (const AlarmText& row : kAlarmTexts)
        append(row.shown);
    for (const AlarmText& row : kAlarmTexts)
        append(row.cleared);

    InitRTEvent();
    initTable();
}

RTEventForm::~RTEventForm()
{
    delete ui;
}

void RTEventForm::InitRTEvent() {}

void RTEventForm::InitRTEventFormInfo() {}

void RTEventForm::setCurrentName(QString name)
{
    currentName = name;
}

namespace {

QTableWidget* makeTable(QWidget* parent)
{
    auto* table = new QTableWidget(parent);
    table->setObjectName(QStringLiteral("basicTable"));
    table->setFont(QFont(QStringLiteral("Microsoft YaHei"), kTablePointSize));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setFocusPolicy(Qt::NoFocus);
    table->setShowGrid(false);
    table->verticalHeader()->setVisible(false);
    // Rows grow: a text wider than its column wraps instead of losing its end.
    QHeaderView* rows = table->verticalHeader();
    rows->setMinimumSectionSize(rows->defaultSectionSize());
    rows->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->setColumnCount(ColumnCount);
    table->setHorizontalHeaderLabels(
        {RTEventForm::tr("Data/Time"), RTEventForm::tr("Event description")});
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setStyleSheet(
        QStringLiteral("alternate-background-color: #DDDFF5; background: #FFFFFF;"));
    table->setMinimumHeight(kTableMinimumHeight);
    return table;
}

} // namespace

void RTEventForm::initTable()
{
    ui->widget->setObjectName(QStringLiteral("AlarmTable"));
    auto* layout = new QVBoxLayout(ui->widget);
    layout->setAlignment(Qt::AlignTop);

    table_alarm_record = makeTable(ui->widget); // where it stays
    layout->addWidget(table_alarm_record);
    layout->addStretch(0);
}

void RTEventForm::RefreshRTEventInfo(QMap<int, QVariant> snapshot)
{
    Show_RTEvent_View(snapshot);
}

void RTEventForm::Show_RTEvent_View(QMap<int, QVariant> snapshot)
{
    const QModelIndex selected = table_alarm_record->currentIndex();
    table_alarm_record->clearContents();
    table_alarm_record->selectRow(selected.row());
    table_alarm_record->setRowCount(0);

    const int alarmCount = eventLogArray_buff.size() / 2;
    for (int position = 0; position < alarmCount; ++position) {
        const int state = snapshot.value(kFirstAlarm + position).toInt();
        if (state == kRaised)
            showAlarm(position);
        else if (state == kCleared)
            alarmTable.remove(position);
        // Any other state keeps the onset time for when the alarm is raised again.
    }
}

void RTEventForm::showAlarm(int position)
{
    if (!alarmTable.contains(position))
        alarmTable.insert(position, QDateTime::currentDateTime());

    const QString& text = eventLogArray_buff.at(position);
    if (text.isEmpty())
        return;
    const int row = table_alarm_record->rowCount();
    table_alarm_record->insertRow(row);
    const QString onset =
        alarmTable.value(position).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    table_alarm_record->setItem(row, TimeColumn, newCell(onset));
    table_alarm_record->setItem(row, TextColumn, newCell(text));
}
