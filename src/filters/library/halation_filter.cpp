#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class HalationFilter final : public LibraryFilter
{
public:
    HalationFilter()
        : LibraryFilter(u"halation"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock energy(u"halation-highlights"_s);
        energy.setFloat("u_threshold"_L1, request.percent(u"threshold"_s, 70.0));
        energy.setFloat("u_softness"_L1, request.percent(u"softness"_s, 22.0));
        LibraryUniformBlock halo(u"halation"_s);
        halo.setFloat("u_strength"_L1, request.percent(u"strength"_s, 60.0));
        halo.setFloat("u_warmth"_L1, request.percent(u"warmth"_s, 80.0));
        const double sigma = request.renderScale() * std::clamp(request.number(u"radius"_s, 18.0), 1.0, 64.0);

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture highlights = chain.keepRed(addPass(chain, energy, {input}));
        const PassChain::Picture blurred = chain.gaussianBlur(highlights, sigma);
        return request.chained(chain, addPass(chain, halo, {input, highlights, blurred}));
    }
};

} // namespace

std::unique_ptr<Filter> makeHalationFilter()
{
    return std::make_unique<HalationFilter>();
}

} // namespace zm
