#pragma once

#include "document/image_layer.h"

#include <QRectF>

namespace zm {

/// The surface that a new paint layer begins with, in document units with whole sides: what the viewport shows, with
/// the document where the two meet, and room for strokes around it. An empty viewport stands for the document. Nothing
/// for a rectangle that is not finite or is less than 1 wide or high.
std::optional<QRectF> initialPaintSurface(const QRectF &viewport, const QRectF &documentRect);

/// A transparent layer over the surface that grows with its strokes. Null when the surface holds more pixels than a
/// raster may.
std::unique_ptr<ImageLayer> makePaintLayer(const QRectF &surface);

} // namespace zm
