#ifndef FINDDEVICESDIALOG_H
#define FINDDEVICESDIALOG_H

// Adds several devices at once: those of a NUT server, or SNMP agents in a range of addresses. What
// is found is listed; only what is ticked is added.
// May touch: Qt Widgets, addresses, connectors by their base class, the list of a NUT server.

#include "fleet/rangescan.h"
#include "window/dialogmessage.h"

#include <QDialog>

class HostPort;
class NutServerList;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTableWidget;
class SecretEdit;
class SnmpFields;

class FindDevicesDialog : public QDialog
{
    Q_OBJECT

public:
    // Keeps the devices and returns why that was refused; empty: done, and the dialog closes.
    using Save = std::function<QString(const QVector<DeviceSettings>&)>;

    // fresh: what a new device starts with. takenNames: of the devices there are.
    FindDevicesDialog(const DeviceSettings& fresh, const QStringList& takenNames,
                      const Fleet::ConnectorMaker& maker, const Save& save,
                      QWidget* parent = nullptr);
    ~FindDevicesDialog() override;

    // Those ticked, with the names in the table.
    QVector<DeviceSettings> chosen() const;

    void accept() override;
    void done(int result) override;

private:
    QWidget* makeServerFields();
    void makeTable();
    void layOut();
    void connectAll();

    void toggleSearch();
    void searchServer();
    void searchRange();
    void stopSearch();
    void concludeSearch(const QString& error);
    // what: in which words the table says what it is.
    void addRow(DeviceSettings settings, const QString& name, const QString& what);
    void tickAll(bool on);
    void review();

    const DeviceSettings m_fresh;
    const QStringList m_takenNames;
    const Fleet::ConnectorMaker m_maker;
    const Save m_save;
    QVector<DeviceSettings> m_found; // in the order of the rows
    NutServerList* m_list = nullptr; // these two: while they search
    RangeScan* m_scan = nullptr;

    QComboBox* m_kind;
    QStackedWidget* m_fields;
    HostPort* m_server;
    QLineEdit* m_user;
    SecretEdit* m_password;
    SnmpFields* m_snmp;
    QLineEdit* m_group;
    QPushButton* m_search;
    QTableWidget* m_table;
    QCheckBox* m_all;
    DialogMessage* m_message;
    QPushButton* m_ok = nullptr;
};

#endif // FINDDEVICESDIALOG_H
