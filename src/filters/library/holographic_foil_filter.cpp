#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The picture embossed into foil that splits light into its colours.
class HolographicFoilFilter final : public LibraryFilter
{
public:
    HolographicFoilFilter()
        : LibraryFilter(u"holographic-foil"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"holographic-foil"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_angle"_L1, request.number(u"angle"_s, 35.0) * std::numbers::pi / 180.0);
        block.setFloat("u_rainbow"_L1, request.percent(u"rainbow"_s, 60.0));
        block.setFloat("u_foilScalePx"_L1, request.diagonalPixels(u"foilScale"_s, 250.0));
        block.setFloat("u_shimmer"_L1, request.percent(u"shimmer"_s, 40.0));
        block.setFloat("u_relief"_L1, request.percent(u"relief"_s, 50.0));
        block.setFloat("u_blend"_L1, request.percent(u"blend"_s, 60.0));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeHolographicFoilFilter()
{
    return std::make_unique<HolographicFoilFilter>();
}

} // namespace zm
