#pragma once

#include "filters/compound_values.h"

#include <QPen>

namespace zm {

// How the line around a shape is drawn, wherever shapes are shown.

/// How far a corner may reach beyond the line's outer edges, in widths along them; low, so that sharp corners are cut
/// early.
inline constexpr double kOutlineMiterLimit = 1.25;

/// How far a generated outline keeps from its box on each side, so that a mitred stroke stays inside.
inline double outlineInset(const Stroke &stroke)
{
    return stroke.width * 1.25;
}

/// No pen for a stroke without width.
inline QPen outlinePen(const Stroke &stroke)
{
    if (stroke.width <= 0.0)
        return Qt::NoPen;
    QPen pen(stroke.color, stroke.width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    pen.setMiterLimit(kOutlineMiterLimit);
    return pen;
}

} // namespace zm
