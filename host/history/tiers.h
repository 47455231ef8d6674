#ifndef TIERS_H
#define TIERS_H

// In which grains the history is kept: full samples first, then means of longer and longer spans.
// May touch: Qt Core.

#include <QtGlobal>

#include <array>
#include <iterator>

struct Tier {
    const char* table;
    qint64 spanMs;      // of one row; 0: a full sample
    qint64 partitionMs; // what one partition of a database that has them holds
};

constexpr qint64 kMsPerMinute = 60 * 1000;
constexpr qint64 kMsPerHour = 60 * kMsPerMinute;
constexpr qint64 kMsPerDay = 24 * kMsPerHour;

// Finest first; each is made of the one before it. The last one answers questions for years.
constexpr Tier kTiers[] = {
    {"samples", 0, kMsPerDay},
    {"minutes", kMsPerMinute, 7 * kMsPerDay},
    {"quarters", 15 * kMsPerMinute, 90 * kMsPerDay},
    {"sixhours", 6 * kMsPerHour, 360 * kMsPerDay},
};
constexpr int kTierCount = static_cast<int>(std::size(kTiers));

// ms for which each tier is kept.
using TierLengths = std::array<qint64, kTierCount>;

// Start of the span that holds the time; right before 1970, too.
constexpr qint64 spanStart(qint64 timeMs, qint64 spanMs)
{
    const qint64 rest = timeMs % spanMs;
    return timeMs - (rest < 0 ? rest + spanMs : rest);
}

#endif // TIERS_H
