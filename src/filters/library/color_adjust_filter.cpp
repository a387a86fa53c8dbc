#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class ColorAdjustFilter final : public LibraryFilter
{
public:
    ColorAdjustFilter()
        : LibraryFilter(u"color-adjust"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        ColorAdjustment adjustment;
        adjustment.brightness = request.percent(u"brightness"_s, 0.0);
        adjustment.saturation = request.percent(u"saturation"_s, 0.0);
        adjustment.hue = request.percent(u"hue"_s, 0.0);
        adjustment.contrast = request.percent(u"contrast"_s, 0.0);
        adjustment.exposure = request.percent(u"exposure"_s, 0.0);
        adjustment.temperature = request.percent(u"temperature"_s, 0.0);
        adjustment.gamma = request.percent(u"gamma"_s, 0.0);
        if (adjustment == ColorAdjustment{})
            return request.unchanged();

        PassChain chain;
        return request.chained(chain, chain.colorAdjust(chain.source(request.image), adjustment));
    }
};

} // namespace

std::unique_ptr<Filter> makeColorAdjustFilter()
{
    return std::make_unique<ColorAdjustFilter>();
}

} // namespace zm
