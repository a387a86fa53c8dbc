#pragma once

#include "filters/filter_render.h"

#include <QPainterPath>

namespace zm {

/// The outline of a mask over a picture that covers a box of `size` units: the generator's shape at that size, scaled
/// and rotated about the transform's pivot and moved by its centre. In units of the box. Empty for an unknown
/// generator.
QPainterPath shapeMaskPath(const QString &generatorId, const ParameterValues &shapeParameters,
                           const MaskTransform &transform, const QSizeF &size);

/// The outline, in units of a box of `boxSize`, filled white on transparent in a picture of `imageSize` that covers the
/// box.
QImage filledShapeMask(const QPainterPath &path, const QSizeF &boxSize, const QSize &imageSize);

/// How soft a feather of 0..100 is: pixels of a mask of this size.
double featherSigma(double feather, const QSize &imageSize);

/// The mask of the controls "mask", "mask.transform" and "mask.feather" in a chain: its alpha is the coverage, to be
/// read with linear filtering; "mask.inverted" is left to the shader.
PassChain::Picture addShapeMask(PassChain &chain, const FilterRenderRequest &request);

/// The mask of a vignette that has no controls of its own: a soft ellipse in a picture of a box of `size` units, small
/// and to be read with linear filtering, whose alpha is 1 in the middle and falls to 0 at the corners. The ellipse
/// is `share` of the box.
PassChain::Picture addCornerMask(PassChain &chain, const QSizeF &size, double share = 0.98);

} // namespace zm
