#include "filters/craft/film_look.h"
#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Recipe autumnGlow()
{
    return RecipePass("autumn-glow")
        .pictureSize("u_size")
        .lineStartInPicture("u_glowCenter", "position")
        .lineLength("u_glowRadius", "position")
        .percent("u_flash", "flash")
        .percent("u_saturation", "saturation")
        .percent("u_warmth", "warmth")
        .percent("u_softness", "softness")
        .percent("u_bokeh", "bokeh")
        .percent("u_vignette", "vignette")
        .percent("u_grain", "grain")
        .layerUnits("u_grainSize", kFilmGrainSize)
        .withSoftCopy(kGlowSize);
}

} // namespace

ZM_LIBRARY_EFFECT(AutumnGlow, RecipeFilter, u"autumn-glow"_s, autumnGlow())

} // namespace zm
