#ifndef SCENARIOPLAYER_H
#define SCENARIOPLAYER_H

// A simulated UPS that lives through a scenario.
// May touch: the model and the scenarios; like the model it has no clock of its own.

#include "connectors/simulator/simulatedups.h"
#include "connectors/simulator/simulatorscenarios.h"

class ScenarioPlayer
{
public:
    // Begins a few seconds into the first step, so that its situation shows at once.
    ScenarioPlayer(const Scenario& scenario, quint32 seed);

    // Negative times count as 0.
    void advance(qint64 milliseconds);

    // How far the device can be reached at this moment: Live, Stale or Lost.
    LinkState link() const { return step().link; }

    // What the UPS measures; one that lives faster than the clock says so.
    UpsReading reading() const;

    SimulatedUps& ups() { return m_ups; }
    const SimulatedUps& ups() const { return m_ups; }

private:
    const ScenarioStep& step() const { return m_scenario.steps[m_step]; }
    void enter(size_t index);

    Scenario m_scenario;
    SimulatedUps m_ups;
    size_t m_step = 0;
    qint64 m_left = 0; // ms of the step
};

#endif // SCENARIOPLAYER_H
