#ifndef SIMULATORFIELDS_H
#define SIMULATORFIELDS_H

// Which scenario the simulator plays.
// May touch: Qt Widgets, the list of scenarios.

#include "window/addressfields.h"

class QComboBox;

class SimulatorFields : public AddressFields
{
    Q_OBJECT

public:
    explicit SimulatorFields(QWidget* parent = nullptr);

    DeviceAddress::Scheme scheme() const override { return DeviceAddress::Scheme::Simulator; }
    void showAddress(const DeviceAddress& address) override;
    DeviceAddress address() const override;
    QString error() const override;
    QString proposedName() const override;

private:
    QComboBox* m_scenario;
};

#endif // SIMULATORFIELDS_H
