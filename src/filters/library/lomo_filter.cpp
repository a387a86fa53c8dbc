#include "filters/craft/shape_mask.h"
#include "filters/library_filter.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class LomoFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double cross = request.percent(u"crossProcess"_s);
        const double saturation = request.percent(u"saturation"_s);
        const double vignette = request.percent(u"vignette"_s);
        const double exponent = std::exp2(-0.8 * request.percent(u"brightness"_s));

        LibraryUniformBlock bath(u"lomo_pre"_s);
        bath.setFloat("u_satMul"_L1, 1.0 + 0.6 * saturation);
        bath.setVec4("u_invGamma"_L1, exponent * (1.0 + 0.05 * cross), exponent * (1.0 - 0.04 * cross),
                     exponent * (1.0 + 0.12 * cross), 0.0);
        bath.setFloat("u_crossProcess"_L1, cross);
        LibraryUniformBlock corners(u"vignette"_s);
        corners.setFloat("u_strength"_L1, vignette);
        corners.setColor("u_tint"_L1, kCornerColor);
        LibraryUniformBlock lens(u"lomo_post"_s);
        lens.setTexelSize("u_texelSize"_L1, request.size());
        lens.setFloat("u_satMul"_L1, 1.0 + 0.2 * saturation);
        lens.setFloat("u_sharpen"_L1, request.percent(u"sharpen"_s));
        lens.setFloat("u_cornerBlur"_L1, request.percent(u"cornerBlur"_s));
        lens.setFloat("u_sharpenReach"_L1, request.renderScale());

        PassChain chain;
        PassChain::Picture picture = addPass(chain, bath, {chain.source(request.image)});
        if (vignette > 0.0)
            picture = addPass(chain, corners, {picture, addCornerMask(chain, request.bounds.size(), 0.86)});
        const PassChain::Picture soft = chain.reducedBlur(picture, kCornerBlur * request.diagonal());
        return request.chained(chain, addPass(chain, lens, {picture, soft}));
    }

private:
    static constexpr double kCornerBlur = 0.004; ///< sigma, as a share of the diagonal
    static constexpr QColor kCornerColor{6, 6, 14};
};

} // namespace

ZM_LIBRARY_EFFECT(Lomo, LomoFilter, u"lomo"_s)

} // namespace zm
