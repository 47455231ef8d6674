#include "window/nutfields.h"

#include "connectors/nut/nutserverlist.h"
#include "window/hostport.h"
#include "window/nuttrustfields.h"
#include "window/secretedit.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kLongestName = 255;

} // namespace

NutFields::NutFields(QWidget* parent)
    : AddressFields(parent)
    , m_host(new HostPort(DeviceAddress::kNutPort))
    , m_ups(new QComboBox)
    , m_ask(new QPushButton(tr("&List")))
    , m_user(new QLineEdit)
    , m_password(new SecretEdit)
{
    m_ups->setObjectName(QStringLiteral("UpsBox"));
    m_ups->setEditable(true);
    m_ups->setInsertPolicy(QComboBox::NoInsert);
    m_ups->setCompleter(nullptr); // names differ by case
    m_ups->lineEdit()->setMaxLength(kLongestName);
    m_ups->lineEdit()->setPlaceholderText(tr("the only one of the server"));
    m_ask->setObjectName(QStringLiteral("ListButton"));
    m_ask->setToolTip(tr("Asks the server which UPSes it has"));
    m_ask->setAutoDefault(false);
    m_user->setObjectName(QStringLiteral("UserEdit"));
    m_user->setMaxLength(kLongestName);
    m_user->setPlaceholderText(tr("for commands only"));
    m_password->setObjectName(QStringLiteral("PasswordEdit"));
    layOut();
    connectFields();
}

void NutFields::layOut()
{
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Host"), m_host);
    auto* ups = new QHBoxLayout;
    ups->addWidget(m_ups, 1);
    ups->addWidget(m_ask);
    form->addRow(tr("&UPS"), ups);
    static_cast<QLabel*>(form->labelForField(ups))->setBuddy(m_ups);
    form->addRow(tr("U&ser"), m_user);
    form->addRow(tr("Pass&word"), m_password);
    m_trust = new NutTrustFields(form, this);
}

void NutFields::connectFields()
{
    connect(m_host, &HostPort::edited, this, [this] {
        forgetList();
        m_trust->showCertificate({});
        emit edited();
    });
    connect(m_ups, &QComboBox::editTextChanged, this, &AddressFields::edited);
    connect(m_user, &QLineEdit::textChanged, this, &AddressFields::edited);
    connect(m_password, &QLineEdit::textChanged, this, &AddressFields::edited);
    connect(m_trust, &NutTrustFields::edited, this, &AddressFields::edited);
    connect(m_ask, &QPushButton::clicked, this, &NutFields::ask);
}

void NutFields::showAddress(const DeviceAddress& address)
{
    m_host->showAddress(address);
    m_ups->setEditText(address.ups);
}

void NutFields::showAccount(const DeviceSettings& settings)
{
    m_user->setText(settings.user);
    m_password->setKept(settings.secret);
    m_trust->showSettings(settings);
}

DeviceAddress NutFields::address() const
{
    DeviceAddress address;
    address.scheme = scheme();
    m_host->readAddress(address);
    address.ups = m_ups->currentText().trimmed();
    return address;
}

void NutFields::readAccount(DeviceSettings& settings) const
{
    m_trust->readSettings(settings);
    settings.user = m_user->text().trimmed();
    settings.secret = settings.user.isEmpty() ? QString() : m_password->secret();
}

void NutFields::showSecurity(const LinkSecurity& link)
{
    m_trust->showCertificate(link);
}

QString NutFields::error() const
{
    const QString error = m_host->error();
    if (!error.isEmpty())
        return error;
    return m_user->text().trimmed().isEmpty() && !m_password->text().isEmpty()
               ? tr("Enter the user that the password is for.")
               : m_trust->error();
}

QString NutFields::proposedName() const
{
    const QString ups = m_ups->currentText().trimmed();
    return ups.isEmpty() ? m_host->host() : ups;
}

void NutFields::ask()
{
    const QString error = m_host->error();
    if (!error.isEmpty()) {
        emit said(error, true);
        m_host->setFocus();
        return;
    }
    forgetList();
    DeviceSettings settings;
    settings.address = address();
    m_trust->readSettings(settings);
    m_list = new NutServerList(settings, this);
    connect(m_list, &NutServerList::finished, this, &NutFields::takeList);
    m_ask->setEnabled(false);
    emit said(tr("Asking %1 \u2026").arg(settings.address.host), false);
    m_list->start();
}

void NutFields::takeList(const QVector<NutUpsEntry>& devices, const QString& error)
{
    forgetList();
    if (!error.isEmpty() || devices.isEmpty()) {
        emit said(error.isEmpty() ? tr("The server has no UPS.") : error, true);
        return;
    }
    const QString typed = m_ups->currentText();
    m_ups->clear();
    for (const NutUpsEntry& device : devices) {
        m_ups->addItem(device.name);
        // A tool tip would take markup for markup.
        m_ups->setItemData(m_ups->count() - 1,
                           QStringLiteral("<qt>%1</qt>").arg(device.description.toHtmlEscaped()),
                           Qt::ToolTipRole);
    }
    m_ups->setEditText(typed.isEmpty() ? devices.first().name : typed);
    emit said(tr("The server's UPSes: %1.").arg(devices.size()), false);
    if (devices.size() > 1 && isVisible())
        m_ups->showPopup();
    m_ups->setFocus();
}

void NutFields::forgetList()
{
    if (m_list)
        m_list->deleteLater(); // it may be the one that is speaking
    if (m_list)
        m_list->disconnect(this);
    m_list = nullptr;
    m_ask->setEnabled(true);
}
