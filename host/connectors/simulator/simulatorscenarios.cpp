#include "connectors/simulator/simulatorscenarios.h"

#include "connectors/nearestname.h"

#include <QCoreApplication>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(SimulatorScenarios)
};

struct Situation {
    const char* name;
    const char* description;
    double charge;
    std::vector<ScenarioStep> steps;
    int repeatFrom = 0;
    int pace = 1;
};

// s here, minutes of the day: 24 hours.
std::vector<ScenarioStep> day()
{
    constexpr Supply mains = Supply::Mains;
    constexpr Supply outage = Supply::Outage;
    constexpr Supply bypass = Supply::Bypass;
    constexpr bool test = true;
    return {{50, mains, 0.45},       {24, outage, 0.45}, {90, mains, 0.42},  {30, bypass, 0.42},
            {60, mains, 0.50},       {15, mains, 1.12},  {10, bypass, 1.12}, {60, mains, 0.40},
            {10, mains, 0.40, test}, {210, mains, 0.60}, {12, outage, 0.55}, {389, mains, 0.50},
            {480, mains, 0.35}};
}

// Each begins in its situation and then develops. With 45 % load a full battery lasts about 25 min
// and is low for the last 5 of them; a recharge takes about 20 min. The day is told faster.
const std::vector<Situation>& situations()
{
    constexpr Supply mains = Supply::Mains;
    constexpr Supply outage = Supply::Outage;
    constexpr Supply bypass = Supply::Bypass;
    constexpr bool test = true;
    static const std::vector<Situation> table{
        {"", QT_TRANSLATE_NOOP("SimulatorScenarios", "simulated day, 60x"), 1.0, day(), 0, 60},
        {"mains",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "mains supply, battery full"),
         1.0,
         {{120, mains, 0.45}, {120, mains, 0.60}, {120, mains, 0.35}}},
        {"outage",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "mains failure, the battery carries the load"),
         0.97,
         {{1200, outage, 0.45}, {1200, mains, 0.45}}},
        {"low-battery",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "mains failure, battery low and soon empty"),
         0.15,
         {{300, outage, 0.45}, {900, mains, 0.45}, {1500, outage, 0.45}},
         1},
        {"return",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "mains are back, the battery recharges"),
         0.35,
         {{900, mains, 0.45}, {600, outage, 0.45}}},
        {"bypass",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "the load is on bypass"),
         1.0,
         {{60, bypass, 0.45}, {30, mains, 0.45}}},
        {"overload",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "too much load, then transfer to bypass"),
         1.0,
         {{40, mains, 1.12}, {20, bypass, 1.12}, {30, mains, 0.60}}},
        {"test",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "battery self-test, repeated"),
         1.0,
         {{10, mains, 0.45, test}, {60, mains, 0.45}}},
        {"silent",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "answers at first, then falls silent for a while"),
         1.0,
         {{20, mains, 0.45},
          {30, mains, 0.45, false, LinkState::Stale},
          {60, mains, 0.45, false, LinkState::Lost}}},
        {"flapping",
         QT_TRANSLATE_NOOP("SimulatorScenarios", "the link comes and goes"),
         1.0,
         {{18, mains, 0.45}, {8, mains, 0.45, false, LinkState::Lost}}},
    };
    return table;
}

struct Unit {
    const UpsProfile* profile;
    const char* name; // before the situation's
    const char* label;
};

constexpr Unit kUnits[] = {
    {&kSinglePhaseUps, "", QT_TRANSLATE_NOOP("SimulatorScenarios", "Single-phase UPS: %1")},
    {&kThreePhaseUps, "three-phase",
     QT_TRANSLATE_NOOP("SimulatorScenarios", "Three-phase UPS: %1")},
};

QString scenarioName(const Unit& unit, const Situation& situation)
{
    const QString first = QLatin1String(unit.name);
    const QString second = QLatin1String(situation.name);
    return first.isEmpty() || second.isEmpty() ? first + second : first + QLatin1Char('-') + second;
}

} // namespace

std::vector<ScenarioInfo> simulatorScenarios()
{
    std::vector<ScenarioInfo> list;
    for (const Unit& unit : kUnits)
        for (const Situation& situation : situations())
            list.push_back({scenarioName(unit, situation),
                            Tr::tr(unit.label).arg(Tr::tr(situation.description))});
    return list;
}

std::optional<Scenario> findScenario(const QString& name)
{
    for (const Unit& unit : kUnits)
        for (const Situation& situation : situations())
            if (name.compare(scenarioName(unit, situation), Qt::CaseInsensitive) == 0)
                return Scenario{unit.profile, situation.charge, situation.steps,
                                situation.repeatFrom, situation.pace};
    return std::nullopt;
}

QString unknownScenarioText(const QString& name)
{
    constexpr int kMaxNameInMessage = 40;
    QStringList names;
    for (const ScenarioInfo& info : simulatorScenarios())
        if (!info.name.isEmpty())
            names << info.name;
    return Tr::tr("Unknown scenario \"%1\"; known are %2, and sim: alone for the whole day%3")
        .arg(name.simplified().left(kMaxNameInMessage), names.join(QStringLiteral(", ")),
             didYouMean(name, names));
}
