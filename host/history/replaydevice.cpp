#include "history/replaydevice.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int kPollInterval = 1; // s; how long a reading holds is the replay's own business
constexpr qint64 kMsPerSecond = 1000;

// Everything was scaled before it was stored.
DeviceSettings replaySettings(DeviceSettings settings)
{
    settings.scales.clear();
    settings.pollInterval = kPollInterval;
    settings.secret.clear();
    return settings;
}

QString messageOf(LinkState link)
{
    return link == LinkState::Live
               ? QString()
               : QCoreApplication::translate("ReplayDevice", "It was recorded like this.");
}

} // namespace

class ReplayConnector : public Connector
{
public:
    void poll() override {}
    void send(const UpsCommand& command) override
    {
        CommandResult result;
        result.id = command.id;
        result.outcome = CommandOutcome::Refused;
        result.message = QCoreApplication::translate("ReplayDevice", "The past takes no commands.");
        emit commandFinished(result);
    }
    void show(const StoredReading& stored)
    {
        PollResult result;
        result.state = stored.link;
        result.reading = stored.reading;
        result.message = messageOf(stored.link);
        emit polled(result);
    }
};

ReplayDevice::ReplayDevice(const DeviceSettings& settings, const Thresholds& thresholds)
    : m_intervalMs(settings.pollInterval * kMsPerSecond)
{
    auto connector = std::make_unique<ReplayConnector>();
    m_connector = connector.get();
    m_device = std::make_unique<Device>(replaySettings(settings), std::move(connector), m_clock, 0);
    m_device->setThresholds(thresholds);
}

ReplayDevice::~ReplayDevice() = default;

void ReplayDevice::show(const StoredReading& stored)
{
    m_shownMs = stored.timeMs;
    m_coveredMs = std::max(stored.spanMs, m_intervalMs);
    m_clock.nowMs = stored.timeMs;
    m_connector->show(stored);
}

void ReplayDevice::setTime(qint64 timeMs)
{
    m_clock.nowMs = std::max(m_shownMs, timeMs - m_coveredMs);
    m_device->noteCondition();
}
