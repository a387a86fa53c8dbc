#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kPatch = 4.6; // the width of a patch in the working copy, pixels

// Transparent washes over paper.
class WatercolorWashFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double unit = request.diagonal() / 1000.0;
        const double detail = request.percent(u"detail"_s);

        LibraryUniformBlock block(u"watercolor-wash"_s);
        block.setSize("u_size"_L1, request.size());
        block.setFloat("u_renderScale"_L1, unit);
        block.setFloat("u_bleed"_L1, request.percent(u"bleed"_s));
        block.setFloat("u_pigment"_L1, request.percent(u"pigment"_s));
        block.setFloat("u_detail"_L1, detail);
        block.setFloat("u_paper"_L1, request.percent(u"paper"_s));
        block.setFloat("u_blend"_L1, request.percent(u"blend"_s));

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

ZM_LIBRARY_EFFECT(WatercolorWash, WatercolorWashFilter, u"watercolor-wash"_s)

} // namespace zm
