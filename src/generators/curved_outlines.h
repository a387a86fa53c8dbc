#pragma once

#include "values/editable_path.h"

namespace zm {

class EditablePathBuilder;

/// A closed curve through the anchors, of which no two neighbours may coincide. At strength 1 it is a spline without a
/// jump in its curvature; lower strengths shorten the handles, and 0 leaves the polygon, with corner nodes without
/// handles.
EditablePath smoothedPolygon(const QList<QPointF> &anchors, double strength);

/// Draws a curve from `from` to `to` that swells to the left of its way in y-down coordinates, which is outwards on an
/// outline drawn clockwise. The bulge is the height of the curve over half its chord: 0 for a line, 1 for a half
/// circle. Beyond 1 the curve is no circle any more.
void bulgeTo(EditablePathBuilder &builder, const QPointF &from, const QPointF &to, double bulge);

/// The path stretched so that what its curves cover, not their handles, is the box.
EditablePath fittedInto(EditablePath path, const QRectF &box);

} // namespace zm
