#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class GrayscaleFilter final : public LibraryFilter
{
public:
    GrayscaleFilter()
        : LibraryFilter(u"grayscale"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        GrayscaleLevels levels;
        levels.amount = request.percent(u"amount"_s, 100.0);
        levels.blackPoint = request.percent(u"blackPoint"_s, 0.0);
        levels.whitePoint = request.percent(u"whitePoint"_s, 100.0);
        levels.thresholdAmount = request.percent(u"thresholdAmount"_s, 0.0);
        levels.thresholdPoint = request.percent(u"thresholdPoint"_s, 50.0);
        levels.thresholdSoftness = request.percent(u"thresholdSoftness"_s, 8.0);

        PassChain chain;
        return request.chained(chain, chain.grayscale(chain.source(request.image), levels));
    }
};

} // namespace

std::unique_ptr<Filter> makeGrayscaleFilter()
{
    return std::make_unique<GrayscaleFilter>();
}

} // namespace zm
