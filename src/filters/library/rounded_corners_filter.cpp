#include "filters/library_filter.h"

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
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const double shorterHalf = 0.5 * std::min(size.width(), size.height());
        const double radius = request.percent(u"radius"_s) * shorterHalf;
        const int style = request.choice(u"style"_s);

        LibraryUniformBlock corners(u"rounded-corners"_s);
        corners.setSize("u_size"_L1, size);
        corners.setFloat("u_radius"_L1, radius);
        corners.setFloat("u_style"_L1, style);
        PassChain chain;
        PassChain::Picture picture = addPass(chain, corners, {chain.source(request.image)});

        const double rim = std::round(request.diagonalPixels(u"bevel"_s));
        if (rim > 0.0) {
            LibraryUniformBlock bevel(u"bevel"_s);
            bevel.setSize("u_size"_L1, size);
            bevel.setFloat("u_cornerRadius"_L1, radius);
            bevel.setFloat("u_cornerStyle"_L1, style);
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

ZM_LIBRARY_EFFECT(RoundedCorners, RoundedCornersFilter, u"corner-editor"_s)

} // namespace zm
