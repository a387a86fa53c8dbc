#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kPatch = 4.6; // the width of a patch in the working copy, pixels

// Transparent washes over paper.
class WatercolorWashFilter final : public LibraryFilter
{
public:
    WatercolorWashFilter()
        : LibraryFilter(u"watercolor-wash"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double unit = std::hypot(request.image.width(), request.image.height()) / 1000.0;
        const double detail = request.percent(u"detail"_s, 50.0);

        LibraryUniformBlock block(u"watercolor-wash"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_renderScale"_L1, unit);
        block.setFloat("u_bleed"_L1, request.percent(u"bleed"_s, 45.0));
        block.setFloat("u_pigment"_L1, request.percent(u"pigment"_s, 55.0));
        block.setFloat("u_detail"_L1, detail);
        block.setFloat("u_paper"_L1, request.percent(u"paper"_s, 50.0));
        block.setFloat("u_blend"_L1, request.percent(u"blend"_s, 40.0));

        PassChain chain;
        // Patches of about this width, in thousandths of the diagonal, are what a brush lays down at once.
        const double patch = 8.0 - 6.0 * detail;
        PassChain::Picture picture = addWorkingCopy(chain, request, patch * unit, kPatch);
        picture = addFlatPatches(chain, picture, kPatch, 0.4 * detail);
        picture = addSmoothing(chain, picture, chain.size(picture), kAlongContours, kPatch, 0.0);
        picture = addFlatPatches(chain, picture, 0.5 * kPatch, 0.4 * detail);
        return chainedWithAlpha(request, chain,
                                chain.libraryShader(block.shaderId(), request.size(), {picture}, block.bytes()));
    }
};

} // namespace

std::unique_ptr<Filter> makeWatercolorWashFilter()
{
    return std::make_unique<WatercolorWashFilter>();
}

} // namespace zm
