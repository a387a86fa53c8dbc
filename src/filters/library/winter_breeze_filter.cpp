#include "filters/craft/placed_line.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class WinterBreezeFilter final : public LibraryFilter
{
public:
    WinterBreezeFilter()
        : LibraryFilter(u"winter-breeze"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double width = request.image.width();
        const double height = request.image.height();
        const QLineF place = placedLine(request, u"position"_s, {0.3, 0.1, 0.3, 0.8});

        LibraryUniformBlock block(u"winter-breeze"_s);
        block.setVec2("u_size"_L1, width, height);
        block.setVec2("u_lightCenter"_L1, place.x1() / width, place.y1() / height);
        block.setFloat("u_lightRadius"_L1, place.length());
        block.setFloat("u_flash"_L1, request.percent(u"flash"_s, 30.0));
        block.setFloat("u_saturation"_L1, request.percent(u"saturation"_s, -10.0));
        block.setFloat("u_coldness"_L1, request.percent(u"coldness"_s, 65.0));
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s, 25.0));
        block.setFloat("u_frost"_L1, request.percent(u"frost"_s, 25.0));
        block.setFloat("u_storm"_L1, request.percent(u"storm"_s, 25.0));
        block.setFloat("u_vignette"_L1, request.percent(u"vignette"_s, 15.0));
        block.setVec2("u_grain"_L1, request.percent(u"grain"_s, 8.0), kGrainSize * request.renderScale());

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture soft = chain.reducedBlur(input, kSoftness * std::hypot(width, height));
        return request.chained(chain, addPass(chain, block, {input, soft}));
    }

private:
    static constexpr double kSoftness = 0.012; ///< sigma of the soft copy, as a share of the diagonal
    static constexpr double kGrainSize = 1.7; ///< layer pixels
};

} // namespace

std::unique_ptr<Filter> makeWinterBreezeFilter()
{
    return std::make_unique<WinterBreezeFilter>();
}

} // namespace zm
