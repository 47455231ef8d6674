#include "window/snmpfields.h"

#include "window/hostport.h"
#include "window/secretedit.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int kLongestName = 255;
constexpr int kVersion3 = 3;

struct VersionRow {
    int version;
    const char* label;
};
constexpr VersionRow kVersions[] = {{1, "1"}, {2, "2c"}, {kVersion3, "3"}};

// In the order of DeviceAddress::securityLevels().
constexpr const char* kLevelLabels[] = {
    QT_TRANSLATE_NOOP("SnmpFields", "No authentication, no encryption"),
    QT_TRANSLATE_NOOP("SnmpFields", "Authentication, no encryption"),
    QT_TRANSLATE_NOOP("SnmpFields", "Authentication and encryption"),
};

void choose(QComboBox* box, const QString& text)
{
    const int index = box->findText(text);
    if (index >= 0)
        box->setCurrentIndex(index);
}

} // namespace

SnmpFields::SnmpFields(QWidget* parent)
    : AddressFields(parent)
    , m_form(new QFormLayout(this))
    , m_host(new HostPort(DeviceAddress::kSnmpPort))
    , m_version(new QComboBox)
    , m_community(new SecretEdit)
    , m_user(new QLineEdit)
    , m_level(new QComboBox)
    , m_authProtocol(new QComboBox)
    , m_authSecret(new SecretEdit)
    , m_privProtocol(new QComboBox)
    , m_privSecret(new SecretEdit)
    , m_context(new QLineEdit)
{
    fillChoices();
    layOut();
    connectFields();
    showAddress(DeviceAddress());
}

void SnmpFields::fillChoices()
{
    for (const VersionRow& row : kVersions)
        m_version->addItem(QLatin1String(row.label), row.version);
    const QStringList levels = DeviceAddress::securityLevels();
    for (int i = 0; i < levels.size(); ++i)
        m_level->addItem(tr(kLevelLabels[i]), levels.at(i));
    m_authProtocol->addItems(DeviceAddress::authProtocols());
    m_privProtocol->addItems(DeviceAddress::privProtocols());
    m_context->setPlaceholderText(tr("the agent's own"));
    m_user->setMaxLength(kLongestName);
    m_context->setMaxLength(kLongestName);
}

void SnmpFields::layOut()
{
    const struct {
        QWidget* field;
        const char* name;
        QString label;
    } rows[] = {
        {m_host, "SnmpHost", tr("&Host")},
        {m_version, "VersionBox", tr("&Version")},
        {m_community, "CommunityEdit", tr("Comm&unity")},
        {m_user, "SnmpUserEdit", tr("&User")},
        {m_level, "LevelBox", tr("&Security")},
        {m_authProtocol, "AuthProtocolBox", tr("Authent&ication")},
        {m_authSecret, "AuthSecretEdit", tr("Authentication secret")},
        {m_privProtocol, "PrivProtocolBox", tr("Encr&yption")},
        {m_privSecret, "PrivSecretEdit", tr("Encryption secret")},
        {m_context, "ContextEdit", tr("Conte&xt")},
    };
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const auto& row : rows) {
        row.field->setObjectName(QLatin1String(row.name));
        m_form->addRow(row.label, row.field);
    }
}

void SnmpFields::connectFields()
{
    connect(m_host, &HostPort::edited, this, &AddressFields::edited);
    for (QComboBox* box : {m_version, m_level, m_authProtocol, m_privProtocol})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
            showRows();
            emit edited();
        });
    const QLineEdit* const edits[] = {m_community, m_user, m_context, m_authSecret, m_privSecret};
    for (const QLineEdit* edit : edits)
        connect(edit, &QLineEdit::textChanged, this, &AddressFields::edited);
}

void SnmpFields::setTakesRange()
{
    m_host->setTakesRange();
    static_cast<QLabel*>(m_form->labelForField(m_host))->setText(tr("&Range"));
}

void SnmpFields::showAddress(const DeviceAddress& address)
{
    if (address.port != 0)
        m_host->showAddress(address);
    m_version->setCurrentIndex(m_version->findData(address.snmpVersion));
    if (address.community != QLatin1String(kMaskedCommunity))
        showCommunity({}, address.community);
    m_user->setText(address.user);
    const bool secured = address.snmpVersion == kVersion3 && !address.securityLevel.isEmpty();
    m_level->setCurrentIndex(secured ? m_level->findData(address.securityLevel)
                                     : m_level->count() - 1);
    choose(m_authProtocol, secured ? address.authProtocol : QStringLiteral("SHA"));
    choose(m_privProtocol, secured ? address.privProtocol : QStringLiteral("AES"));
    m_context->setText(address.context);
    showRows();
}

void SnmpFields::showAccount(const DeviceSettings& settings)
{
    if (settings.address.snmpVersion < kVersion3)
        showCommunity(settings.address.community, {});
    m_authSecret->setKept(settings.authSecret);
    m_privSecret->setKept(settings.privSecret);
}

void SnmpFields::showCommunity(const QString& kept, const QString& typed)
{
    const QString usual = QStringLiteral("public");
    m_community->setKept(kept == usual ? QString() : kept);
    m_community->setText(typed == usual ? QString() : typed);
    if (m_community->placeholderText().isEmpty())
        m_community->setPlaceholderText(usual);
}

DeviceAddress SnmpFields::address() const
{
    DeviceAddress address;
    address.scheme = scheme();
    m_host->readAddress(address);
    address.snmpVersion = version();
    if (version() < kVersion3) {
        address.community = m_community->secret();
        return address;
    }
    address.user = m_user->text();
    address.securityLevel = m_level->currentData().toString();
    address.authProtocol = m_authProtocol->currentText();
    address.privProtocol = m_privProtocol->currentText();
    address.context = m_context->text();
    return address;
}

void SnmpFields::readAccount(DeviceSettings& settings) const
{
    settings.authSecret = authenticates() ? m_authSecret->secret() : QString();
    settings.privSecret = encrypts() ? m_privSecret->secret() : QString();
}

QString SnmpFields::error() const
{
    const QString error = m_host->error();
    if (!error.isEmpty())
        return error;
    if (version() == kVersion3 && m_user->text().isEmpty())
        return tr("Enter the user of SNMPv3.");
    const auto isShort = [](const SecretEdit* edit) {
        return !edit->text().isEmpty() && edit->text().toUtf8().size() < kShortestSecret;
    };
    if ((authenticates() && isShort(m_authSecret)) || (encrypts() && isShort(m_privSecret)))
        return tr("A secret of SNMPv3 has at least %1 characters.").arg(kShortestSecret);
    return {};
}

QString SnmpFields::proposedName() const
{
    return m_host->host();
}

int SnmpFields::version() const
{
    return m_version->currentData().toInt();
}

bool SnmpFields::authenticates() const
{
    return version() == kVersion3 && m_level->currentIndex() > 0;
}

bool SnmpFields::encrypts() const
{
    return version() == kVersion3 && m_level->currentIndex() == m_level->count() - 1;
}

void SnmpFields::showRows()
{
    const bool v3 = version() == kVersion3;
    const struct {
        QWidget* field;
        bool shown;
    } rows[] = {
        {m_community, !v3},
        {m_user, v3},
        {m_level, v3},
        {m_authProtocol, authenticates()},
        {m_authSecret, authenticates()},
        {m_privProtocol, encrypts()},
        {m_privSecret, encrypts()},
        {m_context, v3},
    };
    for (const auto& row : rows) {
        row.field->setVisible(row.shown);
        m_form->labelForField(row.field)->setVisible(row.shown);
    }
}
