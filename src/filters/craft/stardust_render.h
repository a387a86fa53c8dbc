#pragma once

#include "filters/filter_render.h"

namespace zm {

/// Which part of a picture glitters, and what is kept of it.
struct StardustUse
{
    bool maskInverted = false;
    bool starsOnly = false; ///< the sparkles alone, on transparency
};

/// Adds a pass that lays sparkling stars and fine dust over `input`, where the alpha of `mask` is. Both are read with
/// linear filtering; the result has the input's size. Reads the controls "color", "stars", "starSize", "rays",
/// "twinkle", "glow", "dust", "dustSize", "colorVariation", "highlights" and "seed".
PassChain::Picture addStardust(PassChain &chain, const FilterRenderRequest &request, PassChain::Picture input,
                               PassChain::Picture mask, const StardustUse &use);

} // namespace zm
