#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Square blocks, in the picture's colours or in those of an old screen.
class PixelateFilter final : public LibraryFilter
{
public:
    PixelateFilter()
        : LibraryFilter(u"pixelate"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const double block = std::max(request.diagonalPixels(u"block"_s, 7.0), 1.0);
        // Whole blocks only, a little off square: none is cut at the rim, and the grid is the same at every size.
        const QSize grid(std::max(qRound(size.width() / block), 1), std::max(qRound(size.height() / block), 1));

        LibraryUniformBlock uniforms(u"pixelate"_s);
        uniforms.setVec4("u_size"_L1, size.width(), size.height(), grid.width(), grid.height());
        uniforms.setFloat("u_palette"_L1,
                          request.choice(u"palette"_s,
                                         {"original"_L1, "handheld"_L1, "8bit"_L1, "16colors"_L1, "computer"_L1,
                                          "amber"_L1, "mono"_L1}));
        uniforms.setFloat("u_saturation"_L1, request.percent(u"saturation"_s, 112.0));
        uniforms.setFloat("u_contrast"_L1, request.percent(u"contrast"_s, 108.0));
        uniforms.setFloat("u_dither"_L1, request.percent(u"dither"_s, 0.0));
        uniforms.setFloat("u_outline"_L1, request.percent(u"outline"_s, 0.0));

        PassChain chain;
        PassChain::Picture picture = chain.source(request.image);
        const QSize stageSizes[] = {grid, grid, size};
        for (int stage = 0; stage < 3; ++stage) {
            uniforms.setVec2("u_block"_L1, block, stage);
            picture = chain.libraryShader(uniforms.shaderId(), stageSizes[stage], {picture}, uniforms.bytes());
        }
        return request.chained(chain, picture);
    }
};

} // namespace

std::unique_ptr<Filter> makePixelateFilter()
{
    return std::make_unique<PixelateFilter>();
}

} // namespace zm
