#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class JaggedEdgeFilter final : public LibraryFilter
{
public:
    JaggedEdgeFilter()
        : LibraryFilter(u"jagged-edge"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double edge = request.diagonalPixels(u"edgeSize"_s, 30.0);
        LibraryUniformBlock block(u"jagged-edge"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_edge_size"_L1, edge);
        block.setFloat("u_roughness"_L1, request.percent(u"roughness"_s, 75.0));
        block.setFloat("u_pattern_size"_L1, request.diagonalPixels(u"patternSize"_s, 60.0));
        block.setFloat("u_detail"_L1, request.percent(u"detail"_s, 60.0));
        block.setFloat(
            "u_style"_L1,
            request.choice(u"style"_s,
                           {"torn"_L1, "deckle"_L1, "jagged"_L1, "zigzag"_L1, "scalloped"_L1, "perforated"_L1}));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 7.0));
        block.setFloat("u_softness"_L1, request.percent(u"softness"_s, 0.0) * edge);
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeJaggedEdgeFilter()
{
    return std::make_unique<JaggedEdgeFilter>();
}

} // namespace zm
