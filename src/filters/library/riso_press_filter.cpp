#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A print in two or three spot colours.
Recipe risoPress()
{
    return RecipePass("riso-press")
        .pictureSize("u_size")
        .choice("u_palette", "palette")
        .diagonalPixels("u_screenScale", "screenScale")
        .diagonalPixels("u_misregistration", "misregistration")
        .percent("u_inkDensity", "inkDensity")
        .percent("u_grain", "grain")
        .number("u_seed", "seed");
}

} // namespace

ZM_LIBRARY_EFFECT(RisoPress, RecipeFilter, u"riso-press"_s, risoPress())

} // namespace zm
