#include "filters/craft/film_look.h"
#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kGrainSize = 1.8; // of a print, which is coarser than film; layer units

// A faded print, sharpened as a scan of it would be.
Recipe retro()
{
    return {RecipePass("retro")
                .pictureSize("u_size")
                .color("u_tint", "tint")
                .percent("u_tintAmount", "tintAmount")
                .percent("u_colorSpread", "colorSpread")
                .percent("u_contrast", "contrast")
                .percent("u_shadowLift", "shadowLift")
                .percent("u_saturation", "saturation")
                .percent("u_grain", "grain")
                .layerUnits("u_grainSize", kGrainSize)
                .percent("u_sharpen", "sharpen")
                .number("u_seed", "seed"),
            RecipePass("sharpen")
                .pictureSize("u_size")
                .percent("u_strength", "sharpen")
                .layerUnits("u_radius", kSharpenRadius)
                .leftOutAtZero("sharpen")};
}

} // namespace

ZM_LIBRARY_EFFECT(Retro, RecipeFilter, u"retro"_s, retro())

} // namespace zm
