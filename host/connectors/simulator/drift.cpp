#include "connectors/simulator/drift.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kReturn = 0.03; // share of the deviation that one step takes back
} // namespace

void Drift::step(std::mt19937& engine)
{
    // A uniform number of +-1 has the variance 1/3; this factor brings the walk's own to 1.
    static const double kStep = std::sqrt(3 * (2 * kReturn - kReturn * kReturn));
    const double uniform = 2.0 * engine() / std::mt19937::max() - 1;
    m_value = std::clamp(m_value * (1 - kReturn) + kStep * uniform, -kLimit, kLimit);
}
