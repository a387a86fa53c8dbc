#include "filters/library_filter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Runs of pixels sorted by brightness, as if they had drifted.
class PixelDriftFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        PixelDriftSettings settings;
        settings.amount = std::clamp(request.percent(u"amount"_s), 0.0, 1.0);
        if (request.image.isNull() || settings.amount <= 0.0)
            return request.unchanged();
        settings.angle = std::clamp(request.number(u"angle"_s), 0.0, 360.0);
        settings.descending = request.text(u"order"_s) == "descending"_L1;
        settings.streakLength = request.pixels(u"streakLength"_s);
        settings.shadowThreshold = request.percent(u"shadowThreshold"_s);
        settings.highlightThreshold = request.percent(u"highlightThreshold"_s);
        settings.seed = request.number(u"seed"_s);
        return request.result(request.renderer->renderPixelDrift(request.image, settings));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(PixelDrift, PixelDriftFilter, u"pixel-drift"_s)

} // namespace zm
