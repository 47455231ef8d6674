#include "window/finddevicesdialog.h"

#include "connectors/addressrange.h"
#include "connectors/nut/nutserverlist.h"
#include "window/devicename.h"
#include "window/formarea.h"
#include "window/hostport.h"
#include "window/secretedit.h"
#include "window/snmpfields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize kSize(620, 560); // px
constexpr int kLeastTableHeight = 80;
constexpr int kLongestName = 255;
constexpr int kAnswerWithin = 2; // s; an address without an agent is asked no longer

enum Kind { NutKind, SnmpKind };
enum Column { NameColumn, AddressColumn, WhatColumn, ColumnCount };

} // namespace

FindDevicesDialog::FindDevicesDialog(const DeviceSettings& fresh, const QStringList& takenNames,
                                     const Fleet::ConnectorMaker& maker, const Save& save,
                                     QWidget* parent)
    : QDialog(parent)
    , m_fresh(fresh)
    , m_takenNames(takenNames)
    , m_maker(maker)
    , m_save(save)
    , m_kind(new QComboBox)
    , m_fields(new QStackedWidget)
    , m_server(new HostPort(DeviceAddress::kNutPort))
    , m_user(new QLineEdit)
    , m_password(new SecretEdit)
    , m_snmp(new SnmpFields)
    , m_group(new QLineEdit)
    , m_search(new QPushButton)
    , m_table(new QTableWidget(0, ColumnCount))
    , m_all(new QCheckBox(tr("&Tick all")))
    , m_message(new DialogMessage)
{
    setObjectName(QStringLiteral("FindDevicesDialog"));
    setWindowTitle(tr("Add several devices"));
    m_kind->addItems({tr("UPSes of a NUT server"), tr("SNMP agents in a range of addresses")});
    m_snmp->setTakesRange();
    m_fields->addWidget(makeServerFields());
    m_fields->addWidget(m_snmp);
    makeTable();
    layOut();
    connectAll();
    fitScreen(this, kSize);
    stopSearch();
    review();
}

FindDevicesDialog::~FindDevicesDialog() = default;

QWidget* FindDevicesDialog::makeServerFields()
{
    m_user->setMaxLength(kLongestName);
    m_user->setPlaceholderText(tr("for commands only"));
    auto* fields = new QWidget;
    auto* form = new QFormLayout(fields);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Host"), m_server);
    form->addRow(tr("U&ser"), m_user);
    form->addRow(tr("Pass&word"), m_password);
    return fields;
}

void FindDevicesDialog::makeTable()
{
    m_table->setObjectName(QStringLiteral("FoundTable"));
    m_table->setAccessibleName(tr("Devices found"));
    m_table->setHorizontalHeaderLabels({tr("Name"), tr("Address"), tr("What it is")});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setMinimumHeight(kLeastTableHeight);
    m_table->setWordWrap(false);
    m_table->setTextElideMode(Qt::ElideMiddle); // the ends of addresses differ
    constexpr int kWidths[] = {170, 190};       // px
    for (int column = 0; column < static_cast<int>(std::size(kWidths)); ++column)
        m_table->setColumnWidth(column, kWidths[column]);
}

void FindDevicesDialog::layOut()
{
    m_kind->setObjectName(QStringLiteral("KindBox"));
    m_group->setObjectName(QStringLiteral("GroupEdit"));
    m_group->setPlaceholderText(tr("site or room, for all that are added"));
    m_search->setObjectName(QStringLiteral("SearchButton"));
    m_search->setAutoDefault(false);
    m_all->setObjectName(QStringLiteral("AllBox"));

    auto* top = new QFormLayout;
    top->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    top->addRow(tr("&Look for"), m_kind);
    top->addRow(tr("&Group"), m_group);
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(m_search);
    searchRow->addStretch(1);
    searchRow->addWidget(m_all);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &FindDevicesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FindDevicesDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(m_fields);
    column->addLayout(searchRow);
    column->addWidget(m_table, 1);
    column->addWidget(m_message);
    column->addWidget(buttons);
}

void FindDevicesDialog::connectAll()
{
    connect(m_kind, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int kind) {
        stopSearch();
        m_fields->setCurrentIndex(kind);
    });
    connect(m_search, &QPushButton::clicked, this, &FindDevicesDialog::toggleSearch);
    connect(m_all, &QCheckBox::clicked, this, &FindDevicesDialog::tickAll);
    connect(m_table, &QTableWidget::itemChanged, this, &FindDevicesDialog::review);
}

// Searching

void FindDevicesDialog::toggleSearch()
{
    if (m_list || m_scan)
        return stopSearch();
    const bool nut = m_kind->currentIndex() == NutKind;
    const QString wrong = nut ? m_server->error() : m_snmp->error();
    if (!wrong.isEmpty())
        return m_message->say(wrong, DialogMessage::Tone::Bad);
    m_found.clear();
    m_table->setRowCount(0);
    m_search->setText(tr("&Stop"));
    if (nut)
        searchServer();
    else
        searchRange();
    review();
}

void FindDevicesDialog::searchServer()
{
    DeviceSettings settings = m_fresh;
    settings.address.scheme = DeviceAddress::Scheme::Nut;
    m_server->readAddress(settings.address);
    settings.user = m_user->text().trimmed();
    settings.secret = settings.user.isEmpty() ? QString() : m_password->secret();
    m_message->say(tr("Asking %1 \u2026").arg(settings.address.host), DialogMessage::Tone::Hint);
    m_list = new NutServerList(settings, this);
    connect(m_list, &NutServerList::finished, this,
            [this, settings](const QVector<NutUpsEntry>& devices, const QString& error) {
                for (const NutUpsEntry& device : devices) {
                    DeviceSettings found = settings;
                    found.address.ups = device.name;
                    addRow(found, device.name, device.description);
                }
                concludeSearch(error);
            });
    m_list->start();
}

void FindDevicesDialog::searchRange()
{
    DeviceSettings pattern = m_fresh;
    pattern.address = m_snmp->address();
    m_snmp->readAccount(pattern);
    pattern.timeout = std::min(pattern.timeout, kAnswerWithin);
    pattern.retries = 0;
    QVector<DeviceSettings> candidates;
    for (const QString& host : AddressRange::parse(pattern.address.host).hosts) {
        pattern.address.host = host;
        pattern.address.text = deviceAddressText(pattern.address);
        candidates << pattern;
    }
    m_scan = new RangeScan(m_maker, candidates, this);
    connect(m_scan, &RangeScan::found, this, [this](DeviceSettings found, const Device& device) {
        found.timeout = m_fresh.timeout;
        found.retries = m_fresh.retries;
        const QString what = device.reading() ? device.reading()->model : device.message();
        addRow(found, nameOfReading(device.reading()), what);
    });
    connect(m_scan, &RangeScan::progressed, this, [this](int asked, int all) {
        m_message->say(tr("Asked %1 of %2 addresses \u2026").arg(asked).arg(all),
                       DialogMessage::Tone::Hint);
    });
    connect(m_scan, &RangeScan::finished, this, [this] { concludeSearch({}); });
    m_scan->start();
}

void FindDevicesDialog::stopSearch()
{
    for (QObject* search : {static_cast<QObject*>(m_list), static_cast<QObject*>(m_scan)}) {
        if (!search)
            continue;
        search->disconnect(this);
        search->deleteLater(); // it may be the one that is speaking
    }
    m_list = nullptr;
    m_scan = nullptr;
    m_search->setText(tr("&Search"));
}

void FindDevicesDialog::concludeSearch(const QString& error)
{
    stopSearch();
    if (!error.isEmpty())
        m_message->say(error, DialogMessage::Tone::Bad);
    else if (m_found.isEmpty())
        m_message->say(tr("Nobody answered."), DialogMessage::Tone::Bad);
    else
        m_message->say(tr("Found: %1. Tick what is to be added.").arg(m_found.size()),
                       DialogMessage::Tone::Good);
    m_table->setFocus();
}

// Choosing

void FindDevicesDialog::addRow(DeviceSettings settings, const QString& name, const QString& what)
{
    QStringList taken = m_takenNames;
    for (int row = 0; row < m_table->rowCount(); ++row)
        taken << m_table->item(row, NameColumn)->text();
    settings.address.text = deviceAddressText(settings.address);
    m_found << settings;
    const int row = m_table->rowCount();
    const QSignalBlocker filling(m_table);
    m_table->insertRow(row);
    auto* first = new QTableWidgetItem(freeName(name, taken));
    first->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable |
                    Qt::ItemIsUserCheckable);
    first->setCheckState(Qt::Unchecked);
    m_table->setItem(row, NameColumn, first);
    const QString texts[] = {shownAddress(settings.address), what};
    for (int column = AddressColumn; column < ColumnCount; ++column) {
        auto* item = new QTableWidgetItem(texts[column - AddressColumn]);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        m_table->setItem(row, column, item);
    }
    review();
}

void FindDevicesDialog::tickAll(bool on)
{
    {
        const QSignalBlocker filling(m_table);
        for (int row = 0; row < m_table->rowCount(); ++row)
            m_table->item(row, NameColumn)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    review();
}

QVector<DeviceSettings> FindDevicesDialog::chosen() const
{
    QVector<DeviceSettings> devices;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QTableWidgetItem* item = m_table->item(row, NameColumn);
        if (item->checkState() != Qt::Checked)
            continue;
        DeviceSettings settings = m_found.at(row);
        settings.name = item->text().simplified();
        settings.group = m_group->text().simplified();
        devices << settings;
    }
    return devices;
}

void FindDevicesDialog::review()
{
    const int number = chosen().size();
    m_ok->setEnabled(number > 0);
    m_ok->setText(number > 0 ? tr("&Add %1").arg(number) : tr("&Add"));
    m_all->setEnabled(m_table->rowCount() > 0);
    m_all->setChecked(number > 0 && number == m_table->rowCount());
}

void FindDevicesDialog::accept()
{
    QStringList names = m_takenNames;
    const QVector<DeviceSettings> devices = chosen();
    for (const DeviceSettings& device : devices) {
        if (device.name.isEmpty() || names.contains(device.name))
            return m_message->say(device.name.isEmpty()
                                      ? tr("Each device needs a name.")
                                      : tr("There is a device \"%1\" already.").arg(device.name),
                                  DialogMessage::Tone::Bad);
        names << device.name;
    }
    const QString reason = devices.isEmpty() ? QString() : m_save(devices);
    if (reason.isEmpty())
        QDialog::accept();
    else
        m_message->say(reason, DialogMessage::Tone::Bad);
}

void FindDevicesDialog::done(int result)
{
    stopSearch();
    QDialog::done(result);
}
