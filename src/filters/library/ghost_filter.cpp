#include "filters/craft/map_size.h"
#include "filters/library_filter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kCopyReduction = 4; // the copy is soft

// A pale apparition in mist.
class GhostFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const QSize copySize = mapSize(size, kCopyReduction);
        const double radius = std::max(request.diagonalPixels(u"blurRadius"_s), 0.01);
        LibraryUniformBlock block(u"ghost"_s);
        block.setSize("u_size"_L1, size);
        block.setTexelSize("u_texelSize"_L1, size);
        block.setSize("u_copySize"_L1, copySize);
        block.setColor("u_tint"_L1, request.color(u"tint"_s));
        block.setFloat("u_strength"_L1, request.percent(u"strength"_s));
        block.setFloat("u_noise"_L1, request.percent(u"noise"_s));
        block.setFloat("u_threshold"_L1, request.percent(u"threshold"_s));
        block.setFloat("u_softness"_L1, std::max(request.percent(u"softness"_s), 0.01));
        block.setFloat("u_glow"_L1, request.percent(u"glow"_s));
        block.setFloat("u_fade"_L1, request.percent(u"fade"_s));

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

ZM_LIBRARY_EFFECT(Ghost, GhostFilter, u"ghost"_s)

} // namespace zm
