#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Edges as light lines on black or dark ones on white.
class SobelFilter final : public LibraryFilter
{
public:
    SobelFilter()
        : LibraryFilter(u"sobel"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"sobel"_s);
        block.setFloat("u_mix"_L1, request.percent(u"mix"_s, 100.0));
        block.setFloat("u_invert"_L1, request.parameters.boolean(u"invert"_s, false) ? 1.0 : 0.0);

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture smooth = chain.gaussianBlur(input, request.pixels(u"smoothing"_s, 1.5));
        const PassChain::Picture edges =
            chain.keepRed(chain.sobel(smooth,
                                      {.strength = request.percent(u"strength"_s, 120.0),
                                       .radius = request.pixels(u"radius"_s, 2.0),
                                       .threshold = request.percent(u"threshold"_s, 4.0)}));
        return request.chained(chain, addPass(chain, block, {input, edges}));
    }
};

} // namespace

std::unique_ptr<Filter> makeSobelFilter()
{
    return std::make_unique<SobelFilter>();
}

} // namespace zm
