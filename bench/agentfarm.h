#ifndef AGENTFARM_H
#define AGENTFARM_H

// The far side of the fleet benchmark: many loopback agents whose UPSes change a little every
// second, and some that swallow every request.
// May touch: the tests' agent.

#include "support/snmpagent.h"

#include <QTimer>

#include <memory>
#include <random>
#include <vector>

class AgentFarm : public QObject
{
    Q_OBJECT

public:
    AgentFarm(int answering, int silent);

    // Of the answering agents, then of the silent ones, on one line.
    QByteArray portLine() const;

private:
    void liveOn();

    std::vector<std::unique_ptr<SnmpAgent>> m_agents;
    QTimer m_timer;
    int m_seconds = 0;
    std::mt19937 m_random{1};
};

#endif // AGENTFARM_H
