#include "connectors/nut/nutconnector.h"

#include "connectors/bootclock.h"
#include "connectors/nut/nutserver.h"

#include <cmath>

namespace {

constexpr int kMsPerSecond = 1000;

} // namespace

NutConnector::NutConnector(const DeviceSettings& settings, QObject* parent)
    : Connector(parent)
    , m_settings(settings)
    , m_server(NutServer::of(settings))
    , m_clock([] { return static_cast<double>(bootClockMs()) / kMsPerSecond; })
{
    connect(m_server.get(), &NutServer::polled, this, &NutConnector::takePoll);
    connect(m_server.get(), &NutServer::commandFinished, this,
            [this](quint64 ticket, const CommandResult& result) {
                if (m_commandTickets.remove(ticket))
                    emit commandFinished(result);
            });
}

void NutConnector::poll()
{
    if (m_pollTicket == 0)
        m_pollTicket = m_server->poll(m_settings);
}

void NutConnector::send(const UpsCommand& command)
{
    m_commandTickets.insert(m_server->send(m_settings, command));
}

void NutConnector::takePoll(quint64 ticket, PollResult result)
{
    if (ticket != m_pollTicket)
        return;
    m_pollTicket = 0;
    if (result.state == LinkState::Live)
        takeTimeOnBattery(result.reading);
    emit polled(result);
}

// NUT does not say how long an outage has lasted. While the source is not known the outage is
// neither over nor longer: it goes on counting from its start when the source is battery again.
void NutConnector::takeTimeOnBattery(UpsReading& reading)
{
    const double now = m_clock();
    if (reading.alarms.contains(Alarm::OnBattery)) {
        m_onBatterySince = m_onBatterySince.value_or(now);
        reading.secondsOnBattery = std::floor(now - *m_onBatterySince);
    } else if (reading.outputSource != OutputSource::Other) {
        m_onBatterySince.reset();
        reading.secondsOnBattery = 0;
    }
}
