#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Edges as light lines on black or dark ones on white.
class SobelFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"sobel"_s);
        block.setFloat("u_mix"_L1, request.percent(u"mix"_s));
        block.setFloat("u_invert"_L1, request.flag(u"invert"_s));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture smooth = chain.gaussianBlur(input, request.pixels(u"smoothing"_s));
        const PassChain::Picture edges = chain.keepRed(chain.sobel(smooth,
                                                                   {.strength = request.percent(u"strength"_s),
                                                                    .radius = request.pixels(u"radius"_s),
                                                                    .threshold = request.percent(u"threshold"_s)}));
        return request.chained(chain, addPass(chain, block, {input, edges}));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Sobel, SobelFilter, u"sobel"_s)

} // namespace zm
