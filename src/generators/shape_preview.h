#pragma once

#include "values/compound_values.h"
#include "values/parameter_values.h"

#include <QImage>
#include <QPainterPath>
#include <QSize>
#include <QSizeF>

namespace zm {

class ShapeGenerator;

// How a generator looks as a shape layer with its own colours, for pickers and sheets.

/// The width of the line around a shape that has a stroke colour, in layer units.
inline constexpr double kDefaultShapeStrokeWidth = 2.0;

/// Width 0 for a generator without a stroke colour.
Stroke defaultShapeStroke(const ShapeGenerator &generator);

/// The outline in a layer's box of this size, in layer units: inset so that the line stays in the box.
QPainterPath shapePreviewOutline(const ShapeGenerator &generator, const ParameterValues &values,
                                 const QSizeF &logicalSize);

/// The layer's box, filled and stroked on transparent RGBA8888, stretched to pixelSize. Sides count as 1 at least.
QImage shapePreview(const ShapeGenerator &generator, const ParameterValues &values, const QSizeF &logicalSize,
                    const QSize &pixelSize);

} // namespace zm
