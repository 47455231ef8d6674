#include "connectors/nut/nuttrust.h"

#include "reading/sanitize.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QRegularExpression>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(NutTrust)
};

const QLatin1String kSha256("sha256:");

} // namespace

NutEndpoint NutEndpoint::of(const DeviceSettings& settings)
{
    // One that is no fingerprint fits no certificate.
    const QString pinned = normalizedFingerprint(settings.fingerprint);
    return {settings.address.host, settings.address.port, settings.tls, settings.caFile,
            pinned.isEmpty() ? settings.fingerprint : pinned};
}

bool NutEndpoint::isTrustRequired() const
{
    const bool isNamed = !caFile.isEmpty() || !fingerprint.isEmpty();
    return tls == TlsUse::Required || (tls == TlsUse::Preferred && isNamed);
}

QString NutEndpoint::label() const
{
    return Tr::tr("%1 port %2").arg(host).arg(port);
}

QString NutEndpoint::key() const
{
    return QStringList{host, QString::number(port), QString::number(static_cast<int>(tls)), caFile,
                       fingerprint}
        .join(QLatin1Char('\n'));
}

QString certificateFingerprint(const QSslCertificate& certificate)
{
    return certificate.isNull()
               ? QString()
               : kSha256 +
                     QString::fromLatin1(certificate.digest(QCryptographicHash::Sha256).toHex());
}

QString normalizedFingerprint(const QString& text)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9a-f]{64}$"));
    const QString lower = text.trimmed().toLower();
    if (!lower.startsWith(kSha256))
        return {};
    const QString number = lower.mid(kSha256.size()).remove(QLatin1Char(':'));
    return digits.match(number).hasMatch() ? kSha256 + number : QString();
}

LinkSecurity judgeCertificate(const NutEndpoint& endpoint, const QSslCertificate& certificate,
                              const QList<QSslError>& errors)
{
    LinkSecurity security;
    security.isEncrypted = true;
    security.fingerprint = certificateFingerprint(certificate);
    security.holder = cleanDeviceText(certificate.subjectDisplayName());
    if (!endpoint.fingerprint.isEmpty()) {
        security.isTrusted = endpoint.fingerprint == security.fingerprint;
        if (!security.isTrusted)
            security.issue = Tr::tr("the certificate is not the one that the configuration names.");
        return security;
    }
    security.isTrusted = errors.isEmpty() && !certificate.isNull();
    if (!security.isTrusted)
        security.issue = errors.isEmpty() ? Tr::tr("the server shows no certificate.")
                                          : errors.first().errorString() + QLatin1Char('.');
    return security;
}
