#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// One colour stays, the rest turns grey.
class SelectiveColorFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"selective-color"_s);
        block.setFloat("u_targetHue"_L1, request.number(u"targetHue"_s) / 360.0);
        block.setFloat("u_tolerance"_L1, request.number(u"tolerance"_s) / 360.0);
        block.setFloat("u_softness"_L1, request.number(u"softness"_s) / 360.0);
        block.setFloat("u_backgroundSaturation"_L1, request.percent(u"backgroundSaturation"_s));
        block.setFloat("u_targetBoost"_L1, request.percent(u"targetBoost"_s));
        block.setFloat("u_amount"_L1, request.percent(u"amount"_s));
        block.setFloat("u_invert"_L1, request.flag(u"invert"_s));

        GrayscaleLevels levels;
        levels.blackPoint = request.percent(u"blackPoint"_s);
        levels.whitePoint = request.percent(u"whitePoint"_s);

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture gray = chain.keepRed(chain.grayscale(input, levels));
        return request.chained(chain, addPass(chain, block, {input, gray}));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(SelectiveColor, SelectiveColorFilter, u"selective-color"_s)

} // namespace zm
