#ifndef SNMPFIELDS_H
#define SNMPFIELDS_H

// An SNMP agent: host, port, version, and the community or the user with security and secrets.
// May touch: Qt Widgets.

#include "window/addressfields.h"

class HostPort;
class QComboBox;
class QFormLayout;
class QLineEdit;
class SecretEdit;

class SnmpFields : public AddressFields
{
    Q_OBJECT

public:
    explicit SnmpFields(QWidget* parent = nullptr);

    // For many agents with the same community or user: the host is a range of addresses.
    void setTakesRange();

    DeviceAddress::Scheme scheme() const override { return DeviceAddress::Scheme::Snmp; }
    void showAddress(const DeviceAddress& address) override;
    void showAccount(const DeviceSettings& settings) override;
    DeviceAddress address() const override;
    void readAccount(DeviceSettings& settings) const override;
    QString error() const override;
    QString proposedName() const override;

    // Stands in an address for a community that is kept in its field.
    static constexpr char kMaskedCommunity[] = "***";
    static constexpr int kShortestSecret = 8; // octets; RFC 3414 asks for them

private:
    void fillChoices();
    void layOut();
    void connectFields();
    int version() const;
    bool authenticates() const;
    bool encrypts() const;
    void showCommunity(const QString& kept, const QString& typed);
    // Only the rows that the version and the level use.
    void showRows();

    QFormLayout* m_form;
    HostPort* m_host;
    QComboBox* m_version;
    SecretEdit* m_community; // as good as a password
    QLineEdit* m_user;
    QComboBox* m_level;
    QComboBox* m_authProtocol;
    SecretEdit* m_authSecret;
    QComboBox* m_privProtocol;
    SecretEdit* m_privSecret;
    QLineEdit* m_context;
};

#endif // SNMPFIELDS_H
