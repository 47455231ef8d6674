#ifndef ADDRESSFIELDS_H
#define ADDRESSFIELDS_H

// The fields that one kind of device address is made of, and the account that goes with it.
// May touch: Qt Widgets, addresses and settings.

#include "connectors/devicesettings.h"
#include "connectors/linksecurity.h"

#include <QWidget>

class AddressFields : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual DeviceAddress::Scheme scheme() const = 0;

    // Fill the fields: with an address of this kind, or with user and secrets.
    virtual void showAddress(const DeviceAddress& address) = 0;
    virtual void showAccount(const DeviceSettings& settings) { Q_UNUSED(settings) }

    // What the fields say; text is left empty.
    virtual DeviceAddress address() const = 0;
    virtual void readAccount(DeviceSettings& settings) const { Q_UNUSED(settings) }

    // What a connection test has found out about the link.
    virtual void showSecurity(const LinkSecurity& link) { Q_UNUSED(link) }

    // What is wrong or missing, for the operator; empty: nothing that is known here.
    virtual QString error() const = 0;
    // A name for a device that has none yet.
    virtual QString proposedName() const = 0;

signals:
    void edited(); // also when the fields are filled
    void said(const QString& text, bool isBad);
};

#endif // ADDRESSFIELDS_H
