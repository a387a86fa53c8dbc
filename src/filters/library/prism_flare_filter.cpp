#include "filters/craft/light_map.h"
#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Light that a prism before the lens has split, falling across the picture along a line.
class PrismFlareFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QLineF line = request.line(u"position"_s);
        LibraryUniformBlock block(u"prism-flare"_s);
        block.setVec2("u_start"_L1, line.x1(), line.y1());
        block.setVec2("u_end"_L1, line.x2(), line.y2());
        block.setFloat("u_style"_L1, request.choice(u"style"_s));
        block.setFloat("u_intensity"_L1, request.percent(u"intensity"_s));
        block.setFloat("u_spread"_L1, request.percent(u"spread"_s));
        const double width = request.percent(u"width"_s);
        block.setFloat("u_width"_L1, width);
        block.setFloat("u_fragmentation"_L1, request.percent(u"fragmentation"_s));
        block.setFloat("u_ghosts"_L1, request.number(u"ghosts"_s));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s));
        return renderWithLightMap(request, block, reduction(request.size(), width));
    }

private:
    /// Leaves five pixels for the finest forms: lanes of the light where it is narrowest, at its source, and the
    /// reflections' outlines.
    static int reduction(const QSize &size, double width)
    {
        const double finest = std::min(0.0008 + 0.012 * width, 0.005);
        return int(0.2 * finest * std::hypot(size.width(), size.height()));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(PrismFlare, PrismFlareFilter, u"prism-flare"_s)

} // namespace zm
