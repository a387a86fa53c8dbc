#pragma once

#include <QPointF>

#include <cmath>
#include <cstdint>
#include <numbers>

namespace zm::textures {

/// Numbers that are the same on every machine (SplitMix64), unlike those of the standard distributions.
class Random
{
public:
    explicit Random(std::uint64_t seed)
        : m_state(seed * 0xD1B54A32D192ED03u)
    {
    }

    /// At least 0 and below 1.
    double unit() { return double(next() >> 11) * 0x1p-53; }
    double between(double low, double high) { return low + (high - low) * unit(); }

    /// Low values are more frequent the greater `power` is above 1.
    double skewed(double low, double high, double power) { return low + (high - low) * std::pow(unit(), power); }

    /// Around 0, mostly within -1 and 1, never beyond 3: the sum of six even numbers.
    double bell() { return unit() + unit() + unit() - unit() - unit() - unit(); }
    double angle() { return between(0.0, 2.0 * std::numbers::pi); }
    bool chance(double probability) { return unit() < probability; }

private:
    std::uint64_t next()
    {
        std::uint64_t z = m_state += 0x9E3779B97F4A7C15u;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

    std::uint64_t m_state;
};

inline QPointF direction(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}

} // namespace zm::textures
