#ifndef CONNECTIONTEST_H
#define CONNECTIONTEST_H

// One poll of a device that is not in the fleet: do these settings work?
// May touch: devices and connectors by their base class; no widget.

#include "fleet/fleet.h"
#include "fleet/singlepoll.h"

class ConnectionTest : public QObject
{
    Q_OBJECT

public:
    ConnectionTest(const Fleet::ConnectorMaker& maker, const DeviceSettings& settings,
                   QObject* parent = nullptr);

    // Ends with exactly one finished(), in any case; call it once. Deleting the test breaks it off.
    void start() { m_poll.start(); }
    // When finished: live, stale, lost or refused, with message and reading.
    const Device& device() const { return m_device; }

signals:
    void finished();

private:
    Device m_device;
    SinglePoll m_poll;
};

#endif // CONNECTIONTEST_H
