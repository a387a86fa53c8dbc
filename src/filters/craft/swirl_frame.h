#pragma once

#include "filters/filter_render.h"

namespace zm {

/// A picture before a swirled background.
struct SwirlFrameSettings
{
    double swirlDegrees = 0.0;      ///< turn of the background in its middle
    double swirlReach = 1.0;        ///< where the turn has died away, halves of the diagonal
    double backgroundGamma = 1.0;   ///< above 1 lightens the background
    double backgroundNegative = 0.0; ///< share of the inverted background, 0..1
    double pictureScale = 1.0;      ///< size of the picture within, 1 is full
    double pictureOpacity = 1.0;    ///< 0..1
    double pictureTiltDegrees = 0.0; ///< clockwise
    double feather = 0.0;           ///< width of its soft border, 0..1 of its shorter half
    /// Share of that border, from its inner end, over which the picture gives way to the background. Under 1 the
    /// background's turn sets in along it, for a picture of full size that is its own background.
    double fadeShare = 1.0;
    double ovalShape = 0.0;         ///< 0 rectangle to 1 ellipse
};

/// The picture before the background, which may be smaller; the result has the picture's size.
PassChain::Picture addSwirlFrame(PassChain &chain, PassChain::Picture picture, PassChain::Picture background,
                                 const SwirlFrameSettings &settings);

} // namespace zm
