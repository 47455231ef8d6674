#ifndef DEVICEDIALOG_H
#define DEVICEDIALOG_H

// Adds a device or changes one: its address in fields and as text, tried out before it is kept.
// May touch: Qt Widgets, addresses, the limits of the configuration, connectors by their base
// class.

#include "fleet/connectiontest.h"
#include "window/dialogmessage.h"

#include <QDialog>

class AddressFields;
class DeviceAdvanced;
class QComboBox;
class QFormLayout;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QStackedWidget;

class DeviceDialog : public QDialog
{
    Q_OBJECT

public:
    // Keeps the settings and returns why that was refused; empty: done, and the dialog closes.
    using Save = std::function<QString(const DeviceSettings&)>;

    // device: with its secrets, which stay as they are where no others are typed; without a name
    // it is a new one. takenNames: of the other devices.
    DeviceDialog(const DeviceSettings& device, const QStringList& takenNames,
                 const Fleet::ConnectorMaker& maker, const Save& save, QWidget* parent = nullptr);
    ~DeviceDialog() override;

    // As the fields say; of use while error() is empty.
    DeviceSettings settings() const;
    // The first thing that is wrong; OK and the test wait for it to be mended.
    QString error() const;

    void accept() override;
    void done(int result) override;

private:
    QFormLayout* makeTop();
    QWidget* makeTabs();
    QHBoxLayout* makeFoot();
    void connectFields();
    AddressFields* fields() const;
    QString name() const;
    void showDevice(const DeviceSettings& device);
    QString addressOfFields() const;
    DeviceAddress address() const;
    void takeAddress(const QString& text);
    void showAddressOf(const DeviceAddress& address);
    void takeFields();
    void review();
    void touch();
    void toggleTest();
    void stopTest();
    void showTestResult();

    const DeviceSettings m_device;
    const QStringList m_takenNames;
    const Fleet::ConnectorMaker m_maker;
    const Save m_save;
    QString m_addressError; // of text that was typed and is no address; the fields are older
    QString m_testedName;   // what the device called itself in the last test
    bool m_filling = false;
    bool m_touched = false; // something has been typed
    std::unique_ptr<ConnectionTest> m_test;

    QLineEdit* m_name;
    QLineEdit* m_group;
    QComboBox* m_kind;
    QLineEdit* m_address;
    QSpinBox* m_interval;
    QStackedWidget* m_fields; // of the kinds, in their order
    DeviceAdvanced* m_advanced;
    DialogMessage* m_message;
    QPushButton* m_testButton;
    QPushButton* m_ok;
};

#endif // DEVICEDIALOG_H
