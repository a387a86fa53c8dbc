#include "filters/craft/placed_line.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class EightiesFlashFilter final : public LibraryFilter
{
public:
    EightiesFlashFilter()
        : LibraryFilter(u"80sflash"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double width = request.image.width();
        const double height = request.image.height();
        const QLineF place = placedLine(request, u"position"_s, {0.5, 0.42, 0.5, 0.98});

        LibraryUniformBlock block(u"80sflash"_s);
        block.setVec2("u_size"_L1, width, height);
        block.setVec2("u_flashCenter"_L1, place.x1() / width, place.y1() / height);
        block.setFloat("u_flashRadius"_L1, place.length());
        block.setFloat("u_flash"_L1, request.percent(u"flash"_s, 65.0));
        block.setFloat("u_saturation"_L1, request.percent(u"saturation"_s, 20.0));
        block.setFloat("u_softFocus"_L1, request.percent(u"softFocus"_s, 18.0));
        block.setFloat("u_glow"_L1, request.percent(u"glow"_s, 30.0));
        block.setFloat("u_warmth"_L1, request.percent(u"warmth"_s, 45.0));
        block.setFloat("u_vignette"_L1, request.percent(u"vignette"_s, 35.0));
        block.setVec2("u_grain"_L1, request.percent(u"grain"_s, 22.0), kGrainSize * request.renderScale());

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture soft = chain.reducedBlur(input, kSoftness * std::hypot(width, height));
        return request.chained(chain, addPass(chain, block, {input, soft}));
    }

private:
    static constexpr double kSoftness = 0.009; ///< sigma of the soft copy, as a share of the diagonal
    static constexpr double kGrainSize = 1.7; ///< layer pixels
};

} // namespace

std::unique_ptr<Filter> makeEightiesFlashFilter()
{
    return std::make_unique<EightiesFlashFilter>();
}

} // namespace zm
