#include "filters/craft/light_map.h"
#include "filters/craft/placed_line.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Light that has got into the camera and burnt the film from an edge inwards.
class LightLeakFilter final : public LibraryFilter
{
public:
    LightLeakFilter()
        : LibraryFilter(u"light-leak"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QLineF line = placedLine(request, u"position"_s, {1.0, 0.3, 0.7, 0.42});
        LibraryUniformBlock block(u"light-leak-edges"_s);
        block.setVec2("u_start"_L1, line.x1(), line.y1());
        block.setVec2("u_end"_L1, line.x2(), line.y2());
        block.setFloat("u_strength"_L1, request.percent(u"strength"_s, 60.0));
        block.setFloat("u_spread"_L1, request.percent(u"spread"_s, 50.0));
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s, 60.0));
        block.setColor("u_color_a"_L1, request.parameters.color(u"color.core"_s, QColor(0xff, 0xb3, 0x3a)));
        block.setColor("u_color_b"_L1, request.parameters.color(u"color.rim"_s, QColor(0xe8, 0x28, 0x1c)));
        block.setFloat("u_haze"_L1, request.percent(u"haze"_s, 15.0));
        block.setFloat("u_streaks"_L1, request.percent(u"streaks"_s, 35.0));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 0.0));
        return renderWithLightMap(request, block, reduction(request.size()));
    }

private:
    /// The finest streaks are a fiftieth of the diagonal wide, ten pixels of the map.
    static int reduction(const QSize &size)
    {
        return std::max(int(std::hypot(size.width(), size.height()) / 500.0), 1);
    }
};

} // namespace

std::unique_ptr<Filter> makeLightLeakFilter()
{
    return std::make_unique<LightLeakFilter>();
}

} // namespace zm
