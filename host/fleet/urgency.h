#ifndef URGENCY_H
#define URGENCY_H

// How much a device needs somebody now, and in which words the desk says so.
// May touch: readings and link states.

#include "connectors/linkstate.h"
#include "reading/thresholds.h"
#include "reading/upsreading.h"

#include <QFlags>
#include <QString>
#include <QStringList>

// Ordered: the higher, the sooner somebody has to look.
enum class Urgency { Normal, Notice, Warning, Alarm, Critical };

// Where the power comes from, or why nobody knows. Mains to SourceUnknown: of a live device.
enum class ConditionKind {
    Connecting,
    Mains,
    Boosting,
    Reducing,
    Battery,
    BatteryTest, // on battery, with the mains present
    Bypass,
    OutputOff,
    SourceUnknown,
    Stale,
    Lost,
    Refused
};

struct Condition {
    Urgency urgency = Urgency::Normal;
    ConditionKind kind = ConditionKind::Connecting;
    QString state; // of the power or the link alone: "On battery", "No answer"
    QString text;  // one line for lists: the state, and what is wrong beside it
    // What is wrong beside the state, whole and worst first, nothing of it said by the state: the
    // device's own words before ours. Only of a live device.
    QStringList alarms;
    Urgency alarmUrgency = Urgency::Normal; // of the first of alarms
    // What the text names beside the state, as a number without meaning: it tells two findings
    // apart whatever their figures are. 0: the state alone.
    int subject = 0;
};

// The same thing is wrong as before, whatever numbers the texts have in them.
bool isSameCondition(const Condition& a, const Condition& b);

// True of what a reading says, false of what a silence says.
bool isOfLiveDevice(ConditionKind kind);

// Values beyond their thresholds.
enum class Limit {
    ChargeCritical = 1,
    ChargeLow = 2,
    RuntimeLow = 4,
    LoadHigh = 8,
    TemperatureHigh = 16
};
Q_DECLARE_FLAGS(Limits, Limit)

// before: those of the reading before this one. A value that swings about its threshold stays
// beyond it until it is clearly back.
Limits limitsBeyond(const UpsReading& reading, const Thresholds& thresholds, Limits before = {});

// What one reading does not tell.
struct ConditionPast {
    Limits limits;          // of the last reading
    double testSeconds = 0; // for which a test has been seen to run
};

// A battery test is announced for about so long; what lasts longer is an outage.
constexpr double kLongestTest = 600; // s

// True while a test excuses that the load is on battery.
bool isExcusedByTest(const UpsReading& reading, double testSeconds);

// reading: the last good one, null when there has been none. Silence is at least an alarm, and
// only a live reading that says so is "On mains".
Condition conditionOf(LinkState link, const UpsReading* reading, const Thresholds& thresholds = {},
                      const ConditionPast& past = {});

// The alarm that matters most of those raised, or none.
std::optional<Alarm> worstAlarm(const QSet<Alarm>& alarms);

// Urgency of a single alarm.
Urgency urgencyOf(Alarm alarm);

// "normal", "notice", "warning", "alarm", "critical", and "unknown" of a device that has not
// answered yet: the words of scripts.
QString urgencyName(const Condition& condition);

#endif // URGENCY_H
