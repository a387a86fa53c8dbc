#include "filters/craft/film_look.h"
#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Recipe winterBreeze()
{
    return RecipePass("winter-breeze")
        .pictureSize("u_size")
        .lineStartInPicture("u_lightCenter", "position")
        .lineLength("u_lightRadius", "position")
        .percent("u_flash", "flash")
        .percent("u_saturation", "saturation")
        .percent("u_coldness", "coldness")
        .percent("u_softness", "softness")
        .percent("u_frost", "frost")
        .percent("u_storm", "storm")
        .percent("u_vignette", "vignette")
        .percent("u_grain", "grain")
        .layerUnits("u_grainSize", kFilmGrainSize)
        .withSoftCopy(kGlowSize);
}

} // namespace

ZM_LIBRARY_EFFECT(WinterBreeze, RecipeFilter, u"winter-breeze"_s, winterBreeze())

} // namespace zm
