#include "filters/library_filter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class HalationFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock energy(u"halation-highlights"_s);
        energy.setFloat("u_threshold"_L1, request.percent(u"threshold"_s));
        energy.setFloat("u_softness"_L1, request.percent(u"softness"_s));
        LibraryUniformBlock halo(u"halation"_s);
        halo.setFloat("u_strength"_L1, request.percent(u"strength"_s));
        halo.setFloat("u_warmth"_L1, request.percent(u"warmth"_s));
        const double sigma = request.renderScale() * std::clamp(request.number(u"radius"_s), 1.0, 64.0);

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture highlights = chain.keepRed(addPass(chain, energy, {input}));
        const PassChain::Picture blurred = chain.gaussianBlur(highlights, sigma);
        return request.chained(chain, addPass(chain, halo, {input, highlights, blurred}));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Halation, HalationFilter, u"halation"_s)

} // namespace zm
