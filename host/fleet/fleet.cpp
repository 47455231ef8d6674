#include "fleet/fleet.h"

#include <algorithm>

namespace {

constexpr int kTickMs = 1000;
// The boot clock runs ahead of the monotonic one by this much more after a suspend worth naming.
constexpr qint64 kSuspendMs = 2000;
// Devices of one interval take places 0, 1/2, 1/4, 3/4, ... of it: spread evenly at any number.
constexpr quint32 kPlaceBits = 16;
// Between two polls out of turn.
constexpr qint64 kOutOfTurnGapMs = 10;
constexpr int kAskAgainMs = 500; // where nothing may be polled now

double placeInInterval(quint32 number)
{
    quint32 reversed = 0;
    for (quint32 bit = 0; bit < kPlaceBits; ++bit)
        if (number & (1u << bit))
            reversed |= 1u << (kPlaceBits - 1 - bit);
    return static_cast<double>(reversed) / (1u << kPlaceBits);
}

} // namespace

Fleet::Fleet(ConnectorMaker maker, const FleetClock& clock, QObject* parent)
    : QObject(parent)
    , m_maker(std::move(maker))
    , m_clock(clock)
    , m_suspendedMs(clock.bootMs() - clock.monotonicMs())
{
    m_pollTimer.setSingleShot(true);
    m_pollTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_pollTimer, &QTimer::timeout, this, &Fleet::pollDueDevices);
    m_tickTimer.setInterval(kTickMs);
    connect(&m_tickTimer, &QTimer::timeout, this, &Fleet::tick);
    m_tickTimer.start();
}

Fleet::~Fleet() = default;

int Fleet::indexOf(const Device* device) const
{
    const auto found = std::find_if(m_devices.begin(), m_devices.end(),
                                    [device](const auto& d) { return d.get() == device; });
    return found != m_devices.end() ? static_cast<int>(found - m_devices.begin()) : -1;
}

std::unique_ptr<Device> Fleet::makeDevice(const DeviceSettings& settings, qint64 firstDueMs)
{
    auto device = std::make_unique<Device>(settings, m_maker(settings), m_clock, firstDueMs);
    device->setThresholds(m_thresholds);
    Device* raw = device.get();
    connect(raw, &Device::polled, this, [this, raw] {
        emit devicePolled(raw);
        schedule();
    });
    connect(raw, &Device::commandFinished, this,
            [this, raw](const CommandResult& result) { emit commandFinished(raw, result); });
    return device;
}

qint64 Fleet::newPlaceMs(const DeviceSettings& settings)
{
    const double place = placeInInterval(m_placesTaken++);
    return m_clock.monotonicMs() + static_cast<qint64>(place * settings.pollInterval * 1000);
}

Device* Fleet::add(const DeviceSettings& settings, qint64 holdMs)
{
    m_devices.push_back(makeDevice(settings, newPlaceMs(settings) + holdMs));
    if (holdMs > 0)
        m_devices.back()->hold(m_clock.monotonicMs() + holdMs);
    emit deviceAdded(count() - 1);
    schedule();
    return m_devices.back().get();
}

void Fleet::remove(int index)
{
    emit deviceAboutToBeRemoved(index);
    m_devices.erase(m_devices.begin() + index);
    emit deviceRemoved(index);
}

void Fleet::move(int from, int to)
{
    if (from == to)
        return;
    auto device = std::move(m_devices[static_cast<std::size_t>(from)]);
    m_devices.erase(m_devices.begin() + from);
    m_devices.insert(m_devices.begin() + to, std::move(device));
    emit deviceMoved(from, to);
}

Device* Fleet::replace(int index, const DeviceSettings& settings)
{
    const Device& old = *at(index); // whose settings these may be
    const bool keepsPlace = old.settings().pollInterval == settings.pollInterval;
    auto device = makeDevice(settings, keepsPlace ? old.placeAfter(m_clock.monotonicMs())
                                                  : newPlaceMs(settings));
    emit deviceAboutToBeRemoved(index);
    m_devices.erase(m_devices.begin() + index);
    emit deviceRemoved(index);
    m_devices.insert(m_devices.begin() + index, std::move(device));
    emit deviceAdded(index);
    emit deviceReplaced(index);
    pollNow(at(index));
    return at(index);
}

void Fleet::pollNow(Device* device)
{
    m_lastOutOfTurnMs = std::max(m_clock.monotonicMs(), m_lastOutOfTurnMs + kOutOfTurnGapMs);
    device->hurry(m_lastOutOfTurnMs);
    schedule();
}

void Fleet::release(Device* device)
{
    if (!device->isHeld())
        return;
    device->hold(0);
    pollNow(device);
}

void Fleet::setThresholds(const Thresholds& thresholds)
{
    m_thresholds = thresholds;
    for (const auto& device : m_devices)
        device->setThresholds(thresholds);
}

void Fleet::pollDueDevices()
{
    if (!mayPoll())
        return schedule();
    const qint64 now = m_clock.monotonicMs();
    for (const auto& device : m_devices)
        if (!device->isPolling() && device->dueMs() <= now)
            device->startPoll();
    schedule();
}

void Fleet::schedule()
{
    if (!mayPoll()) {
        if (!m_pollTimer.isActive())
            m_pollTimer.start(kAskAgainMs);
        return;
    }
    qint64 next = -1;
    for (const auto& device : m_devices)
        if (!device->isPolling() && (next < 0 || device->dueMs() < next))
            next = device->dueMs();
    if (next < 0) {
        m_pollTimer.stop();
        return;
    }
    m_pollTimer.start(static_cast<int>(std::max<qint64>(next - m_clock.monotonicMs(), 0)));
}

void Fleet::tick()
{
    const qint64 suspended = m_clock.bootMs() - m_clock.monotonicMs();
    if (suspended - m_suspendedMs > kSuspendMs) {
        for (const auto& device : m_devices)
            device->hurry(m_clock.monotonicMs());
        schedule();
    }
    m_suspendedMs = suspended;
    for (const auto& device : m_devices) {
        device->checkPollLimit();
        device->noteCondition();
    }
    emit ticked();
}
