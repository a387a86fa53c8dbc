#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class SepiaToneFilter final : public LibraryFilter
{
public:
    SepiaToneFilter()
        : LibraryFilter(u"sepia-tone"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"sepia-tone"_s);
        block.setVec2("u_tintHS"_L1, request.number(u"hue"_s, 29.0) / 360.0, request.percent(u"saturation"_s, 72.0));
        block.setFloat("u_brightness"_L1, request.percent(u"brightness"_s, 0.0));
        block.setFloat("u_contrast"_L1, request.percent(u"contrast"_s, 15.0));
        block.setFloat("u_intensity"_L1, request.percent(u"intensity"_s, 100.0));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeSepiaToneFilter()
{
    return std::make_unique<SepiaToneFilter>();
}

} // namespace zm
