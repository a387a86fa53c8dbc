#include "filters/craft/map_size.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kCopyReduction = 4; // the copy is soft

// A pale apparition in mist.
class GhostFilter final : public LibraryFilter
{
public:
    GhostFilter()
        : LibraryFilter(u"ghost"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const QSize copySize = mapSize(size, kCopyReduction);
        const double radius = std::max(request.diagonalPixels(u"blurRadius"_s, 9.0), 0.01);
        LibraryUniformBlock block(u"ghost"_s);
        block.setVec4("u_size"_L1, size.width(), size.height(), copySize.width(), copySize.height());
        block.setVec2("u_texelSize"_L1, 1.0 / size.width(), 1.0 / size.height());
        block.setColor("u_tint"_L1, request.parameters.color(u"tint"_s, QColor(0xb9, 0xdc, 0xf0)));
        block.setFloat("u_strength"_L1, request.percent(u"strength"_s, 85.0));
        block.setFloat("u_noise"_L1, request.percent(u"noise"_s, 25.0));
        block.setFloat("u_threshold"_L1, request.percent(u"threshold"_s, 38.0));
        block.setFloat("u_softness"_L1, std::max(request.percent(u"softness"_s, 45.0), 0.01));
        block.setFloat("u_glow"_L1, request.percent(u"glow"_s, 55.0));
        block.setFloat("u_fade"_L1, request.percent(u"fade"_s, 50.0));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture copy = chain.libraryShader(block.shaderId(), copySize, {input}, block.bytes());
        const PassChain::Picture soft = chain.gaussianBlur(copy, radius / kCopyReduction);
        block.setFloat("u_blurRadius"_L1, radius);
        const PassChain::Picture stack = chain.stacked(input, soft, request.renderer->maximumTextureSize());
        return request.chained(chain, chain.libraryShader(block.shaderId(), size, {stack}, block.bytes()));
    }
};

} // namespace

std::unique_ptr<Filter> makeGhostFilter()
{
    return std::make_unique<GhostFilter>();
}

} // namespace zm
