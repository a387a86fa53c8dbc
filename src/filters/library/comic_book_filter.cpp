#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The diagonal, in pixels, of a picture whose contours are a pixel wide.
constexpr double kLineDiagonal = 900.0;
constexpr double kLargestForm = 0.006; // of the diagonal
constexpr double kForm = 3.0; // the width of the smallest forms in the working copy, pixels

// Flat tones, a screen of dots and ink lines.
class ComicBookFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"comic-book"_s);
        block.setSize("u_size"_L1, request.size());
        block.setFloat("u_style"_L1, request.choice(u"style"_s));
        block.setFloat("u_ink"_L1, request.percent(u"ink"_s));
        block.setFloat("u_levels"_L1, request.number(u"levels"_s));
        block.setFloat("u_dotSize"_L1, request.diagonalPixels(u"dotSize"_s));
        block.setFloat("u_colorPunch"_L1, request.percent(u"colorPunch"_s));
        block.setFloat("u_brightnessCorrection"_L1, request.percent(u"brightness"_s));
        block.setFloat("u_renderScale"_L1, request.diagonal() / kLineDiagonal);

        PassChain chain;
        const double simplify = request.percent(u"simplify"_s);
        if (simplify <= 0.0)
            return request.chained(chain, addPass(chain, block, {chain.source(request.image)}));
        // Fewer and clearer forms, as an inker sees them.
        const double form = request.diagonal() * kLargestForm * simplify;
        const PassChain::Picture forms = addFlatPatches(chain, addWorkingCopy(chain, request, form, kForm), kForm, 0.5);
        return chainedWithAlpha(request, chain, addPass(chain, block, {addEnlargement(chain, forms, request.size())}));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(ComicBook, ComicBookFilter, u"comic-book"_s)

} // namespace zm
