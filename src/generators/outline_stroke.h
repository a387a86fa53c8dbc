#pragma once

#include "values/compound_values.h"
#include "values/editable_path.h"

#include <QPen>
#include <QSizeF>

namespace zm {

class ParameterValues;
class ShapeGenerator;

// How the line around a shape is drawn, wherever shapes are shown.

/// How far a corner may reach beyond the line's outer edges, in widths along them; low, so that sharp corners are cut
/// early.
inline constexpr double kOutlineMiterLimit = 1.25;

/// How far a generated outline keeps from its box on each side, so that a mitred stroke stays inside.
inline double outlineInset(const Stroke &stroke)
{
    return stroke.width * 1.25;
}

/// The generator's outline in a box from (0, 0) to size that holds its stroke too.
EditablePath outlineInBox(const ShapeGenerator &generator, const ParameterValues &values, const QSizeF &size,
                          const Stroke &stroke);

/// No pen for a stroke without width.
QPen outlinePen(const Stroke &stroke);

} // namespace zm
