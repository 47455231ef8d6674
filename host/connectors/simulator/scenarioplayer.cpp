#include "connectors/simulator/scenarioplayer.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr qint64 kLeadIn = 3000; // ms of the first step that have passed when it begins
} // namespace

ScenarioPlayer::ScenarioPlayer(const Scenario& scenario, quint32 seed)
    : m_scenario(scenario)
    , m_ups(*scenario.profile, scenario.charge, seed)
{
    m_ups.setPace(scenario.pace);
    enter(0);
    advance(kLeadIn);
}

UpsReading ScenarioPlayer::reading() const
{
    UpsReading reading = m_ups.reading();
    if (m_scenario.pace > 1) {
        // What shows the name shows that the minutes are none of the clock's.
        reading.name = QCoreApplication::translate("ScenarioPlayer", "Simulated day, %1x")
                           .arg(m_scenario.pace);
        reading.notes << QCoreApplication::translate(
                             "ScenarioPlayer", "Simulated day, %1x: the battery lives so much "
                                               "faster; what is ordered takes its own time.")
                             .arg(m_scenario.pace);
    }
    return reading;
}

void ScenarioPlayer::advance(qint64 milliseconds)
{
    qint64 left = std::max<qint64>(milliseconds, 0);
    while (left >= m_left) {
        m_ups.advance(m_left);
        left -= m_left;
        const size_t next = m_step + 1;
        enter(next < m_scenario.steps.size() ? next : static_cast<size_t>(m_scenario.repeatFrom));
    }
    m_ups.advance(left);
    m_left -= left;
}

void ScenarioPlayer::enter(size_t index)
{
    m_step = index;
    m_left = qint64{step().seconds} * 1000;
    m_ups.setMains(step().supply != Supply::Outage);
    m_ups.setBypass(step().supply == Supply::Bypass);
    m_ups.setDemand(step().load);
    if (step().selfTest) {
        UpsCommand command;
        command.kind = CommandKind::SelfTest;
        m_ups.carryOut(command); // what an operator has begun goes on instead
    }
}
