#ifndef SIMULATORSCENARIOS_H
#define SIMULATORSCENARIOS_H

// What happens when in the simulator, by name.
// May touch: link states and the plates of the simulated units.

#include "connectors/connector.h"
#include "connectors/simulator/upsprofile.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

enum class Supply { Mains, Outage, Bypass };

// One stretch of a scenario; a self-test begins with it, and it ends after so many seconds.
struct ScenarioStep {
    int seconds; // at least 1
    Supply supply;
    double load; // mean, of the rating
    bool selfTest = false;
    LinkState link = LinkState::Live; // how far the device can be reached meanwhile
};

struct Scenario {
    const UpsProfile* profile;
    double charge; // of the battery at the start, 0 to 1
    std::vector<ScenarioStep> steps;
    int repeatFrom = 0; // the step that follows the last one
    int pace = 1;       // seconds of the battery's life in one second
};

// For dialogs and usage texts: the name is what follows "sim:" in an address, empty for the day.
struct ScenarioInfo {
    QString name;
    QString description; // one line
};

// All of them, single-phase ones first, in the order of the table.
std::vector<ScenarioInfo> simulatorScenarios();

// Empty for a name that is not in the list; upper and lower case do not matter.
std::optional<Scenario> findScenario(const QString& name);

// That there is no such scenario, which ones there are, and which one may have been meant.
QString unknownScenarioText(const QString& name);

#endif // SIMULATORSCENARIOS_H
