#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// One colour stays, the rest turns grey.
class SelectiveColorFilter final : public LibraryFilter
{
public:
    SelectiveColorFilter()
        : LibraryFilter(u"selective-color"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"selective-color"_s);
        block.setFloat("u_targetHue"_L1, request.number(u"targetHue"_s, 8.0) / 360.0);
        block.setFloat("u_tolerance"_L1, request.number(u"tolerance"_s, 22.0) / 360.0);
        block.setFloat("u_softness"_L1, request.number(u"softness"_s, 18.0) / 360.0);
        block.setFloat("u_backgroundSaturation"_L1, request.percent(u"backgroundSaturation"_s, 0.0));
        block.setFloat("u_targetBoost"_L1, request.percent(u"targetBoost"_s, 20.0));
        block.setFloat("u_amount"_L1, request.percent(u"amount"_s, 100.0));
        block.setFloat("u_invert"_L1, request.parameters.boolean(u"invert"_s, false) ? 1.0 : 0.0);

        GrayscaleLevels levels;
        levels.blackPoint = request.percent(u"blackPoint"_s, 0.0);
        levels.whitePoint = request.percent(u"whitePoint"_s, 100.0);

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture gray = chain.keepRed(chain.grayscale(input, levels));
        return request.chained(chain, addPass(chain, block, {input, gray}));
    }
};

} // namespace

std::unique_ptr<Filter> makeSelectiveColorFilter()
{
    return std::make_unique<SelectiveColorFilter>();
}

} // namespace zm
