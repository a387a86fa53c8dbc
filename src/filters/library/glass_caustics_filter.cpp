#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The picture under moving water: bent by it, and lit by the net of light that it casts.
class GlassCausticsFilter final : public LibraryFilter
{
public:
    GlassCausticsFilter()
        : LibraryFilter(u"glass-caustics"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"glass-caustics"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_causticScale"_L1, request.diagonalPixels(u"size"_s, 85.0));
        block.setFloat("u_refraction"_L1, request.percent(u"refraction"_s, 40.0));
        block.setFloat("u_light"_L1, request.percent(u"light"_s, 60.0));
        block.setFloat("u_flow"_L1, request.percent(u"flow"_s, 50.0));
        block.setFloat("u_chroma"_L1, request.percent(u"chroma"_s, 35.0));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 0.0));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeGlassCausticsFilter()
{
    return std::make_unique<GlassCausticsFilter>();
}

} // namespace zm
