#include "filters/craft/lens_blur.h"
#include "filters/craft/shape_mask.h"
#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kCornerShade = 0.45;   // strength of the dark corners, as a share of the fall-off's
constexpr double kCornerFeather = 90.0; // 0..100
constexpr int kCornerMaskSide = 256;    // pixels: soft as it is, it needs no more

/// The ellipse that the dark corners leave bright, without its feather.
QImage cornerMask(const QSizeF &box)
{
    const QSize size = box.scaled(kCornerMaskSide, kCornerMaskSide, Qt::KeepAspectRatio).toSize();
    const QPainterPath ellipse = shapeMaskPath(u"ellipse"_s, {}, {.scaleX = 1.02, .scaleY = 1.02}, box);
    return filledShapeMask(ellipse, box, size.expandedTo({1, 1}));
}

// An old portrait lens: sharp in the middle, and around it a background that turns about the centre.
class PetzvalLensFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const MaskTransform focus = request.maskTransform(u"mask.transform"_s);
        const double shade = request.percent(u"vignette"_s);
        LibraryUniformBlock lens(u"petzval-lens"_s);
        lens.setSize("u_size"_L1, request.size());
        lens.setVec2("u_center"_L1, focus.x * request.image.width(), focus.y * request.image.height());
        lens.setFloat("u_blurStrength"_L1, request.percent(u"blurStrength"_s));
        lens.setFloat("u_swirl"_L1, request.percent(u"swirl"_s));
        lens.setFloat("u_vignette"_L1, shade);
        LibraryUniformBlock corners(u"vignette"_s);
        corners.setFloat("u_strength"_L1, shade * kCornerShade);
        corners.setColor("u_tint"_L1, Qt::black);

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const double radius = request.diagonalPixels(u"blurSize"_s);
        const PassChain::Picture soft = chain.source(lensBlurred(request.image, radius));
        const PassChain::Picture mask = addShapeMask(chain, request);
        const PassChain::Picture turned = addPass(chain, lens, {input, soft, mask});
        const PassChain::Picture bright = chain.source(cornerMask(request.bounds.size()));
        const PassChain::Picture softBright =
            chain.reducedBlur(bright, featherSigma(kCornerFeather, chain.size(bright)));
        return request.chained(chain, addPass(chain, corners, {turned, softBright}));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(PetzvalLens, PetzvalLensFilter, u"petzval-lens"_s)

} // namespace zm
