#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kRimStrength = 0.8;
constexpr double kRimSmoothness = 0.7;

// Shaped corners, and a lit rim that follows them.
class RoundedCornersFilter final : public LibraryFilter
{
public:
    RoundedCornersFilter()
        : LibraryFilter(u"corner-editor"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const double shorterHalf = 0.5 * std::min(size.width(), size.height());
        const double radius = request.percent(u"radius"_s, 25.0) * shorterHalf;
        const int style = request.choice(u"style"_s, {"round"_L1, "squircle"_L1, "scooped"_L1, "cut"_L1, "notched"_L1});

        LibraryUniformBlock corners(u"rounded-corners"_s);
        corners.setVec2("u_size"_L1, size.width(), size.height());
        corners.setFloat("u_radius"_L1, radius);
        corners.setFloat("u_style"_L1, style);
        PassChain chain;
        PassChain::Picture picture = addPass(chain, corners, {chain.source(request.image)});

        const double rim = std::round(request.diagonalPixels(u"bevel"_s, 0.0));
        if (rim > 0.0) {
            LibraryUniformBlock bevel(u"bevel"_s);
            bevel.setVec4("u_size"_L1, size.width(), size.height(), radius, style);
            bevel.setFloat("u_bevel"_L1, rim);
            bevel.setFloat("u_strength"_L1, kRimStrength);
            bevel.setFloat("u_smoothness"_L1, kRimSmoothness);
            bevel.setFloat("u_sign"_L1, 1.0);
            picture = addPass(chain, bevel, {picture});
        }
        return request.chained(chain, picture);
    }
};

} // namespace

std::unique_ptr<Filter> makeRoundedCornersFilter()
{
    return std::make_unique<RoundedCornersFilter>();
}

} // namespace zm
