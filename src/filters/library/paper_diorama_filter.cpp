#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kFirstBlur = 0.4; // sigma, of the reach of the smoothing
constexpr double kFirstBlurInCopy = 2.2; // the same in pixels of the copy, at most
constexpr double kRounding = 0.16; // sigma of the blur that rounds corners and parts the sheets, of the reach
constexpr int kSmoothingPasses = 4; // across and down in turn

// Cut paper in layers.
class PaperDioramaFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double angle = request.radians(u"lightDirection"_s);
        LibraryUniformBlock block(u"paper-diorama"_s);
        block.setSize("u_size"_L1, request.size());
        block.setFloat("u_renderScale"_L1, request.renderScale());
        block.setFloat("u_layers"_L1, request.number(u"layers"_s));
        block.setFloat("u_depthPx"_L1, request.diagonalPixels(u"depth"_s));
        block.setVec2("u_lightDirection"_L1, std::cos(angle), -std::sin(angle));
        block.setFloat("u_palette"_L1, request.choice(u"palette"_s));
        block.setFloat("u_paperTexture"_L1, request.percent(u"paperTexture"_s));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        return request.chained(chain, addPass(chain, block, {input, softCopy(chain, request, input)}));
    }

private:
    /// Large forms with crisp outlines: what the sheets are cut from. Blurred a little first, which takes the grain and
    /// lets the smoothing that keeps edges work at a reduced size.
    static PassChain::Picture softCopy(PassChain &chain, const FilterRenderRequest &request, PassChain::Picture input)
    {
        const double reach = std::max(request.diagonalPixels(u"smoothness"_s), 0.1);
        PassChain::Picture soft = chain.reducedBlur(input, reach * kFirstBlur, TextureEdge::Clamp, kFirstBlurInCopy);
        const QSize size = chain.size(soft);
        LibraryUniformBlock block(u"paper-diorama-smooth"_s);
        block.setSize("u_size"_L1, size);
        block.setFloat("u_radiusPx"_L1, reach * size.width() / request.image.width());
        block.setFloat("u_detail"_L1, request.percent(u"detail"_s));
        for (int pass = 0; pass < kSmoothingPasses; ++pass) {
            block.setVec2("u_direction"_L1, pass % 2 == 0 ? 1.0 : 0.0, pass % 2 == 0 ? 0.0 : 1.0);
            soft = addPass(chain, block, {soft});
        }
        return chain.gaussianBlur(soft, kRounding * reach * size.width() / request.image.width());
    }
};

} // namespace

ZM_LIBRARY_EFFECT(PaperDiorama, PaperDioramaFilter, u"paper-diorama"_s)

} // namespace zm
