#include "window/devicedialog.h"

#include "config/configkeys.h"
#include "config/deskconfig.h"
#include "window/deviceadvanced.h"
#include "window/devicename.h"
#include "window/devicesummary.h"
#include "window/formarea.h"
#include "window/nutfields.h"
#include "window/simulatorfields.h"
#include "window/snmpfields.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidth = 520; // px
constexpr int kLongestAddress = 1000;

// In the order of the pages with their fields.
constexpr const char* kKinds[] = {QT_TRANSLATE_NOOP("DeviceDialog", "Network UPS Tools"),
                                  QT_TRANSLATE_NOOP("DeviceDialog", "SNMP"),
                                  QT_TRANSLATE_NOOP("DeviceDialog", "Simulator")};

// The address as the line shows it: a community is as good as a password.
QString maskedText(DeviceAddress address)
{
    const bool secret = address.scheme == DeviceAddress::Scheme::Snmp &&
                        !address.community.isEmpty() &&
                        address.community != QLatin1String("public");
    if (!secret)
        return address.text.isEmpty() ? deviceAddressText(address) : address.text;
    address.community = QLatin1String(SnmpFields::kMaskedCommunity);
    return deviceAddressText(address);
}

// Reasons come as parts of a sentence.
QString sentence(const QString& reason)
{
    if (reason.isEmpty())
        return {};
    const QString text = reason.at(0).toUpper() + reason.mid(1);
    return text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.');
}

} // namespace

DeviceDialog::DeviceDialog(const DeviceSettings& device, const QStringList& takenNames,
                           const Fleet::ConnectorMaker& maker, const Save& save, QWidget* parent)
    : QDialog(parent)
    , m_device(device)
    , m_takenNames(takenNames)
    , m_maker(maker)
    , m_save(save)
    , m_name(new QLineEdit)
    , m_group(new QLineEdit)
    , m_kind(new QComboBox)
    , m_address(new QLineEdit)
    , m_interval(DeviceAdvanced::makeNumberField(QStringLiteral("interval")))
    , m_fields(new QStackedWidget)
    , m_advanced(new DeviceAdvanced)
    , m_message(new DialogMessage)
    , m_testButton(new QPushButton)
{
    setObjectName(QStringLiteral("DeviceDialog"));
    setWindowTitle(device.address.text.isEmpty() ? tr("Add a device")
                                                 : tr("Settings of %1").arg(device.displayName()));
    setMinimumWidth(kWidth);
    auto* column = new QVBoxLayout(this);
    column->addLayout(makeTop());
    column->addWidget(makeTabs(), 1);
    column->addWidget(m_message);
    column->addLayout(makeFoot());
    m_ok->setDefault(true); // in its dialog: earlier, Cancel would stay the default once focused
    connectFields();
    showDevice(device);
    fitScreen(this, sizeHint());
}

QFormLayout* DeviceDialog::makeTop()
{
    m_name->setObjectName(QStringLiteral("NameEdit"));
    m_name->setMaxLength(DeskConfig::kMaxName);
    m_group->setObjectName(QStringLiteral("GroupEdit"));
    m_group->setPlaceholderText(tr("site or room"));
    m_group->setMaxLength(deviceKeyType(QStringLiteral("group")).maximum);
    m_kind->setObjectName(QStringLiteral("KindBox"));
    for (const char* kind : kKinds)
        m_kind->addItem(tr(kind));
    m_address->setObjectName(QStringLiteral("AddressEdit"));
    m_address->setMaxLength(kLongestAddress);
    m_address->setPlaceholderText(tr("nut://HOST/UPS, snmp://COMMUNITY@HOST or sim:"));
    m_address->setToolTip(tr("The address in one line; paste one here to fill the fields"));
    m_interval->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    auto* top = new QFormLayout;
    top->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    top->addRow(tr("Na&me"), m_name);
    top->addRow(tr("&Group"), m_group);
    top->addRow(tr("&Kind"), m_kind);
    top->addRow(tr("&Address"), m_address);
    top->addRow(tr("Poll &every"), m_interval);
    return top;
}

QWidget* DeviceDialog::makeTabs()
{
    m_fields->addWidget(new NutFields);
    m_fields->addWidget(new SnmpFields);
    m_fields->addWidget(new SimulatorFields);
    auto* tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("DeviceTabs"));
    tabs->addTab(new FormArea(m_fields), tr("Con&nection"));
    tabs->addTab(new FormArea(m_advanced), tr("A&dvanced"));
    return tabs;
}

QHBoxLayout* DeviceDialog::makeFoot()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &DeviceDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DeviceDialog::reject);
    m_testButton->setObjectName(QStringLiteral("TestButton"));
    m_testButton->setAutoDefault(false);
    connect(m_testButton, &QPushButton::clicked, this, &DeviceDialog::toggleTest);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_testButton);
    foot->addStretch(1);
    foot->addWidget(buttons);
    return foot;
}

void DeviceDialog::connectFields()
{
    connect(m_name, &QLineEdit::textChanged, this, &DeviceDialog::touch);
    connect(m_interval, QOverload<int>::of(&QSpinBox::valueChanged), this, &DeviceDialog::touch);
    connect(m_advanced, &DeviceAdvanced::edited, this, &DeviceDialog::touch);
    connect(m_address, &QLineEdit::textChanged, this, &DeviceDialog::takeAddress);
    connect(m_kind, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int kind) {
        m_fields->setCurrentIndex(kind);
        takeFields();
    });
    for (int i = 0; i < m_fields->count(); ++i) {
        auto* page = static_cast<AddressFields*>(m_fields->widget(i));
        connect(page, &AddressFields::edited, this, [this] {
            m_touched |= !m_filling;
            takeFields();
        });
        connect(page, &AddressFields::said, this, [this](const QString& text, bool isBad) {
            m_message->say(text, isBad ? DialogMessage::Tone::Bad : DialogMessage::Tone::Hint);
        });
    }
}

DeviceDialog::~DeviceDialog() = default;

AddressFields* DeviceDialog::fields() const
{
    return static_cast<AddressFields*>(m_fields->currentWidget());
}

QString DeviceDialog::name() const
{
    const QString typed = m_name->text().trimmed();
    if (!typed.isEmpty())
        return typed;
    return freeName(m_testedName.isEmpty() ? fields()->proposedName() : m_testedName, m_takenNames);
}

void DeviceDialog::showDevice(const DeviceSettings& device)
{
    {
        const QScopedValueRollback<bool> filling(m_filling, true);
        m_name->setText(device.name);
        m_group->setText(device.group);
        m_interval->setValue(device.pollInterval);
        m_advanced->showSettings(device);
        for (int i = 0; i < m_fields->count(); ++i)
            static_cast<AddressFields*>(m_fields->widget(i))->showAccount(device);
        if (!device.address.text.isEmpty()) {
            m_address->setText(maskedText(device.address));
            showAddressOf(*parseDeviceAddress(m_address->text()).address);
        } else {
            m_address->setText(addressOfFields());
        }
    }
    m_touched = false;
    review();
}

DeviceSettings DeviceDialog::settings() const
{
    DeviceSettings settings = m_device;
    settings.name = name();
    settings.group = m_group->text().simplified();
    settings.address = address();
    settings.user.clear();
    settings.secret.clear();
    settings.authSecret.clear();
    settings.privSecret.clear();
    settings.tls = DeviceSettings().tls;
    settings.caFile.clear();
    settings.fingerprint.clear();
    fields()->readAccount(settings);
    settings.pollInterval = m_interval->value();
    m_advanced->readSettings(settings);
    return settings;
}

QString DeviceDialog::error() const
{
    if (!m_addressError.isEmpty())
        return m_addressError;
    const QString fieldError = fields()->error();
    if (!fieldError.isEmpty())
        return fieldError;
    const ParsedAddress parsed = parseDeviceAddress(m_address->text());
    if (!parsed.address)
        return sentence(parsed.error);
    if (m_takenNames.contains(name()))
        return tr("There is a device \"%1\" already.").arg(name());
    return m_advanced->error();
}

// Empty while there is no host to make one of.
QString DeviceDialog::addressOfFields() const
{
    const DeviceAddress address = fields()->address();
    const bool simulator = address.scheme == DeviceAddress::Scheme::Simulator;
    return simulator || !address.host.isEmpty() ? maskedText(address) : QString();
}

// What the line says, with the community that it masks.
DeviceAddress DeviceDialog::address() const
{
    DeviceAddress address = parseDeviceAddress(m_address->text()).address.value_or(DeviceAddress());
    if (address.community == QLatin1String(SnmpFields::kMaskedCommunity)) {
        address.community = fields()->address().community;
        address.text = deviceAddressText(address);
    }
    // As it was written where it is still the same; a new device has nothing written.
    const bool isSame = !m_device.address.text.isEmpty() &&
                        deviceAddressText(address) == deviceAddressText(m_device.address);
    return isSame ? m_device.address : address;
}

// The text was edited: the fields follow it.
void DeviceDialog::takeAddress(const QString& text)
{
    if (m_filling)
        return;
    m_touched = true;
    m_testedName.clear(); // it was the name of what stood here before
    const ParsedAddress parsed = parseDeviceAddress(text);
    m_addressError = sentence(parsed.error);
    if (parsed.address) {
        const QScopedValueRollback<bool> filling(m_filling, true);
        showAddressOf(*parsed.address);
    }
    review();
}

void DeviceDialog::showAddressOf(const DeviceAddress& address)
{
    for (int i = 0; i < m_fields->count(); ++i) {
        auto* page = static_cast<AddressFields*>(m_fields->widget(i));
        if (page->scheme() != address.scheme)
            continue;
        m_kind->setCurrentIndex(i);
        page->showAddress(address);
    }
}

// A field was edited: the text follows it.
void DeviceDialog::takeFields()
{
    if (m_filling)
        return;
    m_addressError.clear();
    m_testedName.clear();
    {
        const QScopedValueRollback<bool> filling(m_filling, true);
        m_address->setText(addressOfFields());
        m_address->setCursorPosition(0);
    }
    review();
}

void DeviceDialog::review()
{
    if (m_filling)
        return;
    stopTest();
    m_advanced->showRowsOf(fields()->scheme());
    m_name->setPlaceholderText(name());
    const QString wrong = error();
    m_ok->setEnabled(wrong.isEmpty());
    m_testButton->setEnabled(wrong.isEmpty());
    // Somebody who has only opened the dialog or chosen a kind has done nothing wrong yet.
    m_message->say(wrong, m_touched && !wrong.isEmpty() ? DialogMessage::Tone::Bad
                                                        : DialogMessage::Tone::Hint);
}

void DeviceDialog::touch()
{
    m_touched |= !m_filling;
    review();
}

// Testing

void DeviceDialog::toggleTest()
{
    if (m_test) {
        review();
        return;
    }
    m_test = std::make_unique<ConnectionTest>(m_maker, settings());
    connect(m_test.get(), &ConnectionTest::finished, this, &DeviceDialog::showTestResult);
    m_testButton->setText(tr("Stop &test"));
    m_message->say(tr("Asking %1 \u2026").arg(shownAddress(address())), DialogMessage::Tone::Hint);
    m_test->start();
}

void DeviceDialog::stopTest()
{
    if (m_test) {
        m_test->disconnect(this);
        m_test.release()->deleteLater(); // it may be the one that is speaking
    }
    m_testButton->setText(tr("&Test connection"));
}

void DeviceDialog::showTestResult()
{
    const Device& device = m_test->device();
    QString text = testResultText(device);
    const bool live = device.link() == LinkState::Live;
    if (live)
        for (const QString& note : device.reading()->notes)
            text += QLatin1Char('\n') + note;
    fields()->showSecurity(device.security());
    if (live && !device.settings().user.isEmpty())
        text += QLatin1Char('\n') +
                tr("The server looks at user and password only when a command is sent.");
    m_testedName = nameOfReading(device.reading());
    m_name->setPlaceholderText(name());
    m_message->say(text, live ? DialogMessage::Tone::Good : DialogMessage::Tone::Bad);
    stopTest();
}

void DeviceDialog::accept()
{
    if (!error().isEmpty())
        return;
    stopTest();
    const QString reason = m_save(settings());
    if (reason.isEmpty())
        QDialog::accept();
    else
        m_message->say(sentence(reason), DialogMessage::Tone::Bad);
}

void DeviceDialog::done(int result)
{
    stopTest();
    QDialog::done(result);
}
