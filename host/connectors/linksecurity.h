#ifndef LINKSECURITY_H
#define LINKSECURITY_H

// How far a link can be trusted.
// May touch: Qt Core.

#include <QMetaType>
#include <QString>

struct LinkSecurity {
    bool isLocal = false; // it does not leave this machine
    bool isEncrypted = false;
    bool isTrusted = false;
    QString issue;       // why it is not trusted, for the operator
    QString holder;      // whom the certificate names
    QString fingerprint; // of the certificate, "sha256:..." in hexadecimal; empty: there was none
};
Q_DECLARE_METATYPE(LinkSecurity)

#endif // LINKSECURITY_H
