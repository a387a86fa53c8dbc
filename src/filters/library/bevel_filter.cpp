#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The rim of the picture, lit from the top left.
class BevelFilter final : public LibraryFilter
{
public:
    BevelFilter()
        : LibraryFilter(u"bevel"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"bevel"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_bevel"_L1, std::round(request.pixels(u"size"_s, 6.0)));
        block.setFloat("u_strength"_L1, request.number(u"strength"_s, 1.0));
        block.setFloat("u_smoothness"_L1, request.number(u"smoothness"_s, 0.5));
        block.setFloat("u_sign"_L1, request.choice(u"mode"_s, {"0"_L1, "1"_L1}) == 1 ? -1.0 : 1.0);
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeBevelFilter()
{
    return std::make_unique<BevelFilter>();
}

} // namespace zm
