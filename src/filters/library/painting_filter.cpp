#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kBrush = 5.5; // the width of a brush in the working copy, pixels
// A hand's own slant, where no contour leads the brush.
constexpr QPointF kSlant{0.8, -0.6};
constexpr double kLine = 0.7; // the reach of the dark lines, the same

// Brush strokes along the contours: patches of flat colour, in which noise is drawn out to the marks of bristles.
class PaintingFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double brush = request.diagonalPixels(u"brushSize"_s);
        const double detail = request.percent(u"detail"_s);
        const double bristles = request.percent(u"bristles"_s);

        PassChain chain;
        PassChain::Picture picture = addWorkingCopy(chain, request, brush, kBrush);
        const QSize working = chain.size(picture);
        // Each patch is laid on with a colour that differs a little from the next one's.
        picture = chain.addNoise(picture, {.amount = 0.1 * bristles, .seed = 1.0});
        picture = addFlatPatches(chain, picture, 0.75 * kBrush, detail);
        picture = chain.addNoise(picture, {.amount = 0.4 * bristles, .seed = 2.0});
        picture = addSmoothing(chain, picture, working, kSlant, kBrush, 0.0);
        picture = addSmoothing(chain, picture, working, kAlongContours, 1.5 * kBrush, 0.0);
        picture = addSmoothing(chain, picture, working, kAlongContours, kBrush, 0.0);
        // Finer marks, once more, where the picture has room for them.
        if (request.image.width() > 2 * working.width()) {
            picture = addSmoothing(chain, picture, 2 * working, kAlongContours, kBrush, 0.0);
            picture = chain.addNoise(picture, {.amount = 0.22 * bristles, .seed = 3.0});
            picture = addSmoothing(chain, picture, 2 * working, kSlant, 1.5 * kBrush, 0.0);
        }
        picture = addEnlargement(chain, picture, request.size());

        LibraryUniformBlock block(u"painting"_s);
        block.setVec2("u_texelSize"_L1, kLine / working.width(), kLine / working.height());
        block.setFloat("u_strength"_L1, request.percent(u"strength"_s));
        block.setFloat("u_satMul"_L1, request.percent(u"saturation"_s));
        block.setFloat("u_brightMul"_L1, request.percent(u"brightness"_s));
        return chainedWithAlpha(request, chain, addPass(chain, block, {picture}));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Painting, PaintingFilter, u"painting"_s)

} // namespace zm
