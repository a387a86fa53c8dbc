#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A print in two or three spot colours.
class RisoPressFilter final : public LibraryFilter
{
public:
    RisoPressFilter()
        : LibraryFilter(u"riso-press"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double pitch = request.diagonalPixels(u"screenScale"_s, 4.2);

        LibraryUniformBlock block(u"riso-press"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_palette"_L1,
                       request.choice(u"palette"_s,
                                      {"pinkBlueYellow"_L1, "pinkBlue"_L1, "orangeTeal"_L1, "redBlack"_L1,
                                       "sunViolet"_L1, "mintCoral"_L1}));
        block.setFloat("u_screenScale"_L1, pitch);
        block.setFloat("u_misregistration"_L1, request.diagonalPixels(u"misregistration"_s, 2.2));
        block.setFloat("u_inkDensity"_L1, request.percent(u"inkDensity"_s, 65.0));
        block.setFloat("u_grain"_L1, request.percent(u"grain"_s, 50.0));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 1.0));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeRisoPressFilter()
{
    return std::make_unique<RisoPressFilter>();
}

} // namespace zm
