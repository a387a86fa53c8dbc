#pragma once

#include "generators/cubic_curve.h"
#include "values/editable_path.h"

#include <QSizeF>

namespace zm {

/// The control distance, as a part of the radius, of a cubic that stands for a quarter of a circle:
/// 4/3 * (sqrt(2) - 1).
inline constexpr double kQuarterArc = 0.5522847498;

/// A closed polygon whose corners are cut on both sides, at roundness * cap of the way to the next vertex, and replaced
/// by curves. A roundness of 0 or less leaves corner nodes without handles; one above 1 counts as 1.
EditablePath roundedPolygon(const QList<QPointF> &vertices, double roundness, double cap);

/// A closed rectangle with a quarter of an ellipse of the given radii at each corner; four corner nodes without handles
/// when a radius is 0. The radii are at most half the sides.
EditablePath roundedRectangle(const QRectF &rectangle, const QSizeF &radii);

/// One corner of a contour that is being drawn: from the point `cut` of the way to the previous vertex to the point
/// `cut` of the way to the next, the quadratic curve with the vertex as its control, raised to a cubic.
CubicCurve cornerCurve(const QPointF &previous, const QPointF &vertex, const QPointF &next, double cut);

} // namespace zm
