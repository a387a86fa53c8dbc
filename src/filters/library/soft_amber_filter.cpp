#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Recipe softAmber()
{
    return RecipePass("soft-amber")
        .percent("u_strength", "strength")
        .percent("u_warmth", "warmth")
        .percent("u_pastel", "pastel")
        .percent("u_greens", "greens");
}

} // namespace

ZM_LIBRARY_EFFECT(SoftAmber, RecipeFilter, u"soft-amber"_s, softAmber())

} // namespace zm
