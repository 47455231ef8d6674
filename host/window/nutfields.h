#ifndef NUTFIELDS_H
#define NUTFIELDS_H

// One device of a NUT server: host, port, name and account; asks the server which names it has.
// May touch: Qt Widgets, the list of a server's devices.

#include "window/addressfields.h"

class HostPort;
class NutServerList;
class NutTrustFields;
class QComboBox;
class QLineEdit;
class QPushButton;
class SecretEdit;
struct NutUpsEntry;

class NutFields : public AddressFields
{
    Q_OBJECT

public:
    explicit NutFields(QWidget* parent = nullptr);

    DeviceAddress::Scheme scheme() const override { return DeviceAddress::Scheme::Nut; }
    void showAddress(const DeviceAddress& address) override;
    void showAccount(const DeviceSettings& settings) override;
    DeviceAddress address() const override;
    void readAccount(DeviceSettings& settings) const override;
    void showSecurity(const LinkSecurity& link) override;
    QString error() const override;
    QString proposedName() const override;

private:
    void layOut();
    void connectFields();
    void ask();
    void takeList(const QVector<NutUpsEntry>& devices, const QString& error);
    void forgetList();

    HostPort* m_host;
    QComboBox* m_ups;
    QPushButton* m_ask;
    QLineEdit* m_user;
    SecretEdit* m_password;
    NutTrustFields* m_trust;
    NutServerList* m_list = nullptr; // while the server is asked
};

#endif // NUTFIELDS_H
