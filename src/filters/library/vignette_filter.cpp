#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Recipe vignette()
{
    return RecipePass("vignette")
        .percent("u_strength", "strength")
        .flag("u_mask_invert", "mask.inverted")
        .color("u_tint", "tint")
        .withShapeMask();
}

} // namespace

ZM_LIBRARY_EFFECT(Vignette, RecipeFilter, u"vignette"_s, vignette())

} // namespace zm
