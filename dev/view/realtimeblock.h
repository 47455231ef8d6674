#ifndef DEVVIEW_REALTIMEBLOCK_H
#define DEVVIEW_REALTIMEBLOCK_H

// Reading a snapshot: the real-time block and the two phase rules. Inside the library only.
// May touch: Qt Core and the data keys.

#include "globalvar.h"

#include <QMap>
#include <QVariant>

#include <array>

// Keys 0 to 72 of one snapshot as integers. A missing or non-numeric key reads 0.
class RealTimeBlock
{
public:
    static constexpr int kFirstKey = realdata_BatteryStatus;
    static constexpr int kLastKey = realdata_Reserve5;

    explicit RealTimeBlock(const QMap<int, QVariant>& snapshot);

    // key: kFirstKey to kLastKey; nothing checks it.
    int operator[](int key) const { return m_values[static_cast<std::size_t>(key)]; }
    // The charts read unsigned: a negative value becomes a huge one that no gauge accepts.
    UINT32 unsignedAt(int key) const { return static_cast<UINT32>((*this)[key]); }

private:
    std::array<int, kLastKey + 1> m_values;
};

// "How many phases" differs by view, and each keeps its own rule.
// The energy-flow page: everything but exactly one line is three phases (0 and 2 included).
constexpr bool isThreePhaseUnlessOne(int lineCount)
{
    return lineCount != 1;
}
// The detail page and the real-time table: exactly three lines are three phases.
constexpr bool isThreePhaseOnlyIfThree(int lineCount)
{
    return lineCount == 3;
}

#endif // DEVVIEW_REALTIMEBLOCK_H
