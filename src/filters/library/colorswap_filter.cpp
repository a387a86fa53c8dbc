#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class ColorswapFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"colorswap"_s);
        block.setVec4("u_pick"_L1, request.choice(u"redFrom"_s), request.choice(u"greenFrom"_s),
                      request.choice(u"blueFrom"_s), 0.0);
        block.setVec4("u_negate"_L1, request.flag(u"redNegate"_s), request.flag(u"greenNegate"_s),
                      request.flag(u"blueNegate"_s), 0.0);
        block.setFloat("u_intensity"_L1, request.percent(u"intensity"_s));
        return request.singlePass(block);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Colorswap, ColorswapFilter, u"colorswap"_s)

} // namespace zm
