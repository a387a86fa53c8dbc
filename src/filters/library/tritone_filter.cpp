#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Three colours for shadows, midtones and highlights.
Recipe tritone()
{
    return RecipePass("tritone")
        .color("u_toneLow", "tone0")
        .color("u_toneMid", "tone1")
        .color("u_toneHigh", "tone2")
        .percent("u_balance", "balance")
        .percent("u_contrast", "contrast")
        .percent("u_amount", "amount");
}

} // namespace

ZM_LIBRARY_EFFECT(Tritone, RecipeFilter, u"tritone"_s, tritone())

} // namespace zm
