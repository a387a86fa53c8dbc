#include "filters/craft/brush_coverage.h"
#include "filters/craft/coverage.h"
#include "filters/library_filter.h"
#include "filters/library_filters.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// The mask is about a third of the size of a large picture.
constexpr double kSteeper = 2.2;

// The picture as broad strokes of a flat brush on a bare canvas.
class BrushstrokeFrameFilter final : public LibraryFilter
{
public:
    BrushstrokeFrameFilter()
        : LibraryFilter(u"brushstroke-photo-frame"_s)
    {
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        BrushCoverageSettings settings;
        settings.strokes = request.number(u"strokes"_s, 8.0);
        settings.directionDegrees = request.number(u"direction"_s, -4.0);
        settings.margin = request.number(u"margin"_s, 30.0) / 1000.0;
        settings.roughness = request.percent(u"roughness"_s, 60.0);
        settings.dryness = request.percent(u"dryness"_s, 50.0);
        settings.seed = quint32(request.number(u"seed"_s, 3.0));
        const QImage mask = brushCoverage(request.size(), settings);
        if (mask.isNull())
            return request.unchanged();
        QImage image = request.image;
        multiplyAlphaEnlarged(image, mask, kSteeper);
        return request.result(image);
    }
};

} // namespace

std::unique_ptr<Filter> makeBrushstrokeFrameFilter()
{
    return std::make_unique<BrushstrokeFrameFilter>();
}

} // namespace zm
