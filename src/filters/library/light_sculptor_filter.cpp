#include "filters/craft/placed_line.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The picture as a relief, lit by a light that hangs over it.
class LightSculptorFilter final : public LibraryFilter
{
public:
    LightSculptorFilter()
        : LibraryFilter(u"light-sculptor"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QLineF light = placedLine(request, u"light"_s, {0.3, 0.2, 0.8, 0.8});
        LibraryUniformBlock block(u"light-sculptor"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setVec2("u_lightCenter"_L1, light.x1(), light.y1());
        block.setFloat("u_lightRadius"_L1, std::max(light.length(), 1.0));
        block.setFloat("u_depth"_L1, request.percent(u"depth"_s, 50.0));
        block.setFloat("u_normalStepPx"_L1, request.diagonalPixels(u"detailSize"_s, 1.2));
        block.setFloat("u_lightHeight"_L1, request.percent(u"lightHeight"_s, 25.0));
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s, 35.0));
        block.setFloat("u_ambient"_L1, request.percent(u"ambient"_s, 25.0));
        block.setFloat("u_shine"_L1, request.percent(u"shine"_s, 45.0));
        block.setFloat("u_material"_L1,
                       request.choice(u"material"_s,
                                      {"photo"_L1, "clay"_L1, "plaster"_L1, "porcelain"_L1, "bronze"_L1, "silver"_L1}));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeLightSculptorFilter()
{
    return std::make_unique<LightSculptorFilter>();
}

} // namespace zm
