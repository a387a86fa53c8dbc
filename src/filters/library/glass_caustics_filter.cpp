#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The picture under moving water: bent by it, and lit by the net of light that it casts.
Recipe glassCaustics()
{
    return RecipePass("glass-caustics")
        .pictureSize("u_size")
        .diagonalPixels("u_causticScale", "size")
        .percent("u_refraction", "refraction")
        .percent("u_light", "light")
        .percent("u_flow", "flow")
        .percent("u_chroma", "chroma")
        .number("u_seed", "seed");
}

} // namespace

ZM_LIBRARY_EFFECT(GlassCaustics, RecipeFilter, u"glass-caustics"_s, glassCaustics())

} // namespace zm
