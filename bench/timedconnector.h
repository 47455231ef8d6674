#ifndef TIMEDCONNECTOR_H
#define TIMEDCONNECTOR_H

// A connector that notes when its polls were due, began and ended.
// May touch: connectors by their base class, the fleet's clock and devices.

#include "connectors/connector.h"
#include "fleet/device.h"

#include <memory>
#include <vector>

class TimedConnector : public Connector
{
    Q_OBJECT

public:
    struct Poll { // ms on the monotonic clock
        qint64 due = 0;
        qint64 start = 0;
        qint64 end = -1; // -1: under way
        LinkState state = LinkState::Connecting;
    };

    explicit TimedConnector(std::unique_ptr<Connector> connector);

    void poll() override;
    void send(const UpsCommand& command) override { m_connector->send(command); }

    const Device* device = nullptr; // whose polls these are
    std::vector<Poll> polls;

private:
    std::unique_ptr<Connector> m_connector;
};

#endif // TIMEDCONNECTOR_H
