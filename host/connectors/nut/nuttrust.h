#ifndef NUTTRUST_H
#define NUTTRUST_H

// Where a NUT server is, and what makes a link to it trusted.
// May touch: certificates by Qt Network, device settings, readings. No socket.

#include "connectors/devicesettings.h"
#include "connectors/linksecurity.h"

#include <QSslCertificate>
#include <QSslError>

struct NutEndpoint {
    QString host;
    quint16 port = 0;
    TlsUse tls = TlsUse::Preferred;
    QString caFile;      // authorities in place of the system's; empty: the system's
    QString fingerprint; // "sha256:..." of the one certificate that is trusted; empty: any good one

    static NutEndpoint of(const DeviceSettings& settings);
    // Required, or named: who names a certificate or an authority expects nobody else's answers.
    bool isTrustRequired() const;
    QString label() const; // "HOST port PORT", for messages
    QString key() const;   // equal for endpoints that may share a connection
};

// "sha256:" and 64 digits in lower case.
QString certificateFingerprint(const QSslCertificate& certificate);

// "sha256:" with 64 hexadecimal digits, of any case, colons between them allowed: in the form
// above; empty where it is none.
QString normalizedFingerprint(const QString& text);

// What an encrypted link is worth: a pinned certificate decides alone, else the errors that the
// handshake found.
LinkSecurity judgeCertificate(const NutEndpoint& endpoint, const QSslCertificate& certificate,
                              const QList<QSslError>& errors);

#endif // NUTTRUST_H
