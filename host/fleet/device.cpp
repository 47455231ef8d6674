#include "fleet/device.h"

#include "reading/readingscale.h"
#include "reading/sanitize.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 kMsPerSecond = 1000;
// A NUT server may serve values this old before it says so.
constexpr qint64 kServerMaxAgeMs = 15 * kMsPerSecond;
// What a connector may need beyond its own time-outs to say that a poll has failed.
constexpr qint64 kPollSlackMs = 15 * kMsPerSecond;

} // namespace

Device::Device(const DeviceSettings& settings, std::unique_ptr<Connector> connector,
               const FleetClock& clock, qint64 firstDueMs)
    : m_settings(settings)
    , m_connector(std::move(connector))
    , m_clock(clock)
    , m_plan(settings.pollInterval * kMsPerSecond, firstDueMs)
{
    noteCondition();
    connect(m_connector.get(), &Connector::polled, this, &Device::takeResult);
    connect(m_connector.get(), &Connector::commandFinished, this, &Device::commandFinished);
}

Device::~Device() = default;

bool Device::isSimulated() const
{
    return m_settings.address.scheme == DeviceAddress::Scheme::Simulator;
}

LinkState Device::link() const
{
    return m_link == LinkState::Live && ageMs() > freshnessLimitMs() ? LinkState::Stale : m_link;
}

QString Device::message() const
{
    if (m_link == LinkState::Live && link() == LinkState::Stale)
        return tr("There has been no new data for a while.");
    return m_message;
}

qint64 Device::ageMs() const
{
    return m_reading ? m_clock.bootMs() - m_readingBootMs : -1;
}

qint64 Device::freshnessLimitMs() const
{
    return kServerMaxAgeMs + (m_settings.pollInterval + m_settings.timeout) * kMsPerSecond;
}

QMap<int, QVariant> Device::snapshot(SnapshotPage page) const
{
    if (!m_reading)
        return {};
    static const char* const protocols[] = {"sim", "nut", "snmp"};
    SnapshotLink info;
    info.communicationsLost = link() != LinkState::Live;
    info.protocol = QLatin1String(protocols[static_cast<int>(m_settings.address.scheme)]);
    info.state = linkStateName(link());
    info.failedPolls = failedPolls();
    info.address = address();
    return deviceSnapshot(*m_reading, page, info);
}

void Device::startPoll()
{
    m_pollStarted = m_clock.bootMs();
    m_connector->poll();
}

void Device::hurry(qint64 atMs)
{
    m_followUp = isPolling();
    m_plan.hurry(std::max(atMs, m_heldUntilMs));
}

void Device::send(UpsCommand command)
{
    command.shutdownDelay = m_settings.shutdownDelay;
    command.restartDuration = m_settings.restartDuration;
    m_connector->send(command);
}

void Device::checkPollLimit()
{
    const qint64 limit =
        m_settings.timeout * (m_settings.retries + 1) * kMsPerSecond + kPollSlackMs;
    if (isPolling() && m_clock.bootMs() - m_pollStarted > limit) {
        PollResult silence;
        silence.state = LinkState::Lost;
        silence.message = tr("The poll was not answered in time.");
        takeResult(silence);
    }
}

void Device::takeResult(const PollResult& result)
{
    m_pollStarted = -1;
    m_link = result.state;
    m_message = cleanDeviceText(result.message);
    // A silent driver is asked as often as a live one: its server answers, and it may be back soon.
    if (result.state == LinkState::Live || result.state == LinkState::Stale)
        m_plan.succeeded(m_clock.monotonicMs());
    else
        m_plan.failed(m_clock.monotonicMs());
    if (std::exchange(m_followUp, false))
        m_plan.hurry(m_clock.monotonicMs());
    if (result.state == LinkState::Live) {
        m_reading = result.reading;
        applyScales(*m_reading, m_settings.scales);
        m_readingBootMs = m_clock.bootMs();
        ++m_readingNumber;
    }
    noteCondition();
    emit polled();
}

void Device::noteCondition()
{
    const QString text = condition().text;
    if (text == m_conditionText)
        return;
    m_conditionText = text;
    m_conditionSince = m_clock.now();
}
