#include "filters/craft/shape_mask.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class VignetteFilter final : public LibraryFilter
{
public:
    VignetteFilter()
        : LibraryFilter(u"vignette"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"vignette"_s);
        block.setFloat("u_strength"_L1, request.percent(u"strength"_s, 80.0));
        block.setFloat("u_mask_invert"_L1, request.parameters.boolean(u"mask.inverted"_s, false) ? 1.0 : 0.0);
        block.setColor("u_tint"_L1, request.parameters.color(u"tint"_s, Qt::black));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture mask =
            addShapeMask(chain, request, {u"ellipse"_s, {.scaleX = 0.85, .scaleY = 0.85}, 75.0});
        return request.chained(chain, addPass(chain, block, {input, mask}));
    }
};

} // namespace

std::unique_ptr<Filter> makeVignetteFilter()
{
    return std::make_unique<VignetteFilter>();
}

} // namespace zm
