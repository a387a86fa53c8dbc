#include "filters/library_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

class ColorAdjustFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        ColorAdjustment adjustment;
        adjustment.brightness = request.percent(u"brightness"_s);
        adjustment.saturation = request.percent(u"saturation"_s);
        adjustment.hue = request.percent(u"hue"_s);
        adjustment.contrast = request.percent(u"contrast"_s);
        adjustment.exposure = request.percent(u"exposure"_s);
        adjustment.temperature = request.percent(u"temperature"_s);
        adjustment.gamma = request.percent(u"gamma"_s);
        if (adjustment == ColorAdjustment{})
            return request.unchanged();

        PassChain chain;
        return request.chained(chain, chain.colorAdjust(chain.source(request.image), adjustment));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(ColorAdjust, ColorAdjustFilter, u"color-adjust"_s)

} // namespace zm
