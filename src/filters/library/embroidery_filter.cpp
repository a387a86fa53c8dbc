#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kStitch = 2.3; // the width of a thread in the working copy, pixels

// Threads stitched over fabric.
class EmbroideryFilter final : public LibraryFilter
{
public:
    EmbroideryFilter()
        : LibraryFilter(u"embroidery"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double stitch = request.diagonalPixels(u"stitchSize"_s, 2.4);

        LibraryUniformBlock block(u"embroidery"_s);
        block.setFloat("u_direction"_L1, request.number(u"direction"_s, 30.0) * std::numbers::pi / 180.0);
        block.setFloat("u_followContours"_L1, request.percent(u"followContours"_s, 80.0));
        block.setFloat("u_threadSheen"_L1, request.percent(u"threadSheen"_s, 55.0));
        block.setFloat("u_fabricTexture"_L1, request.percent(u"fabricTexture"_s, 60.0));
        block.setFloat("u_colorDepth"_L1, request.percent(u"colorDepth"_s, 65.0));
        block.setColor("u_fabricColor"_L1, request.parameters.color(u"fabricColor"_s, QColor(0xe9, 0xdf, 0xcb)));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 1.0));

        PassChain chain;
        // Clear forms with clear contours, as they are drawn before they are stitched.
        PassChain::Picture forms = addFlatPatches(chain, addWorkingCopy(chain, request, stitch, kStitch), kStitch, 0.5);
        for (int i = 0; i < 2; ++i)
            forms = addSmoothing(chain, forms, chain.size(forms), kAlongContours, 2.5 * kStitch, 0.4);
        const QSize working = chain.size(forms);
        block.setVec4("u_size"_L1, request.image.width(), request.image.height(), working.width(), working.height());
        block.setVec2("u_stitchSize"_L1, stitch, 1.0);
        const PassChain::Picture directions = addPass(chain, block, {forms});
        block.setVec2("u_stitchSize"_L1, stitch, 0.0);
        forms = chain.stacked(forms, directions, request.renderer->maximumTextureSize());
        return chainedWithAlpha(request, chain,
                                chain.libraryShader(block.shaderId(), request.size(), {forms}, block.bytes()));
    }
};

} // namespace

std::unique_ptr<Filter> makeEmbroideryFilter()
{
    return std::make_unique<EmbroideryFilter>();
}

} // namespace zm
