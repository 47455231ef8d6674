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
    connect(m_connector.get(), &Connector::polled, this, &Device::takeAnswer);
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

// As long as a poll may take before the connector has to say that it failed.
qint64 Device::pollLimitMs() const
{
    return m_settings.timeout * (m_settings.retries + 1) * kMsPerSecond;
}

// Readings are as old as the questions: with every poll at its limit, one may be this old before
// the next one is in.
qint64 Device::freshnessLimitMs() const
{
    return kServerMaxAgeMs + m_settings.pollInterval * kMsPerSecond + 2 * pollLimitMs();
}

// What goes on like before after a silence as short as this, goes on.
qint64 Device::shortGapMs() const
{
    return freshnessLimitMs() + m_settings.pollInterval * kMsPerSecond;
}

void Device::setThresholds(const Thresholds& thresholds)
{
    m_thresholds = thresholds;
    m_past.limits = m_reading ? limitsBeyond(*m_reading, m_thresholds) : Limits();
    m_judgedLink.reset();
    noteCondition();
}

void Device::forget()
{
    m_link = LinkState::Connecting;
    m_reading.reset();
    m_past = {};
    m_testSinceMs = -1;
    m_noticed = {};
    m_beforeGap = {};
    m_judgedLink.reset();
    noteCondition();
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
    if (m_askedMs < 0)
        m_askedMs = m_pollStarted;
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
    if (isPolling() && m_clock.bootMs() - m_pollStarted > pollLimitMs() + kPollSlackMs) {
        PollResult silence;
        silence.state = LinkState::Lost;
        silence.message = tr("The poll was not answered in time.");
        noteResult(silence, m_pollStarted);
    }
}

void Device::planNext(LinkState state)
{
    // A silent driver is asked as often as a live one: its server answers, and it may be back soon.
    if (state == LinkState::Live || state == LinkState::Stale)
        m_plan.succeeded(m_clock.monotonicMs());
    else
        m_plan.failed(m_clock.monotonicMs());
    if (std::exchange(m_followUp, false))
        m_plan.hurry(m_clock.monotonicMs());
}

// An answer may have been under way for long: the machine may have slept meanwhile. Where its poll
// was given up before, the connector has not begun the next one.
void Device::takeAnswer(const PollResult& result)
{
    const qint64 asked = m_askedMs >= 0 ? m_askedMs : m_clock.bootMs();
    m_askedMs = -1;
    m_followUp = m_followUp || (isPolling() && asked != m_pollStarted);
    noteResult(result, asked);
}

void Device::takeResult(const PollResult& result)
{
    noteResult(result, result.askedBootMs.value_or(m_clock.bootMs()));
}

void Device::noteResult(const PollResult& result, qint64 askedBootMs)
{
    m_pollStarted = -1;
    planNext(result.state);
    m_security = result.security;
    const bool isConfirmed = result.askedBootMs || result.state != LinkState::Lost ||
                             m_link != LinkState::Live || m_plan.isSilenceConfirmed();
    if (isConfirmed) {
        m_link = result.state;
        m_message = cleanDeviceText(result.message);
    }
    if (result.state == LinkState::Live)
        takeReading(result.reading, askedBootMs);
    m_judgedLink.reset();
    noteCondition();
    emit polled();
}

void Device::takeReading(const UpsReading& reading, qint64 askedBootMs)
{
    m_reading = reading;
    applyScales(*m_reading, m_settings.scales);
    m_readingBootMs = askedBootMs;
    ++m_readingNumber;
    m_noticed.heardMs = askedBootMs;
    m_past.limits = limitsBeyond(*m_reading, m_thresholds, m_past.limits);
    if (!m_reading->alarms.contains(Alarm::TestInProgress))
        m_testSinceMs = -1;
    else if (m_testSinceMs < 0)
        m_testSinceMs = askedBootMs;
    m_past.testSeconds = testSeconds(askedBootMs);
    // A test that does not end is an outage on every page.
    if (m_reading->outputSource == OutputSource::Battery &&
        !isExcusedByTest(*m_reading, m_past.testSeconds))
        m_reading->alarms.insert(Alarm::OnBattery);
}

// A desk that has just started has seen nothing yet: then the device's own clock tells.
double Device::testSeconds(qint64 nowBootMs) const
{
    if (m_testSinceMs < 0)
        return 0;
    return std::max(static_cast<double>(nowBootMs - m_testSinceMs) / kMsPerSecond,
                    m_reading->alarmAges.value(Alarm::TestInProgress));
}

// Lists ask for it often, and between two polls only the link can change.
Condition Device::condition() const
{
    return m_judgedLink == link() ? m_noticed.condition
                                  : conditionOf(link(), reading(), m_thresholds, m_past);
}

void Device::noteCondition()
{
    if (m_judgedLink == link())
        return;
    const Condition now = condition();
    m_judgedLink = link();
    if (m_noticed.since.isValid() && isSameCondition(now, m_noticed.condition)) {
        m_noticed.condition = now; // the numbers in its texts
        return;
    }
    const bool wasLive = isOfLiveDevice(m_noticed.condition.kind);
    const bool isLive = isOfLiveDevice(now.kind);
    if (wasLive && !isLive)
        m_beforeGap = m_noticed;
    const bool goesOn = isLive && !wasLive && isSameCondition(now, m_beforeGap.condition) &&
                        m_readingBootMs - m_beforeGap.heardMs <= shortGapMs();
    m_noticed = {now, goesOn ? m_beforeGap.since : m_clock.now(), m_readingBootMs};
    if (m_expected.kind == now.kind)
        setConditionSince(m_expected.since);
}

void Device::setConditionSince(const QDateTime& since)
{
    if (since < m_noticed.since)
        m_noticed.since = since;
}

void Device::expectCondition(ConditionKind kind, const QDateTime& since)
{
    m_expected = {kind, since};
    if (m_noticed.condition.kind == kind)
        setConditionSince(since);
}
