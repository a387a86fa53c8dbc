#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The picture embossed into foil that splits light into its colours.
Recipe holographicFoil()
{
    return RecipePass("holographic-foil")
        .pictureSize("u_size")
        .radians("u_angle", "angle")
        .percent("u_rainbow", "rainbow")
        .diagonalPixels("u_foilScalePx", "foilScale")
        .percent("u_shimmer", "shimmer")
        .percent("u_relief", "relief")
        .percent("u_blend", "blend");
}

} // namespace

ZM_LIBRARY_EFFECT(HolographicFoil, RecipeFilter, u"holographic-foil"_s, holographicFoil())

} // namespace zm
