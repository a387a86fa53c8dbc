#include "filters/craft/map_size.h"
#include "filters/craft/shape_mask.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Lights out of focus, as a fast lens draws them, in the colours of the picture.
class BokehPearlsFilter final : public LibraryFilter
{
public:
    BokehPearlsFilter()
        : LibraryFilter(u"bokeh-pearls"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double intensity = request.percent(u"intensity"_s, 70.0);
        if (intensity <= 0.0)
            return request.unchanged();
        const bool inverted = request.parameters.boolean(u"mask.inverted"_s, true);
        const double radius = request.diagonalPixels(u"radius"_s, 40.0);
        LibraryUniformBlock block(u"bokeh-pearls"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_density"_L1, request.percent(u"density"_s, 55.0));
        block.setFloat("u_radius"_L1, radius);
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s, 25.0));
        block.setFloat("u_rim"_L1, request.percent(u"rim"_s, 45.0));
        block.setFloat("u_shape"_L1, request.choice(u"shape"_s, {"disc"_L1, "hexagon"_L1, "heart"_L1}));
        block.setFloat("u_colorBoost"_L1, request.percent(u"colorBoost"_s, 50.0));
        block.setFloat("u_variation"_L1, request.percent(u"variation"_s, 60.0));
        block.setFloat("u_overlap"_L1, request.percent(u"overlap"_s, 50.0));
        block.setFloat("u_colorWarmth"_L1, request.percent(u"colorWarmth"_s, 20.0));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture mask =
            addShapeMask(chain, request, {u"ellipse"_s, {.scaleX = 0.9, .scaleY = 0.9}, 75.0});
        const int reduction = std::clamp(int(radius / kSmallestRadius), 1, kMostReduction);
        const auto setStep = [&](int step) {
            block.setVec4("u_intensity"_L1, intensity, inverted ? 1.0 : 0.0, step, reduction);
        };
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

std::unique_ptr<Filter> makeBokehPearlsFilter()
{
    return std::make_unique<BokehPearlsFilter>();
}

} // namespace zm
