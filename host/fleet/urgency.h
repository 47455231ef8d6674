#ifndef URGENCY_H
#define URGENCY_H

// How much a device needs somebody now, and in which words the desk says so.
// May touch: readings and link states.

#include "connectors/linkstate.h"
#include "reading/thresholds.h"
#include "reading/upsreading.h"

#include <QString>

// Ordered: the higher, the sooner somebody has to look.
enum class Urgency { Normal, Notice, Warning, Alarm, Critical };

struct Condition {
    Urgency urgency = Urgency::Normal;
    QString text; // short: "On battery", "No answer"
};

// reading: the last good one, null when there has been none. Silence is at least an alarm, and
// only a live reading that says so is "On mains".
Condition conditionOf(LinkState link, const UpsReading* reading, const Thresholds& thresholds = {});

// The alarm that matters most of those raised, or none.
std::optional<Alarm> worstAlarm(const QSet<Alarm>& alarms);

// Urgency of a single alarm.
Urgency urgencyOf(Alarm alarm);

#endif // URGENCY_H
