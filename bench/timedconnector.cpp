#include "timedconnector.h"

#include "fleet/fleetclock.h"

TimedConnector::TimedConnector(std::unique_ptr<Connector> connector, Polls& polls,
                               std::function<qint64()> dueMs)
    : m_connector(std::move(connector))
    , m_polls(polls)
    , m_dueMs(std::move(dueMs))
{
    connect(m_connector.get(), &Connector::polled, this, [this](const PollResult& result) {
        m_polls.back().end = FleetClock::system().monotonicMs();
        m_polls.back().state = result.state;
        emit polled(result);
    });
    connect(m_connector.get(), &Connector::commandFinished, this, &Connector::commandFinished);
}

void TimedConnector::poll()
{
    Poll poll;
    poll.due = m_dueMs();
    poll.start = FleetClock::system().monotonicMs();
    m_polls.push_back(poll);
    m_connector->poll();
}
