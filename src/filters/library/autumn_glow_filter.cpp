#include "filters/craft/placed_line.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class AutumnGlowFilter final : public LibraryFilter
{
public:
    AutumnGlowFilter()
        : LibraryFilter(u"autumn-glow"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double width = request.image.width();
        const double height = request.image.height();
        const QLineF place = placedLine(request, u"position"_s, {0.78, 0.12, 0.78, 0.8});

        LibraryUniformBlock block(u"autumn-glow"_s);
        block.setVec2("u_size"_L1, width, height);
        block.setVec2("u_glowCenter"_L1, place.x1() / width, place.y1() / height);
        block.setFloat("u_glowRadius"_L1, place.length());
        block.setFloat("u_flash"_L1, request.percent(u"flash"_s, 50.0));
        block.setFloat("u_saturation"_L1, request.percent(u"saturation"_s, 15.0));
        block.setFloat("u_warmth"_L1, request.percent(u"warmth"_s, 65.0));
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s, 35.0));
        block.setFloat("u_bokeh"_L1, request.percent(u"bokeh"_s, 30.0));
        block.setFloat("u_vignette"_L1, request.percent(u"vignette"_s, 25.0));
        block.setVec2("u_grain"_L1, request.percent(u"grain"_s, 10.0), kGrainSize * request.renderScale());

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

std::unique_ptr<Filter> makeAutumnGlowFilter()
{
    return std::make_unique<AutumnGlowFilter>();
}

} // namespace zm
