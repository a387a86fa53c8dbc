#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Recipe filmGrain()
{
    return RecipePass("film-grain")
        .pictureSize("u_size")
        .choice("u_style", "style")
        .percent("u_amount", "amount")
        .percent("u_opacity", "opacity")
        .number("u_seed", "seed")
        .pixels("u_scale", "scale");
}

} // namespace

ZM_LIBRARY_EFFECT(FilmGrain, RecipeFilter, u"film-grain"_s, filmGrain())

} // namespace zm
