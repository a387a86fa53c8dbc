#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Recipe sepiaTone()
{
    return RecipePass("sepia-tone")
        .computedPair("u_tintHS",
                      [](const FilterRenderRequest &request) {
                          return QPointF(request.number(u"hue"_s) / 360.0, request.percent(u"saturation"_s));
                      })
        .percent("u_brightness", "brightness")
        .percent("u_contrast", "contrast")
        .percent("u_intensity", "intensity");
}

} // namespace

ZM_LIBRARY_EFFECT(SepiaTone, RecipeFilter, u"sepia-tone"_s, sepiaTone())

} // namespace zm
