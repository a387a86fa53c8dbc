#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class GrayscaleFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        GrayscaleLevels levels;
        levels.amount = request.percent(u"amount"_s);
        levels.blackPoint = request.percent(u"blackPoint"_s);
        levels.whitePoint = request.percent(u"whitePoint"_s);
        levels.thresholdAmount = request.percent(u"thresholdAmount"_s);
        levels.thresholdPoint = request.percent(u"thresholdPoint"_s);
        levels.thresholdSoftness = request.percent(u"thresholdSoftness"_s);

        PassChain chain;
        return request.chained(chain, chain.grayscale(chain.source(request.image), levels));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Grayscale, GrayscaleFilter, u"grayscale"_s)

} // namespace zm
