#pragma once

#include <QPointF>
#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace zm {

// How setters clean the numbers that they are given.

inline double finiteOr(double value, double fallback)
{
    return std::isfinite(value) ? value : fallback;
}

inline bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// A box has sides of at least 1; a side that is not a finite number counts as 1.
inline QSizeF sizeOfAtLeastOne(const QSizeF &size)
{
    return {std::max(finiteOr(size.width(), 1.0), 1.0), std::max(finiteOr(size.height(), 1.0), 1.0)};
}

} // namespace zm
