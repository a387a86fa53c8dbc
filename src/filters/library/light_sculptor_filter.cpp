#include "filters/craft/recipe.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The picture as a relief, lit by a light that hangs over it.
Recipe lightSculptor()
{
    return RecipePass("light-sculptor")
        .pictureSize("u_size")
        .lineStart("u_lightCenter", "light")
        .computed("u_lightRadius",
                  [](const FilterRenderRequest &request) { return std::max(request.line(u"light"_s).length(), 1.0); })
        .percent("u_depth", "depth")
        .diagonalPixels("u_normalStepPx", "detailSize")
        .percent("u_lightHeight", "lightHeight")
        .percent("u_softness", "softness")
        .percent("u_ambient", "ambient")
        .percent("u_shine", "shine")
        .choice("u_material", "material");
}

} // namespace

ZM_LIBRARY_EFFECT(LightSculptor, RecipeFilter, u"light-sculptor"_s, lightSculptor())

} // namespace zm
