#include "filters/craft/patch_smoothing.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Ink dots over paper.
class StipplingFilter final : public LibraryFilter
{
public:
    StipplingFilter()
        : LibraryFilter(u"stippling"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double dot = request.diagonalPixels(u"dotSize"_s, 2.1);

        LibraryUniformBlock block(u"stippling"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_dotSize"_L1, dot);
        block.setFloat("u_density"_L1, request.percent(u"density"_s, 50.0));
        block.setFloat("u_contrast"_L1, request.percent(u"contrast"_s, 25.0));
        block.setColor("u_inkColor"_L1, request.parameters.color(u"inkColor"_s, QColor(0x1c, 0x1b, 0x22)));
        block.setColor("u_paperColor"_L1, request.parameters.color(u"paperColor"_s, QColor(0xf7, 0xf3, 0xe9)));
        block.setFloat("u_paperTexture"_L1, request.percent(u"paperTexture"_s, 35.0));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 1.0));

        PassChain chain;
        const PassChain::Picture input = chain.source(request.image);
        const PassChain::Picture soft = chain.reducedBlur(input, 0.4 * dot);
        return chainedWithAlpha(request, chain,
                                chain.libraryShader(block.shaderId(), request.size(), {soft}, block.bytes()));
    }
};

} // namespace

std::unique_ptr<Filter> makeStipplingFilter()
{
    return std::make_unique<StipplingFilter>();
}

} // namespace zm
