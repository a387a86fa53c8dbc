#include "filters/craft/shape_mask.h"
#include "filters/craft/stardust_render.h"
#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class StardustFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture mask = addShapeMask(chain, request);
        const StardustUse use{.maskInverted = request.flag(u"mask.inverted"_s),
                              .starsOnly = request.flag(u"starsOnly"_s)};
        return request.chained(chain, addStardust(chain, request, input, mask, use));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Stardust, StardustFilter, u"stardust"_s)

} // namespace zm
