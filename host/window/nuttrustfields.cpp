#include "window/nuttrustfields.h"

#include "connectors/nut/nuttrust.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kLongestPath = 4096;
constexpr int kLongestFingerprint = 110; // with colons
constexpr int kDigitsInAGroup = 16;

struct ChoiceRow {
    TlsUse use;
    const char* label;
};
constexpr ChoiceRow kChoices[] = {
    {TlsUse::Preferred,
     QT_TRANSLATE_NOOP("NutTrustFields", "Where the server offers it; commands only when trusted")},
    {TlsUse::Required, QT_TRANSLATE_NOOP("NutTrustFields", "Always, and trusted")},
    {TlsUse::Off, QT_TRANSLATE_NOOP("NutTrustFields", "Off: passwords go in plain text")},
};

// In groups that a person can compare and a line can be broken at.
QString grouped(const QString& fingerprint)
{
    const int start = fingerprint.indexOf(QLatin1Char(':')) + 1;
    QStringList groups{fingerprint.left(start)};
    for (int i = start; i < fingerprint.size(); i += kDigitsInAGroup)
        groups << fingerprint.mid(i, kDigitsInAGroup);
    return groups.join(QLatin1Char(' '));
}

} // namespace

NutTrustFields::NutTrustFields(QFormLayout* form, QObject* parent)
    : QObject(parent)
    , m_tls(new QComboBox)
    , m_caFile(new QLineEdit)
    , m_fingerprint(new QLineEdit)
    , m_certificate(new QLabel)
    , m_pin(new QPushButton(tr("P&in this certificate")))
{
    m_tls->setObjectName(QStringLiteral("TlsBox"));
    for (const ChoiceRow& row : kChoices)
        m_tls->addItem(tr(row.label), static_cast<int>(row.use));
    m_caFile->setObjectName(QStringLiteral("CaFileEdit"));
    m_caFile->setMaxLength(kLongestPath);
    m_caFile->setPlaceholderText(tr("those of the system; or a PEM file"));
    m_fingerprint->setObjectName(QStringLiteral("FingerprintEdit"));
    m_fingerprint->setMaxLength(kLongestFingerprint);
    m_fingerprint->setPlaceholderText(tr("none pinned; the connection test shows it"));
    m_certificate->setObjectName(QStringLiteral("CertificateLabel"));
    m_certificate->setTextFormat(Qt::PlainText);
    m_certificate->setWordWrap(true);
    m_certificate->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pin->setObjectName(QStringLiteral("PinButton"));
    m_pin->setAutoDefault(false);

    form->addRow(tr("&Encryption"), m_tls);
    form->addRow(tr("Authorities"), m_caFile);
    form->addRow(tr("&Fingerprint"), m_fingerprint);
    form->addRow(QString(), m_certificate);
    form->addRow(QString(), m_pin);
    showCertificate({});

    connect(m_tls, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &NutTrustFields::edited);
    connect(m_caFile, &QLineEdit::textChanged, this, &NutTrustFields::edited);
    connect(m_fingerprint, &QLineEdit::textChanged, this, &NutTrustFields::edited);
    connect(m_pin, &QPushButton::clicked, this, &NutTrustFields::pin);
}

void NutTrustFields::showSettings(const DeviceSettings& settings)
{
    m_tls->setCurrentIndex(m_tls->findData(static_cast<int>(settings.tls)));
    m_caFile->setText(settings.caFile);
    m_fingerprint->setText(settings.fingerprint);
}

void NutTrustFields::readSettings(DeviceSettings& settings) const
{
    settings.tls = static_cast<TlsUse>(m_tls->currentData().toInt());
    settings.caFile = m_caFile->text().trimmed();
    settings.fingerprint = m_fingerprint->text().trimmed();
}

QString NutTrustFields::error() const
{
    const QString caFile = m_caFile->text().trimmed();
    const QString fingerprint = m_fingerprint->text().trimmed();
    if (!caFile.isEmpty() && !QFileInfo(caFile).isReadable())
        return tr("The file of authorities cannot be read: %1.").arg(caFile);
    if (!fingerprint.isEmpty() && normalizedFingerprint(fingerprint).isEmpty())
        return tr("A fingerprint is sha256: and 64 hexadecimal digits.");
    return {};
}

void NutTrustFields::showCertificate(const LinkSecurity& link)
{
    m_shown = link.fingerprint;
    const bool isPinned = m_shown == normalizedFingerprint(m_fingerprint->text());
    const QString verdict = link.isTrusted
                                ? tr("The server's certificate is trusted.")
                                : tr("The server's certificate is not trusted: %1").arg(link.issue);
    m_certificate->setText(
        QStringList{verdict, link.holder, grouped(m_shown)}.join(QLatin1Char('\n')));
    m_certificate->setVisible(!m_shown.isEmpty());
    m_pin->setVisible(!m_shown.isEmpty() && !isPinned);
}

// After a look at the server's own certificate: from now on this one, and no other, is trusted.
void NutTrustFields::pin()
{
    m_fingerprint->setText(m_shown);
    m_pin->hide();
}
