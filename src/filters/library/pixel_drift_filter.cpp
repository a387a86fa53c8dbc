#include "filters/library_filter.h"
#include "filters/library_filters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Runs of pixels sorted by brightness, as if they had drifted.
class PixelDriftFilter final : public LibraryFilter
{
public:
    PixelDriftFilter()
        : LibraryFilter(u"pixel-drift"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        PixelDriftSettings settings;
        settings.amount = std::clamp(request.percent(u"amount"_s, 75.0), 0.0, 1.0);
        if (request.image.isNull() || settings.amount <= 0.0)
            return request.unchanged();
        settings.angle = std::clamp(request.number(u"angle"_s, 90.0), 0.0, 360.0);
        settings.descending = request.choice(u"order"_s, {"ascending"_L1, "descending"_L1}) == 1;
        settings.streakLength = request.pixels(u"streakLength"_s, 96.0);
        settings.shadowThreshold = request.percent(u"shadowThreshold"_s, 15.0);
        settings.highlightThreshold = request.percent(u"highlightThreshold"_s, 90.0);
        settings.seed = request.number(u"seed"_s, 23.0);
        return request.result(request.renderer->renderPixelDrift(request.image, settings));
    }
};

} // namespace

std::unique_ptr<Filter> makePixelDriftFilter()
{
    return std::make_unique<PixelDriftFilter>();
}

} // namespace zm
