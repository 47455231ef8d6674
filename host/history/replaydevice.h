#ifndef REPLAYDEVICE_H
#define REPLAYDEVICE_H

// A device of the past: shows stored readings at a stored time, and takes no command.
// May touch: devices, connectors by their base class, stored readings; no widget.

#include "fleet/device.h"
#include "history/historyqueries.h"

class ReplayConnector;

class ReplayDevice
{
public:
    // settings: of the device that was recorded.
    ReplayDevice(const DeviceSettings& settings, const Thresholds& thresholds);
    ~ReplayDevice();

    Device& device() { return *m_device; }

    // The replay is somewhere else now.
    void restart() { m_device->forget(); }
    // The replay has come to this reading.
    void show(const StoredReading& stored);
    // Time goes on: what is on show grows old where nothing newer was recorded.
    void setTime(qint64 timeMs);

private:
    struct Clock : FleetClock {
        qint64 monotonicMs() const override { return nowMs; }
        qint64 bootMs() const override { return nowMs; }
        QDateTime now() const override { return QDateTime::fromMSecsSinceEpoch(nowMs); }
        qint64 nowMs = 0;
    };

    Clock m_clock;
    std::unique_ptr<Device> m_device;
    ReplayConnector* m_connector; // the device's
    const qint64 m_intervalMs;    // between readings
    qint64 m_shownMs = 0;
    qint64 m_coveredMs = 0; // from m_shownMs on
};

#endif // REPLAYDEVICE_H
