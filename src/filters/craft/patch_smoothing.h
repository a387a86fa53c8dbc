#pragma once

#include "filters/filter_render.h"

#include <QPointF>

namespace zm {

// A photograph on the way to a painting: detail goes, borders stay crisp. The work is done in a picture whose size
// follows the size of the forms that are kept, so that it costs the same and looks the same at every resolution.

/// The direction of addSmoothing that follows the contours of the picture.
constexpr QPointF kAlongContours{0.0, 0.0};

/// One pass along a unit vector, y downward; the radius is in pixels of the result, at most 64. Detail is 0..1: how
/// much of what differs in colour stays apart.
PassChain::Picture addSmoothing(PassChain &chain, PassChain::Picture input, const QSize &size, QPointF direction,
                                double radius, double detail);

/// Flat patches with crisp borders: passes in four directions.
PassChain::Picture addFlatPatches(PassChain &chain, PassChain::Picture input, double radius, double detail);

/// The request's picture at the size at which `feature` pixels of it are `pixels` pixels, at most twice its own.
/// Colours of transparent pixels stay out.
PassChain::Picture addWorkingCopy(PassChain &chain, const FilterRenderRequest &request, double feature, double pixels);

/// The picture in another, larger size. The borders, blurred as it grows, become crisp again.
PassChain::Picture addEnlargement(PassChain &chain, PassChain::Picture input, const QSize &size);

/// Carries out a chain whose passes read a working copy, and gives its result the alpha of the request's picture.
FilterRenderResult chainedWithAlpha(const FilterRenderRequest &request, const PassChain &chain,
                                    PassChain::Picture picture);

} // namespace zm
