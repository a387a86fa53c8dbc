#include "filters/craft/light_map.h"
#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Light that has got into the camera and burnt the film from an edge inwards.
class LightLeakFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QLineF line = request.line(u"position"_s);
        LibraryUniformBlock block(u"light-leak-edges"_s);
        block.setVec2("u_start"_L1, line.x1(), line.y1());
        block.setVec2("u_end"_L1, line.x2(), line.y2());
        block.setFloat("u_strength"_L1, request.percent(u"strength"_s));
        block.setFloat("u_spread"_L1, request.percent(u"spread"_s));
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s));
        block.setColor("u_color_a"_L1, request.color(u"color.core"_s));
        block.setColor("u_color_b"_L1, request.color(u"color.rim"_s));
        block.setFloat("u_haze"_L1, request.percent(u"haze"_s));
        block.setFloat("u_streaks"_L1, request.percent(u"streaks"_s));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s));
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

ZM_LIBRARY_EFFECT(LightLeak, LightLeakFilter, u"light-leak"_s)

} // namespace zm
