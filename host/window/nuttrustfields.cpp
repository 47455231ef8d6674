#include "window/nuttrustfields.h"

#include "connectors/nut/nuttrust.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kLongestPath = 4096;
constexpr int kLongestFingerprint = 110; // with colons
constexpr int kDigitsInAGroup = 16;
constexpr int kLongestHolder = 40; // characters of it that are shown

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

// In groups that a person can compare, half of them a line.
QString inGroups(const QString& fingerprint)
{
    QString text = fingerprint;
    const int start = fingerprint.indexOf(QLatin1Char(':')) + 1;
    const int middle = (fingerprint.size() - start) / 2;
    for (int at = fingerprint.size() - start - kDigitsInAGroup; at > 0; at -= kDigitsInAGroup)
        text.insert(start + at, QLatin1Char(at == middle ? '\n' : ' '));
    return text;
}

} // namespace

NutTrustFields::NutTrustFields(QFormLayout* form, QObject* parent)
    : QObject(parent)
    , m_tls(new QComboBox)
    , m_caFile(new QLineEdit)
    , m_fingerprint(new QLineEdit)
    , m_certificate(new QLabel)
    , m_pin(new QPushButton(tr("P&in it")))
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
    m_certificate->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pin->setObjectName(QStringLiteral("PinButton"));
    m_pin->setAutoDefault(false);
    m_pin->setToolTip(tr("Trust this certificate, and no other, from now on"));

    form->addRow(tr("&Encryption"), m_tls);
    form->addRow(tr("Authorities"), m_caFile);
    form->addRow(tr("&Fingerprint"), m_fingerprint);
    auto* shown = new QHBoxLayout;
    shown->addWidget(m_certificate, 1);
    shown->addWidget(m_pin, 0, Qt::AlignBottom);
    form->addRow(QString(), shown);
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
    const QString holder = link.holder.left(kLongestHolder);
    const QString who =
        link.isTrusted ? tr("%1, trusted").arg(holder) : tr("%1, not trusted").arg(holder);
    m_certificate->setText(who + QLatin1Char('\n') + inGroups(m_shown));
    m_certificate->setVisible(!m_shown.isEmpty());
    m_pin->setVisible(!m_shown.isEmpty() && !isPinned);
}

// After a look at the server's own certificate: from now on this one, and no other, is trusted.
void NutTrustFields::pin()
{
    m_fingerprint->setText(m_shown);
    m_pin->hide();
}
