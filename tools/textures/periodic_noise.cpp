#include "periodic_noise.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zm::textures {

namespace {

int wrapped(int value, int period)
{
    const int rest = value % period;
    return rest < 0 ? rest + period : rest;
}

double fade(double t)
{
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0); // second derivatives vanish at the cells' borders
}

} // namespace

double PeriodicNoise::corner(int column, int row, double dx, double dy) const
{
    std::uint32_t h = m_seed * 0x9E3779B9u + std::uint32_t(wrapped(column, m_columns)) * 0x85EBCA6Bu
        + std::uint32_t(wrapped(row, m_rows)) * 0xC2B2AE35u;
    h = (h ^ (h >> 16)) * 0x7FEB352Du;
    h = (h ^ (h >> 15)) * 0x846CA68Bu;
    h ^= h >> 16;
    const double angle = double(h) * 0x1p-32 * 2.0 * std::numbers::pi;
    return std::cos(angle) * dx + std::sin(angle) * dy;
}

double PeriodicNoise::at(double x, double y) const
{
    const double column = x * m_columns;
    const double row = y * m_rows;
    const int c = int(std::floor(column));
    const int r = int(std::floor(row));
    const double dx = column - c;
    const double dy = row - r;
    const double top = std::lerp(corner(c, r, dx, dy), corner(c + 1, r, dx - 1.0, dy), fade(dx));
    const double bottom = std::lerp(corner(c, r + 1, dx, dy - 1.0), corner(c + 1, r + 1, dx - 1.0, dy - 1.0), fade(dx));
    return std::lerp(top, bottom, fade(dy)) * std::numbers::sqrt2;
}

double PeriodicNoise::sum(double x, double y, int octaves) const
{
    double total = 0.0;
    double height = 1.0;
    for (int i = 0; i < octaves; ++i, height *= 0.5) {
        const int factor = 1 << i;
        total += height * PeriodicNoise(m_columns * factor, m_rows * factor, m_seed + std::uint32_t(i) * 101u).at(x, y);
    }
    return total;
}

double smoothStep(double from, double to, double value)
{
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

} // namespace zm::textures
