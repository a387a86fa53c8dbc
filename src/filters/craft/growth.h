#pragma once

#include "filters/filter_render.h"

#include <QMargins>

namespace zm {

// Effects that draw around the picture make it larger: by whole pixels on each side, so that the picture itself is not
// resampled.

/// The longest side that a grown picture may have, pixels: that of a texture, or the picture's own where it is longer.
int longestGrownSide(const FilterRenderRequest &request);

/// The wanted margins, in pixels and not negative, cut where a side would become longer than that.
QMargins affordableMargins(const FilterRenderRequest &request, const QMargins &wanted);

/// What the picture covers with these margins, in layer units.
QRectF grownBounds(const FilterRenderRequest &request, const QMargins &margins);

} // namespace zm
