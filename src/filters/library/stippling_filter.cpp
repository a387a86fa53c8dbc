#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Ink dots over paper.
class StipplingFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double dot = request.diagonalPixels(u"dotSize"_s);

        LibraryUniformBlock block(u"stippling"_s);
        block.setSize("u_size"_L1, request.size());
        block.setFloat("u_dotSize"_L1, dot);
        block.setFloat("u_density"_L1, request.percent(u"density"_s));
        block.setFloat("u_contrast"_L1, request.percent(u"contrast"_s));
        block.setColor("u_inkColor"_L1, request.color(u"inkColor"_s));
        block.setColor("u_paperColor"_L1, request.color(u"paperColor"_s));
        block.setFloat("u_paperTexture"_L1, request.percent(u"paperTexture"_s));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture soft = chain.reducedBlur(input, 0.4 * dot);
        return chainedWithAlpha(request, chain,
                                chain.libraryShader(block.shaderId(), request.size(), {soft}, block.bytes()));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Stippling, StipplingFilter, u"stippling"_s)

} // namespace zm
