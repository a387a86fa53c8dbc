#include "filters/craft/recipe.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

Recipe jaggedEdge()
{
    return RecipePass("jagged-edge")
        .pictureSize("u_size")
        .diagonalPixels("u_edge_size", "edgeSize")
        .percent("u_roughness", "roughness")
        .diagonalPixels("u_pattern_size", "patternSize")
        .percent("u_detail", "detail")
        .choice("u_style", "style")
        .number("u_seed", "seed")
        .computed("u_softness", [](const FilterRenderRequest &request) {
            return request.percent(u"softness"_s) * request.diagonalPixels(u"edgeSize"_s);
        });
}

} // namespace

ZM_LIBRARY_EFFECT(JaggedEdge, RecipeFilter, u"jagged-edge"_s, jaggedEdge())

} // namespace zm
