#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class SoftAmberFilter final : public LibraryFilter
{
public:
    SoftAmberFilter()
        : LibraryFilter(u"soft-amber"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        LibraryUniformBlock block(u"soft-amber"_s);
        block.setFloat("u_strength"_L1, request.percent(u"strength"_s, 85.0));
        block.setFloat("u_warmth"_L1, request.percent(u"warmth"_s, 55.0));
        block.setFloat("u_pastel"_L1, request.percent(u"pastel"_s, 45.0));
        block.setFloat("u_greens"_L1, request.percent(u"greens"_s, 60.0));
        return request.singlePass(block);
    }
};

} // namespace

std::unique_ptr<Filter> makeSoftAmberFilter()
{
    return std::make_unique<SoftAmberFilter>();
}

} // namespace zm
