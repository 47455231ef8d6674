#ifndef TIMEDCONNECTOR_H
#define TIMEDCONNECTOR_H

// A connector that notes when its polls were due, began and ended.
// May touch: connectors by their base class, the fleet's clock.

#include "connectors/connector.h"

#include <functional>
#include <memory>
#include <vector>

class TimedConnector : public Connector
{
    Q_OBJECT

public:
    struct Poll { // ms on the monotonic clock
        qint64 due = 0;
        qint64 start = 0;
        qint64 end = -1; // -1: under way, or broken off
        LinkState state = LinkState::Connecting;
    };
    using Polls = std::vector<Poll>;

    // polls must outlive the connector; a device that is replaced goes on in the same list.
    TimedConnector(std::unique_ptr<Connector> connector, Polls& polls,
                   std::function<qint64()> dueMs);

    void poll() override;
    void send(const UpsCommand& command) override { m_connector->send(command); }

private:
    std::unique_ptr<Connector> m_connector;
    Polls& m_polls;
    std::function<qint64()> m_dueMs;
};

#endif // TIMEDCONNECTOR_H
