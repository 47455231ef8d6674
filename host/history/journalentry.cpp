#include "history/journalentry.h"

#include <QUuid>

#include <iterator>

namespace {

// By the numbers of the enumerations.
constexpr const char* kKinds[] = {"condition",     "alarm", "outage",  "bypass",
                                  "battery",       "link",  "command", "operator",
                                  "configuration", "store", "clock",   "desk"};
static_assert(std::size(kKinds) == static_cast<int>(JournalKind::Desk) + 1);
constexpr const char* kUrgencies[] = {"normal", "notice", "warning", "alarm", "critical"};
static_assert(std::size(kUrgencies) == static_cast<int>(Urgency::Critical) + 1);

template <typename T, size_t N>
std::optional<T> valueOf(const char* const (&names)[N], const QString& name)
{
    for (size_t i = 0; i < N; ++i)
        if (name == QLatin1String(names[i]))
            return static_cast<T>(i);
    return {};
}

} // namespace

QString journalKindName(JournalKind kind)
{
    return QLatin1String(kKinds[static_cast<int>(kind)]);
}

std::optional<JournalKind> journalKindOf(const QString& name)
{
    return valueOf<JournalKind>(kKinds, name);
}

QString urgencyName(Urgency urgency)
{
    return QLatin1String(kUrgencies[static_cast<int>(urgency)]);
}

std::optional<Urgency> urgencyOfName(const QString& name)
{
    return valueOf<Urgency>(kUrgencies, name);
}

QString newJournalKey()
{
    return QUuid::createUuid().toString(QUuid::Id128);
}
