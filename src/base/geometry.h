#pragma once

#include <QPointF>

#include <cmath>

namespace zm {

inline double lengthOf(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

} // namespace zm
