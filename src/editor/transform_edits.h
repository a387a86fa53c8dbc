#pragma once

#include "values/object_transform.h"

namespace zm {

// How the inspector changes a transform.

enum class Axis { X, Y };

inline double along(const QPointF &point, Axis axis)
{
    return axis == Axis::X ? point.x() : point.y();
}

inline double along(const QSizeF &size, Axis axis)
{
    return axis == Axis::X ? size.width() : size.height();
}

inline QPointF withComponent(const QPointF &point, Axis axis, double value)
{
    return axis == Axis::X ? QPointF(value, point.y()) : QPointF(point.x(), value);
}

/// The other scale stays, or follows by the same factor and keeps its sign. The factor is limited so that neither
/// stops at the least scale while the other goes on.
ObjectTransform withScale(ObjectTransform transform, Axis axis, double scale, bool preserveAspect);

/// Turns and scales about another point from now on, and leaves the object where it shows. The box is the object's
/// own; an anchor is in fractions of it.
ObjectTransform withAnchor(ObjectTransform transform, const QPointF &anchor, const QRectF &box);

} // namespace zm
