#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A picture whose signal breaks: lines tear, blocks jump, columns run down.
class SignalMeltFilter final : public LibraryFilter
{
public:
    SignalMeltFilter()
        : LibraryFilter(u"signal-melt"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"signal-melt"_s);
        block.setVec2("u_size"_L1, request.image.width(), request.image.height());
        block.setFloat("u_tearAmount"_L1, request.percent(u"tear"_s, 45.0));
        block.setFloat("u_blockSize"_L1, request.diagonalPixels(u"blockSize"_s, 30.0));
        block.setFloat("u_displacement"_L1, request.diagonalPixels(u"displacement"_s, 60.0));
        block.setFloat("u_rgbSplit"_L1, request.diagonalPixels(u"rgbSplit"_s, 5.0));
        block.setFloat("u_seed"_L1, request.number(u"seed"_s, 7.0));
        block.setFloat("u_mode"_L1, request.choice(u"mode"_s, {"melt"_L1, "digital"_L1, "analog"_L1}));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeSignalMeltFilter()
{
    return std::make_unique<SignalMeltFilter>();
}

} // namespace zm
