#include "realtimeblock.h"

RealTimeBlock::RealTimeBlock(const QMap<int, QVariant>& snapshot)
{
    for (int key = kFirstKey; key <= kLastKey; ++key)
        m_values[static_cast<std::size_t>(key)] = snapshot.value(key).toInt();
}
