#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zm::example {

inline std::uint32_t mixed(std::uint32_t value)
{
    value = (value ^ (value >> 16)) * 0x7FEB352Du;
    value = (value ^ (value >> 15)) * 0x846CA68Bu;
    return value ^ (value >> 16);
}

/// A number from 0 to 1 for a cell of a grid, the same on every machine.
inline double cellValue(int x, int y, std::uint32_t seed)
{
    return mixed(std::uint32_t(x) * 0x9E3779B1u ^ mixed(std::uint32_t(y) * 0x85EBCA77u ^ mixed(seed))) / 4294967295.0;
}

inline double mix(double from, double to, double part)
{
    return from + (to - from) * part;
}

inline double smoothStep(double from, double to, double value)
{
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

/// Gradient noise with one cell per unit; about -1 to 1.
double noise(double x, double y, std::uint32_t seed);

/// Adds octaves, each of twice the cells and half the height; about -1 to 1.
double clouded(double x, double y, int octaves, std::uint32_t seed);

/// Like clouded(), with sharp crests at 1 and broad valleys at 0.
double ridged(double x, double y, int octaves, std::uint32_t seed);

} // namespace zm::example
