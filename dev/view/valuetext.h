#ifndef DEVVIEW_VALUETEXT_H
#define DEVVIEW_VALUETEXT_H

// Numbers to text: pure functions, the same in every locale. Inside the library only.
// May touch: Qt Core and the real-time block.

#include "realtimeblock.h"

#include <QString>

namespace valuetext {

// Shown where a value is outside its range.
QString outOfRange();
// "230"
QString whole(int value);
// "49.9"
QString oneDecimal(double value);
// "49.9" of 499 tenths
QString tenths(int tenthsOfUnit);
// "a/b/c"
QString joined(const QString& a, const QString& b, const QString& c);

// One quantity of all phases: phase A alone, or A, B and C joined. The three keys lie `stride`
// apart (1 for plain triples, 2 for the _Hi words of the powers).
template <typename Format>
QString phases(const RealTimeBlock& values, bool threePhase, int keyA, int stride, Format format)
{
    if (!threePhase)
        return format(values[keyA]);
    return joined(format(values[keyA]), format(values[keyA + stride]),
                  format(values[keyA + 2 * stride]));
}

} // namespace valuetext

#endif // DEVVIEW_VALUETEXT_H
