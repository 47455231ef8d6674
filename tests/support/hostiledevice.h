#ifndef HOSTILEDEVICE_H
#define HOSTILEDEVICE_H

// A device on loopback whose answers are spoilt, in the same way every time, until it is told to
// behave.
// May touch: the tests' server and agent. Needs an event loop.

#include "connectors/devicesettings.h"
#include "support/lineserver.h"
#include "support/mutator.h"
#include "support/snmpagent.h"

#include <memory>

class HostileDevice
{
public:
    explicit HostileDevice(DeviceAddress::Scheme scheme); // Nut or Snmp

    DeviceSettings settings() const;
    int spoilt() const { return m_spoilt; } // answers so far
    void behave();

private:
    QByteArray spoil(const QByteArray& good);

    Mutator m_mutator{1};
    int m_spoilt = 0;
    bool m_hostile = true;
    std::unique_ptr<LineServer> m_server; // one of the two
    std::unique_ptr<SnmpAgent> m_agent;
};

#endif // HOSTILEDEVICE_H
