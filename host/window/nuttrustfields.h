#ifndef NUTTRUSTFIELDS_H
#define NUTTRUSTFIELDS_H

// How far the link to a NUT server has to be encrypted and trusted; shows the certificate that the
// server has shown, and offers to pin it.
// May touch: Qt Widgets, device settings, fingerprints of certificates.

#include "connectors/devicesettings.h"
#include "connectors/linksecurity.h"

#include <QObject>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

class NutTrustFields : public QObject
{
    Q_OBJECT

public:
    // Adds its rows to the form, whose widget must live as long.
    explicit NutTrustFields(QFormLayout* form, QObject* parent = nullptr);

    void showSettings(const DeviceSettings& settings);
    void readSettings(DeviceSettings& settings) const;
    // What is wrong, for the operator; empty: nothing that is known here.
    QString error() const;

    // The certificate of the server, as far as there is one.
    void showCertificate(const LinkSecurity& link);

signals:
    void edited(); // also when the fields are filled

private:
    void pin();

    QComboBox* m_tls;
    QLineEdit* m_caFile;
    QLineEdit* m_fingerprint;
    QLabel* m_certificate;
    QPushButton* m_pin;
    QString m_shown; // fingerprint of the certificate on show
};

#endif // NUTTRUSTFIELDS_H
