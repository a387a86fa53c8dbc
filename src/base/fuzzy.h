#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace zm {

/// The comparison of doubles everywhere in the model: relative to 1e-12, and absolute when one side is exactly zero.
/// NaN equals nothing.
inline bool fuzzyEqual(double a, double b)
{
    const double difference = std::abs(a - b);
    if (a == 0.0 || b == 0.0)
        return difference <= 1e-12;
    return difference * 1e12 <= std::min(std::abs(a), std::abs(b));
}

inline bool fuzzyEqual(const QPointF &a, const QPointF &b)
{
    return fuzzyEqual(a.x(), b.x()) && fuzzyEqual(a.y(), b.y());
}

inline bool fuzzyEqual(const QSizeF &a, const QSizeF &b)
{
    return fuzzyEqual(a.width(), b.width()) && fuzzyEqual(a.height(), b.height());
}

inline bool fuzzyEqual(const QRectF &a, const QRectF &b)
{
    return fuzzyEqual(a.topLeft(), b.topLeft()) && fuzzyEqual(a.size(), b.size());
}

} // namespace zm
