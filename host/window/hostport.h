#ifndef HOSTPORT_H
#define HOSTPORT_H

// Host and port on one row.
// May touch: Qt Widgets, addresses.

#include "connectors/deviceaddress.h"

#include <QWidget>

class QLineEdit;
class QSpinBox;

class HostPort : public QWidget
{
    Q_OBJECT

public:
    explicit HostPort(int standardPort, QWidget* parent = nullptr);

    // Takes a range of addresses instead of one host.
    void setTakesRange();

    void showAddress(const DeviceAddress& address);
    void readAddress(DeviceAddress& address) const;
    QString host() const;
    QString error() const; // empty: a host that an address can carry, or a range

signals:
    void edited();

private:
    bool m_takesRange = false;
    QLineEdit* m_host;
    QSpinBox* m_port;
};

#endif // HOSTPORT_H
