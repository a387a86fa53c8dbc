#include "filters/craft/map_size.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kReachInMap = 1.6; // of the gradient, pixels of the map of tones, or more

// A technical drawing on blue paper.
class BlueprintFilter final : public LibraryFilter
{
public:
    BlueprintFilter()
        : LibraryFilter(u"blueprint"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double width = request.image.width();
        const double height = request.image.height();
        LibraryUniformBlock block(u"blueprint"_s);
        const double reach = std::max(1.4 * request.diagonalPixels(u"edgeRadius"_s, 0.8), 0.8);
        const int reduction = std::max(int(reach / kReachInMap), 1);
        const QSize tonesSize = mapSize(request.size(), reduction);
        block.setVec4("u_size"_L1, width, height, tonesSize.width(), tonesSize.height());
        block.setVec2("u_texelSize"_L1, 1.0 / width, 1.0 / height);
        block.setColor("u_tint"_L1, request.parameters.color(u"tint"_s, QColor(0x12, 0x41, 0x8c)));
        block.setColor("u_lineColor"_L1, request.parameters.color(u"lineColor"_s, QColor(0xee, 0xf6, 0xff)));
        block.setFloat("u_intensity"_L1, request.percent(u"intensity"_s, 55.0));
        block.setFloat("u_edgeStrength"_L1, request.percent(u"edgeStrength"_s, 60.0));
        block.setFloat("u_tintMix"_L1, request.percent(u"tintMix"_s, 100.0));
        block.setFloat("u_gridSize"_L1, request.diagonalPixels(u"gridSize"_s, 16.0));
        block.setFloat("u_gridOpacity"_L1, request.percent(u"gridOpacity"_s, 32.0));
        block.setColor("u_gridColor"_L1, request.parameters.color(u"gridColor"_s, QColor(0xa9, 0xcd, 0xf7)));

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

std::unique_ptr<Filter> makeBlueprintFilter()
{
    return std::make_unique<BlueprintFilter>();
}

} // namespace zm
