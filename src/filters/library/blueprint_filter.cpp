#include "filters/craft/map_size.h"
#include "filters/library_filter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A technical drawing on blue paper.
class BlueprintFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"blueprint"_s);
        const double reach = std::max(1.4 * request.diagonalPixels(u"edgeRadius"_s), 0.8);
        const int reduction = std::max(int(reach / kGradientReachInMap), 1);
        const QSize tonesSize = mapSize(request.size(), reduction);
        block.setSize("u_size"_L1, request.size());
        block.setTexelSize("u_texelSize"_L1, request.size());
        block.setSize("u_mapSize"_L1, tonesSize);
        block.setColor("u_tint"_L1, request.color(u"tint"_s));
        block.setColor("u_lineColor"_L1, request.color(u"lineColor"_s));
        block.setFloat("u_intensity"_L1, request.percent(u"intensity"_s));
        block.setFloat("u_edgeStrength"_L1, request.percent(u"edgeStrength"_s));
        block.setFloat("u_tintMix"_L1, request.percent(u"tintMix"_s));
        block.setFloat("u_gridSize"_L1, request.diagonalPixels(u"gridSize"_s));
        block.setFloat("u_gridOpacity"_L1, request.percent(u"gridOpacity"_s));
        block.setColor("u_gridColor"_L1, request.color(u"gridColor"_s));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture rough = chain.libraryShader(block.shaderId(), tonesSize, {input}, block.bytes());
        const PassChain::Picture tones = chain.gaussianBlur(rough, 0.6 * reach / reduction);
        block.setFloat("u_edgeRadius"_L1, reach);
        const PassChain::Picture stack = chain.stacked(input, tones, request.renderer->maximumTextureSize());
        return request.chained(chain, chain.libraryShader(block.shaderId(), request.size(), {stack}, block.bytes()));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Blueprint, BlueprintFilter, u"blueprint"_s)

} // namespace zm
