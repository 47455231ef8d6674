#ifndef DRIFT_H
#define DRIFT_H

// A measured value's slow wandering around its mean.
// May touch: the standard library.

#include <random>

// Steps of a fixed time; the same engine in the same state gives the same walk on every platform
// (the standard fixes the engine's numbers but not those of its distributions).
class Drift
{
public:
    // Standard deviation 1 in the long run, never beyond kLimit.
    static constexpr double kLimit = 2.5;

    void step(std::mt19937& engine);
    double value() const { return m_value; }

private:
    double m_value = 0;
};

#endif // DRIFT_H
