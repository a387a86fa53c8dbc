#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kStitch = 2.3; // the width of a thread in the working copy, pixels

// Threads stitched over fabric.
class EmbroideryFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double stitch = request.diagonalPixels(u"stitchSize"_s);

        LibraryUniformBlock block(u"embroidery"_s);
        block.setFloat("u_direction"_L1, request.radians(u"direction"_s));
        block.setFloat("u_followContours"_L1, request.percent(u"followContours"_s));
        block.setFloat("u_threadSheen"_L1, request.percent(u"threadSheen"_s));
        block.setFloat("u_fabricTexture"_L1, request.percent(u"fabricTexture"_s));
        block.setFloat("u_colorDepth"_L1, request.percent(u"colorDepth"_s));
        block.setColor("u_fabricColor"_L1, request.color(u"fabricColor"_s));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s));

        PassChain chain;
        // Clear forms with clear contours, as they are drawn before they are stitched.
        PassChain::Picture forms = addFlatPatches(chain, addWorkingCopy(chain, request, stitch, kStitch), kStitch, 0.5);
        for (int i = 0; i < 2; ++i)
            forms = addSmoothing(chain, forms, chain.size(forms), kAlongContours, 2.5 * kStitch, 0.4);
        const QSize working = chain.size(forms);
        block.setSize("u_size"_L1, request.size());
        block.setSize("u_formsSize"_L1, working);
        block.setFloat("u_stitchSize"_L1, stitch);
        block.setFloat("u_step"_L1, 1.0);
        const PassChain::Picture directions = addPass(chain, block, {forms});
        block.setFloat("u_step"_L1, 0.0);
        forms = chain.stacked(forms, directions, request.renderer->maximumTextureSize());
        return chainedWithAlpha(request, chain,
                                chain.libraryShader(block.shaderId(), request.size(), {forms}, block.bytes()));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Embroidery, EmbroideryFilter, u"embroidery"_s)

} // namespace zm
