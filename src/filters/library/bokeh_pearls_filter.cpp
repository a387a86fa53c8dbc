#include "filters/craft/map_size.h"
#include "filters/craft/shape_mask.h"
#include "filters/library_filter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Lights out of focus, as a fast lens draws them, in the colours of the picture.
class BokehPearlsFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double intensity = request.percent(u"intensity"_s);
        if (intensity <= 0.0)
            return request.unchanged();
        const double radius = request.diagonalPixels(u"radius"_s);
        LibraryUniformBlock block(u"bokeh-pearls"_s);
        block.setSize("u_size"_L1, request.size());
        block.setFloat("u_density"_L1, request.percent(u"density"_s));
        block.setFloat("u_radius"_L1, radius);
        block.setFloat("u_intensity"_L1, intensity);
        block.setFloat("u_maskInverted"_L1, request.flag(u"mask.inverted"_s));
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s));
        block.setFloat("u_rim"_L1, request.percent(u"rim"_s));
        block.setFloat("u_shape"_L1, request.choice(u"shape"_s));
        block.setFloat("u_colorBoost"_L1, request.percent(u"colorBoost"_s));
        block.setFloat("u_variation"_L1, request.percent(u"variation"_s));
        block.setFloat("u_overlap"_L1, request.percent(u"overlap"_s));
        block.setFloat("u_colorWarmth"_L1, request.percent(u"colorWarmth"_s));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture mask = addShapeMask(chain, request);
        const int reduction = std::clamp(int(radius / kSmallestRadius), 1, kMostReduction);
        block.setFloat("u_reduction"_L1, reduction);
        const auto setStep = [&](int step) { block.setFloat("u_step"_L1, step); };
        if (reduction == 1) {
            setStep(0);
            return request.chained(chain, addPass(chain, block, {input, mask}));
        }
        setStep(1);
        const PassChain::Picture lights =
            chain.libraryShader(block.shaderId(), mapSize(request.size(), reduction), {input, mask}, block.bytes());
        setStep(2);
        return request.chained(chain, addPass(chain, block, {input, lights}));
    }

private:
    // Of the largest lights, for each step of reduction, pixels: less would blur the outlines of the small ones.
    static constexpr double kSmallestRadius = 30.0;
    static constexpr int kMostReduction = 3;
};

} // namespace

ZM_LIBRARY_EFFECT(BokehPearls, BokehPearlsFilter, u"bokeh-pearls"_s)

} // namespace zm
