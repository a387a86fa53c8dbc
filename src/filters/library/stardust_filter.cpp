#include "filters/craft/shape_mask.h"
#include "filters/craft/stardust_render.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class StardustFilter final : public LibraryFilter
{
public:
    StardustFilter()
        : LibraryFilter(u"stardust"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture mask = addShapeMask(chain, request, {u"ellipse"_s, {}, 60.0});
        const StardustUse use{.maskInverted = request.parameters.boolean(u"mask.inverted"_s, true),
                              .starsOnly = request.parameters.boolean(u"starsOnly"_s, false)};
        return request.chained(chain, addStardust(chain, request, input, mask, use));
    }
};

} // namespace

std::unique_ptr<Filter> makeStardustFilter()
{
    return std::make_unique<StardustFilter>();
}

} // namespace zm
