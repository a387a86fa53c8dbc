#include "filters/craft/shape_mask.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class LomoFilter final : public LibraryFilter
{
public:
    LomoFilter()
        : LibraryFilter(u"lomo"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double cross = request.percent(u"crossProcess"_s, 60.0);
        const double saturation = request.percent(u"saturation"_s, 40.0);
        const double vignette = request.percent(u"vignette"_s, 70.0);
        const double exponent = std::exp2(-0.8 * request.percent(u"brightness"_s, 0.0));

        LibraryUniformBlock bath(u"lomo_pre"_s);
        bath.setFloat("u_satMul"_L1, 1.0 + 0.6 * saturation);
        bath.setVec4("u_invGamma"_L1, exponent * (1.0 + 0.05 * cross), exponent * (1.0 - 0.04 * cross),
                     exponent * (1.0 + 0.12 * cross), cross);
        LibraryUniformBlock corners(u"vignette"_s);
        corners.setFloat("u_strength"_L1, vignette);
        corners.setColor("u_tint"_L1, kCornerColor);
        LibraryUniformBlock lens(u"lomo_post"_s);
        lens.setVec2("u_texelSize"_L1, 1.0 / request.image.width(), 1.0 / request.image.height());
        lens.setFloat("u_satMul"_L1, 1.0 + 0.2 * saturation);
        lens.setVec4("u_sharpen"_L1, request.percent(u"sharpen"_s, 40.0), request.percent(u"cornerBlur"_s, 40.0),
                     request.renderScale(), 0.0);

        PassChain chain;
        PassChain::Picture picture = addPass(chain, bath, {chain.source(request.image)});
        if (vignette > 0.0)
            picture = addPass(chain, corners, {picture, addCornerMask(chain, request.bounds.size(), 0.86)});
        const PassChain::Picture soft =
            chain.reducedBlur(picture, kCornerBlur * std::hypot(request.image.width(), request.image.height()));
        return request.chained(chain, addPass(chain, lens, {picture, soft}));
    }

private:
    static constexpr double kCornerBlur = 0.004; ///< sigma, as a share of the diagonal
    static constexpr QColor kCornerColor{6, 6, 14};
};

} // namespace

std::unique_ptr<Filter> makeLomoFilter()
{
    return std::make_unique<LomoFilter>();
}

} // namespace zm
