#include "filters/craft/recipe.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The rim of the picture, lit from the top left.
Recipe bevel()
{
    return RecipePass("bevel")
        .pictureSize("u_size")
        .computed("u_bevel", [](const FilterRenderRequest &request) { return std::round(request.pixels(u"size"_s)); })
        .number("u_strength", "strength")
        .number("u_smoothness", "smoothness")
        .computed("u_sign",
                  [](const FilterRenderRequest &request) { return request.choice(u"mode"_s) == 1 ? -1.0 : 1.0; });
}

} // namespace

ZM_LIBRARY_EFFECT(Bevel, RecipeFilter, u"bevel"_s, bevel())

} // namespace zm
