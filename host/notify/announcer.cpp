#include "notify/announcer.h"

#include <utility>

bool isPowerFailure(const Condition& condition)
{
    return condition.kind == ConditionKind::Battery || condition.kind == ConditionKind::OutputOff ||
           condition.urgency == Urgency::Critical;
}

bool isTrouble(const Condition& condition)
{
    return condition.urgency >= Urgency::Warning;
}

std::optional<Announcement> Announcer::polled(Key key, const QString& name,
                                              const Condition& condition, const QDateTime& since)
{
    Told& told = m_told[key];
    if (isSameCondition(condition, told.last)) {
        told.candidate.reset();
        return {};
    }
    const bool held = told.candidate && isSameCondition(condition, *told.candidate);
    if (!held && !isPowerFailure(condition)) {
        told.candidate = condition;
        return {};
    }
    const Condition before = std::exchange(told.last, condition);
    told.candidate.reset();
    if (!isTrouble(condition) && !isTrouble(before))
        return {};
    Announcement announcement;
    announcement.device = name;
    announcement.condition = condition;
    announcement.since = since;
    announcement.isRecovery = !isTrouble(condition);
    announcement.weight = announcement.isRecovery ? before.urgency : condition.urgency;
    return announcement;
}
