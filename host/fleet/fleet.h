#ifndef FLEET_H
#define FLEET_H

// All watched devices and the schedule of their polls.
// May touch: devices and connectors by their base class; no widget.

#include "fleet/device.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class Fleet : public QObject
{
    Q_OBJECT

public:
    using ConnectorMaker = std::function<std::unique_ptr<Connector>(const DeviceSettings&)>;

    explicit Fleet(ConnectorMaker maker, const FleetClock& clock = FleetClock::system(),
                   QObject* parent = nullptr);
    ~Fleet() override;

    // What makes the connectors of its devices: to try settings in the same way.
    const ConnectorMaker& connectorMaker() const { return m_maker; }

    int count() const { return static_cast<int>(m_devices.size()); }
    // index: 0 to count() - 1.
    Device* at(int index) const { return m_devices[static_cast<std::size_t>(index)].get(); }
    int indexOf(const Device* device) const; // -1: not (or no longer) one of ours

    // The first polls of devices added together are spread over the interval; the very first
    // device is polled at once. holdMs: leaves the first poll until so much later, or until the
    // device is released.
    Device* add(const DeviceSettings& settings, qint64 holdMs = 0);
    void remove(int index);
    void move(int from, int to);
    // New settings, new connector; the device keeps its place in the list and, where the interval
    // stays, in the interval. Its last reading is forgotten, and it is polled now.
    Device* replace(int index, const DeviceSettings& settings);

    // Out of turn; where many ask for it together (secrets that arrive), one shortly after another.
    void pollNow(Device* device);
    // What the device was held back for has come, or will not come.
    void release(Device* device);

    // Asked before devices are polled: whether they may be at this moment. By default always.
    void setPermit(const std::function<bool()>& mayPoll) { m_mayPoll = mayPoll; }
    bool mayPoll() const { return !m_mayPoll || m_mayPoll(); }

    // For all devices, those that are there and those to come.
    void setThresholds(const Thresholds& thresholds);
    const Thresholds& thresholds() const { return m_thresholds; }

signals:
    void deviceAdded(int index);
    void deviceAboutToBeRemoved(int index);
    void deviceRemoved(int index);
    void deviceMoved(int from, int to);
    // After the three above: who showed the old device may show the new one in its place.
    void deviceReplaced(int index);
    void devicePolled(Device* device);
    void commandFinished(Device* device, const CommandResult& result);
    // Once a second, after limits have been checked: ages have grown.
    void ticked();

private:
    std::unique_ptr<Device> makeDevice(const DeviceSettings& settings, qint64 firstDueMs);
    qint64 newPlaceMs(const DeviceSettings& settings);
    void pollDueDevices();
    void schedule();
    void tick();

    ConnectorMaker m_maker;
    std::function<bool()> m_mayPoll;
    Thresholds m_thresholds;
    const FleetClock& m_clock;
    std::vector<std::unique_ptr<Device>> m_devices;
    QTimer m_pollTimer;
    QTimer m_tickTimer;
    qint64 m_suspendedMs; // boot clock ahead of the monotonic clock at the last tick
    quint32 m_placesTaken = 0;
    qint64 m_lastOutOfTurnMs = 0; // on the monotonic clock
};

#endif // FLEET_H
