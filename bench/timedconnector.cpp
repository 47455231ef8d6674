#include "timedconnector.h"

TimedConnector::TimedConnector(std::unique_ptr<Connector> connector)
    : m_connector(std::move(connector))
{
    connect(m_connector.get(), &Connector::polled, this, [this](const PollResult& result) {
        polls.back().end = FleetClock::system().monotonicMs();
        polls.back().state = result.state;
        emit polled(result);
    });
    connect(m_connector.get(), &Connector::commandFinished, this, &Connector::commandFinished);
}

void TimedConnector::poll()
{
    Poll poll;
    poll.due = device->dueMs();
    poll.start = FleetClock::system().monotonicMs();
    polls.push_back(poll);
    m_connector->poll();
}
