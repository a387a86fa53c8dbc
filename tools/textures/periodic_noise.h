#pragma once

#include <cstdint>

namespace zm::textures {

/// Gradient noise that repeats: x and y run from 0 to 1 across a tile, and the noise has `columns` by `rows` cells in
/// it.
class PeriodicNoise
{
public:
    PeriodicNoise(int columns, int rows, std::uint32_t seed)
        : m_columns(columns)
        , m_rows(rows)
        , m_seed(seed)
    {
    }

    /// About -1 to 1, with an average of 0.
    double at(double x, double y) const;

    /// Adds octaves, each of twice the cells and half the height; about -1 to 1.
    double sum(double x, double y, int octaves) const;

private:
    double corner(int column, int row, double dx, double dy) const;

    int m_columns;
    int m_rows;
    std::uint32_t m_seed;
};

double smoothStep(double from, double to, double value);

} // namespace zm::textures
