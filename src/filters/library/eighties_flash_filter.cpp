#include "filters/craft/film_look.h"
#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kSoftFocus = 0.009; // sigma, as a share of the diagonal

Recipe eightiesFlash()
{
    return RecipePass("80sflash")
        .pictureSize("u_size")
        .lineStartInPicture("u_flashCenter", "position")
        .lineLength("u_flashRadius", "position")
        .percent("u_flash", "flash")
        .percent("u_saturation", "saturation")
        .percent("u_softFocus", "softFocus")
        .percent("u_glow", "glow")
        .percent("u_warmth", "warmth")
        .percent("u_vignette", "vignette")
        .percent("u_grain", "grain")
        .layerUnits("u_grainSize", kFilmGrainSize)
        .withSoftCopy(kSoftFocus);
}

} // namespace

ZM_LIBRARY_EFFECT(EightiesFlash, RecipeFilter, u"80sflash"_s, eightiesFlash())

} // namespace zm
