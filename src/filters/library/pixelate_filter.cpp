#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Square blocks, in the picture's colours or in those of an old screen.
class PixelateFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const double block = std::max(request.diagonalPixels(u"block"_s), 1.0);
        // Whole blocks only, a little off square: none is cut at the rim, and the grid is the same at every size.
        const QSize grid(std::max(qRound(size.width() / block), 1), std::max(qRound(size.height() / block), 1));

        LibraryUniformBlock uniforms(u"pixelate"_s);
        uniforms.setSize("u_size"_L1, size);
        uniforms.setFloat("u_block"_L1, block);
        uniforms.setSize("u_gridSize"_L1, grid);
        uniforms.setFloat("u_palette"_L1, request.choice(u"palette"_s));
        uniforms.setFloat("u_saturation"_L1, request.percent(u"saturation"_s));
        uniforms.setFloat("u_contrast"_L1, request.percent(u"contrast"_s));
        uniforms.setFloat("u_dither"_L1, request.percent(u"dither"_s));
        uniforms.setFloat("u_outline"_L1, request.percent(u"outline"_s));

        PassChain chain;
        PassChain::Picture picture = chain.source(request.image);
        const QSize stageSizes[] = {grid, grid, size};
        for (int stage = 0; stage < 3; ++stage) {
            uniforms.setFloat("u_step"_L1, stage);
            picture = chain.libraryShader(uniforms.shaderId(), stageSizes[stage], {picture}, uniforms.bytes());
        }
        return request.chained(chain, picture);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Pixelate, PixelateFilter, u"pixelate"_s)

} // namespace zm
