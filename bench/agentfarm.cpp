#include "agentfarm.h"

namespace {

constexpr int kOutageSeconds = 12; // with the mains, then without
constexpr int kMains = 3;
constexpr int kBattery = 5;

} // namespace

AgentFarm::AgentFarm(int answering, int silent)
{
    for (int i = 0; i < answering + silent; ++i) {
        m_agents.push_back(std::make_unique<SnmpAgent>());
        m_agents.back()->table.loadFile(QStringLiteral(TEST_DATA "/snmp/three-phase.txt"));
        m_agents.back()->table.silent = i >= answering;
    }
    connect(&m_timer, &QTimer::timeout, this, &AgentFarm::liveOn);
    m_timer.start(1000);
}

QByteArray AgentFarm::portLine() const
{
    QByteArray line;
    for (const auto& agent : m_agents)
        line += QByteArray::number(agent->port()) + ' ';
    return line.trimmed() + '\n';
}

// Values move all the time; now and then one changes its source of power, and from time to time
// the mains fail for all of them together.
void AgentFarm::liveOn()
{
    ++m_seconds;
    const bool outageChanges = m_seconds % kOutageSeconds == 0;
    const bool outage = m_seconds / kOutageSeconds % 2 != 0;
    const auto set = [](SnmpTable& table, const char* oid, qint64 number) {
        table.set(oid, SnmpValue::number(number));
    };
    std::uniform_int_distribution<int> percent(0, 99);
    for (const auto& agent : m_agents) {
        set(agent->table, "2.4.0", 50 + percent(m_random) / 2);
        set(agent->table, "3.3.1.3.1", 225 + percent(m_random) / 10);
        set(agent->table, "4.4.1.5.2", percent(m_random));
        const int luck = percent(m_random);
        if (outageChanges)
            set(agent->table, "4.1.0", outage ? kBattery : kMains);
        else if (luck < 4)
            set(agent->table, "4.1.0", luck < 1 ? kBattery : kMains);
    }
}
