#pragma once

#include "generators/shape_generator.h"

#include <QRectF>

namespace zm {

/// What a speech and a thought bubble have in common: the box that the words stand in, and the pointer below it.
struct BubbleBox
{
    /// Reads cornerRadius and pointerLength.
    BubbleBox(const QSizeF &size, const ShapeParameters &parameters);

    /// Below it lies the pointer's share of the height.
    QRectF box;
    /// At most half the box's sides.
    double cornerRadius;
    /// Where the pointer ends; it leans the further to the left the longer it is.
    QPointF tip;
};

} // namespace zm
